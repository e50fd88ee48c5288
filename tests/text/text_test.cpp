#include "text/text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace algo::text {
namespace {

std::vector<std::string_view> Pieces(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  ForEachPiece(text, separator, [&pieces](std::string_view piece) { pieces.push_back(piece); });
  return pieces;
}

using TPieces = std::vector<std::string_view>;

TEST(Text, TrimsBlanksAndControlCharactersAtBothEnds) {
  EXPECT_EQ(Trim("  a b \t\r\n"), "a b");
  EXPECT_EQ(Trim("ab"), "ab");
  EXPECT_EQ(Trim(" \t "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(TrimLeft("  a "), "a ");
  EXPECT_EQ(TrimLeft("  "), "");
}

TEST(Text, LeavesLettersBeyondAsciiAlone) {
  EXPECT_EQ(Trim("\xC3\xA9"), "\xC3\xA9");
  EXPECT_FALSE(EqualNoCase("\xC3\xA9", "\xC3\x89"));
}

TEST(Text, ComparesWithoutRegardToLetterCase) {
  EXPECT_TRUE(EqualNoCase("TVOL Threshold", "tvol tHRESHOLD"));
  EXPECT_TRUE(EqualNoCase("", ""));
  EXPECT_FALSE(EqualNoCase("TVOL", "TVOL "));
  EXPECT_FALSE(EqualNoCase("TVOL", "TWAP"));
  EXPECT_FALSE(EqualNoCase("[", "{"));
  EXPECT_FALSE(EqualNoCase("@", "`"));
}

TEST(Text, FindsAPartWithoutRegardToLetterCase) {
  EXPECT_TRUE(ContainsNoCase("tmlo:algoid=5", "ALGOID"));
  EXPECT_TRUE(ContainsNoCase("aalgoid", "ALGOID"));
  EXPECT_TRUE(ContainsNoCase("x", ""));
  EXPECT_TRUE(ContainsNoCase("", ""));
  EXPECT_FALSE(ContainsNoCase("algoi", "ALGOID"));
  EXPECT_FALSE(ContainsNoCase("", "a"));
}

TEST(Text, CutsAtEverySeparator) {
  EXPECT_EQ(Pieces("a;b;c", ';'), (TPieces{"a", "b", "c"}));
  EXPECT_EQ(Pieces("a b", ';'), (TPieces{"a b"}));
  EXPECT_EQ(Pieces(";a;;", ';'), (TPieces{"", "a", "", ""}));
}

TEST(Text, GivesAnEmptyTextOneEmptyPiece) { EXPECT_EQ(Pieces("", ';'), (TPieces{""})); }

}  // namespace
}  // namespace algo::text
