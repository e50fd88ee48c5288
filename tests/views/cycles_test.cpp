// Many views opened and closed: the host is left with nothing, and the memory does not grow.

#include <malloc.h>

#include <cstddef>
#include <string>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

// Sanitizers make each cycle dear, and find by themselves what is lost.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int Cycles = 300;
constexpr bool MemoryIsCounted = false;
#else
constexpr int Cycles = 10'000;
constexpr bool MemoryIsCounted = true;
#endif

/// The bytes that the program holds of the allocator.
std::size_t BytesInUse() {
  const auto figures = mallinfo2();
  return figures.uordblks + figures.hblkhd;
}

class CyclesTest : public TTerminalTest {
 protected:
  /// A view that is opened, used and closed again; what the host saw of it is forgotten.
  void Cycle() {
    auto& provider = Provider();
    const auto instance = provider.OpenNewInstance();
    ASSERT_NE(instance, 0);
    auto& frame = *provider.FindView(instance);
    frame.FindControl("edtSymbol")->SetHint("0005");
    frame.FindControl("edtSymbol")->OnExit();
    provider.SetGroupID(instance, "G1");
    dynamic_cast<forms::TComboBox&>(*frame.FindControl("cmbOrderType")).SetIndex(8);
    provider.CloseInstance(instance);
    Forget();
  }
};

TEST_F(CyclesTest, TenThousandViewsLeaveNothingWithTheHostAndNoMemory) {
  Cycle();  // what is made on first use is made
  Cycle();
  ASSERT_EQ(LeftBehind(), host::TLeftBehind{.channels = 1});
  const std::size_t before = BytesInUse();
  for (int i = 0; i < Cycles; ++i) Cycle();
  const std::size_t after = BytesInUse();
  EXPECT_EQ(LeftBehind(), host::TLeftBehind{.channels = 1});
  // A view holds tens of thousands of bytes, so that a hundredth of a byte a cycle is far below any leak.
  if (MemoryIsCounted) EXPECT_LE(after, before + Cycles / 100);
  DropProvider();
  EXPECT_EQ(LeftBehind(), host::TLeftBehind());
}

TEST_F(CyclesTest, ProvidersThatComeAndGoLeaveNothing) {
  const auto cycle = [this] {
    OpenFilled();
    Open();
    DropProvider();
    Forget();
  };
  cycle();
  cycle();
  const std::size_t before = BytesInUse();
  for (int i = 0; i < Cycles / 20; ++i) cycle();
  const std::size_t after = BytesInUse();
  EXPECT_EQ(LeftBehind(), host::TLeftBehind());
  if (MemoryIsCounted) EXPECT_LE(after, before + Cycles / 100);
}

}  // namespace
}  // namespace algo::tests
