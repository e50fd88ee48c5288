#include "terminal/host/screen_services.h"

#include <utility>

namespace algo::terminal {

void TMemoryMessageBoxCtrl::ShowText(std::string_view text) {
  FHost.Call(TServiceOperation::MessageText, [&] { FHost.events.MessageShown(text); });
}

void TMemoryMessageBoxCtrl::ShowErrorCode(std::string_view code) {
  FHost.Call(TServiceOperation::MessageCode, [&] { FHost.events.ErrorCodeShown(code); });
}

forms::TColor TMemoryLookAndFeelService::ColorOf(std::int32_t index, std::int32_t /*variant*/) {
  return FHost.Call(TServiceOperation::SkinColor, [&] {
    const auto color = FHost.data.colors.find(index);
    return color == FHost.data.colors.end() ? forms::TColor{0} : color->second;
  });
}

void TMemoryLookAndFeelService::AddListener(std::function<void(std::string_view skin)> listener,
                                            host::TOwner owner) {
  FHost.Call(TServiceOperation::SkinListen, [&] { FListeners.Add(std::move(listener), owner); });
}

void TMemoryLookAndFeelService::RemoveListener(host::TOwner owner) {
  FHost.Call(TServiceOperation::SkinUnlisten, [&] { FListeners.Remove(owner); });
}

}  // namespace algo::terminal
