#include "ui/grid_copy.h"

#include <QStringList>

#include "ui/qt_text.h"

namespace store {
namespace {

QString OneLine(QString text) {
  for (const QChar parting : {QChar('\r'), QChar('\n'), QChar('\t')}) text.replace(parting, ' ');
  return text.simplified();
}

QString CopiedCell(const Grid& grid, int row, int column) {
  if (grid.Look(row, column).Picture) return {};
  const std::string& cell = grid.TextMatrix(row, column);
  const bool isFigure = !grid.Columns()[static_cast<size_t>(column)].Format.empty();
  return isFigure ? ToQt(cell) : OneLine(ShownEntry(cell));
}

}  // namespace

QString CopiedRows(const Grid& grid, const std::vector<int>& rows,
                   const std::vector<int>& columns) {
  QStringList lines;
  const auto add = [&](const auto& cellOf) {
    QStringList cells;
    for (const int column : columns) cells << cellOf(column);
    lines << cells.join('\t');
  };
  if (grid.FixedRows() > 0) {
    add([&](int column) { return OneLine(ToQt(grid.TextMatrix(0, column))); });
  }
  for (const int row : rows) {
    add([&](int column) { return CopiedCell(grid, row, column); });
  }
  return lines.join('\n') + '\n';
}

}  // namespace store
