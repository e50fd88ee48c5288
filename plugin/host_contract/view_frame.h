#pragma once

// A frame that a view provider hands to the host. The host asks these operations of each view instance,
// through the provider; a frame overrides the ones that mean something to it. The others do nothing and
// answer with false, with nothing, or, as for the size, with what fits any frame.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "forms/frame.h"
#include "plugin/host_contract/view_parts.h"

namespace algo::host {

class ALGO_SHARED TViewFrame : public forms::TFrame {
 public:
  using TFrame::TFrame;
  ~TViewFrame() override;

  /// The user's language changed: fetch all texts anew. True when it was done.
  /// [host → module, while the instance is open]
  virtual bool SetLanguage(std::int32_t language);
  /// The terminal changed to the skin of that name.
  /// [host → module, while the instance is open]
  virtual void SetSkin(std::string_view name);
  /// The font in which the terminal shows its views, as a control of the view would have to be given it.
  /// [host → module, while the instance is open]
  virtual void SetFont(const forms::TFont& font);

  /// The link group that the view belongs to; empty for none. True when the group was taken.
  /// [host → module, while the instance is open]
  virtual bool SetGroupID(std::string_view id);
  virtual std::string GetGroupID() const;

  /// The trader's entries as one line of text for the workspace, and back. False when the text could not be
  /// applied whole. A frame without entries worth saving gives an empty text and takes none.
  /// [host → module, while the instance is open]
  virtual std::string GetLayoutData();
  virtual bool SetLayoutData(std::string_view text);

  /// The size that the view needs, in pixels.
  /// [host → module, while the instance is open]
  virtual std::int32_t GetWidth() const;
  virtual std::int32_t GetHeight() const;

  /// What the view's title bar says; empty leaves it at the caption that the host gave the new instance.
  /// [host → module, while the instance is open]
  virtual std::string GetViewCaption();
  /// The buttons that the view adds to its title bar, from left to right, and the images that they refer to.
  /// [host → module, while the instance is open]
  virtual std::vector<TCaptionButton> GetViewCaptionButtons();
  virtual std::vector<TImage> GetViewCaptionButtonImageList();
  /// One of these buttons was clicked.
  /// [host → module, while the instance is open]
  virtual void HandleCaptionButtonClick(std::int32_t button);
  /// The view's picture in title bars and task lists; none leaves it to the host.
  /// [host → module, while the instance is open]
  virtual TImage GetViewIcon();

  /// The keys of one of the provider's shortcuts were pressed while the view was the active one. False when
  /// the view does nothing at them.
  /// [host → module, while the instance is open]
  virtual bool ExecuteShortcutAction(std::int32_t action);

  /// The view became the active one of the terminal, or is so no longer. A dialog in front of it, or another
  /// program, leaves it the active one.
  /// [host → module, while the instance is open]
  virtual void ActiveView();
  virtual void DeactiveView();

  /// Takes data that the host, or another view through it, has for the view, in a form on which the two have
  /// agreed. False when the view does not know it. A host may keep the data with the view in a workspace, and
  /// gives it again, after the layout, when it restores the view.
  /// [host → module, while the instance is open]
  virtual bool SetCustomData(std::string_view data);
  /// Takes a message, likewise. False when the view does not know it.
  /// [host → module, while the instance is open]
  virtual bool SendMessage(std::int32_t message, std::string_view text);
};

}  // namespace algo::host
