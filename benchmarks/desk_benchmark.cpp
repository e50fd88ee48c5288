// The desktop's forms: how fast one opens, repaints after a change of algorithm, and takes keys while the
// market runs. Each figure stands beside Qt's own QUiLoader opening a form with the same controls in the same
// run.
//
//   desk_benchmark [Google Benchmark's options]
//   desk_benchmark --open form|ui      opens one form, types into it and ends: what BM_ProcessStart… measure

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QBuffer>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <QUiLoader>
#include <QVBoxLayout>
#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <vector>

#include "forms/choices.h"
#include "terminal/drive/module_library.h"
#include "terminal/drive/session.h"
#include "terminal/render/frame_view.h"
#include "terminal/render/qt_text.h"
#include "terminal/render/qt_toolkit.h"

namespace {

using algo::terminal::render::TFrameView;
using algo::terminal::render::ToQt;

/// A terminal with the module, every algorithm on offer, and one symbol.
class TTerminal {
 public:
  TTerminal() {
    Do(R"({"do":"host","accounts":["A1"],"instruments":{"0005":{"lot":"400"}},
           "lists":{"ALGO/Exchange":["HK"],"ALGO/ALGOType/HK":["TVOL","TVOL Threshold","TWAP","VWAP","CLOSE","OPEN",
           "ICEBERG","STOP","PEG","MOC","SNIPER","SHORT SELL"],"ALGO/OrderType/HK":["LO"]}})");
    Do(R"({"do":"load"})");
  }

  void Do(const char* command) { FSession.Execute(algo::terminal::drive::TCommandJson::parse(command)); }

  std::shared_ptr<algo::forms::TFrame> Open(const std::string& label) {
    FSession.Execute({{"do", "open"}, {"frame", label}});
    return FSession.Labels().Find(label);
  }

  void Close(const std::string& label) { FSession.Execute({{"do", "close"}, {"frame", label}}); }

  algo::terminal::TMemoryHost& Host() { return FSession.Host(); }

 private:
  algo::terminal::drive::TInputPlayer FTrader;
  algo::terminal::drive::TSession FSession{algo::terminal::drive::ModuleBesideProgram(), FTrader};
};

/// A window with one form of the module.
struct TFormWindow {
  explicit TFormWindow(const std::shared_ptr<algo::forms::TFrame>& frame) : view(frame, assist, &window) {
    auto* column = new QVBoxLayout(&window);
    column->addWidget(&view);
  }

  QWidget& Input(const char* control) const {
    return view.Find(*view.Frame()->FindControl(control))->Input();
  }

  algo::terminal::render::TEditorAssist assist;
  QWidget window;
  TFrameView view;
};

/// The description of a form with the same controls, each with a caption beside it, as Qt's designer would
/// write it.
QByteArray UiOf(const algo::forms::TFrame& frame) {
  constexpr std::array Classes{"QLineEdit",     "QDoubleSpinBox", "QComboBox",
                               "QDateTimeEdit", "QCheckBox",      "QPushButton"};
  QByteArray ui =
      "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"form\"><layout class=\"QGridLayout\">";
  int row = 0;
  for (const auto& control : frame.Controls()) {
    const char* kind = Classes[static_cast<std::size_t>(control->Kind())];
    const QByteArray name = QByteArray::fromStdString(control->Name());
    const QByteArray place = "\" column=\"" + QByteArray::number(row % 3 * 2) + "\">";
    const QByteArray beside = "\" column=\"" + QByteArray::number(row % 3 * 2 + 1) + "\">";
    const QByteArray at = "<item row=\"" + QByteArray::number(row / 3);
    ui += at + place + "<widget class=\"QLabel\" name=\"label_" + name +
          "\"><property name=\"text\"><string>" + name + "</string></property></widget></item>";
    ui += at + beside + "<widget class=\"" + kind + "\" name=\"" + name + "\">";
    if (const auto* combo = dynamic_cast<const algo::forms::TComboBox*>(control.get())) {
      for (const std::string& item : combo->Items()) {
        ui += "<item><property name=\"text\"><string>" + ToQt(item).toHtmlEscaped().toUtf8() +
              "</string></property></item>";
      }
    }
    ui += "</widget></item>";
    ++row;
  }
  return ui + "</layout></widget></ui>";
}

/// Shows the window and types into the field until the key is to be seen.
void TakeKey(QWidget& window, QWidget& field) {
  window.show();
  (void)QTest::qWaitForWindowActive(&window);
  field.setFocus(Qt::TabFocusReason);
  QTest::keyClicks(&field, "A");
  QApplication::processEvents();
}

std::unique_ptr<QWidget> LoadUi(const QByteArray& ui) {
  QBuffer buffer;
  buffer.setData(ui);
  buffer.open(QIODevice::ReadOnly);
  return std::unique_ptr<QWidget>(QUiLoader().load(&buffer));
}

void OpenForm(TTerminal& terminal) {
  const TFormWindow form(terminal.Open("e1"));
  TakeKey(const_cast<QWidget&>(form.window), form.Input("edtAccount"));
  terminal.Close("e1");
}

void OpenUi(const QByteArray& ui) {
  const auto window = LoadUi(ui);
  TakeKey(*window, *window->findChild<QWidget*>("edtAccount"));
}

void BM_OpenForm(benchmark::State& state) {
  TTerminal terminal;
  for (auto _ : state) OpenForm(terminal);
}
BENCHMARK(BM_OpenForm)->Unit(benchmark::kMillisecond);

