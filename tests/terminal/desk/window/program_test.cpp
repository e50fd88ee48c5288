// The program as it is started: what it does with its arguments, and what it says of those it cannot use.

#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/prctl.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <functional>
#include <memory>

#include "terminal/desk/session/desk_arguments.h"
#include "terminal/storage/sqlite_storage.h"

namespace algo::terminal::desk::tests {
namespace {

struct TOutcome {
  int status = -1;
  std::string output;
  std::string errors;
};

struct TProgramTest : testing::Test {
  /// Runs the program to its end.
  TOutcome Run(const QStringList& arguments) {
    const auto program = Start(QStringList{"--data", Path("data")} + arguments);
    TOutcome outcome;
    constexpr int LongEnough = 20000;
    if (program->waitForFinished(LongEnough) && program->exitStatus() == QProcess::NormalExit) {
      outcome.status = program->exitCode();
    }
    outcome.output = program->readAllStandardOutput().toStdString();
    outcome.errors = program->readAllStandardError().toStdString();
    return outcome;
  }

  /// Whether the program has made that database and runs on. It is killed then.
  bool Runs(const QStringList& arguments, const QString& database) {
    const auto program = Start(arguments);
    for (int i = 0; i < 200 && !QFile::exists(database); ++i) QTest::qWait(100);
    constexpr int AWhile = 500;
    const bool ended = program->waitForFinished(AWhile);
    program->kill();
    program->waitForFinished();
    return !ended && QFile::exists(database);
  }

  /// Expects one line on the standard error that has all the words, and the status.
  static void ExpectRefusal(const TOutcome& outcome, int status, const std::vector<std::string>& words) {
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.output, "");
    EXPECT_EQ(std::count(outcome.errors.begin(), outcome.errors.end(), '\n'), 1) << outcome.errors;
    EXPECT_EQ(outcome.errors.rfind("algo-desk: ", 0), 0U) << outcome.errors;
    for (const std::string& word : words)
      EXPECT_NE(outcome.errors.find(word), std::string::npos) << word << " in " << outcome.errors;
  }

  std::unique_ptr<QProcess> Start(const QStringList& arguments) {
    auto program = std::make_unique<QProcess>();
    program->setProcessEnvironment(environment);
    program->setChildProcessModifier(childModifier);
    program->start(QCoreApplication::applicationDirPath() + "/algo-desk", arguments);
    EXPECT_TRUE(program->waitForStarted());
    return program;
  }

  QString Path(const QString& name) const { return folder.filePath(name); }
  QString Database() const { return Path("data/algo-desk.db"); }

  static void Write(const QString& file, const QByteArray& content) {
    QDir().mkpath(QFileInfo(file).path());
    QFile out(file);
    ASSERT_TRUE(out.open(QIODevice::WriteOnly));
    out.write(content);
  }
  static QByteArray Read(const QString& file) {
    QFile in(file);
    return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("nothing");
  }

  /// A copy of the sample market in which one file is another.
  QString MarketWith(const QString& name, const QByteArray& content) {
    const QDir sample(ToPath(MarketBesideProgram()));
    for (const QString& file : sample.entryList(QDir::Files))
      Write(Path("market/" + file), Read(sample.filePath(file)));
    Write(Path("market/" + name), content);
    return Path("market");
  }
  static QString ToPath(const std::string& path) { return QString::fromStdString(path); }

  TProgramTest() {
    environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("XDG_RUNTIME_DIR", folder.path());
    environment.insert("XDG_DATA_HOME", Path("home"));
  }

  QTemporaryDir folder;
  QProcessEnvironment environment;
  std::function<void()> childModifier;
};

TEST_F(TProgramTest, RunsUntilItIsClosedAndMakesItsDatabase) {
  EXPECT_TRUE(
      Runs({"--data", Path("data"), "--language", "zh_Hant", "--skin", "dark", "--seed", "7"}, Database()));
}

TEST_F(TProgramTest, StoresItsDataWhereThePlatformDoes) {
  EXPECT_TRUE(Runs({}, Path("home/algo-desk/algo-desk.db")));
}

TEST_F(TProgramTest, PlaysARecording) {
  const auto recording = ToPath(MarketBesideProgram()) + "/recording.csv";
  EXPECT_TRUE(Runs({"--data", Path("data"), "--replay", recording, "--speed", "10"}, Database()));
}

TEST_F(TProgramTest, HelpsWhoAsks) {
  const TOutcome outcome = Run({"--help"});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.output.find("--market"), std::string::npos);
}

TEST_F(TProgramTest, RefusesUnusableArguments) {
  ExpectRefusal(Run({"--language", "fr"}), 2, {"--language", "en, zh_Hant, zh_Hans"});
  ExpectRefusal(Run({"--skin", "pink"}), 2, {"--skin", "light, dark, high-contrast"});
  ExpectRefusal(Run({"--seed", "many"}), 2, {"--seed"});
  ExpectRefusal(Run({"--speed", "2"}), 2, {"--replay"});
  ExpectRefusal(Run({"--replay", "x.csv", "--speed", "0"}), 2, {"--speed"});
  ExpectRefusal(Run({"--colour"}), 2, {"--colour"});
  EXPECT_FALSE(QFile::exists(Database()));
}

TEST_F(TProgramTest, RefusesToStartWithoutADisplay) {
  environment.remove("QT_QPA_PLATFORM");
  environment.remove("DISPLAY");
  environment.remove("WAYLAND_DISPLAY");
  ExpectRefusal(Run({}), 1, {"no display", "desktop session"});
}

