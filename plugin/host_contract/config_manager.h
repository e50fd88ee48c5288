#pragma once

// Settings. They lie in sections of keys with texts; the user's own settings lie in the current section.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TCustomConfigManager : public THostService<TCustomConfigManager> {
 public:
  /// [host → module, while it is registered]
  using TListener = std::function<void()>;

  virtual ~TCustomConfigManager();

  /// The name of the section under which the user's own settings lie.
  /// [module → host, while a provider lives]
  virtual std::string CurrentSection() = 0;

  /// The text under the key; empty when there is none.
  /// [module → host, while a provider lives]
  virtual std::string ReadText(std::string_view section, std::string_view key) = 0;
  /// The number under the key; 0 when there is none or the text is no whole number of 32 bits.
  /// [module → host, while a provider lives]
  virtual std::int32_t ReadInteger(std::string_view section, std::string_view key) = 0;
  /// True for the texts "Y", "y", "1", "true" and "True"; false for all else, and when there is none.
  /// [module → host, while a provider lives]
  virtual bool ReadBoolean(std::string_view section, std::string_view key) = 0;

  /// Stores a text under a key. `writeThrough` asks the host to keep it at once, not at its next convenient
  /// moment.
  /// [module → host, while a provider lives]
  virtual void Store(std::string_view section, std::string_view key, std::string_view value,
                     bool writeThrough) = 0;

  /// Calls `listener` whenever settings were changed from outside, until the owner is removed. One listener
  /// an owner.
  /// [module → host, while a provider lives]
  virtual void AddListener(TListener listener, TOwner owner) = 0;
  /// [module → host, while it is registered]
  virtual void RemoveListener(TOwner owner) = 0;
};

}  // namespace algo::host
