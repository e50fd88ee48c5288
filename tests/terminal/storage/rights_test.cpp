// A database that may not be written is refused, and told apart from one that is broken.

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>

#include "tests/terminal/storage/opening_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

/// Runs the test as a user without rights to the files of others, since root may write everything.
class TWithoutRights {
 public:
  TWithoutRights() {
    if (FWasRoot && seteuid(Nobody) != 0) throw std::runtime_error("seteuid");
  }
  ~TWithoutRights() {
    if (FWasRoot && seteuid(0) != 0) std::abort();
  }
  TWithoutRights(const TWithoutRights&) = delete;
  TWithoutRights& operator=(const TWithoutRights&) = delete;

 private:
  static constexpr uid_t Nobody = 65534;
  bool FWasRoot = geteuid() == 0;
};

struct TRightsToOpen : TOpening {
  TRightsToOpen() {
    Open()->StoreOrder({"me", "new", "accepted"}, OrderWithKey("K"));
    chmod(folder.Path().c_str(), 0777);
  }
  ~TRightsToOpen() override { chmod(folder.Path().c_str(), 0777); }

  void ExpectNotWritable() {
    const std::string bytes = FileBytes(file);
    const auto names = FileNames();
    {
      const TWithoutRights user;
      EXPECT_TRUE(Refusal().starts_with(
          FullMessage("cannot be written. Make the file and its folder writable for you, then try again.")))
          << Refusal();
    }
    EXPECT_EQ(FileBytes(file), bytes);
    EXPECT_EQ(FileNames(), names);
  }
};

TEST_F(TRightsToOpen, AFileThatMayOnlyBeReadIsRefused) {
  chmod(file.c_str(), 0444);
  ExpectNotWritable();
}

TEST_F(TRightsToOpen, AFolderThatMayOnlyBeReadIsRefused) {
  chmod(file.c_str(), 0666);
  chmod(folder.Path().c_str(), 0555);
  ExpectNotWritable();
}

TEST_F(TRightsToOpen, ANewFileInAFolderThatMayOnlyBeReadIsNotMade) {
  std::filesystem::remove(file);
  chmod(folder.Path().c_str(), 0555);
  ExpectNotWritable();
}

TEST_F(TRightsToOpen, AFileThatMayNotBeReadIsRefused) {
  chmod(file.c_str(), 0);
  const TWithoutRights user;
  EXPECT_EQ(Refusal(), FullMessage("cannot be read. Make the file readable for you, then try again."));
}

}  // namespace
}  // namespace algo::terminal::storage::tests
