// The database is slow, and a person presses Esc: a search is given up, a save is not.
#include <QLabel>
#include <QRadioButton>
#include <QtTest>
#include <string>

#include "order/order_form.h"
#include "tests/journeys/widgets/journey.h"
#include "tests/journeys/widgets/journey_checks.h"
#include "tests/support/somebody.h"
#include "ui/desk.h"

namespace store {
namespace {

/// Somebody's long work on the orders, which nobody can read or write meanwhile.
std::string LockedFor(int seconds) {
  return "LOCK TABLES PEM22 WRITE, PSM22 WRITE; DO SLEEP(" + std::to_string(seconds) + ")";
}

/// Presses Esc, as the window system brings it, when the panel of the wait has stood for a moment.
class PressesEsc {
 public:
  PressesEsc() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(20);
  }
  bool Pressed() const { return pressed_; }
  QString Remark() const { return remark_; }

 private:
  void Look() {
    QWidget* window = TheDesk().FrontWindow();
    auto* remark = window == nullptr ? nullptr : window->findChild<QLabel*>("WaitingRemark");
    if (pressed_ || remark == nullptr) return;
    pressed_ = true;
    remark_ = remark->text();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      qt_handleKeyEvent(window->windowHandle(), type, Qt::Key_Escape, {}, "\x1b");
    }
  }
  QTimer timer_;
  bool pressed_ = false;
  QString remark_;
};

class WaitingJourney : public Journey {};

TEST_F(WaitingJourney, EscStopsARefreshOfTheBoard) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  // Slips of one day come in any order.
  const auto slips = [this] {
    auto rows = Hands::Rows(Board(), "FLEX1", {kSlipIdColumn});
    std::sort(rows.begin(), rows.end());
    return rows;
  };
  Hands::Press(Board(), Qt::Key_4, Qt::AltModifier);
  auto* due = Board().findChild<QRadioButton*>("Option1_3");
  ASSERT_TRUE(Hands::Wait([&] { return due->isChecked() && slips().size() > 3; }));
  const auto before = slips();
  {
    const Somebody locked(LockedFor(5), "demo");
    const PressesEsc hand;
    Hands::Press(Board(), Qt::Key_F5);
    EXPECT_TRUE(hand.Pressed());
    EXPECT_TRUE(hand.Remark().contains("Esc 중지")) << hand.Remark().toStdString();
    EXPECT_NE(Hands::TextOf(Board(), "LaRead").find("조회를 중지했습니다"), std::string::npos);
    EXPECT_TRUE(slips().empty());
    EXPECT_EQ(Board().findChild<QWidget*>("WaitPanel"), nullptr);
    EXPECT_EQ(DemoValue("SELECT COUNT(*) FROM information_schema.PROCESSLIST WHERE INFO LIKE "
                        "'DO SLEEP%'"),
              "1")
        << "the wait itself has gone on";
  }
  Hands::Press(Board(), Qt::Key_F5);
  EXPECT_EQ(slips(), before);
}

TEST_F(WaitingJourney, EscDoesNotStopASave) {
  ASSERT_NO_FATAL_FAILURE(Start("u01,1111"));
  Hands::Press(Board(), Qt::Key_F2);
  FormWindow& order = Order();
  Hands::Type(order, "#" + QString(kJourneySupplier));
  Hands::Press(order, Qt::Key_Return);
  Hands::Type(order, "8807908952040");
  Hands::Press(order, Qt::Key_Return);
  Hands::Type(order, "7");
  Hands::Press(order, Qt::Key_Return);
  {
    const Somebody locked(LockedFor(4), "demo");
    const PressesEsc hand;
    ASSERT_NO_FATAL_FAILURE(Save({}));
    EXPECT_TRUE(hand.Pressed());
    EXPECT_FALSE(hand.Remark().contains("Esc")) << hand.Remark().toStdString();
  }
  ExpectOrder(NewestOrder(), "0", "100101", {{"8807908952040", 7, 500}});
}

}  // namespace
}  // namespace store
