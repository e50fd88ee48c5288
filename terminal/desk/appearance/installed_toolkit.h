#pragma once

// The form model's text sizes, measured as the desktop draws them.

#include "forms/toolkit.h"
#include "terminal/render/qt_toolkit.h"

namespace algo::terminal::desk::appearance {

/// Installed as long as it lives, beside an application object.
class TInstalledToolkit {
 public:
  TInstalledToolkit() { forms::TToolkit::Install(&FToolkit); }
  ~TInstalledToolkit() { forms::TToolkit::Install(nullptr); }
  TInstalledToolkit(const TInstalledToolkit&) = delete;
  TInstalledToolkit& operator=(const TInstalledToolkit&) = delete;

 private:
  render::TQtToolkit FToolkit;
};

}  // namespace algo::terminal::desk::appearance
