#include "terminal/report/run_report.h"

#include <array>
#include <ostream>
#include <string>

#include "terminal/report/answer_text.h"
#include "text/text.h"

namespace algo::terminal::report {

namespace {

using nlohmann::json;

struct TOrderLine {
  std::string_view member;
  std::string_view title;
  TWriting writing;
};

constexpr std::array OrderLines{
    TOrderLine{"key", "key", TWriting::Plain},
    TOrderLine{"order_no", "order number", TWriting::Plain},
    TOrderLine{"parent_no", "parent order", TWriting::Plain},
    TOrderLine{"account", "account", TWriting::Plain},
    TOrderLine{"symbol", "symbol", TWriting::Plain},
    TOrderLine{"exchange", "exchange", TWriting::Plain},
    TOrderLine{"side", "side", TWriting::Side},
    TOrderLine{"quantity", "quantity", TWriting::Quantity},
    TOrderLine{"filled", "filled", TWriting::Quantity},
    TOrderLine{"committed", "committed", TWriting::Quantity},
    TOrderLine{"price", "price", TWriting::Quantity},
    TOrderLine{"stop_price", "stop price", TWriting::Quantity},
    TOrderLine{"type_flags", "type flags", TWriting::Flags},
    TOrderLine{"auction_flags", "auction flags", TWriting::Flags},
    TOrderLine{"algo_flags", "algo flags", TWriting::Flags},
    TOrderLine{"flags", "order marks", TWriting::Flags},
    TOrderLine{"original", "entered in", TWriting::Plain},
    TOrderLine{"user", "user", TWriting::Plain},
    TOrderLine{"algo_text", "parameter text", TWriting::Plain},
};

std::string ActionName(const json& event) {
  const std::string action = MemberText(event, "action");
  if (action == "1") return "new order";
  if (action == "2") return "change of an order";
  if (action == "42") return "work order";
  return "action " + action;
}

constexpr std::size_t TitleWidth = 16;

void WriteLine(std::ostream& out, std::string_view indent, std::string_view title, std::string_view value) {
  out << indent << title << std::string(title.size() < TitleWidth ? TitleWidth - title.size() : 1, ' ')
      << value << '\n';
}

/// Writes the parameters one by one: the pairs of key and value between the prefix and the semicolon.
void WriteParameters(std::ostream& out, std::string_view text) {
  text = text.substr(0, text.find(';'));
  if (const auto prefix = text.find(':'); prefix < text.find('=')) text.remove_prefix(prefix + 1);
  text::ForEachPiece(text, ',', [&out](std::string_view piece) {
    const auto sign = piece.find('=');
    if (sign != std::string_view::npos) WriteLine(out, "    ", piece.substr(0, sign), piece.substr(sign + 1));
  });
}

/// Events that are reported in one line; orders are reported field by field.
struct TEventLine {
  std::string_view event;
  void (*write)(std::ostream& out, const json& event);
};

constexpr std::array EventLines{
    TEventLine{"message", [](std::ostream& out,
                             const json& event) { out << "Message: " << MemberText(event, "text") << '\n'; }},
    TEventLine{"error_code",
               [](std::ostream& out, const json& event) {
                 out << "Message: error " << MemberText(event, "code") << '\n';
               }},
    TEventLine{"store",
               [](std::ostream& out, const json& event) {
                 out << "Setting: " << MemberText(event, "section") << '/' << MemberText(event, "key")
                     << " is now " << MemberText(event, "value") << '\n';
               }},
    TEventLine{"show",
               [](std::ostream& out, const json& event) {
                 out << "Form: " << MemberText(event, "caption") << " was opened\n";
               }},
    TEventLine{"close_form",
               [](std::ostream& out, const json& event) {
                 out << "Form: " << MemberText(event, "frame") << " was closed\n";
               }},
};

}  // namespace

void TRunReport::AddLine(std::string_view line) {
  if (text::Trim(line).empty()) return;
  ++FLines;
  const json answer = json::parse(line, nullptr, false);
  if (answer.is_object()) {
    AddAnswer(answer);
  } else {
    ++FRefused;
    FOut << "Line " << FLines << " is not an answer\n";
  }
}

void TRunReport::AddAnswer(const json& answer) {
  // A script may use a text as the id of a command, as a heading.
  const auto id = answer.find("id");
  if (id != answer.end() && id->is_string()) FOut << '\n' << id->get_ref<const std::string&>() << '\n';
  // A dialog closes before the command that opened it goes on and finishes the order.
  for (const auto& dialog : MemberList(answer, "modal")) {
    for (const auto& inner : MemberList(dialog, "answers")) AddAnswer(inner);
    const std::string result = MemberText(dialog, "result");
    FOut << "Dialog: " << MemberText(dialog, "caption")
         << (result == "1" ? " was confirmed\n" : " was dismissed\n");
  }
  for (const auto& call : MemberList(answer, "inside")) {
    for (const auto& inner : MemberList(call, "answers")) AddAnswer(inner);
  }
  for (const auto& event : MemberList(answer, "events")) AddEvent(event);
  if (answer.contains("quantity")) {
    const std::string available = MemberText(answer, "quantity", TWriting::Quantity);
    FOut << "Available: " << (available.empty() ? "nothing" : available) << '\n';
  }
  if (const std::string text = MemberText(answer, "text"); !text.empty()) FOut << "Text: " << text << '\n';
  if (MemberFlag(answer, "ok")) return;
  ++FRefused;
  FOut << "Refused: line " << FLines << ": " << MemberText(answer, "error") << '\n';
}

void TRunReport::AddEvent(const json& event) {
  const std::string name = MemberText(event, "event");
  if (name == "take_action") AddOrder(event);
  for (const auto& line : EventLines) {
    if (line.event == name) line.write(FOut, event);
  }
}

void TRunReport::AddOrder(const json& event) {
  const auto found = event.find("order");
  if (found == event.end() || !found->is_object()) return;
  const json& order = *found;
  FOut << "Order " << ++FOrders << ": " << ActionName(event) << ", "
       << (MemberFlag(event, "answer") ? "accepted" : "not accepted") << '\n';
  for (const auto& line : OrderLines) {
    const std::string value = MemberText(order, line.member, line.writing);
    if (!value.empty()) WriteLine(FOut, "  ", line.title, value);
  }
  WriteParameters(FOut, MemberText(order, "algo_text"));
}

void TRunReport::Finish() {
  FOut << "In all: " << FOrders << (FOrders == 1 ? " order, " : " orders, ") << FLines
       << (FLines == 1 ? " answer, " : " answers, ") << FRefused << " refused\n";
}

}  // namespace algo::terminal::report
