#pragma once

// A desktop on an empty data folder, and what a trader does and sees there.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "terminal/desk/session/desk_arguments.h"
#include "terminal/desk/window/main_window.h"
#include "terminal/drive/module_library.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::tests {

struct TDeskTest : testing::Test {
  TDeskTest() {
    options.dataFolder = folder.path().toStdString();
    options.marketFolder = MarketBesideProgram();
    options.moduleFile = drive::ModuleBesideProgram();
  }
  ~TDeskTest() override { Close(); }

  /// Starts the desktop as the program does, but for the clock.
  void Open() {
    desk = std::make_unique<TDesk>(options);
    window = std::make_unique<window::TMainWindow>(*desk);
    window->RestoreWorkspace(options);
    window->show();
    QApplication::processEvents();
  }

  void Close() {
    if (window) window->close();
    QApplication::processEvents();
    window.reset();
    desk.reset();
  }

  /// The widget of that name below the window, which must be there.
  template <class TWidget = QWidget>
  TWidget& The(const QString& name, QObject* below = nullptr) {
    auto* found = (below != nullptr ? below : window.get())->findChild<TWidget*>(name);
    if (found == nullptr) throw EError("there is no " + name.toStdString());
    return *found;
  }

  frames::TEntryPanel& Entry(const QString& name = "entry1") { return The<frames::TEntryPanel>(name); }

  const std::vector<std::unique_ptr<host::TCustomClientOrder>>& Orders() {
    return desk->Host().Orders().All();
  }

  /// The frame that stands in the dialog.
  render::TFrameView& FrameIn(QWidget& dialog) { return The<render::TFrameView>("frame", &dialog); }

  /// The widget that takes the input of a control of the frame.
  static QWidget& Input(render::TFrameView& view, const char* control) {
    return view.Find(*view.Frame()->FindControl(control))->Input();
  }
  static std::string Text(render::TFrameView& view, const char* control) {
    return view.Frame()->FindControl(control)->Text();
  }

  static void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

  /// Types into a field of the frame and leaves it by Tab.
  static void Type(render::TFrameView& view, const char* control, const char* text) {
    QWidget& input = Input(view, control);
    Click(input);
    QTest::keyClick(&input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&input, text);
    QTest::keyClick(&input, Qt::Key_Tab);
    QApplication::processEvents();
  }

  /// Fills the entry view with an order to buy 0005 by TVOL.
  void FillEntry(render::TFrameView& view, const char* quantity = "400") {
    Type(view, "edtAccount", "SAMPLE-01");
    Type(view, "edtSymbol", symbol);
    Type(view, "edtQty", quantity);
    Type(view, "edtVolPct", "20");
    Click(Input(view, "btnBuy"));
  }

  /// Chooses an entry of the menus.
  void Choose(const QString& action) {
    The<QAction>(action).trigger();
    QApplication::processEvents();
  }

  /// Runs `action` as soon as a modal window shows.
  static void WhenModal(std::function<void(QWidget&)> action) {
    QTimer::singleShot(10, qApp, [action] {
      if (QWidget* modal = QApplication::activeModalWidget()) return action(*modal);
      WhenModal(action);
    });
  }

  QTemporaryDir folder;
  TDeskOptions options;
  std::unique_ptr<TDesk> desk;
  std::unique_ptr<window::TMainWindow> window;
  const char* symbol = "0005";
};

}  // namespace algo::terminal::desk::tests
