// Random forms, the same in every run: what is written, read into a new form and written again is what the
// rules of reading make of the first text.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

/// Puts random entries into every control of a form, as the program's own hand.
class TRandomForm {
 public:
  explicit TRandomForm(std::uint32_t seed) : FRandom(seed) {}

  void Fill(views::entry::TAlgoOrderEntryFrame& frame) {
    using views::entry::TField;
    for (const TField first : {TField::cmbExch, TField::cmbOrderType, TField::cmbMType}) {
      Choose(frame.Combo(first));
    }
    constexpr std::array<string_view, 4> symbols{"", "0005", "0700", "unknown"};
    frame.Edit(TField::edtSymbol).SetText(symbols[Below(symbols.size())]);
    frame.Edit(TField::edtSymbol).Commit();
    frame.Edit(TField::edtAccount).SetText(Account());
    frame.Edit(TField::edtAccount).Commit();
    for (const auto& control : frame.Controls()) {
      const string_view name = control->Name();
      if (auto* spin = dynamic_cast<forms::TSpinEdit*>(control.get())) {
        spin->SetValue(Below(3) == 0 ? std::nullopt : std::optional(Number()));
      } else if (auto* date = dynamic_cast<forms::TDateEdit*>(control.get())) {
        date->SetValue(Below(3) == 0 ? std::nullopt : std::optional(Time()));
      } else if (auto* box = dynamic_cast<forms::TCheckBox*>(control.get())) {
        box->SetChecked(Below(2) == 0);
      } else if (auto* combo = dynamic_cast<forms::TComboBox*>(control.get());
                 combo != nullptr && name != "cmbExch" && name != "cmbOrderType" && name != "cmbMType") {
        Choose(*combo);
      }
    }
  }

 private:
  std::uint64_t Below(std::uint64_t bound) { return FRandom() % bound; }

  void Choose(forms::TComboBox& combo) {
    combo.SetIndex(static_cast<std::int32_t>(Below(static_cast<std::uint64_t>(combo.Count()) + 1)) - 1);
  }

  std::string Account() {
    constexpr string_view characters("aZ09,,\"\"==  \t\n\x01\x7F\0;\xC3\xA9'", 21);
    std::string account;
    for (std::uint64_t length = Below(12); length > 0; --length) {
      account += characters[Below(characters.size())];
    }
    return account;
  }

  double Number() {
    switch (Below(8)) {
      case 0:
        return 0;
      case 1:
        return static_cast<double>(Below(2000));
      case 2:
        return static_cast<double>(Below(20000)) / 100 - 100;
      case 3:
        return static_cast<double>(FRandom() >> 11) / 9007199254740992.0 * 1e9;
      case 4:
        return static_cast<double>(FRandom());
      case 5:
        return static_cast<double>(Below(1000)) * 1e-9;
      case 6:
        return std::numeric_limits<double>::denorm_min() * static_cast<double>(Below(100));
      default:
        return std::bit_cast<double>(FRandom());
    }
  }

  text::TDateTime Time() {
    constexpr std::int64_t yearOne = -62135596800;
    constexpr std::uint64_t seconds = 315537897600;
    return text::TDateTime(std::chrono::seconds(yearOne + static_cast<std::int64_t>(Below(seconds))));
  }

  std::mt19937_64 FRandom;
};

// The rules of reading once more, over texts alone.

using TItems = std::map<std::string, std::string, std::less<>>;

bool IsBlank(char character) { return static_cast<unsigned char>(character) <= ' '; }

std::string Trimmed(std::string text) {
  while (!text.empty() && IsBlank(text.back())) text.pop_back();
  while (!text.empty() && IsBlank(text.front())) text.erase(0, 1);
  return text;
}

TItems ReadItems(string_view line) {
  TItems items;
  std::string item;
  bool quoted = false;
  bool wasQuoted = false;
  const auto end = [&] {
    if (!wasQuoted) item = Trimmed(item);
    const std::size_t equals = item.find('=');
    if (equals != std::string::npos) items.emplace(item.substr(0, equals), item.substr(equals + 1));
    item.clear();
    wasQuoted = false;
  };
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool doubled = i + 1 < line.size() && line[i + 1] == '"';
    if (quoted && line[i] == '"' && doubled) {
      item += line[++i];
    } else if (line[i] == '"') {
      quoted = !quoted;
      wasQuoted = true;
    } else if (line[i] == ',' && !quoted) {
      end();
    } else {
      item += line[i];
    }
  }
  end();
  return items;
}

bool IsZero(string_view number) { return number.find_first_of("123456789") == string_view::npos; }

bool IsQuantity(string_view number) {
  constexpr string_view largest = "9223372036854775807";
  if (IsZero(number) || number.find_first_not_of("0123456789") != string_view::npos) return false;
  return number.size() < largest.size() || (number.size() == largest.size() && number <= largest);
}

constexpr auto Keys = std::to_array<string_view>({
    "Account",    "Account-Lock", "Symbol",  "Symbol-Lock",    "Quantity",   "Quantity-Lock", "Price",
    "Price-Lock", "OrderType",    "Type",    "OrderType-Lock", "Exchange",   "Exchange-Lock", "Popup",
    "Clear",      "Style",        "AccuVol", "Opening",        "Closing",    "CloseSim",      "Func",
    "AllInAuc",   "Iceberg",      "Ref",     "Join",           "STime",      "ETime",         "MinQty",
    "ServePct",   "ShowQty",      "Timeout", "TickDiff",       "JoinThr",    "JoinQty",       "RandTimeout",
    "DiffPct",    "MaxShowQty",   "RandPct", "ReloadPct",      "VolPct",     "MaxVolPct",     "MinOrdAmt",
    "WPx",        "ThrPx1",       "ThrPx2",  "ThrVolPct1",     "ThrVolPct2", "Waves",         "OpenPct",
    "ClosePct",   "StopLossPx",   "StopQty",
});

