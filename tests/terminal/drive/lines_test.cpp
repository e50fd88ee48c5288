#include <sstream>

#include "tests/terminal/drive/session_fixture.h"

namespace algo::terminal::drive {
namespace {

class Lines : public TSessionTest {};

TEST_F(Lines, AreAnsweredInOrderAndBlankOnesArePassedOver) {
  const auto answers = Play("\n{\"do\":\"orders\",\"id\":1}\n   \t\r\n{\"do\":\"orders\",\"id\":2}");
  ASSERT_EQ(answers.size(), 2U);
  EXPECT_EQ(answers[0].dump(), R"({"ok":true,"id":1,"orders":[]})");
  EXPECT_EQ(answers[1].dump(), R"({"ok":true,"id":2,"orders":[]})");
}

TEST_F(Lines, ThatCannotBeReadAreRefusedAndTheRunGoesOn) {
  const std::vector<std::string> broken{"{",
                                        "nonsense",
                                        "[]",
                                        "17",
                                        "\"do\"",
                                        "null",
                                        "{\"do\":\"orders\"",
                                        "{}",
                                        "\xFF\xFE",
                                        std::string("{\"do\":\0\"orders\"}", 16),
                                        "{\"do\":1e999}",
                                        "{\"do\":\"\xC3\"}"};
  for (const auto& line : broken) {
    const auto answers = Play(line + "\n{\"do\":\"orders\"}\n");
    ASSERT_EQ(answers.size(), 2U) << line;
    EXPECT_EQ(answers[0]["ok"], false) << line;
    EXPECT_TRUE(answers[0]["error"].is_string()) << line;
    EXPECT_EQ(answers[1]["ok"], true) << line;
  }
}

TEST_F(Lines, NameTheCommandThatDoesNotExist) {
  EXPECT_EQ(Refusal(R"({"do":"fly"})"), "there is no command 'fly'");
  EXPECT_EQ(Refusal(R"({"do":7})"), "'do' must be a text");
  EXPECT_EQ(Refusal(R"({"id":7})"), "'do' is missing");
}

TEST_F(Lines, HaveTheirIdCopiedWhateverItIs) {
  EXPECT_EQ(Ask(R"({"do":"orders","id":{"b":[1,null],"a":"x"}})")["id"].dump(), R"({"a":"x","b":[1,null]})");
  EXPECT_EQ(Ask(R"({"do":"fly","id":"seven"})")["id"], "seven");
  EXPECT_TRUE(Ask(R"({"do":"fly","id":null})").contains("id"));
  EXPECT_FALSE(Ask(R"({"do":"fly"})").contains("id"));
}

TEST_F(Lines, ThatNestTooDeeplyAreRefused) {
  const std::string open(1000000, '[');
  EXPECT_EQ(Refusal("{\"do\":\"orders\",\"id\":" + open), "the line is nested too deeply");
  EXPECT_EQ(Refusal("{\"do\":\"orders\",\"id\":" + open + std::string(1000000, ']') + "}"),
            "the line is nested too deeply");
  EXPECT_EQ(Ask("{\"do\":\"orders\",\"id\":" + std::string(100, '[') + std::string(100, ']') + "}")["ok"],
            true);
}

TEST_F(Lines, MayBeVeryLong) {
  const std::string text(10000000, 'x');
  EXPECT_EQ(Ask("{\"do\":\"order\",\"key\":\"K1\",\"account\":\"" + text + "\"}")["ok"], true);
  EXPECT_EQ(session.Host().Orders().Find("K1")->account.size(), 10000000U);
  // The error of a long line is short.
  EXPECT_LT(Refusal("{\"do\":\"order\",\"key\":\"" + text.substr(0, 1000000)).size(), 300U);
}

TEST_F(Lines, MayHaveVeryManyKeys) {
  std::string line = R"({"do":"orders")";
  for (int i = 0; i < 50000; ++i) line += ",\"k" + std::to_string(i) + "\":0";
  EXPECT_EQ(Ask(line + "}")["ok"], true);
}

TEST_F(Lines, KeepTextsThatHoldAnyCharacter) {
  Ask(R"({"do":"order","key":"K1","account":"a\u0000b\n\"\\","user":"\u00e9\ud83d\ude00"})");
  const auto order = Ask(R"({"do":"orders","key":"K1"})")["orders"][0];
  EXPECT_EQ(order["account"].get<std::string>(), std::string("a\0b\n\"\\", 6));
  EXPECT_EQ(order["user"], "\xC3\xA9\xF0\x9F\x98\x80");
}

TEST_F(Lines, AreAnsweredWithTextsThatAreNoUtf8) {
  auto order = std::make_unique<host::TCustomClientOrder>();
  order->key = "K1";
  order->account = "\xFF!";
  session.Host().Orders().Add(std::move(order));
  EXPECT_EQ(Ask(R"({"do":"orders"})")["orders"][0]["account"], "\xEF\xBF\xBD!");
}

TEST_F(Lines, EndTheRunWhenNobodyTakesTheAnswers) {
  std::istringstream in("{\"do\":\"order\",\"key\":\"K1\"}\n{\"do\":\"order\",\"key\":\"K2\"}\n");
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  Drive(session, in, out);
  EXPECT_NE(session.Host().Orders().Find("K1"), nullptr);
  EXPECT_EQ(session.Host().Orders().Find("K2"), nullptr);
}

TEST_F(Lines, AskForAModuleWhereOneIsNeeded) {
  for (const char* line : {R"({"do":"provider"})", R"({"do":"open","frame":"e1"})", R"({"do":"unload"})",
                           R"({"do":"available","order":null})"}) {
    EXPECT_EQ(Refusal(line), "no module is loaded");
  }
  EXPECT_TRUE(Refusal(R"({"do":"load"})").starts_with("the module cannot be loaded: "));
}

TEST_F(Lines, NameTheFrameThatIsNotThere) {
  for (const char* command : {"close", "size", "read", "leave", "enter", "close_form", "layout", "compose"}) {
    EXPECT_EQ(Refusal("{\"do\":\"" + std::string(command) + "\",\"frame\":\"e9\"}"),
              "there is no frame 'e9'");
    EXPECT_EQ(Refusal("{\"do\":\"" + std::string(command) + "\"}"), "'frame' is missing");
    EXPECT_EQ(Refusal("{\"do\":\"" + std::string(command) + "\",\"frame\":[]}"), "'frame' must be a text");
  }
}

}  // namespace
}  // namespace algo::terminal::drive
