#include "text/comma_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace algo::text {
namespace {

using TItems = std::vector<std::string>;

TItems Read(std::string_view line) {
  TItems items;
  TCommaReader reader(line);
  for (std::string_view item; reader.Next(item);) items.emplace_back(item);
  return items;
}

std::string Write(const TItems& items) {
  std::string line;
  for (const std::string& item : items) AppendCommaItem(line, item);
  return line;
}

TEST(CommaText, SeparatesPlainItemsByCommasAlone) {
  EXPECT_EQ(Write({"Account=A1", "Quantity=100"}), "Account=A1,Quantity=100");
}

TEST(CommaText, QuotesWhatWouldNotReadBack) {
  EXPECT_EQ(Write({"STime=2024-01-15 09:30:00", "x"}), "\"STime=2024-01-15 09:30:00\",x");
  EXPECT_EQ(Write({"a,b"}), "\"a,b\"");
  EXPECT_EQ(Write({"say \"hi\""}), "\"say \"\"hi\"\"\"");
  EXPECT_EQ(Write({"tab\there"}), "\"tab\there\"");
  EXPECT_EQ(Write({"del\x7F"}), "\"del\x7F\"");
  EXPECT_EQ(Write({""}), "\"\"");
}

TEST(CommaText, SkipsBlanksAroundItems) {
  EXPECT_EQ(Read(" a , b,c "), (TItems{"a", "b", "c"}));
  EXPECT_EQ(Read(" \"a b\" , c"), (TItems{"a b", "c"}));
}

TEST(CommaText, ReadsNoItemFromAnEmptyLine) {
  EXPECT_EQ(Read(""), TItems{});
  EXPECT_EQ(Read("   "), TItems{});
}

TEST(CommaText, KeepsEmptyItemsBetweenCommas) { EXPECT_EQ(Read("a,,b"), (TItems{"a", "", "b"})); }

TEST(CommaText, TakesAnUnclosedQuoteToTheEnd) {
  EXPECT_EQ(Read("a,\"b,c"), (TItems{"a", "b,c"}));
  EXPECT_EQ(Read("\""), (TItems{""}));
}

TEST(CommaText, QuotesEveryBlankAndEveryControlCharacterAndNothingElse) {
  for (int code = 0; code < 256; ++code) {
    const std::string item{'a', static_cast<char>(code), 'b'};
    const bool quoted = code <= 0x20 || code == 0x7F || code == ',';
    std::string expected = quoted ? "\"" + item + "\"" : item;
    if (code == '"') expected = "\"a\"\"b\"";
    EXPECT_EQ(Write({item}), expected) << code;
  }
}

TEST(CommaText, KeepsBlanksInsideAnItemThatStandsInNoQuotes) {
  EXPECT_EQ(Read(" a  b ,c\td"), (TItems{"a  b", "c\td"}));
}

TEST(CommaText, KeepsBlanksThatStandInQuotes) { EXPECT_EQ(Read(" \" a \" ,\"\t\""), (TItems{" a ", "\t"})); }

TEST(CommaText, TakesAQuoteInsideAnItemAsACharacter) {
  EXPECT_EQ(Read("a\"b,c\"d,e\""), (TItems{"a\"b", "c\"d", "e\""}));
}

TEST(CommaText, ReadsTwoQuotesInQuotesAsOne) {
  EXPECT_EQ(Read("\"\"\"\",\"a\"\"\",\"\"\"\"\"\""), (TItems{"\"", "a\"", "\"\""}));
}

TEST(CommaText, ReadsAnEmptyItemInQuotes) { EXPECT_EQ(Read("\"\",a,\"\""), (TItems{"", "a", ""})); }

TEST(CommaText, KeepsBytesThatAreNoTextAsTheyAre) {
  const TItems items{"\xC3\x28", "\xFF\xFE", std::string("\0", 1), std::string("a\0b", 3), "\xED\xA0\x80"};
  EXPECT_EQ(Read(Write(items)), items);
}

TEST(CommaText, ReadsBackWhateverItWrote) {
  const TItems items{"plain", "",      "with blank", "a,b",       "\"",
                     "\"\"",  " lead", "trail ",     "k=\"v\",w", "\xC3\xA9"};
  EXPECT_EQ(Read(Write(items)), items);
}

TEST(CommaText, ReadsBackRandomListsOfRandomItems) {
  std::mt19937 random(20240115);
  for (int i = 0; i < 10000; ++i) {
    TItems items(1 + random() % 8);
    for (std::string& item : items) {
      for (auto length = random() % 6; length > 0; --length) item += "ab,\"\" \t\n\x7F\xFF="[random() % 11];
    }
    ASSERT_EQ(Read(Write(items)), items) << Write(items);
  }
}

TEST(CommaText, ReadsAMillionItems) {
  std::string line;
  for (int i = 0; i < 1'000'000; ++i) AppendCommaItem(line, i % 2 == 0 ? "a" : "b c");
  const TItems items = Read(line);
  ASSERT_EQ(items.size(), 1'000'000U);
  EXPECT_EQ(items.front(), "a");
  EXPECT_EQ(items.back(), "b c");
}

}  // namespace
}  // namespace algo::text