std::string WriteItems(const TItems& items) {
  std::string line;
  const auto write = [&](string_view key) {
    const auto found = items.find(key);
    if (found == items.end()) return;
    const std::string item = std::string(key) + "=" + found->second;
    const bool plain = std::none_of(item.begin(), item.end(), [](char each) {
      return IsBlank(each) || each == '\x7F' || each == ',' || each == '"';
    });
    if (!line.empty()) line += ',';
    if (plain) {
      line += item;
      return;
    }
    line += '"';
    for (const char each : item) line.append(each == '"' ? 2 : 1, each);
    line += '"';
  };
  for (const string_view key : Keys) {
    write(key);
    if (key == "DiffPct") write("JoinQty");
  }
  return line;
}

bool Among(string_view wanted, std::initializer_list<string_view> all) {
  return std::find(all.begin(), all.end(), wanted) != all.end();
}

/// What a new form writes once `first` was read into it. 0005 has a lot of 400 and a price of 60.5; US offers
/// VWAP and TWAP, limit and market orders; HK everything.
std::string AfterReading(const std::string& first) {
  const TItems given = ReadItems(first);
  TItems now = ReadItems(
      "Account=,Account-Lock=0,Symbol=,Symbol-Lock=0,Quantity-Lock=0,Price=0,Price-Lock=0,"
      "OrderType=Res_Algo_OrderType_TVOL,Type=Res_OrderType_Limit,OrderType-Lock=0,Exchange=HK,"
      "Exchange-Lock=0,Popup=1,Clear=0,Style=Res_NA,AccuVol=Res_NA,Opening=Res_NA,Closing=Res_No,"
      "CloseSim=Res_NA,Func=Res_Algo_Func_Config,AllInAuc=Res_NA,Iceberg=Res_NA,Ref=N\\A,Join=Res_NA");
  const auto value = [&given](string_view key) {
    const auto found = given.find(key);
    return found == given.end() ? std::string() : found->second;
  };
  now["Account"] = Trimmed(value("Account"));
  now["Symbol"] = value("Symbol");
  if (now["Symbol"] == "0005") {
    now["Quantity"] = "400";
    now["Price"] = "60.5";
  }
  if (IsQuantity(value("Quantity"))) now["Quantity"] = value("Quantity");
  const auto chooseAlgo = [&now](const std::string& algo) {
    if (now["OrderType"] == algo) return;
    now["OrderType"] = algo;
    now["Closing"] = algo == "Res_Algo_OrderType_VWAP" ? "Res_NA" : "Res_No";
  };
  const bool us = value("Exchange") == "US";
  if (us) {
    now["Exchange"] = "US";
    chooseAlgo("Res_Algo_OrderType_VWAP");
  }
  const std::string algo = value("OrderType");
  const bool algoOffered = !us || Among(algo, {"Res_Algo_OrderType_VWAP", "Res_Algo_OrderType_TWAP"});
  if (!algo.empty() && algoOffered) chooseAlgo(algo);
  const std::string type = value("Type");
  const bool typeOffered = !us || Among(type, {"Res_OrderType_Limit", "Res_OrderType_Market"});
  if (!type.empty() && typeOffered) now["Type"] = type;
  const bool priced = !Among(now["Type"], {"Res_OrderType_Market", "Res_OrderType_StopMarket",
                                           "Res_OrderType_AO", "Res_OrderType_MOO", "Res_OrderType_MOC"});
  if (!priced) now["Price"] = "0";
  if (priced && !IsZero(value("Price"))) now["Price"] = value("Price");
  for (const string_view key : Keys) {
    const bool read = Among(key, {"Account", "Symbol", "Quantity", "Price", "OrderType", "Type", "Exchange"});
    const bool text = key.ends_with("-Lock") ||
                      Among(key, {"Popup", "Clear", "Style", "AccuVol", "Opening", "Closing", "CloseSim",
                                  "Func", "AllInAuc", "Iceberg", "Ref", "Join", "STime", "ETime"});
    const std::string each = value(key);
    if (!read && !each.empty() && (text || !IsZero(each))) now[std::string(key)] = each;
  }
  if (now.contains("MinQty")) now["MinQty"] = now.contains("Quantity") ? now["Quantity"] : "";
  return WriteItems(now);
}

class LayoutRandom : public TTerminalTest {};

TEST_F(LayoutRandom, FormsReadBackAsTheRulesOfReadingSay) {
  TRandomForm random(20240115);
  const auto source = std::make_shared<views::entry::TAlgoOrderEntryFrame>();
  for (std::int32_t i = 0; i < 10000; ++i) {
    random.Fill(*source);
    const std::string first = source->GetLayoutData();
    const auto target = std::make_shared<views::entry::TAlgoOrderEntryFrame>();
    ASSERT_TRUE(target->SetLayoutData(first)) << i;
    ASSERT_EQ(target->GetLayoutData(), AfterReading(first)) << i << "\n" << first;
    target->Detach();
    Forget();
  }
  source->Detach();
}

}  // namespace
}  // namespace algo::tests
