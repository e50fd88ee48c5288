#include "text/comma_text.h"

#include <gtest/gtest.h>

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

TEST(CommaText, ReadsBackWhateverItWrote) {
  const TItems items{"plain", "",      "with blank", "a,b",       "\"",
                     "\"\"",  " lead", "trail ",     "k=\"v\",w", "\xC3\xA9"};
  EXPECT_EQ(Read(Write(items)), items);
}

}  // namespace
}  // namespace algo::text
