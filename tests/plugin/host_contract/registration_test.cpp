// What is registered with a host is taken back, whatever fails.

#include "plugin/host_contract/registration.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace algo::host::tests {
namespace {

using TLog = std::vector<std::string>;

class RegistrationTest : public testing::Test {
 protected:
  TRegistration Noted(const std::string& name) {
    return TRegistration([this, name] { log.push_back(name); });
  }
  TRegistration Failing(const std::string& name) {
    return TRegistration([this, name] {
      log.push_back(name);
      throw std::runtime_error(name);
    });
  }
  /// What the call throws; empty for nothing.
  template <class TCall>
  static std::string Failure(TCall&& call) {
    try {
      call();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return {};
  }

  TLog log;
};

static_assert(!std::is_copy_constructible_v<TRegistration>);
static_assert(!std::is_copy_assignable_v<TRegistration>);
static_assert(std::is_nothrow_move_constructible_v<TRegistration>);

TEST_F(RegistrationTest, IsTakenBackWhenItGoes) {
  {
    const TRegistration registration = Noted("a");
    EXPECT_TRUE(registration.Active());
    EXPECT_EQ(log, TLog());
  }
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationTest, IsTakenBackOnce) {
  {
    TRegistration registration = Noted("a");
    registration.Release();
    EXPECT_FALSE(registration.Active());
    registration.Release();
  }
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationTest, ThatIsEmptyDoesNothing) {
  TRegistration empty;
  EXPECT_FALSE(empty.Active());
  empty.Release();
  EXPECT_FALSE(empty.Active());
}

TEST_F(RegistrationTest, IsEmptyAfterwardsAlsoWhenTheHostFailed) {
  TRegistration registration = Failing("a");
  EXPECT_EQ(Failure([&] { registration.Release(); }), "a");
  EXPECT_FALSE(registration.Active());
  EXPECT_EQ(Failure([&] { registration.Release(); }), "");
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationTest, ThatGoesDropsTheFailure) {
  EXPECT_NO_THROW({ const TRegistration registration = Failing("a"); });
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationTest, IsTakenBackByTheOneToWhomItWasHandedOn) {
  TRegistration first = Noted("a");
  {
    TRegistration second = std::move(first);
    EXPECT_FALSE(first.Active());  // NOLINT(bugprone-use-after-move): empty is what the contract says
    EXPECT_TRUE(second.Active());
    first.Release();
    EXPECT_EQ(log, TLog());
  }
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationTest, IsTakenBackWhenAnotherOneTakesItsPlace) {
  TRegistration registration = Noted("a");
  registration = Noted("b");
  EXPECT_EQ(log, TLog{"a"});
  registration = Failing("c");
  EXPECT_EQ(log, (TLog{"a", "b"}));
  EXPECT_NO_THROW(registration = TRegistration());
  EXPECT_EQ(log, (TLog{"a", "b", "c"}));
}

TEST_F(RegistrationTest, StaysWhenItIsGivenItself) {
  TRegistration registration = Noted("a");
  TRegistration& same = registration;
  registration = std::move(same);
  EXPECT_TRUE(registration.Active());
  EXPECT_EQ(log, TLog());
}

TEST_F(RegistrationTest, MayLeadBackToItselfWhileItIsTakenBack) {
  TRegistration registration;
  registration = TRegistration([&] {
    log.emplace_back(registration.Active() ? "active" : "empty");
    registration.Release();
    registration = Noted("a");
  });
  registration.Release();
  EXPECT_TRUE(registration.Active());
  EXPECT_EQ(log, TLog{"empty"});
}

using RegistrationsTest = RegistrationTest;

TEST_F(RegistrationsTest, AreTakenBackInTheOrderInWhichTheyWereMade) {
  {
    TRegistrations registrations;
    for (const char* name : {"first", "second", "third"}) registrations.Add(Noted(name));
    EXPECT_EQ(log, TLog());
  }
  EXPECT_EQ(log, (TLog{"first", "second", "third"}));
}

TEST_F(RegistrationsTest, AreTakenBackOnce) {
  TRegistrations registrations;
  registrations.Add(Noted("a"));
  registrations.ReleaseAll();
  registrations.ReleaseAll();
  EXPECT_EQ(log, TLog{"a"});
}

TEST_F(RegistrationsTest, AreAllTakenBackAlthoughSomeFailAndTheFirstFailureIsThrown) {
  TRegistrations registrations;
  for (const bool fails : {true, false, true, false}) {
    registrations.Add(fails ? Failing("fails") : Noted("goes"));
  }
  registrations.Add(Failing("last"));
  EXPECT_EQ(Failure([&] { registrations.ReleaseAll(); }), "fails");
  EXPECT_EQ(log, (TLog{"fails", "goes", "fails", "goes", "last"}));
}

TEST_F(RegistrationsTest, ThatGoDropTheirFailures) {
  EXPECT_NO_THROW({
    TRegistrations registrations;
    registrations.Add(Failing("a"));
    registrations.Add(Noted("b"));
  });
  EXPECT_EQ(log, (TLog{"a", "b"}));
}

TEST_F(RegistrationsTest, MayLeadBackToTheirListWhileTheyAreTakenBack) {
  TRegistrations registrations;
  registrations.Add(TRegistration([&] {
    log.emplace_back("first");
    registrations.ReleaseAll();
    registrations.Add(Noted("late"));
  }));
  registrations.Add(Noted("second"));
  registrations.ReleaseAll();
  EXPECT_EQ(log, (TLog{"first", "second"}));
  registrations.ReleaseAll();
  EXPECT_EQ(log, (TLog{"first", "second", "late"}));
}

}  // namespace
}  // namespace algo::host::tests
