// What the work order form asks and tells the host.

#include <algorithm>

#include "plugin/host_contract/installed_service.h"
#include "plugin/host_contract/user_app_profile.h"
#include "tests/views/order_dialogs.h"
#include "views/work/work_order_frame.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class WorkHost : public TOrderDialogTest {};

TEST_F(WorkHost, RegistersItsQuantityEditorUnderTheGroup) {
  const auto registered = [this](const char* group) {
    const auto seen = Seen("register_editor");
    return std::count_if(seen.begin(), seen.end(), [group](const TSeen& each) {
      return each.text == "quantity sedtAvaliQty" && each.more == group;
    });
  };
  const auto served = [this] {
    const auto seen = Seen("editor_symbol");
    return std::count_if(seen.begin(), seen.end(), [](const TSeen& each) {
      return each.text == "quantity sedtAvaliQty" && each.more == "0005";
    });
  };
  TCustomClientOrder parent = ParentOrder();
  std::shared_ptr<forms::TFrame> kept;
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    kept = form.Frame();
    EXPECT_EQ(registered(""), 1);
    EXPECT_EQ(served(), 1);
    Forget();
    EXPECT_TRUE(frame.SetGroupID("G"));
    EXPECT_EQ(frame.GetGroupID(), "G");
    EXPECT_EQ(registered("G"), 1);
    EXPECT_EQ(served(), 1);
    EXPECT_TRUE(frame.SetGroupID("G"));
    EXPECT_EQ(registered("G"), 1);
  });
  Forget();
  EXPECT_TRUE(dynamic_cast<host::TViewFrame&>(*kept).SetGroupID("H"));
  EXPECT_EQ(registered("H"), 1);
  EXPECT_EQ(served(), 0);
}

TEST_F(WorkHost, AsksWhichTimesInForceTheUserMayUse) {
  class TProfile : public host::TCustomUserAppProfile {
   public:
    bool HasRight(std::string_view name) override {
      asked.emplace_back(name);
      return true;
    }
    std::int32_t UserKind() override { return 0; }
    bool UserFlag() override { return false; }
    std::string AccountText() override { return {}; }
    std::string UserIdentity() override { return {}; }

    std::vector<std::string> asked;
  };
  host::TInstalledService<TProfile> profile;
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [](forms::TDialogForm&, TChangeFrame&) {});
  for (const char* right : {"OEFAK", "OEFOK"}) {
    EXPECT_EQ(std::count(profile->asked.begin(), profile->asked.end(), right), 1) << right;
  }
}

TEST_F(WorkHost, FitsItsDialogToTheAlgorithm) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_CLOSE");
    const forms::TSize small = form.ClientSize();
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_PEG");
    EXPECT_GT(form.ClientSize().width, small.width);
    EXPECT_EQ(form.ClientSize().width, frame.GetWidth());
    EXPECT_EQ(form.ClientSize().height, frame.GetHeight());
  });
}

TEST_F(WorkHost, NeedsNoDialogAndNoListenerForItsSize) {
  const auto frame = std::make_shared<views::work::TAlgoWorkOrderFrame>();
  EXPECT_EQ(Spin(*frame, "sedtPecentage").Max(), 100.0);
  EXPECT_EQ(Combo(*frame, "cbSide").Index(), 0);
  TCustomClientOrder parent = ParentOrder();
  frame->WorkOrder(&parent);
  EXPECT_EQ(Spin(*frame, "edtQty").Value(), 10000.0);
  Pick(*frame, "cmbOrderType", "Res_Algo_OrderType_PEG");
  Click(*frame, "btnSubmit");
  EXPECT_TRUE(Told().empty());
  EXPECT_EQ(parent.TextProperty(440), "TMLO:AlgoId=PEG,Closing=0,Closing=0;");
  frame->ReleaseOrder();
  Click(*frame, "btnSubmit");
  EXPECT_TRUE(Told().empty());
  frame->Detach();
  EXPECT_EQ(LeftBehind(), host::checks::TLeftBehind());
}

TEST_F(WorkHost, TellsTheHostThatItsViewChanged) {
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [](forms::TDialogForm&, TChangeFrame&) {});
  Work(parent, [this](forms::TDialogForm&, TChangeFrame&) {
    ASSERT_FALSE(Seen("view_notify").empty());
    EXPECT_EQ(Seen("view_notify").back().number, 1025);
    Forget();
  });
  EXPECT_TRUE(Seen("view_notify").empty());
}

}  // namespace
}  // namespace algo::tests
