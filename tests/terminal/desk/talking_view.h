#pragma once

// A view that has something to say to all that a desktop asks, in the module's place: what it answers is set
// by the test, and what it is told is noted. The strict layer stands around its provider, so that each test
// also sees that the desktop asks nothing that the contract forbids.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "plugin/host_contract/checks/strict_provider.h"
#include "plugin/host_contract/view_functions.h"
#include "tests/terminal/desk/desk_fixture.h"
#include "tests/terminal/host/sample_view.h"

namespace algo::terminal::desk::tests {

/// What the views of the test answer, and what they were told.
struct TTalk {
  std::string caption;
  std::vector<host::TCaptionButton> buttons;
  std::vector<host::TImage> images;
  host::TImage icon;
  std::vector<host::TShortcut> shortcuts;
  bool hasPreferences = false;
  bool isWindow = false;
  bool isDialog = false;
  bool sizeable = true;
  bool docks = true;
  host::TDockPosition side = host::TDockPosition::HostsChoice;
  bool opensAtStart = false;
  std::int32_t width = 0;
  std::int32_t height = 0;
  bool tellsWhenAsked = false;  ///< that it changed
  std::vector<std::string> log;

  void Note(std::string what) { log.push_back(std::move(what)); }
  bool Noted(std::string_view what) const { return std::find(log.begin(), log.end(), what) != log.end(); }
  auto Count(std::string_view what) const { return std::count(log.begin(), log.end(), what); }
};

class TTalkingView final : public host::TViewFrame {
 public:
  TTalkingView(TTalk& talk, std::string name)
      : TViewFrame("TTalkingView", "layout"), FTalk(talk), FName(std::move(name)) {
    auto& edit = Add<forms::TTextEdit>("edit");
    auto& button = Add<forms::TButton>("button");
    forms::TLayoutGroup& group = Layout().AddGroup("group", nullptr, forms::TDirection::Vertical);
    Layout().AddItem("liEdit", group, edit);
    Layout().AddItem("liButton", group, button);
  }

  std::string GetViewCaption() override {
    if (FTalk.tellsWhenAsked) host::SendViewNotify(*this, host::ViewChanged);
    return FTalk.caption;
  }
  std::vector<host::TCaptionButton> GetViewCaptionButtons() override { return FTalk.buttons; }
  std::vector<host::TImage> GetViewCaptionButtonImageList() override { return FTalk.images; }
  host::TImage GetViewIcon() override { return FTalk.icon; }
  void HandleCaptionButtonClick(std::int32_t button) override {
    Note("button " + std::to_string(button));
    FTalk.caption = "Clicked " + std::to_string(button);
  }
  bool ExecuteShortcutAction(std::int32_t action) override {
    Note("shortcut " + std::to_string(action));
    return true;
  }
  void SetFont(const forms::TFont& font) override {
    Note("font " + std::to_string(font.size) + (font.bold ? " bold" : ""));
    FindControl("button")->SetFont(font);
  }
  void ActiveView() override { Note("active"); }
  void DeactiveView() override {
    Note("inactive");
    if (FTalk.tellsWhenAsked) host::SendViewNotify(*this, host::ViewChanged);
  }
  bool SetCustomData(std::string_view data) override {
    Note("data " + std::string(data));
    return data == "known";
  }
  void Detach() override { Note("closed"); }

 private:
  void Note(const std::string& what) { FTalk.Note(FName + ' ' + what); }

  TTalk& FTalk;
  std::string FName;
};

class TTalkingProvider : public host::tests::TSampleProvider {
 public:
  explicit TTalkingProvider(TTalk& talk) : FTalk(talk) {}

  std::string GetName() override { return "talkingView"; }
  std::int32_t GetMenuLevel() override { return 2; }
  std::int32_t GetMenuIndex(std::int32_t /*level*/) override { return 1000; }
  std::int32_t GetMenuID(std::int32_t level) override { return 700 + level; }
  std::string GetMenuCaption(std::int32_t /*level*/) override { return "Talking"; }
  bool GetDefaultCaption(std::string& caption) override {
    caption = "Talking view";
    return true;
  }
  bool GetDefaultSize(std::int32_t& width, std::int32_t& height) override {
    if (FTalk.width > 0) width = FTalk.width;
    if (FTalk.height > 0) height = FTalk.height;
    return true;
  }
  bool GetIsWindow() override { return FTalk.isWindow; }
  bool GetIsDialog() override { return FTalk.isDialog; }
  bool GetIsSizeable() override { return FTalk.sizeable; }
  bool GetCanDock() override { return FTalk.docks; }
  host::TDockPosition GetDockPosition() override { return FTalk.side; }
  bool GetIsDialogViewAfterMainShow() override { return FTalk.opensAtStart; }
  std::vector<host::TShortcut> GetShortCutList() override { return FTalk.shortcuts; }
  void InitializeShortcut() override { FTalk.Note("shortcuts"); }
  std::shared_ptr<host::TViewFrame> GetPreferenceView() override {
    return FTalk.hasPreferences ? std::make_shared<TTalkingView>(FTalk, "preferences") : nullptr;
  }
  host::TInstanceHandle OpenNewInstance() override {
    auto view = std::make_shared<TTalkingView>(FTalk, "view" + std::to_string(++FOpened));
    const host::TInstanceHandle handle = host::HandleOf(*view);
    AddView(std::move(view));
    return handle;
  }

 private:
  TTalk& FTalk;
  int FOpened = 0;
};

/// A desktop with such views.
struct TTalkingTest : TDeskTest {
  TTalkingTest() {
    violations.SetHandler([](const std::string& what) {
      ADD_FAILURE() << what;
      throw EError(what);
    });
    options.layer = [this](auto) {
      return std::make_unique<host::checks::TStrictProvider>(std::make_unique<TTalkingProvider>(talk),
                                                             violations);
    };
  }
  ~TTalkingTest() override { Close(); }

  void Open() {
    TDeskTest::Open();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    QApplication::processEvents();
  }

  /// The view in the panel says that it changed.
  void Change(frames::TEntryPanel& panel) {
    host::SendViewNotify(dynamic_cast<host::TViewFrame&>(*panel.View().Frame()), host::ViewChanged);
  }

  /// Puts the trader into the view in the panel.
  static void Enter(frames::TEntryPanel& panel) { Click(Input(panel.View(), "edit")); }

  /// The menu that the panel's title opens; nullptr when it is the window's own or none.
  QMenu* Menu(frames::TEntryPanel& panel) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), panel.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&panel, &event);
    return window->findChild<QMenu*>("panelMenu");
  }

  /// How many messages the trader was shown.
  int Messages() { return The<QTableView>("messageTable").model()->rowCount(); }

  TTalk talk;
  host::checks::TViolations violations;
};

}  // namespace algo::terminal::desk::tests
