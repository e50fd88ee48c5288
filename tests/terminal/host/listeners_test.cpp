#include "terminal/host/listeners.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace algo::terminal::tests {
namespace {

struct TListenersTest : testing::Test {
  void Add(
      char name, std::function<void()> act = [] {}) {
    listeners.Add(
        [this, name, act = std::move(act)](int notice) {
          heard += name + std::to_string(notice) + " ";
          act();
        },
        Owner(name));
  }
  static host::TOwner Owner(char name) { return &"abcdefgh"[name - 'a']; }

  TListeners<int> listeners;
  std::string heard;
};

TEST_F(TListenersTest, AreToldInTheOrderInWhichTheyCame) {
  Add('b');
  Add('a');
  listeners.Notify(1);
  listeners.Notify(2);
  EXPECT_EQ(heard, "b1 a1 b2 a2 ");
}

TEST_F(TListenersTest, ThoseThatWereRemovedAreNotTold) {
  Add('a');
  Add('b');
  listeners.Remove(Owner('a'));
  listeners.Remove(Owner('c'));
  listeners.Notify(1);
  EXPECT_EQ(heard, "b1 ");
}

TEST_F(TListenersTest, OneMayRemoveItselfAndLaterOnesWhileItIsTold) {
  Add('a', [this] {
    listeners.Remove(Owner('a'));
    listeners.Remove(Owner('b'));
    heard += "still here ";
  });
  Add('b');
  Add('c');
  listeners.Notify(1);
  listeners.Notify(2);
  EXPECT_EQ(heard, "a1 still here c1 c2 ");
}

TEST_F(TListenersTest, OneThatIsAddedMeanwhileWaitsForTheNextRound) {
  bool added = false;
  Add('a', [&] {
    if (!std::exchange(added, true)) Add('b');
  });
  listeners.Notify(1);
  listeners.Notify(2);
  EXPECT_EQ(heard, "a1 a2 b2 ");
}

TEST_F(TListenersTest, ARoundMaySetOffAnother) {
  bool again = true;
  Add('a', [&] {
    if (std::exchange(again, false)) {
      listeners.Notify(2);
      listeners.Remove(Owner('b'));
    }
  });
  Add('b');
  listeners.Notify(1);
  EXPECT_EQ(heard, "a1 a2 b2 ");
  EXPECT_FALSE(listeners.Empty());
}

TEST_F(TListenersTest, AFailureEndsTheRoundAndHarmsNoLaterOne) {
  bool fails = true;
  Add('a', [&] {
    listeners.Remove(Owner('c'));
    if (fails) throw std::runtime_error("no");
  });
  Add('b');
  Add('c');
  EXPECT_THROW(listeners.Notify(1), std::runtime_error);
  fails = false;
  listeners.Notify(2);
  EXPECT_EQ(heard, "a1 a2 b2 ");
}

TEST_F(TListenersTest, AreEmptyWhenTheLastOneHasGone) {
  EXPECT_TRUE(listeners.Empty());
  Add('a', [this] {
    listeners.Remove(Owner('a'));
    EXPECT_TRUE(listeners.Empty());
  });
  EXPECT_FALSE(listeners.Empty());
  listeners.Notify(1);
  EXPECT_TRUE(listeners.Empty());
}

}  // namespace
}  // namespace algo::terminal::tests
