#pragma once

// A simulated algo engine: it fills algo orders at the paper market's prices, for demonstrations and
// practice. No order leaves the terminal, and no money moves. paper_algos.h has the rules of each algorithm.
//
// It works the orders of the journal that carry a parameter text, in the order of their arrival, and leaves
// other orders alone, except parents, whose figures are the sums of their children's. Orders do not compete:
// two orders may both take their part of the same trade.

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
  /// Takes over the orders that the host has, and listens for new ones. Host and market outlive the engine.
  TPaperEngine(TMemoryHost& host, TPaperMarket& market, std::uint64_t seed);
  ~TPaperEngine();
  TPaperEngine(const TPaperEngine&) = delete;
  TPaperEngine& operator=(const TPaperEngine&) = delete;

  /// Works the orders in the market's last step, which took that many seconds and ended at `now`; to be
  /// called once after each step. An order that cannot be worked is rejected, one whose time is over expires.
  /// Throws EError if the journal cannot record a report: neither that report nor the remaining work has then
  /// happened, and the next step continues from there.
  void Advance(text::TDateTime now, double seconds);

  /// Cancels the order on behalf of `who`, after those of its children that are not done. Returns false, with
  /// no effect on any order, if there is no order with that key or if it is done, which the journal records.
  /// Throws EError if the journal could not record it; children may then be cancelled already.
  bool Cancel(std::string_view key, std::string_view who);

 private:
  void MarkChanged(const host::TCustomClientOrder& order);
  void MarkParentChanged(const TPaperOrder& order);
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
  std::vector<std::unique_ptr<TPaperOrder>> FOrders;  // in the order of arrival
  std::map<std::string, TPaperOrder*, std::less<>> FByKey;
};

}  // namespace algo::terminal::paper
