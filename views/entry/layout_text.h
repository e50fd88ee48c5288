#pragma once

// The trader's entries as one line of text for the workspace, and back.

#include <optional>
#include <string>
#include <string_view>

#include "views/entry/followed_symbol.h"
#include "views/entry/pick_lists.h"

namespace algo::views::entry {

struct TLayoutRow;

class TLayoutText {
 public:
  /// All of them outlive the object.
  TLayoutText(TEntryForm& form, TPickLists& lists, TFollowedSymbol& symbol)
      : FForm(form), FLists(lists), FSymbol(symbol) {}

  /// What the form holds, with the account that the frame works on.
  std::string Write(const std::string& account) const;

  /// Puts a line back into the form. Throws EConversionError at a box whose value is no boolean, keeping what
  /// was read before it.
  void Read(std::string_view line);

 private:
  std::optional<std::string> Value(const TLayoutRow& row, const std::string& account) const;
  void Apply(const TLayoutRow& row, const std::string& value);

  TEntryForm& FForm;
  TPickLists& FLists;
  TFollowedSymbol& FSymbol;
};

}  // namespace algo::views::entry
