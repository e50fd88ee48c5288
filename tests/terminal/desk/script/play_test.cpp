// The trading day, played by the desktop at its own windows.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <string>
#include <vector>

#include "terminal/desk/session/desk_arguments.h"
#include "terminal/storage/sqlite_storage.h"

namespace algo::terminal::desk::tests {
namespace {

struct TPlayed {
  int status = -1;
  QByteArray log;
  QByteArray errors;
};

struct TScriptTest : testing::Test {
  TPlayed Play(const QString& script) {
    QProcess desk;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    desk.setProcessEnvironment(environment);
    desk.start(QCoreApplication::applicationDirPath() + "/algo-desk-script",
               {"--data", data.path(), "--play", script, "--screens", screens.path()});
    constexpr int Milliseconds = 60000;
    EXPECT_TRUE(desk.waitForFinished(Milliseconds));
    return {desk.exitCode(), desk.readAllStandardOutput(), desk.readAllStandardError()};
  }

  static QString Day() {
    return QDir(QString::fromStdString(MarketBesideProgram())).filePath("../trading-day.jsonl");
  }

  QTemporaryDir data;
  QTemporaryDir screens;
};

struct TExpected {
  const char* key;
  const char* parent;
  const char* account;
  const char* symbol;
  std::int32_t side;
  double quantity;
  double price;
  std::uint32_t flags;
  const char* parameters;
};

TEST_F(TScriptTest, LeavesTheOrdersOfTheDayOnRecord) {
  const TPlayed played = Play(Day());
  ASSERT_EQ(played.status, 0) << played.errors.toStdString();
  const std::vector<TExpected> expected{
      {"N1", "", "A-1001", "0005", 0, 20000, 60.5, 0,
       "TMLO:AlgoId=TVOL,STime=20261120-09:35:00,ETime=20261120-15:55:00,VolPct=35,Closing=0;"},
      {"N2", "", "A-1001", "0700", 1, 2500, 320.4, 0,
       "TMLO:AlgoId=ICEBERG,Closing=0,Func=0,ShowQty=200,Style=1;"},
      {"N3", "", "A-1002", "0005", 0, 16000, 60.5, 0,
       "TMLO:AlgoId=TVOL,STime=20261120-09:35:00,ETime=20261120-15:55:00,VolPct=20,Closing=0;"},
      {"N4", "", "A-1001", "0005", 0, 10000, 60.4, 0x10000001, ""},
      {"N5", "N4", "A-1001", "0005", 0, 6000, 60.4, 0x20000000, "TMLO:AlgoId=VWAP,MaxVolPct=30;"},
      {"N6", "N4", "A-1001", "0005", 0, 4000, 60.4, 0x20000000, "TMLO:AlgoId=TWAP,Closing=0;"},
      {"N7", "", "A-1001", "0005", 1, 10000, 60.4, 0, "TMLO:AlgoId=VWAP,MaxVolPct=25;"}};

  THostData hostData;
  TOrderStore orders;
  storage::TSqliteStorage(data.filePath("algo-desk.db").toStdString()).LoadInto(hostData, orders);
  ASSERT_EQ(orders.All().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    const host::TCustomClientOrder& order = *orders.All()[i];
    SCOPED_TRACE(expected[i].key);
    EXPECT_EQ(order.key, expected[i].key);
    EXPECT_EQ(order.parentNo, expected[i].parent);
    EXPECT_EQ(order.account, expected[i].account);
    EXPECT_EQ(order.symbol, expected[i].symbol);
    EXPECT_EQ(order.side, expected[i].side);
    EXPECT_EQ(order.quantity, expected[i].quantity);
    EXPECT_EQ(order.price, expected[i].price);
    EXPECT_EQ(order.flags, expected[i].flags);
    EXPECT_EQ(order.TextProperty(440), expected[i].parameters);
    EXPECT_EQ(order.NamedText("Original"), "AlgoEntry");
  }
}

TEST_F(TScriptTest, NamesItsStepsAndLeavesAPictureOfEach) {
  const TPlayed played = Play(Day());
  ASSERT_EQ(played.status, 0) << played.errors.toStdString();
  EXPECT_TRUE(played.log.startsWith("08:30  The desk opens\n")) << played.log.toStdString();
  EXPECT_TRUE(played.log.endsWith("16:00  The desk closes\n")) << played.log.toStdString();
  const QStringList pictures = QDir(screens.path()).entryList({"*.png"}, QDir::Files, QDir::Name);
  ASSERT_EQ(pictures.size(), 23);
  EXPECT_EQ(pictures.front(), "01-08-30-the-desk-opens.png");
  EXPECT_EQ(pictures.at(1), "02-09-30-a-target-volume-order-entered-and-confirmed-dialog.png");
  for (const QString& picture : pictures)
    EXPECT_EQ(QImage(screens.filePath(picture)).width(), 1280) << picture.toStdString();
}

TEST_F(TScriptTest, ACommandThatCannotBePlayedEndsTheScriptWithItsPlace) {
  QFile script(data.filePath("script.jsonl"));
  ASSERT_TRUE(script.open(QIODevice::WriteOnly));
  script.write(
      "{\"do\":\"load\"}\n\n{\"do\":\"open\",\"frame\":\"e1\"}\n"
      "{\"do\":\"type\",\"frame\":\"e1\",\"control\":\"edtShowQty\",\"text\":\"5\"}\n");
  script.close();
  const TPlayed played = Play(script.fileName());
  EXPECT_EQ(played.status, 1);
  EXPECT_TRUE(played.errors.contains("script.jsonl:4: edtShowQty is not showing"))
      << played.errors.toStdString();
}

TEST_F(TScriptTest, AScriptThatIsNotThereIsReported) {
  const TPlayed played = Play("/nowhere/day.jsonl");
  EXPECT_EQ(played.status, 1);
  EXPECT_TRUE(played.errors.contains("'/nowhere/day.jsonl' cannot be read")) << played.errors.toStdString();
}

}  // namespace
}  // namespace algo::terminal::desk::tests
