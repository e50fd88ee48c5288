#pragma once

// The controls of the entry form, one row each, and the groups that hold them. Whatever is true of a field
// stands in its row and nowhere else: the form, its texts, the lists of editors that the host serves, the
// layout text, the way of the Enter key and what a change may touch are all made from these rows. What a
// field's value means to an order stands in the row of the parameter that it holds.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "forms/layout.h"
#include "forms/spin_edit.h"
#include "model/parameters.h"

namespace algo::views::entry {

/// The controls, named as on the form. Their order is the one in which Enter goes through them, and in which
/// the items of one group stand.
enum class TField : std::uint8_t {
  edtAccount,
  cbLockAcct,
  edtSymbol,
  cbLockSymbol,
  edtPrice,
  cbLockPrice,
  edtQty,
  cbLockQty,
  cmbExch,
  cbLockExch,
  cmbMType,
  cbLockMOrder,
  cmbOrderType,
  cbLockOrderType,
  edtVolPct,
  edtMaxVolPct,
  cmbAccuVol,
  edtThrPx1,
  edtThrVolPct1,
  edtThrPx2,
  edtThrVolPct2,
  cmbJoin,
  edtJoinThr,
  edtJoinQty,
  cmbRef,
  edtTickDiff,
  edtDiffPct,
  edtMinQty,
  edtServePct,
  edtTimeOut,
  edtRandTimeOut,
  cmbIceberg,
  edtShowQty,
  edtMaxShowQty,
  edtRandPct,
  edtReloadPct,
  cmbFunc,
  cmbAllInAuc,
  edtMinOrdAmt,
  edtWPx,
  cmbOpening,
  edtOpenPct,
  cmbClosing,
  edtClosePct,
  cmbCloseSim,
  cmbStyle,
  edtSlices,
  edtStopLossPx,
  edtStopQty,
  deSTime,
  deETime,
  cbClear,
  cbPopup,
  btnSubmit,
  btnClear,
  btnWork,
  btnBuy,
  btnSell,
};

constexpr std::size_t IndexOf(TField field) { return static_cast<std::size_t>(field); }

/// The layout groups, in the order in which those of one parent stand.
enum class TGroup : std::uint8_t {
  lgOrder,
  lgAlgo,
  lgAlgoRight,
  lgAcct,
  lgSymbol,
  lgPrice,
  lgQty,
  lgExch,
  lgOrd,
  lgMOrder,
  lgButton,
  lgCheck,
  lgBtn,
  lgSubmit,
  lgBuy,
  lgSell,
  lgTrading,
  lgVol,
  lgWOrder,
  lgAuc,
  lgVWAP,
  lgMinOrder,
  lgStyle,
  lgSlices,
  lgTVOLth,
  lgICEBERG,
  lgExc,
  lgSTOP,
  lgPEG,
  lgPEGExcept,
  lgSNIPER,
  lgRef,
  lgTime,
  None
};

inline constexpr std::size_t GroupCount = static_cast<std::size_t>(TGroup::None);

constexpr std::size_t IndexOf(TGroup group) { return static_cast<std::size_t>(group); }

struct TGroupRow {
  TGroup group;
  std::string_view name;
  TGroup parent;  ///< None for the top groups
  forms::TDirection direction;
  std::string_view captionId = {};  ///< resource id; empty for a group without caption
  std::uint8_t movesInPlace =
      0;  ///< moves to the column that the chosen algorithm says, in this order, from 1; 0: never
  bool shownAgain = false;  ///< is shown before an algorithm is applied, though none hides it
};

enum class TFieldKind : std::uint8_t { Edit, Spin, Combo, Date, Check, Button, SpeedButton };

/// What leaving an editor does to a value that stands for "not given".
enum class TExitRule : std::uint8_t {
  None,
  Zero,       ///< 0 becomes empty
  ZeroOrMax,  ///< 0 becomes empty, and so does the current maximum
  Bounds,     ///< the lower and the upper bound become empty; 0 has a meaning and stays
};

/// A text of the control itself, besides the caption of its item.
struct TFieldText {
  enum class TPlace : std::uint8_t { None, Caption, Hint, Placeholder };

