#include <gtest/gtest.h>

#include <chrono>

#include "tests/forms/sample_form.h"

namespace algo::forms::tests {
namespace {

using std::chrono::local_days;
using namespace std::chrono_literals;

struct TTextEditTest : testing::Test {
  TSampleFrame frame;
  TTextEdit& edit = frame.Place<TTextEdit>("edit");
};

TEST_F(TTextEditTest, ChangesWithEachKey) {
  TNotes texts;
  edit.OnChange = [&] { texts.push_back(edit.Text()); };
  frame.InputText(edit, "ab");
  EXPECT_EQ(texts, (TNotes{"a", "ab"}));
}

TEST_F(TTextEditTest, ATextIsTypedOntoWhatAHandlerMadeOfTheKeysBefore) {
  edit.OnChange = [&] {
    if (edit.Text() == "ab") edit.SetText("AB");
  };
  frame.InputText(edit, "abc");
  EXPECT_EQ(edit.Text(), "ABc");
}

TEST_F(TTextEditTest, TypingReplacesWhatWasThere) {
  edit.SetText("old");
  frame.InputText(edit, "new");
  EXPECT_EQ(edit.Text(), "new");
  frame.InputText(edit, "");
  EXPECT_EQ(edit.Text(), "");
}

TEST_F(TTextEditTest, TakesAnyCharacterOfALine) {
  frame.InputText(edit, "a \"b\", \xC3\xA4\n\t!");
  EXPECT_EQ(edit.Text(), "a \"b\", \xC3\xA4!");
}

TEST_F(TTextEditTest, AssigningTheSameTextIsNoChange) {
  TNotes notes;
  NoteAll(edit, notes);
  edit.SetText("x");
  edit.SetText("x");
  EXPECT_EQ(notes, (TNotes{"edit changed"}));
}

TEST_F(TTextEditTest, TheSelectionIsTheWholeTextUntilTheCaretMoves) {
  edit.SetText("0005.HK");
  EXPECT_EQ(edit.SelectedText(), "");
  edit.SelectAll();
  EXPECT_EQ(edit.SelectedText(), "0005.HK");
  edit.MoveCaretToEnd();
  EXPECT_EQ(edit.SelectedText(), "");
}

TEST_F(TTextEditTest, LeavingEndsTheSelection) {
  edit.SetText("x");
  edit.OnClick = [&] { edit.SelectAll(); };
  frame.InputClick(edit);
  EXPECT_EQ(edit.SelectedText(), "x");
  frame.InputLeave();
  EXPECT_EQ(edit.SelectedText(), "");
}

struct TDateEditTest : testing::Test {
  static constexpr text::TDateTime Noon = local_days{2024y / 2 / 29} + 12h;

  TSampleFrame frame;
  TDateEdit& date = frame.Place<TDateEdit>("date");
};

TEST_F(TDateEditTest, ShowsDateAndTime) {
  EXPECT_EQ(date.Text(), "");
  date.SetValue(Noon);
  EXPECT_EQ(date.Text(), "2024-02-29 12:00:00");
}

TEST_F(TDateEditTest, TakesUpARealDateTimeWhenItIsLeft) {
  frame.InputText(date, "2024-02-29 12:00:00");
  EXPECT_EQ(date.Value(), std::nullopt);
  frame.InputLeave();
  EXPECT_EQ(date.Value(), Noon);
}

TEST_F(TDateEditTest, ALoneDateMeansMidnight) {
  TypeAndLeave(date, "2024-02-29");
  EXPECT_EQ(date.Text(), "2024-02-29 00:00:00");
}

TEST_F(TDateEditTest, ALoneTimeThatIsTypedMeansToday) {
  TypeAndLeave(date, "09:30");
  EXPECT_EQ(date.Text(), "2024-01-15 09:30:00");
  TypeAndLeave(date, "23:59:58");
  EXPECT_EQ(date.Text(), "2024-01-15 23:59:58");
  date.SetText("09:30");
  EXPECT_EQ(date.Text(), "") << "what a program assigns is a date or nothing";
}

TEST_F(TDateEditTest, AnyOtherTextThatIsTypedLeavesWhatWasThere) {
  date.SetValue(Noon);
  for (const char* typed : {"2023-02-29", "2024-13-01", "2024-02-29 24:00:00", "29.02.2024", "12:60"}) {
    TypeAndLeave(date, typed);
    EXPECT_EQ(date.Text(), "2024-02-29 12:00:00") << typed;
  }
}

TEST_F(TDateEditTest, AnEmptyTextEmptiesIt) {
  date.SetValue(Noon);
  TypeAndLeave(date, "");
  EXPECT_EQ(date.Value(), std::nullopt);
}

TEST_F(TDateEditTest, AnyOtherTextThatIsAssignedEmptiesIt) {
  date.SetText("2024-02-29 12:00:00");
  EXPECT_EQ(date.Value(), Noon);
  date.SetText("soon");
  EXPECT_EQ(date.Value(), std::nullopt);
}

TEST_F(TDateEditTest, TellsOfRealChangesOnly) {
  TNotes notes;
  NoteAll(date, notes);
  date.SetValue(Noon);
  date.SetValue(Noon);
  TypeAndLeave(date, "2024-02-29 12:00:00");
  EXPECT_EQ(notes, (TNotes{"date changed", "date left"}));
}

}  // namespace
}  // namespace algo::forms::tests
