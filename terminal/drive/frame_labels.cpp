#include "terminal/drive/frame_labels.h"

namespace algo::terminal::drive {

std::string TFrameLabels::LabelOf(const forms::TFrame& frame) {
  const auto [known, added] = FLabels.try_emplace(&frame);
  if (added) {
    const auto label = FLabelOfClass.find(frame.ClassName());
    if (label != FLabelOfClass.end()) known->second.label = label->second;
  }
  // A frame under construction or destruction has no owner; one that was seen alive before keeps its entry.
  if (const auto alive = frame.weak_from_this(); !alive.expired()) known->second.frame = alive;
  return known->second.label;
}

void TFrameLabels::Assign(const std::shared_ptr<host::TViewFrame>& frame, const std::string& label) {
  FLabels.insert_or_assign(frame.get(), TKnown{label, frame});
  FFrames.insert_or_assign(label, frame);
}

std::shared_ptr<host::TViewFrame> TFrameLabels::Find(std::string_view label) const {
  const auto found = FFrames.find(label);
  return found == FFrames.end() ? nullptr : found->second.lock();
}

void TFrameLabels::Forget(std::string_view label) {
  const auto found = FFrames.find(label);
  if (found != FFrames.end()) FFrames.erase(found);
}

std::map<std::string, std::shared_ptr<host::TViewFrame>> TFrameLabels::Opened() const {
  std::map<std::string, std::shared_ptr<host::TViewFrame>> opened;
  for (const auto& [label, frame] : FFrames) {
    if (auto alive = frame.lock(); alive && !IsReserved(label)) opened.emplace(label, std::move(alive));
  }
  return opened;
}

void TFrameLabels::ForgetReserved() {
  std::erase_if(FFrames, [](const auto& known) { return IsReserved(known.first); });
}

void TFrameLabels::RemoveExpired() {
  std::erase_if(FLabels, [](const auto& known) { return known.second.frame.expired(); });
  std::erase_if(FFrames, [](const auto& known) { return known.second.expired(); });
}

bool TFrameLabels::IsReserved(std::string_view label) {
  return label.empty() || label == "change" || label == "work" || label.starts_with("change:");
}

TFrameLabels::TNewFrameLabels::TNewFrameLabels(TFrameLabels& labels, std::string_view entry,
                                               std::string_view change)
    : FLabels(labels), FFormer(labels.FLabelOfClass), FTaken(entry) {
  labels.FTaken.insert(FTaken);
  if (!entry.empty()) labels.FLabelOfClass["TAlgoOrderEntryFrame"] = entry;
  if (!change.empty()) labels.FLabelOfClass["TAlgoOrderChangeFrame"] = change;
}

TFrameLabels::TNewFrameLabels::~TNewFrameLabels() {
  FLabels.FLabelOfClass.swap(FFormer);
  FLabels.FTaken.erase(FTaken);
}

}  // namespace algo::terminal::drive
