// Numbers as they are typed and pasted: what is one, what is not, and which characters stand for others.

#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"

namespace algo::forms {
namespace {

class TypedNumbers : public testing::Test {
 protected:
  TypedNumbers() {
    auto& group = frame.Layout().AddGroup("lgTop", nullptr, TDirection::Vertical);
    frame.Layout().AddItem("liPrice", group, price);
    frame.Layout().AddItem("liWhole", group, whole);
    whole.SetFormat({.whole = true});
    price.SetValue(7);
    whole.SetValue(7);
  }

  std::optional<double> Typed(TSpinEdit& editor, std::string_view text) {
    editor.SetValue(7);
    frame.InputText(editor, text);
    frame.InputLeave();
    return editor.Value();
  }
  std::optional<double> Pasted(TSpinEdit& editor, std::string_view text) {
    editor.SetValue(7);
    frame.InputPaste(editor, text);
    frame.InputLeave();
    return editor.Value();
  }

  TFrame frame{"TFrame", "layout"};
  TSpinEdit& price = frame.Add<TSpinEdit>("price");
  TSpinEdit& whole = frame.Add<TSpinEdit>("whole");
};

TEST_F(TypedNumbers, MayPartGroupsOfThreeDigitsByCommas) {
  for (const auto& [text, value] :
       std::initializer_list<std::pair<const char*, double>>{{"1,000", 1000},
                                                             {"12,345,678", 12345678},
                                                             {"-1,000", -1000},
                                                             {"999,999.25", 999999.25},
                                                             {"1234", 1234}}) {
    EXPECT_EQ(Typed(price, text), value) << text;
  }
}

TEST_F(TypedNumbers, AreNoneWithAnyOtherComma) {
  for (const char* text :
       {"60,5", "1,00", "1,0000", "1000,000", ",100", "1,,000", "0.1,234", "1,234,5", "1,", ",", "-,100"}) {
    EXPECT_EQ(Typed(price, text), 7) << text;
  }
}

TEST_F(TypedNumbers, MayBeginOrEndWithThePoint) {
  EXPECT_EQ(Typed(price, ".5"), 0.5);
  EXPECT_EQ(Typed(price, "3."), 3);
  EXPECT_EQ(Typed(price, "."), 7);
}

TEST_F(TypedNumbers, TakeTheCharactersOfOtherKeyboardsForTheirOwn) {
  EXPECT_EQ(Typed(price, "\u22125"), -5);
  EXPECT_EQ(Typed(price, "\uff11\uff12\uff0e\uff15"), 12.5);
  EXPECT_EQ(Typed(price, "\uff11\uff0c\uff10\uff10\uff10"), 1000);
}

TEST_F(TypedNumbers, AreBentToTheNearerBoundUnlessTheEditorTakesAny) {
  price.SetMin(0);
  price.SetMax(100);
  EXPECT_EQ(Typed(price, "101"), 100);
  price.SetBendsTyped(false);
  EXPECT_EQ(Typed(price, "101"), 101);
}

TEST_F(TypedNumbers, ArePastedWithoutWhatStandsAroundThem) {
  EXPECT_EQ(Pasted(price, " \t12.5\r\n"), 12.5);
  EXPECT_EQ(Pasted(price, "\u22125"), -5);
  EXPECT_EQ(Pasted(price, "1,000"), 1000);
}

TEST_F(TypedNumbers, AreNotPastedInPieces) {
  for (const char* text :
       {"12 345", "1e5", "12.5 USD", "$12", "1.2.3", "--5", "5-", "\u00bd", "nan", "12\n34"}) {
    EXPECT_EQ(Pasted(price, text), 7) << text;
  }
  for (const char* text : {"2.5", "1.000"}) EXPECT_EQ(Pasted(whole, text), 7) << text;
  price.SetMin(0);
  EXPECT_EQ(Pasted(price, "\u22125"), 7) << "a minus where there is none to be typed";
}

TEST_F(TypedNumbers, CannotBePastedWhereNothingCanBeTyped) {
  price.SetEnabled(false);
  EXPECT_EQ(frame.InputPaste(price, "5"), TInputResult::Disabled);
  price.SetEnabled(true);
  price.SetReadOnly(true);
  EXPECT_EQ(frame.InputPaste(price, "5"), TInputResult::ReadOnly);
  EXPECT_EQ(price.Value(), 7);
}

}  // namespace
}  // namespace algo::forms
