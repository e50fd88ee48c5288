#pragma once

// An algo engine on paper: it fills algo orders at the paper market's prices so that the terminal can be
// shown and practised with. No order leaves the terminal, and no money moves. How it works each algorithm is
// in paper_algos.h.
//
// It works the orders of the ledger that carry a parameter text, in the order in which they came; other
// orders it leaves alone, but for parents, whose figures are the sums of their children's. Every order stands
// by itself: two orders may both take their part of the same trade.

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/memory_host.h"
#include "terminal/paper/paper_market.h"
#include "terminal/paper/paper_order.h"
#include "terminal/paper/random.h"
#include "text/date_text.h"

namespace algo::terminal::paper {

class TPaperEngine {
 public:
  /// Takes over the orders that the host has, and listens for more. Host and market outlive the engine.
  TPaperEngine(TMemoryHost& host, TPaperMarket& market, std::uint64_t seed);
  ~TPaperEngine();
  TPaperEngine(const TPaperEngine&) = delete;
  TPaperEngine& operator=(const TPaperEngine&) = delete;

  /// Works the orders in the market's last step, which took so many seconds and ended at `now`; called once
  /// after each step. An order that cannot be worked is rejected, one whose time is over expires. Throws
  /// EError when the ledger cannot keep a report: that report and what was left to do have then not happened,
  /// and the next step goes on from there.
  void Advance(text::TDateTime now, double seconds);

  /// Cancels the order in the name of `who`, and before it its children that are not done. False, with no
  /// effect on any order, when there is no order of that key, or when it is done, which the ledger notes.
  /// Throws EError when it could not be kept; children may then be cancelled already.
  bool Cancel(std::string_view key, std::string_view who);

 private:
  void Notice(const host::TCustomClientOrder& order);
  void NoticeParentOf(const TPaperOrder& order);
  void Settle(TPaperOrder& order, TMoment stepBegin);
  bool TakeTerms(TPaperOrder& order, TMoment stepBegin);
  std::string_view ReadTerms(TPaperOrder& order, TMoment stepBegin) const;
  bool ParentIsDone(const TPaperOrder& order) const;
  void Work(TPaperOrder& order, TMoment now, double seconds);
  void Fill(TPaperOrder& order, const TStepView& view);
  double OnDisplay(const TPaperOrder& order, double lot);
  void SumUp(TPaperOrder& parent);
  void Report(TPaperOrder& order, std::string_view what, std::string_view answer, const TOutcome& outcome);
  void Record(TPaperOrder& order, const TOrderEvent& event, const TOutcome& outcome);

  TMemoryHost& FHost;
  TPaperMarket& FMarket;
  TRandom FRandom;
  std::vector<std::unique_ptr<TPaperOrder>> FOrders;  // as they came
  std::map<std::string, TPaperOrder*, std::less<>> FByKey;
};

}  // namespace algo::terminal::paper
