#pragma once

// The pick lists of the entry form: exchanges, the algorithms and host order types that the chosen exchange
// offers, and the fixed choices of the parameters. Each list of codes or resource ids stands beside the combo
// box that shows its texts; the index is the same in both.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/algos.h"
#include "model/order_types.h"
#include "views/entry/entry_form.h"
#include "views/entry/frame_purpose.h"

namespace algo::views::entry {

class TPickLists {
 public:
  /// Run when another entry than before is chosen.
  struct THandlers {
    std::function<void()> exchangeChanged;
    std::function<void()> algoChanged;
    std::function<void()> orderTypeChanged;
  };

  /// What a refill puts into a combo box and the lists beside it.
  struct TOffer {
    std::vector<std::string> ids;
    std::vector<std::string> codes;
    std::vector<std::string> texts;
  };

  /// What an exchange offers, complete before any of it is shown.
  struct TOffers {
    std::string exchange;
    TOffer algos;
    TOffer orderTypes;
  };

  /// The chosen entries: exchange code and resource ids, each empty where none is chosen.
  struct TChosen {
    std::string exchange;
    std::string algoType;
    std::string orderType;
  };

  /// The form outlives the lists.
  TPickLists(TEntryForm& form, TOwnType ownType, THandlers handlers);

  /// Lists the configured exchanges; the chosen one stays chosen where it still is one.
  void InitExchangeList();

  /// Lists what the exchange at that index offers. Throws what the host throws, with both lists as they were.
  void InitializeOrderType(std::int32_t exchangeIndex);

  /// The two steps of it: reading, which may fail, with no effect on the lists, and showing what was read.
  TOffers OffersAt(std::int32_t exchangeIndex) const;
  /// With no effect when another exchange is chosen by then: a host that chose it while it was asked has that
  /// one's offers shown already.
  void ShowOffers(TOffers offers);

  /// Both of these, as one refill.
  void RefillOrderLists();

  /// Empties the lists that depend on the exchange and hides the algorithm's fields. The next choice of an
  /// exchange, the same one included, lists anew.
  void OfferNothing();

  /// Shows the fixed lists and the algorithms in the user's language; what is chosen stays chosen.
  void FillPickLists();

  /// Fills the list of styles anew and chooses its not-set item.
  void FillStyleList();

  /// Chooses the exchange of that code; the first one when it is not there.
  void SelectExchange(const std::string& code);

  /// Whether the exchange offers the algorithm of that code, whatever its letter case.
  bool Offers(std::string_view algoCode) const { return IndexOfAlgo(algoCode) >= 0; }

  /// Chooses that algorithm; none when it is not offered.
  void SelectAlgo(std::string_view code);

  /// Takes the choice of an algorithm back, silently, as if it had never been made.
  void ChooseNothing();

  /// Has no algorithm chosen from now on, not even by a refill, until LetAlgoStandIn or a choice.
  void SelectNoAlgo();

  /// Has a refill choose the first algorithm again where none was chosen before.
  void LetAlgoStandIn() { FAlgoMayStandIn = true; }

  /// Chooses the host order type of that resource id; the first one when it is not offered. Where the form
  /// shows an order it is offered in any case, until the next call.
  void SelectOrderType(std::string_view id);

  TChosen Chosen() const;

  /// The chosen algorithm's row: nullptr when none is chosen or its id is not in the catalogue. Throws
  /// EListIndexError when the choice lies just behind the list.
  const model::TAlgoRow* ChosenAlgo() const;

  /// The code of the chosen algorithm. Throws EListIndexError when none is chosen.
  const std::string& ChosenAlgoCode() const;

  /// The chosen host order type's row; nullptr when none is chosen.
  const model::TOrderTypeRow* ChosenOrderType() const;

  /// What lists and saved workspaces call the chosen item of the combo box; empty for none.
  std::string_view ChosenEntry(TField combo) const;

  /// Chooses the item that they call so; with no effect when the combo box has none.
  void SelectEntry(TField combo, std::string_view entry);

  // Said at the beginning of the change handlers, so that the same choice is not handled twice.

  void ExchangeHandled() { FHandled.exchange = Chosen().exchange; }
  void AlgoHandled() { FHandled.algoType = Chosen().algoType; }
  void OrderTypeHandled() { FHandled.orderType = Chosen().orderType; }

 private:
  class TRefill;

  static TOffer AlgosOf(const std::string& exchange);
  static TOffer OrderTypesOf(const std::string& exchange);
  void ShowOrderTypes(const std::string& chosen);
  std::int32_t IndexOfAlgo(std::string_view code) const;
  std::string_view EntryAt(TField combo, std::int32_t index) const;
  void FillChoices(const model::TParamRow& param);

  TEntryForm& FForm;
  THandlers FHandlers;
  std::vector<std::string> FAlgoExchList;        ///< exchange codes, parallel to cmbExch
  std::vector<std::string> FAlgoTypeList;        ///< algorithm resource ids, parallel to cmbOrderType
  std::vector<std::string> FOrderTypeConstList;  ///< algorithm codes, parallel to cmbOrderType
  std::vector<std::string> FOrderTypeList;       ///< host order type resource ids, parallel to cmbMType
  TChosen FHandled;                              ///< the entries for which the change handlers ran last
  std::string FOffering;                         ///< the exchange whose offers are listed
  TOffer FOfferedTypes;                          ///< what the exchange and the user's rights offer
  std::string FOwnTypeId;                        ///< the type of the order that is shown
  TOwnType FOwnType;
  std::int32_t FRefillDepth = 0;
  bool FStylesListed = false;  ///< not before an algorithm that has styles was chosen
  bool FAlgoMayStandIn = true;
};

}  // namespace algo::views::entry
