#pragma once

// The base class of view providers. A provider describes one view for the host's menu and makes its
// instances; the base class keeps the instances, passes the host's per-instance calls on to them, and answers
// neutrally for whatever a provider has nothing to say about. Hosts make providers by class name through the
// class registry (class_registry.h).

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/dialog_form.h"
#include "plugin/host_contract/view_frame.h"
#include "plugin/host_contract/view_parts.h"

namespace algo::host {

/// The frame reference of a view instance as a number; 0 for none.
using TInstanceHandle = std::int64_t;

/// The handle of a frame.
/// [either side, at any time]
ALGO_SHARED TInstanceHandle HandleOf(const TViewFrame& frame);

class ALGO_SHARED TIBaseView {
 public:
  /// `owner` is the host component that keeps the provider; nullptr for none.
  explicit TIBaseView(const void* owner);
  /// Closes the instances that are left.
  /// [host → module, after start]
  virtual ~TIBaseView();
  TIBaseView(const TIBaseView&) = delete;
  TIBaseView& operator=(const TIBaseView&) = delete;

  /// The host component that keeps the provider; nullptr for none.
  /// [either side, at any time]
  const void* Owner() const { return FOwner; }

  // The operations stand in the order of their slots, which is part of the contract: a new one goes to the
  // end.

  // The view in the host's menu. Levels count from 0, the menu bar.
  // [host → module, while the provider lives]
  virtual std::string GetName() = 0;
  virtual std::int32_t GetViewID() = 0;
  virtual std::int32_t GetMenuLevel() = 0;
  virtual std::int32_t GetMenuIndex(std::int32_t level) = 0;
  virtual std::int32_t GetMenuID(std::int32_t level) = 0;
  virtual std::string GetMenuCaption(std::int32_t level) = 0;
  virtual std::int32_t GetMenuGroupIndex(std::int32_t level) = 0;

  /// Whether the user is offered the view at all.
  /// [host → module, while the provider lives]
  virtual bool GetIsVisible() = 0;

  /// Whether the view opens as a window of its own instead of a panel. False unless overridden. Asked at each
  /// opening, with the operations below about how new instances stand.
  /// [host → module, while the provider lives]
  virtual bool GetIsWindow();

  /// Makes an instance; 0 when that fails, with nothing left behind.
  /// [host → module, while the provider lives]
  virtual TInstanceHandle OpenNewInstance() = 0;
  /// Closes the instance; with no effect for an unknown handle. Handlers of it that still run may hold its
  /// memory.
  /// [host → module, while the instance is open]
  virtual void CloseInstance(TInstanceHandle instance);

  // Passed on to the instance, see TViewFrame; an unknown handle gives 0, empty or false. What the title bar
  // shows is asked when the instance has opened, and again when it has sent ViewChanged, taken a language, or
  // been told of a click or a shortcut.
  // [host → module, while the instance is open]
  virtual std::int32_t GetWidth(TInstanceHandle instance);
  virtual std::int32_t GetHeight(TInstanceHandle instance);
  virtual std::string GetViewCaption(TInstanceHandle instance);
  virtual void HandleCaptionButtonClick(TInstanceHandle instance, std::int32_t button);
  virtual std::vector<TCaptionButton> GetViewCaptionButtons(TInstanceHandle instance);
  virtual std::vector<TImage> GetViewCaptionButtonImageList(TInstanceHandle instance);
  virtual TImage GetViewIcon(TInstanceHandle instance);

  /// A new frame with the user's settings of this kind of view, for the host's settings dialog. nullptr
  /// unless overridden, for nothing to set. Asked before the host offers the settings, so that the frame may
  /// never be shown; the host detaches it in any case.
  /// [host → module, while the provider lives]
  virtual std::shared_ptr<TViewFrame> GetPreferenceView();

  // How new instances stand on the screen, asked at each opening; where a workspace restores an instance, its
  // own place goes before the side. Unless overridden: not as a dialog, sizeable, dockable at a side of the
  // host's choice.
  // [host → module, while the provider lives]
  virtual bool GetIsDialog();
  virtual bool GetIsSizeable();
  virtual bool GetCanDock();
  virtual TDockPosition GetDockPosition();

