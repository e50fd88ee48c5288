#include "terminal/desk/session/desk.h"

#include <QDateTime>
#include <chrono>
#include <exception>
#include <filesystem>
#include <system_error>

#include "terminal/desk/session/guarded_provider.h"
#include "terminal/desk/session/market_lists.h"
#include "terminal/desk/session/sample_user.h"
#include "terminal/desk/session/step_grids.h"
#include "terminal/paper/generated_prices.h"
#include "terminal/paper/recorded_prices.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk {

namespace {

using namespace std::chrono_literals;

constexpr auto StepInterval = 100ms;

/// The database file in the folder, which is made when it is not there.
std::string DatabaseIn(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  if (error) {
    throw EError("The data folder '" + folder + "' cannot be made: " + error.message() +
                 ". Give one with --data in which you may write.");
  }
  return (std::filesystem::path(folder) / "algo-desk.db").string();
}

std::unique_ptr<drive::TLoadedModule> LoadModule(const std::string& file, const void* owner) {
  try {
    return std::make_unique<drive::TLoadedModule>(file, owner);
  } catch (const EError& error) {
    throw EError(std::string(error.what()) + ". Name the file of the module with --module.");
  }
}

std::unique_ptr<paper::TPriceSource> PricesFor(const TDeskOptions& options,
                                               const paper::TMarketTables& tables) {
  if (options.replayFile.empty()) return std::make_unique<paper::TGeneratedPrices>(tables, options.seed);
  return std::make_unique<paper::TRecordedPrices>(paper::LoadRecording(options.replayFile, tables), tables,
                                                  options.speed);
}

text::TDateTime Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return text::TDateTime(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

}  // namespace

TDesk::TDesk(const TDeskOptions& options)
    : FTexts(options.language.value_or(appearance::TLanguage::English)),
      FSkin(options.skin != nullptr ? options.skin : &appearance::Skins.front()),
      FTables(paper::LoadMarketTables(options.marketFolder)),
      FStorage(DatabaseIn(options.dataFolder)),
      FHost(FEvents.Receiver(), FStorage),
      FMarket(FHost, FTables, PricesFor(options, FTables)),
      FEditorAssist(FEvents, FHost, FTables, FTexts) {
  FHost.Data().worksOrders = true;
  FillSampleUser(FHost.Data());
  FillFirstSettings(FHost.Data());
  FillMarketLists(FHost.Data(), FTables);
  FTexts.FillInto(FHost.Data());
  FStorage.LoadInto(FHost.Data(), FHost.Orders());
  if (options.prepare) options.prepare(FHost.Data());
  // After that, since what is prepared may hold the grids of a desk that has gone.
  FillStepGrids(FHost.Data(), FTables);
  FEngine.emplace(FHost, FMarket, options.seed);
  SetSkin(*FSkin);
  connect(&FEvents, &TDeskEvents::ModalFormShown, this, [this](const forms::TDialogForm& form) {
    if (const auto view = std::dynamic_pointer_cast<host::TViewFrame>(form.Frame()))
      FViews.insert(HandleOf(*view));
  });
  FModule = LoadModule(options.moduleFile, this);
  if (options.layer) FModule->Watch(options.layer);
  FModule->Watch([this](auto provider) -> std::unique_ptr<host::TIBaseView> {
    return std::make_unique<TGuardedProvider>(std::move(provider), FEvents);
  });
  connect(&FTimer, &QTimer::timeout, this, &TDesk::StepByClock);
}

TDesk::~TDesk() {
  FTimer.stop();
  FModule->DestroyProvider();
}

host::TInstanceHandle TDesk::OpenView() {
  const host::TInstanceHandle instance = Provider().OpenNewInstance();
  // A view without a frame is nothing that could be shown.
  if (instance == 0 || !Provider().FindView(instance)) return 0;
  FViews.insert(instance);
  return instance;
}

void TDesk::CloseView(host::TInstanceHandle instance) {
  FViews.erase(instance);
  Provider().CloseInstance(instance);
}

void TDesk::SetLanguage(appearance::TLanguage language) {
  FTexts = appearance::TTexts(language);
  FTexts.FillInto(FHost.Data());
  const auto number = static_cast<std::int32_t>(language);
  // The forms beside the views take it up with any call, even one for no view at all.
  Provider().SetLanguage(0, number);
  for (const host::TInstanceHandle view : FViews) Provider().SetLanguage(view, number);
  emit LanguageChanged();
}

void TDesk::SetSkin(const appearance::TSkin& skin) {
  FSkin = &skin;
  appearance::ApplySkin(skin);
  skin.FillInto(FHost.Data());
  FHost.NotifySkinChanged(skin.name);
  emit SkinChanged();
}

void TDesk::Start() {
  FClock.start();
  FTimer.start(StepInterval);
}

void TDesk::Step(double seconds) {
  FMarket.Advance(seconds);
  FEngine->Advance(Now(), seconds);
}

void TDesk::StepByClock() {
  const double seconds = static_cast<double>(FClock.restart()) / 1000;
  try {
    Step(seconds);
  } catch (const std::exception& error) {
    // The next step would fail as well, and bury the trader in messages.
    FTimer.stop();
    emit FEvents.MessageShown(QString::fromUtf8(error.what()) + ' ' + FTexts.Desk("Market.Stopped"));
  }
}

void TDesk::Cancel(const host::TCustomClientOrder& order) {
  FEngine->Cancel(order.key, FHost.Data().profile.user);
}

}  // namespace algo::terminal::desk
