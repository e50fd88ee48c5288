#include "terminal/drive/lookup.h"

namespace algo::terminal::drive {

TFramePointer FrameOf(TSession& session, const TArguments& arguments) {
  const auto& label = arguments.Text("frame");
  auto frame = session.Labels().Find(label);
  if (!frame) throw ECommandError("there is no frame '" + label + "'");
  return frame;
}

TFramePointer OpenedFrameOf(TSession& session, const TArguments& arguments) {
  auto frame = FrameOf(session, arguments);
  const auto& label = arguments.Text("frame");
  if (TFrameLabels::IsReserved(label)) throw ECommandError("'" + label + "' is not a view that was opened");
  return frame;
}

forms::TControl& ControlOf(const forms::TFrame& frame, const TArguments& arguments) {
  const auto& name = arguments.Text("control");
  forms::TControl* control = frame.FindControl(name);
  if (control == nullptr) throw ECommandError("there is no control '" + name + "'");
  return *control;
}

host::TCustomClientOrder* StoredOrderOf(TSession& session, const TArguments& arguments) {
  const auto& value = arguments.Required("order");
  if (value.is_null()) return nullptr;
  const auto& key = AsText("order", value);
  host::TCustomClientOrder* order = session.Host().Orders().Find(key);
  if (order == nullptr) throw ECommandError("there is no order '" + key + "'");
  return order;
}

}  // namespace algo::terminal::drive
