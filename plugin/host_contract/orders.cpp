#include "plugin/host_contract/orders.h"

#include <utility>

namespace algo::host {

namespace {

template <class TTexts, class TKey>
std::string TextOr(const TTexts& texts, const TKey& key) {
  const auto found = texts.find(key);
  return found == texts.end() ? std::string() : found->second;
}

}  // namespace

TCustomOrder::~TCustomOrder() = default;

std::string TCustomOrder::TextProperty(std::int32_t number) const { return TextOr(FNumberedTexts, number); }

void TCustomOrder::SetTextProperty(std::int32_t number, std::string text) {
  FNumberedTexts.insert_or_assign(number, std::move(text));
}

std::string TCustomOrder::NamedText(std::string_view name) const { return TextOr(FNamedTexts, name); }

void TCustomOrder::SetNamedText(std::string_view name, std::string text) {
  FNamedTexts.insert_or_assign(std::string(name), std::move(text));
}

void TCustomOrder::AssignContent(const TCustomOrder& other) { *this = other; }

TCustomClientOrder::~TCustomClientOrder() = default;

}  // namespace algo::host
