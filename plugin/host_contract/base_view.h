#pragma once

// The base class of view providers. A provider describes one view for the host's menu and makes its
// instances; the base class keeps the instances and passes the host's per-instance calls on to them. Hosts
// make providers by class name through the class registry (class_registry.h).

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/dialog_form.h"
#include "plugin/host_contract/view_frame.h"

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

  /// Whether the view opens as a window of its own instead of a panel.
  /// [host → module, while the provider lives]
  virtual bool GetIsWindow();

  /// Caption and size of a new instance. False leaves both to the host; a size may be left untouched.
  /// [host → module, while the provider lives]
  virtual bool GetDefaultCaption(std::string& caption) = 0;
  virtual bool GetDefaultSize(std::int32_t& width, std::int32_t& height) = 0;

  /// Makes an instance; 0 when that fails, with nothing left behind.
  /// [host → module, while the provider lives]
  virtual TInstanceHandle OpenNewInstance() = 0;
  /// Closes the instance; with no effect for an unknown handle. Handlers of it that still run may hold its
  /// memory.
  /// [host → module, while the instance is open]
  virtual void CloseInstance(TInstanceHandle instance);
  /// Whether the handle names an open instance of this provider.
  /// [host → module, while the provider lives]
  virtual bool ContainView(TInstanceHandle instance);

  // Passed on to the instance; an unknown handle gives 0, empty or false.
  // [host → module, while the instance is open]
  virtual std::int32_t GetWidth(TInstanceHandle instance);
  virtual std::int32_t GetHeight(TInstanceHandle instance);
  virtual bool SetLanguage(TInstanceHandle instance, std::int32_t language);
  virtual void SetSkin(TInstanceHandle instance, std::string_view name);
  virtual bool SetGroupID(TInstanceHandle instance, std::string_view id);
  virtual std::string GetGroupID(TInstanceHandle instance);
  virtual std::string GetLayoutData(TInstanceHandle instance);
  virtual bool SetLayoutData(TInstanceHandle instance, std::string_view text);

  /// The frame of the instance; nullptr for an unknown handle.
  /// [host → module, while the provider lives]
  std::shared_ptr<TViewFrame> FindView(TInstanceHandle instance) const;

 protected:
  /// Keeps `frame` as an instance of this view.
  /// [module, while the provider lives]
  virtual void AddView(std::shared_ptr<TViewFrame> frame);
  /// Closes every instance; a failure does not spare the others, and the first one is thrown at the end.
  /// Derived classes whose frames need them alive call it in their destructor.
  /// [module, while the provider lives]
  void CloseAllInstances();

 private:
  const void* FOwner;
  std::vector<std::shared_ptr<TViewFrame>> FViews;
};

}  // namespace algo::host
