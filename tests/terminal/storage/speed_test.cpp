// A trader does not wait for the disk any longer than necessary.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>

#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

/// The median of the times, in milliseconds, that the operation takes.
template <class TOperation>
double MedianMilliseconds(TOperation&& operation) {
  constexpr std::size_t Count = 101;
  std::vector<double> times;
  for (std::size_t i = 0; i < Count; ++i) {
    const auto begin = std::chrono::steady_clock::now();
    operation(i);
    times.push_back(
        std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count());
  }
  std::nth_element(times.begin(), times.begin() + Count / 2, times.end());
  return times[Count / 2];
}

struct TStorageSpeed : TStorageTest {
  /// How long the disk itself takes to store a page.
  double DiskMilliseconds() const {
    const int probe = open(folder.Path("probe").c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600);
    const std::string page(4096, 'x');
    const double median = MedianMilliseconds([&](std::size_t) {
      ASSERT_EQ(write(probe, page.data(), page.size()), 4096);
      ASSERT_EQ(fdatasync(probe), 0);
    });
    close(probe);
    return median;
  }
};

TEST_F(TStorageSpeed, AnOrderIsStoredWithinTenMillisecondsBesideWhatTheDiskTakes) {
  const auto storage = Open();
  auto order = OrderWithKey("K");
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL,VolPct=20,Closing=0;");
  order.SetNamedText("Original", "AlgoEntry");
  const double added = MedianMilliseconds([&](std::size_t i) {
    order.key = "N" + std::to_string(i);
    storage->StoreOrder({"me", "new", "accepted"}, order);
  });
  const double changed = MedianMilliseconds([&](std::size_t) {
    storage->StoreOrder({"market", "fill", "100"}, order);
  });
  const double disk = DiskMilliseconds();
  std::cout << "new " << added << " ms, changed " << changed << " ms, the disk alone " << disk << " ms\n";
  EXPECT_LT(added, 10 + 3 * disk);
  EXPECT_LT(changed, 10 + 3 * disk);
}

}  // namespace
}  // namespace algo::terminal::storage::tests