TEST_F(TProgramTest, RefusesAFileThatIsNoDatabaseAndLeavesItAlone) {
  const QByteArray content = "dear diary, " + QByteArray(5000, 'x');
  Write(Database(), content);
  ExpectRefusal(Run({}), 1, {"algo-desk.db"});
  EXPECT_EQ(Read(Database()), content);
}

TEST_F(TProgramTest, RefusesADamagedDatabaseAndLeavesItAlone) {
  QDir().mkpath(Path("data"));
  { storage::TSqliteStorage storage(Database().toStdString()); }
  QByteArray content = Read(Database());
  ASSERT_GT(content.size(), 8192);
  content.replace(4096, content.size() - 4096, QByteArray(content.size() - 4096, '\x55'));
  Write(Database(), content);
  ExpectRefusal(Run({}), 1, {"algo-desk.db"});
  EXPECT_EQ(Read(Database()), content);
}

TEST_F(TProgramTest, RefusesADatabaseOfANewerTerminalAndLeavesItAlone) {
  QDir().mkpath(Path("data"));
  { storage::TSqliteStorage storage(Database().toStdString()); }
  QByteArray content = Read(Database());
  // The version stands in bytes 60 to 63 of the header.
  content[62] = '\x27';
  Write(Database(), content);
  ExpectRefusal(Run({}), 1, {"algo-desk.db", "newer"});
  EXPECT_EQ(Read(Database()), content);
}

TEST_F(TProgramTest, RefusesADatabaseOfAnotherProgramAndLeavesItAlone) {
  QDir().mkpath(Path("data"));
  { storage::TSqliteStorage storage(Database().toStdString()); }
  QByteArray content = Read(Database());
  // The mark of the program stands in bytes 68 to 71.
  content[68] = 'Z';
  Write(Database(), content);
  ExpectRefusal(Run({}), 1, {"algo-desk.db"});
  EXPECT_EQ(Read(Database()), content);
}

TEST_F(TProgramTest, RefusesADatabaseThatAnotherTerminalUses) {
  QDir().mkpath(Path("data"));
  const storage::TSqliteStorage storage(Database().toStdString());
  ExpectRefusal(Run({}), 1, {"algo-desk.db"});
}

TEST_F(TProgramTest, RefusesAFolderThatCannotBeMade) {
  Write(Path("data"), "a file");
  ExpectRefusal(Run({}), 1, {"data", "--data"});
  EXPECT_EQ(Read(Path("data")), "a file");
}

TEST_F(TProgramTest, RefusesAReadOnlyFolder) {
  QDir().mkpath(Path("data"));
  QFile::setPermissions(Path("data"), QFile::ReadOwner | QFile::ExeOwner);
  // Nobody is above the permissions of files, even when an administrator runs the test.
  childModifier = [] { prctl(PR_CAPBSET_DROP, CAP_DAC_OVERRIDE); };
  ExpectRefusal(Run({}), 1, {"data"});
  QFile::setPermissions(Path("data"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  EXPECT_FALSE(QFile::exists(Database()));
}

TEST_F(TProgramTest, RefusesAModuleThatIsNotThere) {
  ExpectRefusal(Run({"--module", Path("nowhere.so")}), 1, {"nowhere.so", "--module"});
}

TEST_F(TProgramTest, RefusesAFileThatIsNoModule) {
  Write(Path("text.so"), "no library");
  ExpectRefusal(Run({"--module", Path("text.so")}), 1, {"text.so"});
  const QString library = QCoreApplication::applicationDirPath() + "/../lib/libalgo_forms.so";
  ExpectRefusal(Run({"--module", library}), 1, {"not a module"});
}

TEST_F(TProgramTest, RefusesAModuleOfAnotherContract) {
  ExpectRefusal(
      Run({"--module", QCoreApplication::applicationDirPath() + "/../lib/libtest_other_contract.so"}), 1,
      {"another contract"});
}

TEST_F(TProgramTest, RefusesAMarketThatIsNotThere) {
  ExpectRefusal(Run({"--market", Path("nowhere")}), 1, {"nowhere", ".csv"});
  EXPECT_FALSE(QFile::exists(Database()));
}

TEST_F(TProgramTest, RefusesMalformedTablesWithFileAndLine) {
  const QByteArray row = "0005,HKG,Bank,B,B,minus,01,60.5,0.014,24000000,1\n";
  const QByteArray head =
      "symbol,exchange,name,name_hant,name_hans,lot,spread,previous_close,daily_volatility,daily_volume,"
      "multiplier\n";
  ExpectRefusal(Run({"--market", MarketWith("instruments.csv", head + row)}), 1,
                {"instruments.csv:2:", "minus"});
  ExpectRefusal(Run({"--market", MarketWith("instruments.csv", "symbol\n0005\n")}), 1,
                {"instruments.csv:1:"});
  EXPECT_FALSE(QFile::exists(Database()));
}

TEST_F(TProgramTest, RefusesARecordingThatIsNone) {
  Write(Path("tape.csv"), "seconds,symbol\n");
  ExpectRefusal(Run({"--replay", Path("tape.csv")}), 1, {"tape.csv:1:"});
  ExpectRefusal(Run({"--replay", Path("nowhere.csv")}), 1, {"nowhere.csv"});
}

}  // namespace
}  // namespace algo::terminal::desk::tests
