#pragma once

// For the tests of the forms around an order that exists already: orders as the host keeps them, and the
// trader in the dialog of one order action.

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tests/views/terminal_fixture.h"
#include "views/change/change_frame.h"

namespace algo::tests {

/// The actions that bring up a dialog.
inline constexpr host::TOrderAction AllActions[] = {host::TOrderAction::New, host::TOrderAction::Change,
                                                    host::TOrderAction::Work};

/// A working buy order of this module: 1000 of 0005 at 60.5 for A1, on HK, with that algo parameter text.
inline host::TCustomClientOrder OrderWith(std::string_view algoText, std::string_view key = "K1") {
  host::TCustomClientOrder order;
  order.key = key;
  order.orderNo = "No" + std::string(key);
  order.account = "A1";
  order.symbol = "0005";
  order.exchange = "HK";
  order.side = host::SideBuy;
  order.quantity = 1000;
  order.price = 60.5;
  order.SetTextProperty(440, std::string(algoText));
  order.SetNamedText("Original", "AlgoEntry");
  return order;
}

/// A parent of 10000 at 10.5 from which children are cut.
inline host::TCustomClientOrder ParentOrder(std::int32_t side = host::SideBuy, double price = 10.5) {
  host::TCustomClientOrder order = OrderWith("", "P1");
  order.side = side;
  order.quantity = 10000;
  order.price = price;
  order.flags = 0x10000001;
  return order;
}

/// Everything that a form may write into an order, in one line, to see that nothing was written.
inline std::string Facts(const host::TCustomClientOrder& order) {
  std::string facts;
  for (const std::string& text : {order.account, order.symbol, order.exchange, order.user,
                                  order.TextProperty(440), order.NamedText("Original")}) {
    facts += text + "|";
  }
  for (const double number : {order.quantity, order.price, order.stopPrice})
    facts += std::to_string(number) + "|";
  for (const std::uint32_t word : {order.orderTypeFlags, order.auctionFlags, order.algoFlags, order.flags}) {
    facts += std::to_string(word) + "|";
  }
  return facts + std::to_string(order.side);
}

class TOrderDialogTest : public TTerminalTest {
 protected:
  using TChangeFrame = views::change::TAlgoOrderChangeFrame;
  /// What the trader does while a dialog shows.
  using TScript = std::function<void(forms::TDialogForm& form, TChangeFrame& frame)>;

  static TChangeFrame& FrameIn(forms::TDialogForm& form) {
    return dynamic_cast<TChangeFrame&>(*form.Frame());
  }

  // Each posts the action on the order, plays the script in its dialog, which has to show, and returns the
  // record's result. A dialog that the script leaves without a result is cancelled.
  bool Confirm(host::TCustomClientOrder& order, const TScript& script) {
    return PostWithDialog(order, host::TOrderAction::New, script);
  }
  bool Change(host::TCustomClientOrder& order, const TScript& script) {
    return PostWithDialog(order, host::TOrderAction::Change, script);
  }
  bool Work(host::TCustomClientOrder& order, const TScript& script) {
    return PostWithDialog(order, host::TOrderAction::Work, script);
  }

  /// Makes the provider with changes shown beside the other windows, and opens a change form.
  std::shared_ptr<forms::TDialogForm> OpenChange(host::TCustomClientOrder& order) {
    Data().config["USER"]["ChangeOrderShowModel"] = "N";
    Provider();
    FShown.clear();
    EXPECT_FALSE(Post(&order, host::TOrderAction::Change));
    EXPECT_EQ(FShown.size(), 1U);
    return FShown.empty() ? nullptr : FShown.front();
  }

  /// The forms that came to show beside the others, oldest first; a test lets go of them here.
  std::vector<std::shared_ptr<forms::TDialogForm>>& Shown() { return FShown; }
  int BroughtToFront() const { return FBroughtToFront; }
  int Closed() const { return FClosed; }

 private:
  bool PostWithDialog(host::TCustomClientOrder& order, host::TOrderAction action, const TScript& script) {
    Provider();
    bool shown = false;
    InDialogs({[&](forms::TDialogForm& form) {
      shown = true;
      script(form, FrameIn(form));
    }});
    const bool result = Post(&order, action);
    EXPECT_TRUE(shown) << "no dialog showed";
    InDialogs({});
    return result;
  }

  void FormShown(forms::TDialogForm& form) override { FShown.push_back(form.shared_from_this()); }
  void FormBroughtToFront(forms::TDialogForm& /*form*/) override { ++FBroughtToFront; }
  void FormClosed(forms::TDialogForm& /*form*/) override { ++FClosed; }

  std::vector<std::shared_ptr<forms::TDialogForm>> FShown;
  int FBroughtToFront = 0;
  int FClosed = 0;
};

}  // namespace algo::tests
