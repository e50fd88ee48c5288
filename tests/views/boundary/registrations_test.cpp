// What is registered with a host is taken back, whatever fails.

#include "views/boundary/registrations.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace algo::views {
namespace {

using TLog = std::vector<std::string>;

TEST(Registrations, AreTakenBackInTheOrderInWhichTheyWereMade) {
  TLog log;
  {
    TRegistrations registrations;
    for (const char* name : {"first", "second", "third"}) {
      registrations.Add([&log, name] { log.push_back(std::string("+") + name); },
                        [&log, name] { log.push_back(std::string("-") + name); });
    }
  }
  EXPECT_EQ(log, (TLog{"+first", "+second", "+third", "-first", "-second", "-third"}));
}

TEST(Registrations, AreTakenBackOnce) {
  int taken = 0;
  TRegistrations registrations;
  registrations.Add([] {}, [&taken] { ++taken; });
  registrations.ReleaseAll();
  registrations.ReleaseAll();
  EXPECT_EQ(taken, 1);
}

TEST(Registrations, ThatFailedAreNotTakenBack) {
  int taken = 0;
  TRegistrations registrations;
  EXPECT_THROW(registrations.Add([] { throw std::runtime_error("no"); }, [&taken] { ++taken; }),
               std::runtime_error);
  registrations.ReleaseAll();
  EXPECT_EQ(taken, 0);
}

TEST(Registrations, AreAllTakenBackAlthoughSomeFailAndTheFirstFailureIsTold) {
  int taken = 0;
  TRegistrations registrations;
  registrations.Add([] {}, [] { throw std::runtime_error("first"); });
  registrations.Add([] {}, [&taken] { ++taken; });
  registrations.Add([] {}, [] { throw std::runtime_error("second"); });
  registrations.Add([] {}, [&taken] { ++taken; });
  try {
    registrations.ReleaseAll();
    ADD_FAILURE() << "the failure was swallowed";
  } catch (const std::runtime_error& error) {
    EXPECT_STREQ(error.what(), "first");
  }
  EXPECT_EQ(taken, 2);
}

}  // namespace
}  // namespace algo::views
