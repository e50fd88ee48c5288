#pragma once

// A desktop on an empty data folder, with what a trader's hands and eyes do there.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <memory>
#include <string>

#include "terminal/desk/desk_arguments.h"
#include "terminal/desk/main_window.h"
#include "terminal/drive/module_library.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::tests {

struct TDeskTest : testing::Test {
  TDeskTest() {
    options.dataFolder = folder.path().toStdString();
    options.marketFolder = MarketBesideProgram();
    options.moduleFile = ModuleBesideProgram();
  }
  ~TDeskTest() override { Close(); }

  /// Starts the desktop as the program does, but for the clock.
  void Open() {
    desk = std::make_unique<TDesk>(options);
    window = std::make_unique<TMainWindow>(*desk);
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

  TEntryPanel& Entry(const QString& name = "entry1") { return The<TEntryPanel>(name); }

  /// The widget that takes the input of a control of the frame.
  static QWidget& Input(TFrameView& view, const char* control) {
    return view.Find(*view.Frame()->FindControl(control))->Input();
  }
  static std::string Text(TFrameView& view, const char* control) {
    return view.Frame()->FindControl(control)->Text();
  }

  static void Click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

  /// Types into a field of the frame and leaves it by Tab.
  static void Type(TFrameView& view, const char* control, const char* text) {
    QWidget& input = Input(view, control);
    Click(input);
    QTest::keyClick(&input, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&input, text);
    QTest::keyClick(&input, Qt::Key_Tab);
    QApplication::processEvents();
  }

  /// Fills the first entry with an order to buy 400 of 0005 by TVOL, and submits it unless told otherwise.
  void FillEntry(TFrameView& view, const char* quantity = "400") {
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

  /// Runs `deed` as soon as a modal window shows.
  static void WhenModal(std::function<void(QWidget&)> deed) {
    QTimer::singleShot(10, qApp, [deed] {
      if (QWidget* modal = QApplication::activeModalWidget()) return deed(*modal);
      WhenModal(deed);
    });
  }

  QTemporaryDir folder;
  TDeskOptions options;
  std::unique_ptr<TDesk> desk;
  std::unique_ptr<TMainWindow> window;
  const char* symbol = "0005";
};

}  // namespace algo::terminal::tests
