// Members of answers as people read them.

#include "terminal/report/answer_text.h"

#include <gtest/gtest.h>

namespace algo::terminal::report {
namespace {

using nlohmann::json;

std::string TextOf(const json& value, TWriting writing = TWriting::Plain) {
  return MemberText({{"member", value}}, "member", writing);
}

TEST(AnswerText, NumbersAreWrittenAsTheirMemberNeeds) {
  EXPECT_EQ(TextOf(1234567.5), "1234567.5");
  EXPECT_EQ(TextOf(1234567.5, TWriting::Quantity), "1,234,567.5");
  EXPECT_EQ(TextOf(4294967295.0, TWriting::Flags), "0xffffffff");
  EXPECT_EQ(TextOf(0, TWriting::Side), "buy");
  EXPECT_EQ(TextOf(1, TWriting::Side), "sell");
}

TEST(AnswerText, AZeroThatMeansNothingIsLeftOut) {
  EXPECT_EQ(TextOf(0), "");
  EXPECT_EQ(TextOf(0, TWriting::Quantity), "");
  EXPECT_EQ(TextOf(0, TWriting::Flags), "");
}

TEST(AnswerText, NumbersThatAreNoFlagsAndNoSideAreWrittenAsTheyAre) {
  EXPECT_EQ(TextOf(-1, TWriting::Flags), "-1");
  EXPECT_EQ(TextOf(4294967296.0, TWriting::Flags), "4294967296");
  EXPECT_EQ(TextOf(1.5, TWriting::Flags), "1.5");
  EXPECT_EQ(TextOf(2, TWriting::Side), "2");
}

TEST(AnswerText, ControlCharactersBecomeBlanks) {
  EXPECT_EQ(TextOf("one\ntwo\tthree\x7F"), "one two three ");
  EXPECT_EQ(TextOf("M\xC3\xBCller"), "M\xC3\xBCller");
}

TEST(AnswerText, MembersThatAreMissingOrOfAnotherTypeAreEmpty) {
  EXPECT_EQ(MemberText(json::object(), "member"), "");
  EXPECT_EQ(MemberText(json::array(), "member"), "");
  EXPECT_EQ(TextOf(json::object()), "");
  EXPECT_TRUE(MemberList({{"member", 1}}, "member").empty());
  EXPECT_EQ(MemberList({{"member", json::array({1, 2})}}, "member").size(), 2U);
  EXPECT_FALSE(MemberFlag({{"member", "true"}}, "member"));
  EXPECT_TRUE(MemberFlag({{"member", true}}, "member"));
}

}  // namespace
}  // namespace algo::terminal::report
