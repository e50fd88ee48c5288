// Language and skin of an open desktop are switched.

#include <QTableView>

#include "plugin/host_contract/look_and_feel_service.h"
#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TSwitchingTest : TDeskTest {};

TEST_F(TSwitchingTest, ALanguageIsTakenUpAtOnceEverywhere) {
  Open();
  Type(Entry().View(), "edtQty", "400");
  Choose("zh_Hant");
  EXPECT_EQ(Entry().windowTitle(), render::ToQt(desk->Texts().Resource("Res_AlgoOrderEntry")));
  EXPECT_EQ(The("orders").windowTitle(), "委託列表");
  EXPECT_EQ(The<QTableView>("marketTable").model()->index(0, 1).data().toString(), "樣本海港銀行");
  EXPECT_EQ(The<QLabel>("paperNote").text(), "模擬交易：委託不會離開本機");
  EXPECT_EQ(render::ToQt(Entry().View().Frame()->FindControl("btnSubmit")->Caption()),
            render::ToQt(desk->Texts().Resource("Res_Submit")));
  EXPECT_EQ(Text(Entry().View(), "edtQty"), "400");
  EXPECT_TRUE(The<QAction>("zh_Hant").isChecked());
  EXPECT_FALSE(The<QAction>("en").isChecked());
  Choose("en");
  EXPECT_EQ(Entry().windowTitle(), "Algo order entry");
}

TEST_F(TSwitchingTest, ASkinIsTakenUpAtOnceByTheModuleToo) {
  Open();
  Choose("dark");
  EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x20, 0x23, 0x27));
  EXPECT_EQ(host::TCustomLookAndFeelService::GetInstance().ColorOf(7, 0), 0x6CB6FFU);
  const auto& buy = dynamic_cast<const forms::TButton&>(*Entry().View().Frame()->FindControl("btnBuy"));
  EXPECT_EQ(buy.Colors().at(7), 0x6CB6FFU);
  EXPECT_TRUE(The<QAction>("dark").isChecked());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
