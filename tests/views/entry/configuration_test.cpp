// What the frame takes from the settings, when it opens and when they change; and from the user's profile.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

class ConfigurationTest : public TTerminalTest {
 protected:
  void Set(const std::string& key, const std::string& value) { Data().config["USER"][key] = value; }
  void SetPlatform(const std::string& key, const std::string& value) {
    Data().config["VANTORIX_PLATFORM"][key] = value;
  }

  std::int32_t KeyInputSize(views::entry::TAlgoOrderEntryFrame& frame) {
    return Element(frame, "liVolPct").Font().size;
  }
};

struct TTextValue {
  std::string text;
  bool truth;
};

const std::array<TTextValue, 10> Booleans{{{"Y", true},
                                           {"y", true},
                                           {"1", true},
                                           {"true", true},
                                           {"True", true},
                                           {"N", false},
                                           {"0", false},
                                           {"", false},
                                           {"false", false},
                                           {"yes", false}}};

TEST_F(ConfigurationTest, TheConfirmationSettingUnchecksThePopupBox) {
  EXPECT_TRUE(Open().Check(TField::cbPopup).Checked());
  for (const TTextValue& value : Booleans) {
    Set("ConfirmationPlaceOrd", value.text);
    auto& frame = Open();
    EXPECT_EQ(frame.Check(TField::cbPopup).Checked(), !value.truth) << value.text;
    EXPECT_TRUE(frame.Check(TField::cbPopup).Enabled()) << value.text;
  }
}

TEST_F(ConfigurationTest, TheForcedConfirmationDisablesThePopupBoxWhateverItShows) {
  EXPECT_TRUE(Open().Check(TField::cbPopup).Enabled());
  for (const TTextValue& value : Booleans) {
    Set("ForceConfirmBox", value.text);
    auto& frame = Open();
    EXPECT_EQ(frame.Check(TField::cbPopup).Enabled(), !value.truth) << value.text;
    EXPECT_TRUE(frame.Check(TField::cbPopup).Checked()) << value.text;
  }
  Set("ForceConfirmBox", "Y");
  Set("ConfirmationPlaceOrd", "Y");
  auto& forced = Open();
  EXPECT_FALSE(forced.Check(TField::cbPopup).Enabled());
  EXPECT_FALSE(forced.Check(TField::cbPopup).Checked());
}

TEST_F(ConfigurationTest, WithTheConfirmationForcedEveryOrderIsConfirmed) {
  Set("ForceConfirmBox", "Y");
  for (const std::string confirmation : {"Y", "N"}) {
    Set("ConfirmationPlaceOrd", confirmation);
    Click(OpenFilled(), "btnSubmit");
    EXPECT_EQ(Seen("show_modal").size(), 1U) << confirmation;
    EXPECT_TRUE(Seen("take_action").empty()) << confirmation;
  }
}

TEST_F(ConfigurationTest, TheClearSettingChecksTheClearBox) {
  EXPECT_FALSE(Open().Check(TField::cbClear).Checked());
  for (const TTextValue& value : Booleans) {
    Set("ClearOrd", value.text);
    EXPECT_EQ(Open().Check(TField::cbClear).Checked(), value.truth) << value.text;
  }
}

TEST_F(ConfigurationTest, TheSettingsAreThoseOfTheUsersOwnSection) {
  Data().section = "DESK";
  Set("ConfirmationPlaceOrd", "Y");
  Set("ClearOrd", "Y");
  auto& frame = Open();
  EXPECT_TRUE(frame.Check(TField::cbPopup).Checked());
  EXPECT_FALSE(frame.Check(TField::cbClear).Checked());
  Data().config["DESK"] = {{"ConfirmationPlaceOrd", "Y"}, {"ClearOrd", "Y"}};
  Host().NotifyConfigChanged();
  EXPECT_FALSE(frame.Check(TField::cbPopup).Checked());
  EXPECT_TRUE(frame.Check(TField::cbClear).Checked());
}

TEST_F(ConfigurationTest, EveryOpenViewFollowsAChangeOfTheSettingsAndStoresNothing) {
  auto& first = Open();
  auto& second = Open();
  Set("ConfirmationPlaceOrd", "Y");
  Set("ForceConfirmBox", "Y");
  Set("ClearOrd", "Y");
  SetPlatform("ScaleSize", "150");
  Forget();
  Host().NotifyConfigChanged();
  for (auto* frame : {&first, &second}) {
    EXPECT_FALSE(frame->Check(TField::cbPopup).Checked());
    EXPECT_FALSE(frame->Check(TField::cbPopup).Enabled());
    EXPECT_TRUE(frame->Check(TField::cbClear).Checked());
    EXPECT_EQ(KeyInputSize(*frame), 13);
  }
  EXPECT_TRUE(Seen("store").empty());
}

