#include "views/boundary/boundary.h"

#include <exception>
#include <string>

#include "plugin/host_contract/message_box.h"

namespace algo::views {

void ShowMessage(const std::string& text) {
  const TNestedLoopScope messageBox;
  host::TCustomMessageBoxCtrl::GetInstance().ShowText(text);
}

void ReportCurrentError() noexcept {
  try {
    try {
      throw;
    } catch (const std::exception& error) {
      ShowMessage(error.what());
    } catch (...) {
      ShowMessage("Unknown error");
    }
  } catch (...) {  // NOLINT(bugprone-empty-catch): the message box is the last resort
  }
}

}  // namespace algo::views
