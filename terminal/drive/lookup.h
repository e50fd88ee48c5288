#pragma once

// Looks up the frames, controls and orders that commands name. Each function throws ECommandError if there is
// no such thing.

#include <memory>
#include <string>

#include "terminal/drive/arguments.h"
#include "terminal/drive/session.h"

namespace algo::terminal::drive {

using TFramePointer = std::shared_ptr<host::TViewFrame>;

/// The frame that the argument `frame` names.
TFramePointer FrameOf(TSession& session, const TArguments& arguments);

/// The same, provided that it is the frame of a view that a command opened.
TFramePointer OpenedFrameOf(TSession& session, const TArguments& arguments);

/// The control that the argument `control` names.
forms::TControl& ControlOf(const forms::TFrame& frame, const TArguments& arguments);

/// The stored order with the key; nullptr for the argument null.
host::TCustomClientOrder* StoredOrderOf(TSession& session, const TArguments& arguments);

}  // namespace algo::terminal::drive
