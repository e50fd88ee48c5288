#pragma once

// The labels under which scripts know frames. Open views are labelled by the command that opens them, the
// change and work order frames by what they are for. Frames are told apart by address alone, because events
// come in while a frame is being made and while it goes; nothing of a frame is looked at later.

#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/frame.h"
#include "plugin/host_contract/view_frame.h"

namespace algo::terminal::drive {

class TFrameNames {
 public:
  /// The label of a frame that exists at the moment; for one that has none yet, the label that it will have.
  std::string LabelOf(const forms::TFrame& frame);

  /// Makes the frame known to scripts under the label, which is then its label.
  void Name(const std::shared_ptr<host::TViewFrame>& frame, const std::string& label);

  /// The frame that scripts know under the label; nullptr for none.
  std::shared_ptr<host::TViewFrame> Find(std::string_view label) const;

  /// Ends what scripts know under the label. Its frame keeps it in events as long as it lives.
  void Forget(std::string_view label);

  /// Forgets the frames that are gone, so that another one may come to stand at the same address.
  void DropGone();

  /// Whether no frame is known at all.
  bool Empty() const { return FLabels.empty() && FFrames.empty(); }

  /// Whether the label is one that frames get by themselves, so that no view can be opened under it.
  static bool IsReserved(std::string_view label);

  /// The labels that frames get which are made while the object lives. Objects nest.
  class TMaking {
   public:
    /// `entry` is for entry frames, `change` for change frames; an empty one leaves the label as it was.
    TMaking(TFrameNames& names, std::string_view entry, std::string_view change);
    ~TMaking();
    TMaking(const TMaking&) = delete;
    TMaking& operator=(const TMaking&) = delete;

   private:
    TFrameNames& FNames;
    std::map<std::string, std::string, std::less<>> FFormer;
  };

 private:
  struct TKnown {
    std::string label;
    std::weak_ptr<const forms::TFrame> frame;
  };

  std::map<const forms::TFrame*, TKnown> FLabels;
  std::map<std::string, std::weak_ptr<host::TViewFrame>, std::less<>> FFrames;
  std::map<std::string, std::string, std::less<>> FLabelOfClass{
      {"TAlgoOrderEntryFrame", ""}, {"TAlgoOrderChangeFrame", "change"}, {"TAlgoWorkOrderFrame", "work"}};
};

}  // namespace algo::terminal::drive
