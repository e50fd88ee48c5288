// Layout and parameter texts that nobody wrote with care: torn, endless, or no text at all. Whatever comes,
// the fields hold what the rules of reading say, and the time grows with the length alone.

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <string_view>

#include "model/parameter_text.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;
using namespace std::string_view_literals;

constexpr std::size_t Megabyte = 1 << 20;

/// `unit` again and again, up to `size` bytes.
std::string Endless(string_view unit, std::size_t size) {
  std::string text;
  text.reserve(size + unit.size());
  while (text.size() < size) text += unit;
  return text;
}

/// Processor time, so that a busy machine tells nothing.
template <class TAct>
double SecondsOf(TAct&& act) {
  const std::clock_t start = std::clock();
  act();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

/// Takes texts of one and of ten megabytes, and complains when the time grows more than three times as fast
/// as the length.
template <class TTake>
void ExpectLinear(string_view what, string_view start, string_view unit, TTake&& take) {
  const std::string small = std::string(start) + Endless(unit, Megabyte);
  const std::string large = std::string(start) + Endless(unit, 10 * Megabyte);
  const double one = SecondsOf([&] { take(small); });
  const double ten = SecondsOf([&] { take(large); });
  EXPECT_LE(ten, 3 * 10 * one + 0.3) << what;
}

struct TEndless {
  const char* what;
  string_view start;
  string_view unit;
};

class HostileText : public TTerminalTest {
 protected:
  std::string Text(const forms::TFrame& frame, string_view control) {
    return frame.FindControl(control)->Text();
  }
  void CopyOrderWith(std::string algoText) {
    host::TCustomClientOrder order;
    order.symbol = "0700";
    order.SetTextProperty(440, std::move(algoText));
    host::TOrderCopyRecord record;
    record.object = &order;
    Host().PostAsHost(18010, record);
  }
};

TEST_F(HostileText, ALayoutThatSaysNothingChangesNothing) {
  auto& frame = Open();
  const std::string before = frame.GetLayoutData();
  for (const string_view text : {""sv,
                                 ","sv,
                                 "\""sv,
                                 "\"\""sv,
                                 "\"\"\""sv,
                                 "\",\""sv,
                                 "="sv,
                                 "=,="sv,
                                 "\"=\"=\"="sv,
                                 ",,,,\"\",,"sv,
                                 "\0"sv,
                                 "\0\0,\0=\0"sv,
                                 "\xFF\xFE"sv,
                                 "\xC3"sv,
                                 "VolPct"sv,
                                 "\"VolPct\"=20"sv,
                                 "volpct\n20"sv,
                                 "=VolPct=20"sv,
                                 "Vol\0Pct=20"sv,
                                 "VolPct\0=20"sv,
                                 "\xEF\xBB\xBFVolPct=20"sv}) {
    EXPECT_TRUE(frame.SetLayoutData(text)) << text;
    EXPECT_EQ(frame.GetLayoutData(), before) << text;
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(HostileText, AnUnclosedQuoteReachesToTheEndOfTheLayout) {
  auto& frame = Open();
  EXPECT_TRUE(frame.SetLayoutData("VolPct=20,\"Account=a,\"\"b,WPx=5"));
  EXPECT_EQ(Text(frame, "edtVolPct"), "20");
  EXPECT_EQ(Text(frame, "edtAccount"), "a,\"b,WPx=5");
  EXPECT_EQ(Text(frame, "edtWPx"), "");
  EXPECT_TRUE(frame.SetLayoutData("\"STime=2024-01-15 09:30:00"));
  EXPECT_EQ(Text(frame, "deSTime"), "2024-01-15 09:30:00");
}

TEST_F(HostileText, BytesThatAreNoTextComeThroughTheLayoutAsTheyAre) {
  auto& frame = Open();
  for (const string_view account :
       {"\xC3\x28\xFF\xFE"sv, "a\0b"sv, "\x7F"sv, "\xED\xA0\x80"sv, "a\r\n\tb"sv}) {
    const std::string quoted = "\"Account=" + std::string(account) + "\"";
    EXPECT_TRUE(frame.SetLayoutData(quoted));
    EXPECT_EQ(Text(frame, "edtAccount"), account);
    const std::string written = frame.GetLayoutData();
    EXPECT_NE(written.find(account), std::string::npos);
    EXPECT_TRUE(frame.SetLayoutData(written));
    EXPECT_EQ(frame.GetLayoutData(), written);
  }
}

TEST_F(HostileText, NumbersAroundBytesThatAreNoTextCountOnlyWhereTheyAreNumbers) {
  auto& frame = Open();
  for (const string_view passed : {"2\0"
                                   "0"sv,
                                   "20\xFF"sv, "\xD9\xA2\xD9\xA0"sv, "20%"sv, "--20"sv, "+-20"sv, "2 0"sv,
                                   "0x14"sv, "20f"sv, "1e"sv, "."sv, "-"sv, "infinity"sv, "nan(20)"sv}) {
    EXPECT_TRUE(frame.SetLayoutData("VolPct=" + std::string(passed)));
    EXPECT_EQ(Text(frame, "edtVolPct"), "") << passed;
  }
  for (const string_view taken : {"20\0"sv, " \x01 20 \t"sv, "+20"sv, "2e1"sv, "20."sv}) {
    frame.Spin(views::entry::TField::edtVolPct).SetValue(1);
    EXPECT_TRUE(frame.SetLayoutData("VolPct=" + std::string(taken)));
    EXPECT_EQ(Text(frame, "edtVolPct"), "20") << taken;
  }
}

TEST_F(HostileText, AnEndlessLayoutIsReadInLinearTime) {
  auto& frame = Open();
  for (const TEndless& row : {
           TEndless{"separators", "VolPct=20", ","},
           TEndless{"blanks", "VolPct=20,", " "},
           TEndless{"one item", "VolPct=20,", "x"},
           TEndless{"NUL bytes", "VolPct=20,", "\0"sv},
           TEndless{"quotes", "VolPct=20,", "\""},
           TEndless{"a quote that is never closed", "VolPct=20,\"", "a,b"},
           TEndless{"quotes that are", "VolPct=20,", "\"a\"\"b\","},
           TEndless{"quotes glued to text", "VolPct=20,", "\"a\"b"},
           TEndless{"unknown keys", "VolPct=20,", "Key=1,"},
           TEndless{"one key again and again", "VolPct=20,", "VolPct=30,"},
           TEndless{"known keys without value", "VolPct=20,", "StopQty=,Account-Lock=,Ref,"},
           TEndless{"equals signs", "VolPct=20,", "="},
           TEndless{"digits of a number", "VolPct=20,WPx=", "7"},
           TEndless{"zeros of a number", "VolPct=20,WPx=0.", "0"},
           TEndless{"an entry", "VolPct=20,Style=", "Res_"},
           TEndless{"a time", "VolPct=20,STime=", "2024-01-15"},
           TEndless{"no UTF-8", "VolPct=20,", "\xC3\xFF\x80"},
       }) {
    frame.Spin(views::entry::TField::edtVolPct).SetValue(std::nullopt);
    ExpectLinear(row.what, row.start, row.unit,
                 [&](const std::string& text) { EXPECT_TRUE(frame.SetLayoutData(text)) << row.what; });
    EXPECT_EQ(Text(frame, "edtVolPct"), "20") << row.what;
    EXPECT_EQ(Text(frame, "edtWPx"), "") << row.what;
    EXPECT_EQ(Text(frame, "edtStopQty"), "") << row.what;
    EXPECT_EQ(Text(frame, "deSTime"), "") << row.what;
    EXPECT_EQ(Text(frame, "cmbStyle"), "Res_NA") << row.what;
    Forget();
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(HostileText, AnEndlessAccountOrSymbolIsTakenOverWhole) {
  auto& frame = Open();
  const auto take = [&](const std::string& text) {
    EXPECT_TRUE(frame.SetLayoutData(text));
    const std::string written = frame.GetLayoutData();
    EXPECT_TRUE(written.starts_with(text));
    Forget();
  };
  ExpectLinear("an account", "Account=", "account", take);
  EXPECT_EQ(Text(frame, "edtAccount").size(), 10 * Megabyte / 7 * 7 + 7);
  ExpectLinear("a symbol", "Symbol=", "symbol", [&](const std::string& text) {
    EXPECT_TRUE(frame.SetLayoutData(text));
    Forget();
  });
  EXPECT_TRUE(frame.GetLayoutData().starts_with("Account=,Account-Lock=0,Symbol=,"));
}

TEST_F(HostileText, AnEndlessBooleanEndsTheReadingWithOneShortMessage) {
  auto& frame = Open();
  ExpectLinear("a boolean", "VolPct=20,Symbol-Lock=", "1", [&](const std::string& text) {
    Forget();
    EXPECT_FALSE(frame.SetLayoutData(text));
    ASSERT_EQ(Told().size(), 1U);
    EXPECT_LT(Told().front().size(), 200U);
  });
  EXPECT_EQ(Text(frame, "edtVolPct"), "");
}

TEST_F(HostileText, AnEndlessParameterTextIsTakenApartInLinearTime) {
  const auto split = [](const std::string& text) { model::SplitText(text); };
  for (const TEndless& row : {
           TEndless{"parts", "AlgoId=1", ";"},
           TEndless{"pieces", "AlgoId=1", ","},
           TEndless{"parts with an id", "", "AlgoId=1;"},
           TEndless{"ids in one part", "", "algoid"},
           TEndless{"ids that are none", "", "AlgoI"},
           TEndless{"letters of an id", "", "A"},
           TEndless{"one piece", "AlgoId=", "x"},
           TEndless{"equals signs", "AlgoId", "="},
           TEndless{"NUL bytes", "AlgoId=1;", "\0"sv},
           TEndless{"no UTF-8", "AlgoId=1,", "\xC3\xFF\x80"},
       }) {
    ExpectLinear(row.what, row.start, row.unit, split);
  }
}

TEST_F(HostileText, AnEndlessParameterTextIsLoadedInLinearTime) {
  auto& frame = Open();
  for (const TEndless& row : {
           TEndless{"separators", "TMLO:AlgoId=VWAP,WPx=10.5", ","},
           TEndless{"unknown keys", "TMLO:AlgoId=VWAP,WPx=10.5,", "WPxx=1,"},
           TEndless{"one key again and again", "TMLO:AlgoId=VWAP,WPx=10.5,", "WPx=20,"},
           TEndless{"keys without value", "TMLO:AlgoId=VWAP,WPx=10.5,", "STime=,Style,"},
           TEndless{"a choice", "TMLO:AlgoId=VWAP,WPx=10.5,Opening=", "1"},
           TEndless{"NUL bytes", "TMLO:AlgoId=VWAP,WPx=10.5,", "\0"sv},
           TEndless{"parts behind", "TMLO:AlgoId=VWAP,WPx=10.5;", "x;"},
       }) {
    ExpectLinear(row.what, row.start, row.unit, [&](const std::string& text) { CopyOrderWith(text); });
    EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_VWAP") << row.what;
    EXPECT_EQ(Text(frame, "edtWPx"), "10.5") << row.what;
    EXPECT_EQ(Text(frame, "cmbOpening"), "Res_NA") << row.what;
    EXPECT_EQ(Text(frame, "deSTime"), "") << row.what;
    Forget();
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(HostileText, ParametersThatAreNoNumbersAreZeroAndThoseThatAreNoChoicesLeaveTheirField) {
  auto& frame = Open();
  CopyOrderWith("TMLO:AlgoId=TVOL,VolPct=" + Endless("7", 10 * Megabyte) +
                ",WPx=\xFF,MinOrdAmt=1e999,Style=3\xFF,Opening=01;");
  EXPECT_EQ(Text(frame, "edtVolPct"), "0");
  EXPECT_EQ(Text(frame, "edtWPx"), "0");
  EXPECT_EQ(Text(frame, "edtMinOrdAmt"), "0");
  EXPECT_EQ(Text(frame, "cmbStyle"), "Res_NA");
  EXPECT_EQ(Text(frame, "cmbOpening"), "Res_Yes");
  EXPECT_TRUE(Told().empty());
}

TEST_F(HostileText, ATimeThatIsNoneEndsTheLoadingWithOneShortMessage) {
  for (const std::string& time :
       {Endless("20240115-09:30:00", 10 * Megabyte), std::string("20240115-09:30:00\0", 18),
        std::string("\xFF\xFF"), std::string("20240230-09:30:00"), std::string("2024011509:30:00x")}) {
    DestroyProvider();
    auto& frame = Open();
    Forget();
    CopyOrderWith("TMLO:AlgoId=PEG,ETime=" + time + ",Timeout=60;");
    ASSERT_EQ(Told().size(), 1U);
    EXPECT_LT(Told().front().size(), 200U);
    EXPECT_EQ(Text(frame, "cmbOrderType"), "Res_Algo_OrderType_PEG");
    EXPECT_EQ(Text(frame, "edtTimeOut"), "");
  }
}

}  // namespace
}  // namespace algo::tests
