// The provider and its views: what a host calls before and after a view is opened.

#include <array>

#include "plugin/host_contract/orders.h"
#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/lookup.h"

namespace algo::terminal::drive {

namespace {

TAnswerJson MenuLevel(host::TIBaseView& provider, std::int32_t level) {
  return {{"id", provider.GetMenuID(level)},
          {"index", provider.GetMenuIndex(level)},
          {"group", provider.GetMenuGroupIndex(level)},
          {"caption", provider.GetMenuCaption(level)}};
}

void Provider(TSession& session, const TArguments& /*arguments*/, TAnswerJson& answer) {
  // Asked for anew each time: it may go in the middle of an answer.
  const auto provider = [&session]() -> host::TIBaseView& { return session.Provider(); };
  TAnswerJson result;
  CallModule([&] {
    result["name"] = provider().GetName();
    result["view_id"] = provider().GetViewID();
    result["menu_level"] = provider().GetMenuLevel();
    result["menu"] = TAnswerJson::array();
    for (const std::int32_t level : {0, 1, 2}) result["menu"].push_back(MenuLevel(provider(), level));
    result["visible"] = provider().GetIsVisible();
    std::string caption;
    const bool hasCaption = provider().GetDefaultCaption(caption);
    result["default_caption"] = {{"result", hasCaption}, {"caption", caption}};
    // What a view leaves untouched keeps the host's default.
    std::int32_t width = 640;
    std::int32_t height = 480;
    const bool hasSize = provider().GetDefaultSize(width, height);
    result["default_size"] = {{"result", hasSize}, {"width", width}, {"height", height}};
  });
  answer.update(result);
}

void AddSize(host::TViewFrame& frame, TAnswerJson& answer) {
  CallModule([&] {
    answer["width"] = frame.GetWidth();
    answer["height"] = frame.GetHeight();
  });
}

void Open(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto& label = arguments.Text("frame");
  host::TIBaseView& provider = session.Provider();
  if (TFrameLabels::IsReserved(label)) throw ECommandError("no view can be opened under '" + label + "'");
  if (session.Labels().Find(label) || session.Labels().IsTaken(label))
    throw ECommandError("'" + label + "' is open already");
  const TFrameLabels::TNewFrameLabels making(session.Labels(), label, {});
  const auto handle = CallModule([&] { return provider.OpenNewInstance(); });
  const auto frame = session.Provider().FindView(handle);
  if (!frame) throw ECommandError("the view could not be opened");
  session.Labels().Assign(frame, label);
  AddSize(*frame, answer);
}

void Close(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = OpenedFrameOf(session, arguments);
  // The label goes first: events still carry it, but for scripts the instance is gone.
  session.Labels().Forget(arguments.Text("frame"));
  session.CloseView(frame);
}

void Language(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = OpenedFrameOf(session, arguments);
  const auto language = arguments.Integer("language");
  answer["result"] =
      CallModule([&] { return session.Provider().SetLanguage(host::HandleOf(*frame), language); });
}

void Skin(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto frame = OpenedFrameOf(session, arguments);
  const auto& name = arguments.Text("name");
  CallModule([&] { session.Provider().SetSkin(host::HandleOf(*frame), name); });
}

void Group(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = FrameOf(session, arguments);
  const auto& id = arguments.Text("id");
  answer["result"] = CallModule([&] { return frame->SetGroupID(id); });
  answer["group"] = CallModule([&] { return frame->GetGroupID(); });
}

void Layout(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = OpenedFrameOf(session, arguments);
  const auto handle = host::HandleOf(*frame);
  if (!arguments.Has("text")) {
    answer["text"] = CallModule([&] { return session.Provider().GetLayoutData(handle); });
    return;
  }
  const auto& text = arguments.Text("text");
  answer["result"] = CallModule([&] { return session.Provider().SetLayoutData(handle, text); });
}

void Size(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  AddSize(*FrameOf(session, arguments), answer);
}

void Compose(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto frame = OpenedFrameOf(session, arguments);
  // The host's own order, for which it asks no service.
  host::TCustomClientOrder order;
  CallModule([&] { session.Module().Entry().setOrderAlgo(*frame, order); });
  answer["text"] = order.TextProperty(host::AlgoTextProperty);
}

constexpr std::array Commands{
    TCommand{"provider", Provider}, TCommand{"open", Open}, TCommand{"close", Close},
    TCommand{"language", Language}, TCommand{"skin", Skin}, TCommand{"group", Group},
    TCommand{"layout", Layout},     TCommand{"size", Size}, TCommand{"compose", Compose},
};

}  // namespace

std::span<const TCommand> ViewCommands() { return Commands; }

}  // namespace algo::terminal::drive