void BM_OpenUiLoader(benchmark::State& state) {
  TTerminal terminal;
  const QByteArray ui = UiOf(*terminal.Open("e1"));
  for (auto _ : state) OpenUi(ui);
}
BENCHMARK(BM_OpenUiLoader)->Unit(benchmark::kMillisecond);

void ProcessStart(benchmark::State& state, const char* what) {
  for (auto _ : state) {
    if (QProcess::execute(QCoreApplication::applicationFilePath(), {"--open", what}) != 0) {
      state.SkipWithError("the program did not open its form");
    }
  }
}
void BM_ProcessStartForm(benchmark::State& state) { ProcessStart(state, "form"); }
void BM_ProcessStartUiLoader(benchmark::State& state) { ProcessStart(state, "ui"); }
BENCHMARK(BM_ProcessStartForm)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_ProcessStartUiLoader)->Unit(benchmark::kMillisecond)->UseRealTime();

void BM_AlgorithmChange(benchmark::State& state) {
  TTerminal terminal;
  TFormWindow form(terminal.Open("e1"));
  TakeKey(form.window, form.Input("edtAccount"));
  auto& kinds = static_cast<algo::forms::TComboBox&>(*form.view.Frame()->FindControl("cmbOrderType"));
  std::int32_t next = 0;
  for (auto _ : state) {
    next = (next + 1) % kinds.Count();
    form.view.Frame()->InputPick(kinds, next);
    QApplication::processEvents();
  }
}
BENCHMARK(BM_AlgorithmChange)->Unit(benchmark::kMillisecond);

/// Notes when a widget was painted.
class TPainted final : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted = true;
    return false;
  }
  bool painted = false;
};

/// Keys typed into one of 50 views while 1,000 market updates a second come in; the time until each key
/// shows.
void BM_KeyAmongMarketUpdates(benchmark::State& state) {
  constexpr int Views = 50;
  constexpr int UpdatesPerBeat = 5;  // of 5 ms: 1,000 a second
  constexpr int BeatMilliseconds = 5;
  constexpr double PercentileShare = 0.99;
  constexpr double NanosecondsPerMillisecond = 1e6;

  TTerminal terminal;
  std::vector<std::unique_ptr<TFormWindow>> forms;
  for (int i = 0; i < Views; ++i) {
    const auto frame = terminal.Open("e" + std::to_string(i));
    forms.push_back(std::make_unique<TFormWindow>(frame));
    forms.back()->window.show();
    frame->InputText(*frame->FindControl("edtSymbol"), "0005");
    frame->InputLeave();
  }
  TFormWindow& typed = *forms.back();
  TakeKey(typed.window, typed.Input("edtAccount"));

  double price = 60;
  std::int64_t updates = 0;
  QTimer beat;
  QObject::connect(&beat, &QTimer::timeout, &beat, [&] {
    for (int i = 0; i < UpdatesPerBeat; ++i) {
      price += price < 70 ? 0.1 : -10;
      terminal.Host().SetMarket("0005", 1, {{3, std::to_string(price)}}, algo::terminal::TMarketNotice::Item);
      ++updates;
    }
  });
  beat.start(BeatMilliseconds);

  QWidget& field = typed.Input("edtAccount");
  TPainted painted;
  field.installEventFilter(&painted);
  std::vector<double> milliseconds;
  QElapsedTimer whole;
  whole.start();
  for (auto _ : state) {
    QElapsedTimer clock;
    clock.start();
    painted.painted = false;
    QApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, "B"));
    while (!painted.painted) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    milliseconds.push_back(static_cast<double>(clock.nsecsElapsed()) / NanosecondsPerMillisecond);
    QTest::qWait(BeatMilliseconds);
  }
  std::sort(milliseconds.begin(), milliseconds.end());
  const auto place = static_cast<std::size_t>(static_cast<double>(milliseconds.size() - 1) * PercentileShare);
  state.counters["p99_ms"] = milliseconds[place];
  state.counters["updates_per_s"] =
      static_cast<double>(updates) / (static_cast<double>(whole.elapsed()) / 1000);
  if (milliseconds[place] > 50)
    state.SkipWithError("a key took longer than 50 ms to show, at the 99th percentile");
}
BENCHMARK(BM_KeyAmongMarketUpdates)->Iterations(500)->UseRealTime()->Unit(benchmark::kMillisecond);

int OpenOne(const char* what) {
  if (std::strcmp(what, "form") == 0) {
    TTerminal terminal;
    OpenForm(terminal);
    return 0;
  }
  // The description lies ready, as it would in a file.
  static const QByteArray ui = [] {
    QFile file(QCoreApplication::applicationDirPath() + "/desk_benchmark.ui");
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }();
  if (ui.isEmpty()) return 1;
  OpenUi(ui);
  return 0;
}

void WriteUi() {
  TTerminal terminal;
  QFile file(QCoreApplication::applicationDirPath() + "/desk_benchmark.ui");
  if (file.open(QIODevice::WriteOnly)) file.write(UiOf(*terminal.Open("e1")));
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const algo::terminal::render::TQtToolkit toolkit;
  algo::forms::TToolkit::Install(&toolkit);
  int status = 0;
  if (argc == 3 && std::strcmp(argv[1], "--open") == 0) {
    status = OpenOne(argv[2]);
  } else {
    WriteUi();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
    benchmark::RunSpecifiedBenchmarks();
  }
  algo::forms::TToolkit::Install(nullptr);
  return status;
}
