#include "ui/shots/menu_shots.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenuBar>

#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/guide_window.h"
#include "ui/shots/director.h"

namespace store {

void ShootMenus(Director& director) {
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    auto* bar = window.findChild<QMenuBar*>();
    int number = 0;
    for (QAction* title : bar->actions()) {
      bar->setActiveAction(title);
      director.SaveWithMenu(window, QString("menu_%1").arg(++number));
    }
    GoTo(window, "FLEX1", 3, 2);
    auto& slips = Find<GridView>(window, "FLEX1");
    const QPoint slip = slips.visualRect(slips.currentIndex()).center();
    QApplication::postEvent(
        slips.viewport(),
        new QContextMenuEvent(QContextMenuEvent::Mouse, slip, slips.viewport()->mapToGlobal(slip)));
  });
  director.When([] { return QApplication::activePopupWidget() != nullptr; },
                [&director] {
                  director.SaveWithMenu(*TheDesk().WindowNamed("frm_Start"), "menu_of_a_slip");
                });
}

void ShootGuide(Director& director) {
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    OpenGuide("order.md", &window);
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      if (dynamic_cast<GuideWindow*>(widget) != nullptr) director.Save(*widget, "guide");
    }
    CloseGuide();
    window.activateWindow();
  });
}

}  // namespace store
