#pragma once

// Where the outside calls in. Behind a boundary errors are exceptions that run up through ordinary RAII; at
// the boundary everything is caught, reported to the trader once, and answered with the operation's failing
// answer. What a control's handler sets off while such a call runs belongs to that call: only the outermost
// boundary catches. A loop in which the host plays the trader's input (a modal dialog, a message box) starts
// afresh, because what happens in it is not the caller's doing.

#include <string>
#include <utility>

namespace algo::views {

/// One call from outside, for the life of the object.
class TBoundary {
 public:
  TBoundary() { ++depth; }
  ~TBoundary() { --depth; }
  TBoundary(const TBoundary&) = delete;
  TBoundary& operator=(const TBoundary&) = delete;

  bool Outermost() const { return depth == 1; }

 private:
  friend class TNestedLoopScope;

  // Everything runs on the user-interface thread.
  static inline int depth = 0;
};

/// Marks, for the life of the object, that the host is in a loop of its own: calls that come in are outermost
/// again.
class TNestedLoopScope {
 public:
  TNestedLoopScope() : FOuter(std::exchange(TBoundary::depth, 0)) {}
  ~TNestedLoopScope() { TBoundary::depth = FOuter; }
  TNestedLoopScope(const TNestedLoopScope&) = delete;
  TNestedLoopScope& operator=(const TNestedLoopScope&) = delete;

 private:
  int FOuter;
};

/// Shows the text of the exception in flight through the host's text message; a failure of the
/// message itself is dropped.
void ReportCurrentError() noexcept;

/// Shows a text to the trader through the host's message box.
void ShowMessage(const std::string& text);

/// Runs `body` as a call from outside and returns what it returns. An error at the outermost boundary is
/// reported and `failed` returned; inside another call the error runs on to that call's boundary.
template <class TBody, class TResult>
TResult AtBoundary(TResult failed, TBody&& body) {
  const TBoundary boundary;
  if (!boundary.Outermost()) return std::forward<TBody>(body)();
  try {
    return std::forward<TBody>(body)();
  } catch (...) {
    ReportCurrentError();
    return failed;
  }
}

/// The same for operations without an answer.
template <class TBody>
void AtBoundary(TBody&& body) {
  AtBoundary(false, [&body] {
    std::forward<TBody>(body)();
    return true;
  });
}

/// For what the host alone calls, which it may do in the middle of a call of ours: an error ends at this call
/// and does not run on through the host's own code.
template <class... TArguments>
decltype(auto) AtHostBoundary(TArguments&&... arguments) {
  const TNestedLoopScope ownCall;
  return AtBoundary(std::forward<TArguments>(arguments)...);
}

}  // namespace algo::views
