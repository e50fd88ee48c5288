#include "terminal/drive/frame_names.h"

namespace algo::terminal::drive {

std::string TFrameNames::LabelOf(const forms::TFrame& frame) {
  const auto [known, added] = FLabels.try_emplace(&frame);
  if (added) {
    const auto label = FLabelOfClass.find(frame.ClassName());
    if (label != FLabelOfClass.end()) known->second.label = label->second;
  }
  // A frame that is being made or is going belongs to nobody; one that was seen alive before keeps what is
  // known.
  if (const auto alive = frame.weak_from_this(); !alive.expired()) known->second.frame = alive;
  return known->second.label;
}

void TFrameNames::Name(const std::shared_ptr<host::TViewFrame>& frame, const std::string& label) {
  FLabels.insert_or_assign(frame.get(), TKnown{label, frame});
  FFrames.insert_or_assign(label, frame);
}

std::shared_ptr<host::TViewFrame> TFrameNames::Find(std::string_view label) const {
  const auto found = FFrames.find(label);
  return found == FFrames.end() ? nullptr : found->second.lock();
}

void TFrameNames::Forget(std::string_view label) {
  const auto found = FFrames.find(label);
  if (found != FFrames.end()) FFrames.erase(found);
}

void TFrameNames::DropGone() {
  std::erase_if(FLabels, [](const auto& known) { return known.second.frame.expired(); });
  std::erase_if(FFrames, [](const auto& known) { return known.second.expired(); });
}

bool TFrameNames::IsReserved(std::string_view label) {
  return label.empty() || label == "change" || label == "work" || label.starts_with("change:");
}

TFrameNames::TMaking::TMaking(TFrameNames& names, std::string_view entry, std::string_view change)
    : FNames(names), FFormer(names.FLabelOfClass) {
  if (!entry.empty()) names.FLabelOfClass["TAlgoOrderEntryFrame"] = entry;
  if (!change.empty()) names.FLabelOfClass["TAlgoOrderChangeFrame"] = change;
}

TFrameNames::TMaking::~TMaking() { FNames.FLabelOfClass.swap(FFormer); }

}  // namespace algo::terminal::drive
