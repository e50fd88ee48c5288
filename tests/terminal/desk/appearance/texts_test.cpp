// The texts: each is there in each language, in that language and its script.

#include "terminal/desk/appearance/texts.h"

#include <gtest/gtest.h>

#include <QFile>
#include <nlohmann/json.hpp>
#include <ostream>
#include <set>

#include "terminal/render/qt_text.h"
#include "tests/terminal/desk/appearance/text_ids.h"

namespace algo::terminal::desk::appearance {

std::ostream& operator<<(std::ostream& stream, TLanguage language) {
  return stream << LanguageCode(language);
}

}  // namespace algo::terminal::desk::appearance

namespace algo::terminal::desk::tests {
namespace {

struct TText {
  std::string_view id;
  QString text;
};

std::vector<TText> AllTexts(appearance::TLanguage language) {
  const appearance::TTexts texts(language);
  THostData data;
  texts.FillInto(data);
  std::vector<TText> all;
  for (const auto id : CaptionIds) all.push_back({id, render::ToQt(texts.Resource(id))});
  for (const auto id : MessageIds) all.push_back({id, render::ToQt(texts.Resource(id))});
  for (const auto code : ErrorCodes) all.push_back({code, render::ToQt(texts.ErrorText(code))});
  for (const auto key : DeskKeys) all.push_back({key, texts.Desk(key)});
  for (const auto code : ExchangeCodes)
    all.push_back({code, render::ToQt(data.texts["Exchange"][std::string(code)])});
  return all;
}

// The keys of one part of a language's file.
std::set<std::string> KeysInFile(std::string_view code, const char* part) {
  const appearance::TTexts linksFiles(appearance::TLanguage::English);
  QFile file(QStringLiteral(":/desk/texts/") + render::ToQt(code) + QStringLiteral(".json"));
  std::set<std::string> keys;
  if (!file.open(QIODevice::ReadOnly)) return keys;
  const auto texts = nlohmann::json::parse(file.readAll().toStdString());
  for (const auto& [key, text] : texts.at(part).items()) keys.insert(key);
  return keys;
}

bool HasChinese(const QString& text) {
  return std::any_of(text.begin(), text.end(),
                     [](QChar letter) { return letter.script() == QChar::Script_Han; });
}

class EachLanguage : public testing::TestWithParam<appearance::TLanguage> {};
INSTANTIATE_TEST_SUITE_P(Texts, EachLanguage,
                         testing::Values(appearance::TLanguage::English,
                                         appearance::TLanguage::TraditionalChinese,
                                         appearance::TLanguage::SimplifiedChinese),
                         [](const auto& tested) {
                           return std::string(appearance::LanguageCode(tested.param));
                         });

TEST_P(EachLanguage, EveryTextIsThere) {
  for (const auto& [id, text] : AllTexts(GetParam())) {
    EXPECT_FALSE(text.trimmed().isEmpty()) << id;
    EXPECT_EQ(text, text.trimmed()) << id;
    const bool keyIsNoText = id.starts_with("Res_") || id.starts_with("DC1") || id.starts_with("Setting.") ||
                             id.starts_with("Copies.") || id.starts_with("Workspace.");
    EXPECT_FALSE(keyIsNoText && text == render::ToQt(id)) << id;
  }
}

TEST_P(EachLanguage, NoTextIsThereThatNobodyShows) {
  const auto code = appearance::LanguageCode(GetParam());
  std::set<std::string> resources(CaptionIds.begin(), CaptionIds.end());
  resources.insert(MessageIds.begin(), MessageIds.end());
  EXPECT_EQ(KeysInFile(code, "resources"), resources);
  EXPECT_EQ(KeysInFile(code, "errors"), std::set<std::string>(ErrorCodes.begin(), ErrorCodes.end()));
  EXPECT_EQ(KeysInFile(code, "exchanges"), std::set<std::string>(ExchangeCodes.begin(), ExchangeCodes.end()));
  EXPECT_EQ(KeysInFile(code, "desk"), std::set<std::string>(DeskKeys.begin(), DeskKeys.end()));
}

TEST_P(EachLanguage, CaptionsFitBesideAFieldAndMessagesAreSentences) {
  const appearance::TTexts texts(GetParam());
  const bool english = GetParam() == appearance::TLanguage::English;
  for (const auto id : CaptionIds) {
    if (id.ends_with("_Lock")) continue;  // shown as a tool tip
    EXPECT_LE(render::ToQt(texts.Resource(id)).size(), english ? 21 : 9) << id;
  }
  const QString end = english ? QStringLiteral(".") : QStringLiteral("。");
  for (const auto id : MessageIds) EXPECT_TRUE(render::ToQt(texts.Resource(id)).endsWith(end)) << id;
  for (const auto code : ErrorCodes) EXPECT_TRUE(render::ToQt(texts.ErrorText(code)).endsWith(end)) << code;
}

TEST_P(EachLanguage, MenusOpenByLettersOfTheirOwn) {
  const appearance::TTexts texts(GetParam());
  const std::pair<const char*, const char*> letters[] = {
      {"File", "&F"}, {"View", "&V"}, {"Window", "&W"}, {"Help", "&H"}};
  for (const auto& [key, letter] : letters)
    EXPECT_TRUE(texts.Desk(key).contains(QLatin1String(letter))) << key;
  for (const auto id : CaptionIds) EXPECT_FALSE(render::ToQt(texts.Resource(id)).contains(u'&')) << id;
}

TEST_P(EachLanguage, AnUnknownIdGivesTheIdItself) {
  const appearance::TTexts texts(GetParam());
  EXPECT_EQ(texts.Resource("Res_NoSuchText"), "Res_NoSuchText");
  EXPECT_EQ(texts.Desk("No such text…"), QStringLiteral("No such text…"));
  EXPECT_EQ(texts.ErrorText("DC99"), "DC99");
  EXPECT_EQ(texts.Resource(""), "");
  EXPECT_EQ(texts.Resource("Orders"), "Orders") << "a text of the desktop is none of the module's";
}

class EachChinese : public testing::TestWithParam<appearance::TLanguage> {};
INSTANTIATE_TEST_SUITE_P(Texts, EachChinese,
                         testing::Values(appearance::TLanguage::TraditionalChinese,
                                         appearance::TLanguage::SimplifiedChinese),
                         [](const auto& tested) {
                           return std::string(appearance::LanguageCode(tested.param));
                         });

TEST_P(EachChinese, NothingIsLeftInEnglish) {
  const std::set<std::string_view> sameInEveryLanguage{"Res_Algo_OrderType_TWAP", "Res_Algo_OrderType_VWAP",
                                                       "Res_Algo_VWAP"};
  for (const auto& [id, text] : AllTexts(GetParam()))
    EXPECT_NE(HasChinese(text), sameInEveryLanguage.contains(id)) << id << ": " << text.toStdString();
}

TEST_P(EachChinese, PunctuationIsChinese) {
  for (const auto& [id, text] : AllTexts(GetParam())) {
    for (const QChar mark : QStringLiteral(",:;?!")) EXPECT_FALSE(text.contains(mark)) << id;
    EXPECT_FALSE(text.endsWith(u'.')) << id;
  }
}

// The same characters, common ones, as the one script writes them and the other does not.
const QString TraditionalOnly = QStringLiteral(
    "帳戶買賣開關閉時間價類選單貨幣數據報檢視設確認證結語檔儲說紅綠藍黃連動組號稱現漲賬狀態參執銷絕過濾無"
    "訂條隨機應圍額積極進競門檻擬發續將僅對話標題體蓋雙擊獨補拋沖級點際須請輸項於為從資訊許產實險總內萬與"
    "業個來傳統術學國會這樣當斷滿減滾線緒縮練觸訴詢該誤調論識讀變讓負責費質貼賠賺購轉輕載較邊遠遲還鎖鏈銀"
    "錢鍵長閱陽陰階隊難電靜頁順預領頻顯風飛餘馬驗齊齡龍託佔蝕鈎複閾區擇筆張帶離欄啟盤錄寫後兩經達獲壓處復"
    "屬幫剛");
const QString SimplifiedOnly = QStringLiteral(
    "帐户买卖开关闭时间价类选单货币数据报检视设确认证结语档储说红绿蓝黄连动组号称现涨账状态参执销绝过滤无"
    "订条随机应围额积极进竞门槛拟发续将仅对话标题体盖双击独补抛冲级点际须请输项于为从资讯许产实险总内万与"
    "业个来传统术学国会这样当断满减滚线绪缩练触诉询该误调论识读变让负责费质贴赔赚购转轻载较边远迟还锁链银"
    "钱键长阅阳阴阶队难电静页顺预领频显风飞余马验齐龄龙托占蚀钩复阈区择笔张带离栏启盘录写后两经达获压处复"
    "属帮刚");

TEST(ChineseScripts, EachTextIsWrittenInItsOwnScript) {
  ASSERT_EQ(TraditionalOnly.size(), SimplifiedOnly.size());
  for (qsizetype i = 0; i < TraditionalOnly.size(); ++i) {
    for (const auto& [id, text] : AllTexts(appearance::TLanguage::TraditionalChinese))
      EXPECT_FALSE(text.contains(SimplifiedOnly[i])) << id << ": " << text.toStdString();
    for (const auto& [id, text] : AllTexts(appearance::TLanguage::SimplifiedChinese))
      EXPECT_FALSE(text.contains(TraditionalOnly[i])) << id << ": " << text.toStdString();
  }
}

TEST(Texts, AreTheTermsOfTheTrade) {
  const appearance::TTexts english(appearance::TLanguage::English);
  const appearance::TTexts traditional(appearance::TLanguage::TraditionalChinese);
  const appearance::TTexts simplified(appearance::TLanguage::SimplifiedChinese);
  EXPECT_EQ(english.Resource("Res_OrderType_Market"), "Market");
  EXPECT_EQ(traditional.Resource("Res_OrderType_Market"), "市價");
  EXPECT_EQ(simplified.Resource("Res_OrderType_Market"), "市价");
  EXPECT_EQ(english.Resource("Res_Bid") + english.Resource("Res_Num2"), "Bid2");
  EXPECT_EQ(traditional.Resource("Res_Ask") + traditional.Resource("Res_Num5"), "賣價五");
  EXPECT_EQ(english.ErrorText("DC10013001"), "Enter an account.");
  EXPECT_EQ(simplified.ErrorText("DC1004001"), "请输入不小于 1 的数量。");
  EXPECT_EQ(english.Desk("Order number"), QStringLiteral("Order"));
  EXPECT_EQ(english.Desk("Paper trading"), QStringLiteral("Paper trading: no order leaves this machine"));
  EXPECT_EQ(traditional.Desk("Cancel"), QStringLiteral("取消"));
  EXPECT_EQ(traditional.Desk("Cancel order"), QStringLiteral("撤單"));
}

TEST(Texts, GoToTheHostUnderItsTwoTagsAndLeaveOthersAlone) {
  THostData data;
  data.texts["Res"]["Res_Order"] = "Auftrag";
  data.texts["Res"]["Res_Old"] = "Old";
  data.texts["Other"]["Id"] = "Kept";
  appearance::TTexts(appearance::TLanguage::SimplifiedChinese).FillInto(data);
  EXPECT_EQ(data.texts["Res"]["Res_Order"], "委托");
  EXPECT_FALSE(data.texts["Res"].contains("Res_Old"));
  EXPECT_EQ(data.texts["Exchange"]["HKG"], "香港");
  EXPECT_EQ(data.texts["Exchange"].size(), 3U);
  EXPECT_EQ(data.texts["Other"]["Id"], "Kept");
  EXPECT_EQ(data.texts.size(), 3U);
}

TEST(Languages, HaveNumbersNamesAndOwnNames) {
  EXPECT_EQ(static_cast<int>(appearance::TLanguage::English), 1);
  EXPECT_EQ(static_cast<int>(appearance::TLanguage::TraditionalChinese), 2);
  EXPECT_EQ(static_cast<int>(appearance::TLanguage::SimplifiedChinese), 3);
  EXPECT_EQ(appearance::LanguageOfCode("en"), appearance::TLanguage::English);
  EXPECT_EQ(appearance::LanguageOfCode("zh_Hant"), appearance::TLanguage::TraditionalChinese);
  EXPECT_EQ(appearance::LanguageOfCode("zh_Hans"), appearance::TLanguage::SimplifiedChinese);
  for (const char* other : {"", "EN", "zh", "zh_hant", "de"})
    EXPECT_EQ(appearance::LanguageOfCode(other), std::nullopt) << other;
  EXPECT_EQ(appearance::LanguageOwnName(appearance::TLanguage::TraditionalChinese),
            QStringLiteral("繁體中文"));
  EXPECT_EQ(appearance::TTexts(appearance::TLanguage::TraditionalChinese).Language(),
            appearance::TLanguage::TraditionalChinese);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
