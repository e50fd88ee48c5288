#pragma once

// A host whose services live in memory: installed for the life of the object, driven through it, and telling
// what they see of the module to one receiver of events.

#include <cstdint>
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

namespace algo::terminal {

/// Changes of a market-data item by field id; nothing takes the field out.
using TFieldChanges = std::map<std::int32_t, std::optional<std::string>>;

/// A field of a market-data item and the text that it is to have.
struct TFieldText {
  std::int32_t field = 0;
  std::string_view text;
};

class TMemoryHost {
 public:
  /// Installs all services, which keep nothing beyond the host's life. `events` outlives the host.
  explicit TMemoryHost(THostEvents& events);
  /// The same, but what changes for good goes to the keeper first. Both outlive the host.
  TMemoryHost(THostEvents& events, TOrderStorage& keeper);
  /// Lets go of the forms that still show, then puts back the services that were installed before.
  ~TMemoryHost();
  TMemoryHost(const TMemoryHost&) = delete;
  TMemoryHost& operator=(const TMemoryHost&) = delete;

  THostData& Data();
  TOrderStore& Orders();
  /// Through which the terminal itself, a market for one, changes orders.
  TOrderJournal& Ledger();

  /// Tells every listener for settings that they changed.
  void TellConfigChanged();

  /// Tells every listener for skins the name of the new one.
  void TellSkinChanged(std::string_view name);

  /// Merges the changes into the item of the symbol, which is made if need be; without a state it keeps the
  /// one that it has (a new one: empty). Then, if `notify`, tells the item's listeners; with `others` they
  /// are given items other than theirs.
  void SetMarket(std::string_view symbol, std::optional<std::int32_t> state, const TFieldChanges& changes,
                 bool notify, bool others);

  /// Gives these fields of the symbol's item, which is made if need be, their texts, then tells the item's
  /// listeners. Takes no memory where the item has the fields already, with room for the texts.
  void SetMarket(std::string_view symbol, std::span<const TFieldText> fields);

  /// Tells every listener for spread tables that the tables with these codes changed.
  void TellSpread(std::span<const std::string> codes);

  /// Posts as another view of the terminal would: delivered as any post, but not told as an event.
  void PostAsHost(std::int32_t channel, host::TChannelRecord& record);

 private:
  struct TServices;
  std::unique_ptr<TServices> FServices;
};

}  // namespace algo::terminal
