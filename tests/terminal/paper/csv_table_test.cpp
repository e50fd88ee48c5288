#include "terminal/paper/csv_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "terminal/paper/paper_error.h"

namespace algo::terminal::paper {
namespace {

constexpr std::array<std::string_view, 2> Wanted{"name", "size"};

std::string ProblemIn(std::string_view text) {
  try {
    const TCsvTable table("some.csv", text, Wanted);
    return "none";
  } catch (const EPaperError& error) {
    return error.what();
  }
}

template <class TRead>
std::string ProblemOf(TRead&& read) {
  const TCsvTable table("some.csv", "name,size\n,many\nb,0\nc,-1\n", Wanted);
  try {
    read(table.Rows());
    return "none";
  } catch (const EPaperError& error) {
    return error.what();
  }
}

TEST(CsvTable, ColumnsMayStandInAnyOrder) {
  const TCsvTable table("some.csv", "size,other,name\n5,x,lot\n", Wanted);
  ASSERT_EQ(table.Rows().size(), 1u);
  EXPECT_EQ(table.Rows()[0].Text("name"), "lot");
  EXPECT_EQ(table.Rows()[0].Number("size"), 5);
}

TEST(CsvTable, QuotedFieldsHoldCommasQuotesAndLineEnds) {
  const TCsvTable table("some.csv", "name,size\n\"a, \"\"b\"\"\nc\",1\n\"\",2", Wanted);
  ASSERT_EQ(table.Rows().size(), 2u);
  EXPECT_EQ(table.Rows()[0].Text("name"), "a, \"b\"\nc");
  EXPECT_EQ(table.Rows()[1].Text("name"), "");
  EXPECT_EQ(table.Rows()[1].Text("size"), "2");
}

TEST(CsvTable, ByteOrderMarkAndCarriageReturnsArePassedOver) {
  const TCsvTable table("some.csv", "\xEF\xBB\xBFname,size\r\n\r\n\"quoted\",1\r\nplain,2\r\n", Wanted);
  ASSERT_EQ(table.Rows().size(), 2u);
  EXPECT_EQ(table.Rows()[0].Text("name"), "quoted");
  EXPECT_EQ(table.Rows()[1].Text("size"), "2");
}

TEST(CsvTable, CommentsAndEmptyLinesAreSkippedButCounted) {
  EXPECT_EQ(ProblemIn("# sample\nname,size\n# one\n\nonly\n"),
            "some.csv:5: 1 fields; 2 are expected, as in the first line");
}

TEST(CsvTable, LinesInsideQuotesAreCounted) {
  EXPECT_EQ(ProblemIn("name,size\n\"a\nb\",1\nonly\n"),
            "some.csv:4: 1 fields; 2 are expected, as in the first line");
}

TEST(CsvTable, AMissingColumnIsNamed) {
  EXPECT_EQ(ProblemIn("name,weight\n"), "some.csv:1: column 'size' is missing; one is expected");
}

TEST(CsvTable, AColumnThatIsThereTwiceIsNamed) {
  EXPECT_EQ(ProblemIn("name,size,name\n"), "some.csv:1: column 'name' is there twice; one is expected");
}

TEST(CsvTable, AnEmptyFileIsRefused) {
  EXPECT_EQ(ProblemIn(""), "some.csv:1: the file is empty; a line of column names is expected");
  EXPECT_EQ(ProblemIn("# only a comment"),
            "some.csv:1: the file is empty; a line of column names is expected");
}

TEST(CsvTable, AQuoteThatDoesNotEndIsRefusedWhereItBegins) {
  EXPECT_EQ(ProblemIn("name,size\n\"a,1\nb,2\n"),
            "some.csv:2: a quoted field does not end; a closing quote is expected");
}

TEST(CsvTable, TextAfterAClosingQuoteIsRefused) {
  EXPECT_EQ(ProblemIn("name,size\n\"a\"b,1\n"),
            "some.csv:2: text after a closing quote; a comma or the line's end is expected");
}

TEST(CsvTable, ANumberThatIsNoneIsRefused) {
  EXPECT_EQ(ProblemOf([](const auto& rows) { rows[0].Number("size"); }),
            "some.csv:2: size is 'many'; a number is expected");
}

TEST(CsvTable, NumbersOutOfBoundsAreRefused) {
  EXPECT_EQ(ProblemOf([](const auto& rows) { rows[1].Positive("size"); }),
            "some.csv:3: size is 0; a number above 0 is expected");
  EXPECT_EQ(ProblemOf([](const auto& rows) { rows[1].NotNegative("size"); }), "none");
  EXPECT_EQ(ProblemOf([](const auto& rows) { rows[2].NotNegative("size"); }),
            "some.csv:4: size is -1; 0 or more is expected");
}

TEST(CsvTable, ATextThatMustBeGivenIsMissed) {
  EXPECT_EQ(ProblemOf([](const auto& rows) { rows[0].Given("name"); }),
            "some.csv:2: name is empty; a text is expected");
}

}  // namespace
}  // namespace algo::terminal::paper
