// The windows of the program's own forms, without a database and without being shown.
#include <QGridLayout>
#include <QLabel>
#include <QtTest>

#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "lookup/HELP_BPR.h"
#include "lookup/NEW_PR.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "receipt/frm_PE_UNIT.h"
#include "start/frmLogin.h"
#include "tests/ui/all_forms.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/history_chart_view.h"
#include "ui/key_button.h"
#include "ui/program_icon.h"
#include "ui/store_windows.h"
#include "ui/style.h"
#include "ui/window_registry.h"

namespace store {
namespace {

class WindowsTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    RegisterStoreWindows();
  }
};

TEST_F(WindowsTest, EveryControlThatAFormPublishesHasItsWidget) {
  for (const auto& form : AllForms()) {
    const std::unique_ptr<FormWindow> window(MakeWindow(*form));
    ASSERT_NE(window, nullptr) << form->Name;
    EXPECT_EQ(window->ControlsWithoutWidget(), std::vector<std::string>()) << form->Name;
  }
}

TEST_F(WindowsTest, AButtonWithNothingBehindItLooksIt) {
  HELP_CT partners;
  HELP_BPR products;
  for (const auto& [form, works] : {std::pair<Form*, bool>(&partners, false), {&products, true}}) {
    const std::unique_ptr<FormWindow> window(MakeWindow(*form));
    window->Sync();
    EXPECT_EQ(Find<KeyButton>(*window, "Command2").isEnabled(), works) << form->Name;
    EXPECT_TRUE(Find<KeyButton>(*window, "Command1").isEnabled()) << form->Name;
  }
}

TEST_F(WindowsTest, APasswordShowsAStarForEachLetter) {
  frmLogin login;
  const std::unique_ptr<FormWindow> window(MakeWindow(login));
  auto* password = window->findChild<QLineEdit*>("txtPassword");
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
  QTest::keyClicks(password, "1111");
  EXPECT_EQ(password->displayText(), "****");
  EXPECT_EQ(login.txtPassword.Text(), "1111");
}

TEST_F(WindowsTest, TheFieldInHandIsTheColouredOne) {
  BaseSettings.ProductCodeLength = 5;
  NEW_PR product;
  product.SuggestedName = "보리차";
  Host.Show(product);
  FormWindow* window = TheDesk().WindowOf(product);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  ASSERT_TRUE(QTest::qWaitFor([&] { return window->HasBegun(); }));
  // The names of the fields that are drawn in the colour.
  const auto coloured = [&] {
    QString names;
    for (auto* field : window->findChildren<QLineEdit*>()) {
      const QImage picture = field->grab().toImage();
      const QColor ground = picture.pixelColor(picture.width() - 6, picture.height() / 2);
      if (ground == Softened(0xFFC080)) names += field->objectName();
    }
    return names;
  };
  const auto press = [&](Qt::Key key) { QTest::keyClick(window->focusWidget(), key); };
  EXPECT_EQ(coloured(), "txBox_0");
  press(Qt::Key_Down);
  EXPECT_EQ(coloured(), "txBox_1");
  EXPECT_EQ(Find<QLineEdit>(*window, "txBox_1").selectedText(), "보리차");
  WhenModal([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Escape); });
  press(Qt::Key_F9);
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  EXPECT_EQ(coloured(), "txBox_0") << "the box goes back to the field that is wrong";
  press(Qt::Key_Up);
  EXPECT_EQ(window->focusWidget()->objectName(), "Command1_1");
  EXPECT_EQ(coloured(), "");
  press(Qt::Key_Enter);
  EXPECT_TRUE(product.IsClosed());
  ResetRecords();
}

TEST_F(WindowsTest, EachValueOfAPartnerStandsBesideItsCaption) {
  frm_Start board;
  const std::unique_ptr<FormWindow> window(MakeWindow(board));
  // Name, number, phone, fax, owner, owner's phone, mail, contact, contact's phone, mail, address.
  const std::array<const char*, 11> captions = {"발 주 처", "사 업 자", "전    화", "팩    스",
                                                "대 표 자", "휴 대 폰", "메    일", "담 당 자",
                                                "휴 대 폰", "메    일", "주    소"};
  for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
    auto* value = window->findChild<QLabel*>(QString("LaCT_%1").arg(i));
    ASSERT_NE(value, nullptr);
    auto* pairs = qobject_cast<QGridLayout*>(value->parentWidget()->layout());
    int row = 0;
    int column = 0;
    int span = 0;
    pairs->getItemPosition(pairs->indexOf(value), &row, &column, &span, &span);
    const QWidget* caption = pairs->itemAtPosition(row, column - 1)->widget();
    EXPECT_EQ(qobject_cast<const QLabel*>(caption)->text(), captions[static_cast<size_t>(i)]) << i;
  }
}

TEST_F(WindowsTest, TitlesTellWhichWindowItIs) {
  Session.StoreName = "서울점";
  frm_Start board;
  frm_Order order;
  frm_PE_UNIT receipt;
  const auto title = [](Form& form) {
    const std::unique_ptr<FormWindow> window(MakeWindow(form));
    window->Sync();
    return window->windowTitle();
  };
  EXPECT_EQ(title(board), "Tarnwick발주시스템 - 서울점");
  EXPECT_EQ(title(order), "발주시스템 - 서울점");
  order.Text1.SetText("한빛");
  EXPECT_EQ(title(order), "발주시스템 - 서울점") << "only what is searched for";
  order.Text1.SetText("한빛식품");
  order.Text1.Tag = receipt.Text1.Tag = "000123";
  receipt.Text1.SetText("한빛식품");
  EXPECT_EQ(title(order), "발주시스템 - 서울점 - 한빛식품");
  EXPECT_EQ(title(receipt), "매입전표작성 - 서울점 - 한빛식품");
  ResetRecords();
}

TEST(ProgramIcon, IsThereInEverySize) {
  const QIcon icon = ProgramIcon();
  for (const int size : kIconSizes) {
    ASSERT_TRUE(icon.availableSizes().contains(QSize(size, size))) << size;
    const QImage picture = DrawProgramIcon(size);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "round corners, " << size;
    const QColor box = picture.pixelColor(size / 2, size * 31 / 64);
    const QColor plate = picture.pixelColor(size / 2, size * 58 / 64);
    EXPECT_GE(Contrast(box, plate), 3) << "the box is told from its ground, " << size;
  }
}

TEST_F(WindowsTest, BarsOfTheChartAreAsHighAsTheirRows) {
  frm_Order form;
  Grid& chart = form.PRGHP;
  chart.SetRows(history::Rows);
  const auto leave = [&](int day, int bars) {
    for (int row = history::Offset; row < history::Rows - bars; ++row) {
      chart.SetBackColor(row, day, 0xFFFFFF);
    }
  };
  for (int day = 1; day <= history::Days; ++day) leave(day, day == 1 ? 10 : day == 2 ? 5 : 0);
  HistoryChartView view(chart);
  view.resize(800, view.sizeHint().height());
  const QImage picture = view.grab().toImage();
  const auto height = [&](int day) {
    int pixels = 0;
    const int x = 6 + (picture.width() - 12) * (2 * day - 1) / (2 * history::Days);
    for (int y = 0; y < picture.height(); ++y) {
      pixels += picture.pixelColor(x, y) == QColor(look::Accent) ? 1 : 0;
    }
    return pixels;
  };
  EXPECT_GT(height(1), 40);
  EXPECT_NEAR(height(1), 2 * height(2), 2);
  EXPECT_EQ(height(3), 0);
}

}  // namespace
}  // namespace store
