#include "plugin/view_provider.h"

#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/language_manager.h"
#include "plugin/host_contract/listen.h"
#include "plugin/host_contract/user_app_profile.h"
#include "views/boundary/boundary.h"
#include "views/entry/entry_frame.h"

namespace algo::plugin {

namespace {

constexpr std::string_view ViewRight = "AlgoTabOrderEntry";

// Where the view stands in the host's menu, level by level.
struct TMenuRow {
  std::int32_t id;
  std::int32_t index;
  std::string_view captionId;
};
constexpr TMenuRow MenuRows[] = {{101, 1100, "Res_Order"},
                                 {views::entry::AlgoEntryViewID, 1750, "Res_AlgoOrderEntry"}};
constexpr TMenuRow NoMenuRow{-1, 0, {}};

const TMenuRow& MenuRow(std::int32_t level) { return level == 0 || level == 1 ? MenuRows[level] : NoMenuRow; }

}  // namespace

TIAlgoEntryOrder::TIAlgoEntryOrder(const void* owner) : TIBaseView(owner) {
  auto alive = std::weak_ptr(FAlive);
  FListening = host::ListenToChannel(
      host::OrderActionChannel,
      [this, alive](const void* /*sender*/, host::TChannelRecord* record) {
        // None yet while the provider is made.
        const auto actions = alive.expired() ? nullptr : FActions;
        if (actions) views::AtHostBoundary([&] { actions->Take(record); });
      },
      this);
  auto& config = host::TCustomConfigManager::GetInstance();
  const std::string model = config.ReadText(config.CurrentSection(), "ChangeOrderShowModel");
  const bool showChangeModally = !(model.starts_with('n') || model.starts_with('N'));
  FActions = std::make_shared<TOrderActions>(*this, showChangeModally,
                                             [this, alive](std::shared_ptr<host::TViewFrame> frame) {
                                               if (alive.expired()) return false;
                                               AddView(std::move(frame));
                                               return true;
                                             });
}

TIAlgoEntryOrder::~TIAlgoEntryOrder() {
  // Whatever call the host is in the middle of: what fails here is reported here.
  const views::TNestedLoopScope ownCall;
  views::AtBoundary([this] { FListening.Release(); });
  FAlive.reset();
  if (FActions) FActions->End();
  views::AtBoundary([this] { CloseAllInstances(); });
}

std::string TIAlgoEntryOrder::GetName() {
  return "AlgoOrderEntry_" + std::to_string(views::entry::AlgoEntryViewID);
}

std::int32_t TIAlgoEntryOrder::GetViewID() { return views::entry::AlgoEntryViewID; }

std::int32_t TIAlgoEntryOrder::GetMenuLevel() { return 2; }

std::int32_t TIAlgoEntryOrder::GetMenuIndex(std::int32_t level) { return MenuRow(level).index; }

std::int32_t TIAlgoEntryOrder::GetMenuID(std::int32_t level) { return MenuRow(level).id; }

std::string TIAlgoEntryOrder::GetMenuCaption(std::int32_t level) {
  return views::AtHostBoundary(std::string(), [level] {
    const std::string_view id = MenuRow(level).captionId;
    return id.empty() ? std::string() : host::ResourceText(id);
  });
}

std::int32_t TIAlgoEntryOrder::GetMenuGroupIndex(std::int32_t /*level*/) { return 0; }

bool TIAlgoEntryOrder::GetIsVisible() {
  return views::AtHostBoundary(false,
                               [] { return host::TCustomUserAppProfile::GetInstance().HasRight(ViewRight); });
}

bool TIAlgoEntryOrder::GetDefaultCaption(std::string& caption) {
  return views::AtHostBoundary(false, [&caption] {
    caption = host::ResourceText("Res_AlgoOrderEntry");
    return true;
  });
}

bool TIAlgoEntryOrder::GetDefaultSize(std::int32_t& /*width*/, std::int32_t& /*height*/) { return true; }

host::TInstanceHandle TIAlgoEntryOrder::OpenNewInstance() {
  return views::AtHostBoundary(host::TInstanceHandle{0}, [this] {
    const std::weak_ptr alive(FAlive);
    auto frame = std::make_shared<views::entry::TAlgoOrderEntryFrame>();
    if (alive.expired()) {
      frame->Detach();
      return host::TInstanceHandle{0};
    }
    const host::TInstanceHandle handle = host::HandleOf(*frame);
    AddView(std::move(frame));
    return handle;
  });
}

void TIAlgoEntryOrder::CloseInstance(host::TInstanceHandle instance) {
  views::AtHostBoundary([&] { TIBaseView::CloseInstance(instance); });
}

bool TIAlgoEntryOrder::SetLanguage(host::TInstanceHandle instance, std::int32_t language) {
  return views::AtHostBoundary(false, [&] {
    const auto actions = FActions;
    // Before the host is asked for a text: one that fails leaves the mark.
    actions->MarkLanguage(language);
    TIBaseView::SetLanguage(instance, language);
    actions->SetLanguage(language);
    return true;
  });
}

}  // namespace algo::plugin