  /// The shortcuts of this kind of view, asked at the start and at each change of language. None unless
  /// overridden.
  /// [host → module, after InitializeShortcut]
  virtual std::vector<TShortcut> GetShortCutList();

  // Passed on to the instance, as above.
  // [host → module, while the instance is open]
  virtual bool ExecuteShortcutAction(TInstanceHandle instance, std::int32_t action);
  virtual void SetSkin(TInstanceHandle instance, std::string_view name);

  /// Passed on to the instance. Handle 0, which is no instance, is allowed here, for what a provider shows
  /// beside its instances. True when it was done.
  /// [host → module, while the provider lives]
  virtual bool SetLanguage(TInstanceHandle instance, std::int32_t language);

  // Passed on to the instance, as above: the font when it has opened and when the host has another one; that
  // it is the active view, or is so no longer, at each change and before it closes; the layout when a
  // workspace is stored or restored, and custom data after it, when the restored one has some.
  // [host → module, while the instance is open]
  virtual void SetFont(TInstanceHandle instance, const forms::TFont& font);
  virtual void ActiveView(TInstanceHandle instance);
  virtual void DeactiveView(TInstanceHandle instance);
  virtual std::string GetLayoutData(TInstanceHandle instance);
  virtual bool SetLayoutData(TInstanceHandle instance, std::string_view text);
  virtual bool SetCustomData(TInstanceHandle instance, std::string_view data);

  /// Whether the handle names an open instance of this provider.
  /// [host → module, while the provider lives]
  virtual bool ContainView(TInstanceHandle instance);

  // Passed on to the instance, as above.
  // [host → module, while the instance is open]
  virtual bool SendMessage(TInstanceHandle instance, std::int32_t message, std::string_view text);
  virtual bool SetGroupID(TInstanceHandle instance, std::string_view id);
  virtual std::string GetGroupID(TInstanceHandle instance);

  /// Whether an instance opens by itself as a dialog once the main window shows, and where it stands among
  /// the views that do, lower numbers first. Asked once at each start, of a view that the user is offered.
  /// Unless overridden: false, and 0.
  /// [host → module, while the provider lives]
  virtual bool GetIsDialogViewAfterMainShow();
  virtual std::int32_t GetDialogViewIndexAfterMainShow();

 protected:
  /// Keeps `frame` as an instance of this view.
  /// [module, while the provider lives]
  virtual void AddView(std::shared_ptr<TViewFrame> frame);

 public:
  /// Size and caption of a new instance. False leaves them to the host; a size may be left untouched. The
  /// caption is asked again at each change of language.
  /// [host → module, while the provider lives]
  virtual bool GetDefaultSize(std::int32_t& width, std::int32_t& height) = 0;
  virtual bool GetDefaultCaption(std::string& caption) = 0;

  /// The shortcuts are going to be asked for: makes them ready. A host with keys calls it before it opens the
  /// first instance. With no effect unless overridden.
  /// [host → module, once]
  virtual void InitializeShortcut();

  /// The frame of the instance; nullptr for an unknown handle.
  /// [host → module, while the provider lives]
  virtual std::shared_ptr<TViewFrame> FindView(TInstanceHandle instance) const;

  /// Hands the instance over: the provider keeps it no longer and does not close it when it goes. From then
  /// on the frame is the host's, which ends it with Detach. nullptr, with no effect, for an unknown handle.
  /// [host → module, while the instance is open]
  virtual std::shared_ptr<TViewFrame> ReleaseView(TInstanceHandle instance);

 protected:
  /// Closes every instance; a failure does not spare the others, and the first one is thrown at the end.
  /// Derived classes whose frames need them alive call it in their destructor.
  /// [module, while the provider lives]
  void CloseAllInstances();

 private:
  const void* FOwner;
  std::vector<std::shared_ptr<TViewFrame>> FViews;
};

}  // namespace algo::host
