#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <sstream>
#include <string>

#include "model/order_types.h"
#include "model/parameter_text.h"
#include "tests/model/sample_values.h"
#include "text/number_text.h"

namespace algo::model {
namespace {

// Numbers as they are written where the comma stands before the decimals and the point between thousands.
class TCommaNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// The process speaks such a locale while one of these lives: the C++ one always, the C one where it is
// installed.
class TCommaLocale {
 public:
  TCommaLocale() {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "de_DE", "fr_FR.UTF-8"}) {
      if (std::setlocale(LC_ALL, name) != nullptr) break;
    }
  }
  TCommaLocale(const TCommaLocale&) = delete;
  TCommaLocale& operator=(const TCommaLocale&) = delete;
  ~TCommaLocale() {
    std::locale::global(FFormer);
    std::setlocale(LC_ALL, "C");
  }

 private:
  std::locale FFormer = std::locale::global(std::locale(std::locale::classic(), new TCommaNumbers));
};

TEST(Locale, WithADecimalCommaIsReallySetInTheseTests) {
  const TCommaLocale comma;
  std::ostringstream stream;
  stream << 1234.5;
  EXPECT_EQ(stream.str(), "1.234,5");
}

TEST(Locale, ChangesNoByteOfTheParameterText) {
  const TCommaLocale comma;
  EXPECT_EQ(ComposeText(false, "PEG", FindAlgoByCode("PEG"), EverythingGiven()),
            "TMLO:AlgoId=PEG,STime=20240115-09:30:00,ETime=20240115-15:00:00,Closing=0,JoinThr=1000,Join=1,"
            "Iceberg=0,"
            "ShowQty=2000,RandTimeout=31,JoinQty=200,DiffPct=-5,TickDiff=2,Timeout=60,Ref=11,MaxVolPct=25,"
            "Closing=0,"
            "Style=5,WPx=10.5,MinOrdAmt=50000;");
}

TEST(Locale, ChangesNothingInWhatIsRead) {
  const TCommaLocale comma;
  EXPECT_EQ(DecodeValue(TParam::WPx, "10.5").number, 10.5);
  EXPECT_EQ(DecodeValue(TParam::WPx, "10,5").number, 0);
  EXPECT_EQ(DecodeValue(TParam::STime, "20240115-09:30:00").time, At(9, 30));
  EXPECT_EQ(FindAlgoByCode("iceberg")->code, "ICEBERG");
  EXPECT_EQ(AutoTriggerBits(0x800, 10.5, "10.5", "1", ""), 0x800U);
}

TEST(Locale, ChangesNothingInWhatIsShown) {
  const TCommaLocale comma;
  EXPECT_EQ(text::PlainNumber(1234.5), "1234.5");
  EXPECT_EQ(text::GroupedNumber(1234567.25, 7), "1,234,567.25");
  EXPECT_EQ(text::DateTimeText(At(9, 30)), "2024-01-15 09:30:00");
}

}  // namespace
}  // namespace algo::model
