#pragma once

// The orders of the host, in the order in which they arrived, each under a key of its own.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/orders.h"

namespace algo::terminal {

class TOrderStore {
 public:
  /// All orders, oldest first.
  const std::vector<std::unique_ptr<host::TCustomClientOrder>>& All() const { return FOrders; }

  /// The order with that key; nullptr if there is none. The key of a stored order does not change.
  host::TCustomClientOrder* Find(std::string_view key) const;

  /// Adds an order, whose key must not be in use.
  host::TCustomClientOrder& Add(std::unique_ptr<host::TCustomClientOrder> order);

  /// The key for the next order that the host itself numbers: "N1", "N2", …, skipping keys in use.
  std::string NextFreeKey();

 private:
  std::vector<std::unique_ptr<host::TCustomClientOrder>> FOrders;
  std::map<std::string, host::TCustomClientOrder*, std::less<>> FByKey;
  std::int64_t FNextNumber = 1;
};

}  // namespace algo::terminal