  TPlace place = TPlace::None;
  std::string_view id = {};
};

/// The host editor that serves a field: accounts and symbols are looked up, prices step by the tick of the
/// symbol that the editor is told, quantities by its lot.
struct THostEditor {
  enum class TKind : std::uint8_t { None, Account, Symbol, Price, Quantity };

  TKind kind = TKind::None;
  std::uint8_t place = 0;  ///< among those of its kind, from 1: in which order they are registered and told
  std::uint8_t placeInGroup = 0;  ///< the same for telling them the symbol after a change of the link group
};

/// What the change frame does to a field.
enum class TInChange : std::uint8_t {
  Keeps,   ///< it stays as the form has it
  Opens,   ///< it can be amended
  Closes,  ///< it is part of what the order is and cannot be touched
};

/// How a field is saved in the layout text, and restored.
struct TSaved {
  enum class TKind : std::uint8_t {
    None,
    Account,   ///< the frame's account; always written and always read
    Symbol,    ///< the frame's symbol; always written and always read
    Check,     ///< 0 or 1; always written
    Quantity,  ///< a whole number above 0
    Price,     ///< a number other than 0, read only into a price that may be typed
    Choice,    ///< the chosen entry of the list behind the combo box
    Time,      ///< the text as shown
    Number,    ///< a number; 0 is written and not read back
  };

  TKind kind = TKind::None;
  std::string_view key = {};
  std::uint8_t place = 0;       ///< among all items as they are written, from 1
  std::uint8_t placeAgain = 0;  ///< where it is written a second time; 0 for once
  std::uint8_t placeRead =
      0;  ///< among those that are read first, from 1; the others follow as they are written
  std::optional<TField> textFrom = {};  ///< whose text is written; the field's own unless given
};

/// Where Enter leads from a field: by rule to what follows it in the order of the fields, unless the row says
/// otherwise.
struct TEnterPath {
  bool outside = false;                    ///< no other field leads here by rule
  std::optional<TField> standsAfter = {};  ///< comes right after that one instead of at its own place
  std::optional<TField> leadsAs = {};      ///< leads where that one would lead by rule
  std::span<const TField> own = {};        ///< leads along these instead, and then
  std::optional<TField> goesOnAs = {};     ///< along the path of that one
};

struct TFieldRow {
  TField field;
  std::string_view name;
  TFieldKind kind;
  std::string_view item;
  TGroup group;
  std::string_view captionId = {};  ///< resource id of the item's caption; empty for items without one
  std::optional<model::TParam> param = {};
  TFieldText text = {};
  forms::TNumberFormat format = {};
  model::TBounds bounds = {};
  double step = 1;
  TExitRule exitRule = TExitRule::None;
  bool clickSelectsAll = false;
  bool pickKeepsTime = false;        ///< of date edits: a day picked from a calendar keeps the time of day
  bool keyInput = false;             ///< its caption stands out
  bool staysHidden = false;          ///< once an algorithm hid its item, none shows it again
  bool shownAgain = false;           ///< is shown before an algorithm is applied, though none hides it
  std::optional<TField> locks = {};  ///< of a lock box: the field that it disables while it is checked
  THostEditor hostEditor = {};
  TInChange inChange = TInChange::Keeps;
  TSaved saved = {};
  TEnterPath enter = {};
};

/// All groups, in the order of TGroup.
std::span<const TGroupRow> GroupRows();
/// All fields, in the order of TField.
std::span<const TFieldRow> FieldRows();

inline const TFieldRow& Row(TField field) { return FieldRows()[IndexOf(field)]; }

/// The field that holds the parameter.
TField FieldOf(model::TParam param);

}  // namespace algo::views::entry
