// Many views opened and closed: the host is left with nothing, and the memory does not grow.

#include <malloc.h>

#include <cstddef>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

// Sanitizers make each cycle dear and count what is lost by themselves; the allocator's own figures mean
// nothing under them.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr std::size_t Views = 300;
constexpr bool MemoryIsCounted = false;
#else
constexpr std::size_t Views = 10'000;
constexpr bool MemoryIsCounted = true;
#endif
constexpr std::size_t Providers = Views / 5;

// What is made on first use, and the allocator's own stock of small pieces, is there after this many.
constexpr std::size_t WarmUp = 50;

// The smallest piece that the allocator hands out takes 32 bytes, so that the least that could be lost in
// each cycle shows, and the ups and downs of the stock do not.
constexpr std::size_t LeastLoss = 16;

/// The bytes that the program holds of the allocator.
std::size_t BytesInUse() {
  const auto figures = mallinfo2();
  return figures.uordblks + figures.hblkhd;
}

class CyclesTest : public TTerminalTest {
 protected:
  /// Runs the cycle many times; fails when the memory in use grows with it.
  template <class TCycle>
  void ExpectNoGrowth(std::size_t times, TCycle&& cycle) {
    for (std::size_t i = 0; i < WarmUp; ++i) cycle();
    const std::size_t before = BytesInUse();
    for (std::size_t i = 0; i < times; ++i) cycle();
    const std::size_t after = BytesInUse();
    if (MemoryIsCounted) {
      EXPECT_LT(after, before + LeastLoss * times);
    }
  }
};

TEST_F(CyclesTest, ManyViewsOpenedUsedAndClosedLeaveNothingBehind) {
  auto& provider = Provider();
  std::size_t opened = 0;
  ExpectNoGrowth(Views, [&] {
    const auto handle = provider.OpenNewInstance();
    const auto frame = provider.FindView(handle);
    if (frame == nullptr) return;
    ++opened;
    Type(*frame, "edtSymbol", "0005");
    Leave(*frame);
    provider.SetGroupID(handle, "G1");
    Combo(*frame, "cmbOrderType").SetIndex(8);
    provider.CloseInstance(handle);
    Forget();
  });
  EXPECT_EQ(opened, WarmUp + Views);
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind{.channels = 1});
  DestroyProvider();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(CyclesTest, ProvidersThatComeAndGoWithOpenViewsLeaveNothingBehind) {
  ExpectNoGrowth(Providers, [&] {
    OpenFilled();
    Open();
    DestroyProvider();
    Forget();
  });
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

}  // namespace
}  // namespace algo::tests
