#pragma once

// Skins: the colours that the terminal wears, by index.

#include <cstdint>
#include <functional>
#include <string_view>

#include "forms/control.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

/// Colour indexes of the side buttons, and the slot of a button in which they are put.
inline constexpr std::int32_t BuyColor = 7;
inline constexpr std::int32_t SellColor = 9;
inline constexpr std::int32_t ButtonColorSlot = 7;

class ALGO_SHARED TCustomLookAndFeelService : public THostService<TCustomLookAndFeelService> {
 public:
  /// [host → module, while it is registered]
  using TListener = std::function<void(std::string_view skin)>;

  virtual ~TCustomLookAndFeelService();

  /// The colour of that index in the current skin. The module always passes 0 as `variant`.
  /// [module → host, while a provider lives]
  virtual forms::TColor ColorOf(std::int32_t index, std::int32_t variant) = 0;

  /// Calls `listener` with the new skin's name when the skin changes, until the owner is removed.
  /// [module → host, while a provider lives]
  virtual void AddListener(TListener listener, TOwner owner) = 0;
  /// [module → host, while it is registered]
  virtual void RemoveListener(TOwner owner) = 0;
};

}  // namespace algo::host
