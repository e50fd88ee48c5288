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
  using TListener = std::function<void()>;

  virtual ~TCustomConfigManager();

  /// The name of the section under which the user's own settings lie.
  virtual std::string CurrentSection() = 0;

  /// The text under the key; empty when there is none.
  virtual std::string ReadText(std::string_view section, std::string_view key) = 0;
  /// The number under the key; 0 when there is none or the text is no whole number of 32 bits.
  virtual std::int32_t ReadInteger(std::string_view section, std::string_view key) = 0;
  /// True for the texts "Y", "y", "1", "true" and "True"; false for all else, and when there is none.
  virtual bool ReadBoolean(std::string_view section, std::string_view key) = 0;

  /// Stores a text under a key. `writeThrough` asks the host to keep it at once, not at its next convenient
  /// moment.
  virtual void Store(std::string_view section, std::string_view key, std::string_view value,
                     bool writeThrough) = 0;

  /// Calls `listener` whenever settings were changed from outside, until the owner is removed. One listener
  /// an owner.
  virtual void AddListener(TListener listener, TOwner owner) = 0;
  virtual void RemoveListener(TOwner owner) = 0;
};

}  // namespace algo::host
