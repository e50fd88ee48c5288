#pragma once

// The labels by which scripts refer to frames. The command that opens a view chooses its label; change and
// work order frames have fixed ones. Frames are identified by address alone, because events arrive while a
// frame is under construction or destruction; nothing else of a frame is used later.

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "forms/frame.h"
#include "plugin/host_contract/view_frame.h"

namespace algo::terminal::drive {

class TFrameLabels {
 public:
  /// The label of a frame that exists; for one without a label, the label that it is going to have.
  std::string LabelOf(const forms::TFrame& frame);

  /// Gives the frame that label and makes it known to scripts.
  void Assign(const std::shared_ptr<host::TViewFrame>& frame, const std::string& label);

  /// The frame that scripts know by the label; nullptr if there is none.
  std::shared_ptr<host::TViewFrame> Find(std::string_view label) const;

  /// Scripts no longer know a frame by the label. Its frame keeps it in events as long as it lives.
  void Forget(std::string_view label);

  /// Whether a view is being opened under the label.
  bool IsTaken(std::string_view label) const { return FTaken.contains(label); }

  /// The frames that scripts know by labels that they gave themselves, and the labels.
  std::map<std::string, std::shared_ptr<host::TViewFrame>> Opened() const;

  /// Scripts no longer know the frames that were labelled automatically.
  void ForgetReserved();

  /// Removes the frames that no longer exist, so that a new one may have the same address.
  void RemoveExpired();

  /// Whether no frame is known at all.
  bool Empty() const { return FLabels.empty() && FFrames.empty(); }

  /// Whether the label is one that frames get automatically, so that no view can be opened under it.
  static bool IsReserved(std::string_view label);

  /// Sets the labels of frames that are created during its lifetime. Objects nest.
  class TNewFrameLabels {
   public:
    /// `entry` is for entry frames, `change` for change frames; an empty one leaves the label unchanged.
    TNewFrameLabels(TFrameLabels& labels, std::string_view entry, std::string_view change);
    ~TNewFrameLabels();
    TNewFrameLabels(const TNewFrameLabels&) = delete;
    TNewFrameLabels& operator=(const TNewFrameLabels&) = delete;

   private:
    TFrameLabels& FLabels;
    std::map<std::string, std::string, std::less<>> FFormer;
    std::string FTaken;
  };

 private:
  struct TKnown {
    std::string label;
    std::weak_ptr<const forms::TFrame> frame;
  };

  std::map<const forms::TFrame*, TKnown> FLabels;
  std::map<std::string, std::weak_ptr<host::TViewFrame>, std::less<>> FFrames;
  std::set<std::string, std::less<>> FTaken;
  std::map<std::string, std::string, std::less<>> FLabelOfClass{
      {"TAlgoOrderEntryFrame", ""}, {"TAlgoOrderChangeFrame", "change"}, {"TAlgoWorkOrderFrame", "work"}};
};

}  // namespace algo::terminal::drive
