#pragma once

// A host whose services live in memory: installed for the life of the object, driven through it, and telling
// what they see of the module to one receiver of events.

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "plugin/host_contract/channel_manager.h"
#include "terminal/host/host_data.h"
#include "terminal/host/host_events.h"
#include "terminal/host/order_journal.h"
#include "terminal/host/order_storage.h"
#include "terminal/host/order_store.h"
#include "terminal/host/service_operations.h"

namespace algo::terminal {

/// Changes of a market-data item by field id; a field without a text is removed.
using TFieldChanges = std::map<std::int32_t, std::optional<std::string>>;

/// Whom a change of a market-data item is announced to, and as a change of what.
enum class TMarketNotice : std::uint8_t {
  None,        ///< nobody is notified
  Item,        ///< the item's listeners are notified of the item
  OtherItems,  ///< the item's listeners are notified of items other than theirs
};

/// A field of a market-data item and its new text.
struct TFieldText {
  std::int32_t field = 0;
  std::string_view text;
};

class TMemoryHost {
 public:
  /// Installs all services, which store nothing beyond the host's life. `events` outlives the host.
  explicit TMemoryHost(THostEvents& events);
  /// The same, but lasting changes go to the storage first. Both outlive the host.
  TMemoryHost(THostEvents& events, TOrderStorage& storage);
  /// Releases the forms that still show, then restores the services that were installed before.
  ~TMemoryHost();
  TMemoryHost(const TMemoryHost&) = delete;
  TMemoryHost& operator=(const TMemoryHost&) = delete;

  THostData& Data();
  TOrderStore& Orders();
  /// The way for the terminal itself, for instance a market, to change orders.
  TOrderJournal& Journal();

  /// Notifies every settings listener that settings changed.
  void NotifyConfigChanged();

  /// Notifies every skin listener of the new skin's name.
  void NotifySkinChanged(std::string_view name);

  /// Merges the changes into the item of the symbol, which is created if necessary, then notifies. Without a
  /// state the item keeps its own; a new item is in the empty state.
  void SetMarket(std::string_view symbol, std::optional<std::int32_t> state, const TFieldChanges& changes,
                 TMarketNotice notice);

  /// Sets these fields of the symbol's item, which is created if necessary, then notifies the item's
  /// listeners. Allocates nothing if the item has the fields already, with room for the texts.
  void SetMarket(std::string_view symbol, std::span<const TFieldText> fields);

  /// Notifies every spread table listener that the tables with these codes changed.
  void NotifySpreadChanged(std::span<const std::string> codes);

  /// Does `work` as a call of the operation, for a layer in front of the service that answers the module by
  /// itself. What the layer asks of the services meanwhile is no call of the module's.
  void CallInFront(TServiceOperation operation, const std::function<void()>& work);

  /// Lets go of the modeless forms that still show, without closing them.
  void ReleaseForms();

  /// Posts as another view of the terminal would: delivered like any post, but not reported as an event.
  void PostAsHost(std::int32_t channel, host::TChannelRecord& record);

 private:
  struct TServices;
  std::unique_ptr<TServices> FServices;
};

}  // namespace algo::terminal
