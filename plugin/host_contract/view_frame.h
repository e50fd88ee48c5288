#pragma once

// A frame that a view provider hands to the host. The host asks these operations of each view instance,
// through the provider; a frame answers the ones that mean something to it.

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/frame.h"

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
};

}  // namespace algo::host