TEST_F(ConfigurationTest, TheScaleSettingChoosesTheSizeOfTheKeyInputsCaptions) {
  struct TRow {
    std::string scale;
    std::int32_t size;
  };
  const std::vector<TRow> rows{{"-2147483648", 8}, {"-1", 8},   {"0", 8},    {"", 8},     {"big", 8},
                               {"99", 8},          {"100", 8},  {"101", 10}, {"114", 10}, {"115", 11},
                               {"116", 11},        {"124", 11}, {"125", 11}, {"126", 12}, {"127", 12},
                               {"134", 12},        {"135", 13}, {"136", 13}, {"150", 13}, {"2147483647", 13}};
  auto& frame = Open();
  EXPECT_EQ(KeyInputSize(frame), 8);
  for (const TRow& row : rows) {
    SetPlatform("ScaleSize", row.scale);
    Host().NotifyConfigChanged();
    for (const std::string_view item : {"liVolPct", "liThrPx1", "liThrVolPct1", "liStopLossPx"}) {
      EXPECT_EQ(Element(frame, item).Font(), (forms::TFont{row.size, true})) << item << " at " << row.scale;
    }
    EXPECT_EQ(Element(frame, "liETime").Font(), (forms::TFont{8, false})) << row.scale;
  }
}

TEST_F(ConfigurationTest, SettingsThatCannotBeReadAreToldOnceAndLeaveTheFrameInUse) {
  auto& frame = Open();
  Data().faults.Set({"config.read"});
  Host().NotifyConfigChanged();
  EXPECT_EQ(Told(), TTexts{"The host fails at config.read"});
  Data().faults.Set({});
  Set("ClearOrd", "Y");
  Host().NotifyConfigChanged();
  EXPECT_TRUE(frame.Check(TField::cbClear).Checked());
}

TEST_F(ConfigurationTest, OnlyAUserOfTheSecondKindWithoutTheFlagWorksOnTheProfilesAccount) {
  struct TRow {
    std::int32_t kind;
    bool flag;
    bool ownAccount;
  };
  const std::array<TRow, 8> rows{{{0, false, false},
                                  {0, true, false},
                                  {1, false, false},
                                  {1, true, false},
                                  {2, false, true},
                                  {2, true, false},
                                  {3, false, false},
                                  {3, true, false}}};
  for (const TRow& row : rows) {
    Data().profile = {row.kind, row.flag, "A2", ""};
    auto& frame = Open();
    EXPECT_EQ(Element(frame, "lgAcct").Visible(), !row.ownAccount) << row.kind << row.flag;
    Type(frame, "edtSymbol", "0005");
    Click(frame, "btnBuy");
    host::TCustomClientOrder order;
    EXPECT_EQ(frame.GetOrder(order), row.ownAccount) << row.kind << row.flag;
    EXPECT_EQ(order.account, row.ownAccount ? "A2" : "") << row.kind << row.flag;
  }
}

TEST_F(ConfigurationTest, ANewFrameHasNoSideAndThePriceZero) {
  auto& frame = Open();
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "0");
  EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "");
  EXPECT_EQ(frame.Date(TField::deSTime).Text(), "");
  EXPECT_EQ(frame.Date(TField::deETime).Text(), "");
  EXPECT_FALSE(frame.SideButton(TField::btnBuy).Pressed());
  EXPECT_FALSE(frame.SideButton(TField::btnSell).Pressed());
  for (const TField box : {TField::cbLockAcct, TField::cbLockSymbol, TField::cbLockPrice, TField::cbLockQty,
                           TField::cbLockExch, TField::cbLockOrderType, TField::cbLockMOrder}) {
    EXPECT_FALSE(frame.Check(box).Checked()) << frame.Check(box).Name();
  }
  Type(frame, "edtAccount", "A1");
  Type(frame, "edtSymbol", "0005");
  Leave(frame);
  host::TCustomClientOrder order;
  EXPECT_FALSE(frame.GetOrder(order));
  Click(frame, "btnSell");
  EXPECT_TRUE(frame.GetOrder(order));
  EXPECT_EQ(order.side, 1);
}

}  // namespace
}  // namespace algo::tests
