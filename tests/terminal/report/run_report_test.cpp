// What the report says of a run.

#include "terminal/report/run_report.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace algo::terminal::report {
namespace {

struct TReported {
  std::string text;
  bool allOk = false;
};

/// The report on a run with these answers.
TReported ReportOn(const std::vector<std::string>& answers) {
  std::ostringstream out;
  TRunReport report(out);
  for (const std::string& answer : answers) report.AddLine(answer);
  report.Finish();
  return {out.str(), report.AllOk()};
}

TEST(RunReport, AnOrderIsReportedFieldByField) {
  const auto reported = ReportOn(
      {R"({"ok":true,"modal":[{"frame":"change","caption":"Sure?","answers":[{"ok":true,"events":[)"
       R"({"event":"error_code","code":"DC1"}]}],"result":1}],"events":[{"event":"message","text":"Look\nout"},)"
       R"({"event":"take_action","order":{"key":"","account":"A1","side":1,"quantity":1234567,"price":10.5,)"
       R"("algo_flags":32768,"filled":0,"algo_text":"TMLO:AlgoId=TVOL,VolPct=20;"},"action":1,"argument":1,)"
       R"("answer":true}]})"});
  EXPECT_TRUE(reported.allOk);
  EXPECT_EQ(reported.text,
            "Message: error DC1\n"
            "Dialog: Sure? was confirmed\n"
            "Message: Look out\n"
            "Order 1: new order, accepted\n"
            "  account         A1\n"
            "  side            sell\n"
            "  quantity        1,234,567\n"
            "  price           10.5\n"
            "  algo flags      0x8000\n"
            "  parameter text  TMLO:AlgoId=TVOL,VolPct=20;\n"
            "    AlgoId          TVOL\n"
            "    VolPct          20\n"
            "In all: 1 order, 1 answer, 0 refused\n");
}

TEST(RunReport, WhatWasDoneInTheMiddleOfACallIsReported) {
  const auto reported =
      ReportOn({R"({"ok":true,"inside":[{"call":"action.take","nth":1,"answers":[{"ok":true,"events":[)"
                R"({"event":"message","text":"Meanwhile"}]},{"ok":false,"error":"no"}]}],)"
                R"("events":[{"event":"message","text":"Done"}]})"});
  EXPECT_FALSE(reported.allOk);
  EXPECT_EQ(reported.text,
            "Message: Meanwhile\n"
            "Refused: line 1: no\n"
            "Message: Done\n"
            "In all: 0 orders, 1 answer, 1 refused\n");
}

TEST(RunReport, ActionsAreNumberedAndNamed) {
  std::string events;
  for (const char* action : {"2", "42", "9"}) {
    events += std::string(events.empty() ? "" : ",") +
              R"({"event":"take_action","order":{},"answer":false,)" + R"("action":)" + action + "}";
  }
  EXPECT_EQ(ReportOn({R"({"ok":true,"events":[)" + events + "]}"}).text,
            "Order 1: change of an order, not accepted\n"
            "Order 2: work order, not accepted\n"
            "Order 3: action 9, not accepted\n"
            "In all: 3 orders, 1 answer, 0 refused\n");
}

TEST(RunReport, WhatTheTraderSawIsReportedInOneLineEach) {
  EXPECT_EQ(ReportOn({R"({"ok":true,"id":"A heading","quantity":0})",
                      R"({"ok":true,"quantity":2500,"events":[)"
                      R"({"event":"store","section":"USER","key":"ClearOrd","value":"Y"},)"
                      R"({"event":"show","caption":"Change"},{"event":"close_form","frame":"change:K1"},)"
                      R"({"event":"subscribe","symbol":"S"}],"modal":[{"caption":"Sure?","result":2}]})"})
                .text,
            "\nA heading\n"
            "Available: nothing\n"
            "Dialog: Sure? was dismissed\n"
            "Setting: USER/ClearOrd is now Y\n"
            "Form: Change was opened\n"
            "Form: change:K1 was closed\n"
            "Available: 2,500\n"
            "In all: 0 orders, 2 answers, 0 refused\n");
}

TEST(RunReport, ARefusedCommandIsReportedWithItsLineAlsoInADialog) {
  const auto reported = ReportOn({"", R"({"ok":true,"modal":[{"answers":[{"ok":false,"error":"no"}]}]})"});
  EXPECT_FALSE(reported.allOk);
  EXPECT_EQ(reported.text,
            "Refused: line 1: no\n"
            "Dialog:  was dismissed\n"
            "In all: 0 orders, 1 answer, 1 refused\n");
}

TEST(RunReport, ALineThatIsNotAnAnswerCountsAsRefused) {
  for (const char* line : {"rubbish", "[]", "17"}) {
    const auto reported = ReportOn({line});
    EXPECT_FALSE(reported.allOk) << line;
    EXPECT_EQ(reported.text, "Line 1 is not an answer\nIn all: 0 orders, 1 answer, 1 refused\n") << line;
  }
}

TEST(RunReport, MembersOfAnotherTypeAreIgnored) {
  EXPECT_FALSE(ReportOn({R"({"events":{},"modal":3,"ok":"yes"})"}).allOk);
  EXPECT_TRUE(
      ReportOn({R"({"ok":true,"id":5,"text":7,"events":[1,{"event":3},{"event":"take_action"}]})"}).allOk);
}

}  // namespace
}  // namespace algo::terminal::report
