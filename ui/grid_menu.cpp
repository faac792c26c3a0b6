#include "ui/grid_menu.h"

#include <QMenu>

#include "ui/context_action.h"
#include "ui/grid_view.h"
#include "ui/qt_text.h"
#include "ui/window_layout.h"

namespace store {
namespace {

QString TitleOf(const GridView& view, int column) {
  const QString title = ToQt(view.ShownGrid().TextMatrix(0, column)).simplified();
  return title.isEmpty() ? QString("%1번째 칸").arg(column + 1) : QString(title).replace("&", "&&");
}

void AddOrders(QMenu& menu, GridView& view, int column) {
  const GridRows& rows = view.Model().ShownRows();
  const auto add = [&](const QString& text, RowOrder order) {
    QAction* line = AddLine(menu, text, {}, [&view, column, order] { view.SortBy(column, order); });
    line->setCheckable(true);
    const bool holds = order == RowOrder::Own || rows.SortedBy() == column;
    line->setChecked(holds && rows.Order() == order);
  };
  if (column >= 0) {
    const QString title = "'" + TitleOf(view, column) + "' ";
    add(title + "오름차순", RowOrder::Ascending);
    add(title + "내림차순", RowOrder::Descending);
  }
  add("원래 차례로", RowOrder::Own);
}

void AddColumns(QMenu& menu, GridView& view) {
  GridColumns& columns = view.Columns();
  for (const int column : columns.Offered()) {
    QAction* line = AddLine(menu, TitleOf(view, column), {}, [&view, column] {
      view.SwitchColumn(column, !view.Columns().IsShown(column));
    });
    line->setCheckable(true);
    line->setChecked(columns.IsShown(column));
    line->setEnabled(columns.MaySwitch(column));
  }
  menu.addSeparator();
  AddLine(menu, "이 표의 칸 처음으로", {}, [&columns] { columns.TakeLayout({}); });
}

}  // namespace

void FillRowMenu(QMenu& menu, GridView& view, int column) {
  AddActions(menu, view.Actions());
  menu.addSeparator();
  const bool hasRows = view.Model().rowCount() > 0;
  AddLine(menu, "복사", "Ctrl+C", [&view] {
    view.CopyRows();
  })->setEnabled(view.currentIndex().isValid());
  AddLine(menu, "보이는 줄 모두 복사", {}, [&view] { view.CopyAllRows(); })->setEnabled(hasRows);
  AddLine(menu, "엑셀로 보기", view.ExportKey(), [&view] { view.Export(); })->setEnabled(hasRows);
  if (!view.MayArrange()) return;
  menu.addSeparator();
  AddLine(menu, "줄 찾기", "Ctrl+F", [&view] { view.OpenFilter(); });
  AddOrders(*menu.addMenu("정렬"), view, column);
  AddColumns(*menu.addMenu("보이는 칸"), view);
}

void FillHeaderMenu(QMenu& menu, GridView& view, int column) {
  if (view.MayArrange()) {
    AddOrders(menu, view, column);
    menu.addSeparator();
  }
  AddColumns(menu, view);
  QObject::connect(menu.addAction(kFirstLayoutText), &QAction::triggered, &menu,
                   [] { ForgetLayouts(); });
}

}  // namespace store
