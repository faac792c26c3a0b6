// What the toolkit itself writes is Korean on any workstation.
#include "ui/korean.h"

#include <QAbstractButton>
#include <QCalendarWidget>
#include <QDateEdit>
#include <QMenu>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTableView>
#include <QtTest>

#include "tests/ui/probe_form.h"
#include "ui/palette.h"
#include "ui/style.h"

namespace store {
namespace {

class KoreanTest : public DeskTest {
 protected:
  /// Opens the calendar of the date box as a mouse does.
  QCalendarWidget& OpenCalendar(FormWindow& window) {
    auto& edit = Find<QDateEdit>(window, "DTPicker1");
    QTest::mousePress(&edit, Qt::LeftButton, {}, {edit.width() - 6, edit.height() / 2});
    QCalendarWidget* calendar = edit.calendarWidget();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(calendar->window()));
    return *calendar;
  }
};

bool HasHangul(const QString& text) {
  return std::any_of(text.begin(), text.end(),
                     [](QChar letter) { return letter.script() == QChar::Script_Hangul; });
}

TEST_F(KoreanTest, TheCalendarShowsItsSixthWeekAndKoreanNames) {
  ProbeForm form;
  form.DTPicker1.SetValue("2026-08-15");  // from Saturday the 1st to Monday the 31st
  FormWindow& window = Open(form);
  QCalendarWidget& calendar = OpenCalendar(window);
  ASSERT_TRUE(calendar.isVisible());
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ChangeLook(100, theme);
    EXPECT_EQ(calendar.weekdayTextFormat(Qt::Sunday).foreground().color(), QColor(look::Warning));
  }
  EXPECT_EQ(calendar.selectedDate(), QDate(2026, 8, 15));
  auto& days = Find<QTableView>(calendar, "qt_calendar_calendarview");
  const QAbstractItemModel& model = *days.model();
  const int last = model.rowCount() - 1;
  EXPECT_EQ(last, 6) << "names of the days and six weeks";
  for (int row = 0; row <= last; ++row) {
    const QRect cell = days.visualRect(model.index(row, model.columnCount() - 1));
    EXPECT_TRUE(days.viewport()->rect().contains(cell)) << "week " << row << " is cut";
    EXPECT_GE(cell.height(), days.fontMetrics().height()) << "week " << row;
    EXPECT_GE(cell.width(), days.fontMetrics().horizontalAdvance("30")) << "week " << row;
  }
  const int firstColumn = model.columnCount() - 7;
  EXPECT_EQ(model.index(0, firstColumn).data().toString(), "일") << "a week begins on Sunday";
  EXPECT_EQ(model.index(last, firstColumn + 1).data().toInt(), 31);
  EXPECT_TRUE(HasHangul(Find<QAbstractButton>(calendar, "qt_calendar_monthbutton").text()));
  calendar.window()->close();
}

TEST_F(KoreanTest, MenusOfTextBoxesAreKorean) {
  QLineEdit box("우유");
  const std::unique_ptr<QMenu> menu(box.createStandardContextMenu());
  int entries = 0;
  for (const QAction* action : menu->actions()) {
    if (action->isSeparator()) continue;
    EXPECT_TRUE(HasHangul(action->text())) << action->text().toStdString();
    ++entries;
  }
  EXPECT_GE(entries, 5);
}

}  // namespace
}  // namespace store
