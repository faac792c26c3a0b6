#include "ui/grid_delegate.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "ui/grid_view.h"
#include "ui/store_style.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kTextMargin = 4;
constexpr int kCopyBar = 3;

/// A magnifier: look at this slip.
void PaintMark(QPainter& painter, const QRect& cell) {
  const double size = std::min(cell.width(), cell.height()) * 0.5;
  const QPointF middle = QRectF(cell).center();
  const QPointF lens = middle - QPointF(size * 0.1, size * 0.1);
  const double radius = size * 0.32;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(look::Ink), 1.6, Qt::SolidLine, Qt::RoundCap));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(lens, radius, radius);
  const double edge = radius * 0.72;
  painter.drawLine(lens + QPointF(edge, edge), middle + QPointF(size * 0.42, size * 0.42));
}

void PaintTick(QPainter& painter, const QRect& cell, bool ticked) {
  const int size = std::min(cell.height(), cell.width()) - 8;
  QRect box(0, 0, size, size);
  box.moveCenter(cell.center());
  painter.setRenderHint(QPainter::Antialiasing);
  PaintTickBox(painter, box, ticked);
}

/// A line of text at its side of the room, cut where it does not fit. It is placed by hand: a scan
/// draws every cell anew, and laying a text out in a rectangle takes twice as long.
void PaintLine(QPainter& painter, const QFontMetrics& metrics, const QRect& room,
               Qt::Alignment align, const QString& line) {
  const int width = metrics.horizontalAdvance(line);
  if (width > room.width()) {
    painter.drawText(QPoint(room.left(), room.top() + metrics.ascent()),
                     metrics.elidedText(line, Qt::ElideRight, room.width()));
    return;
  }
  int spare = room.width() - width;
  if ((align & Qt::AlignLeft) != 0) spare = 0;
  if ((align & Qt::AlignHCenter) != 0) spare /= 2;
  painter.drawText(QPoint(room.left() + spare, room.top() + metrics.ascent()), line);
}

}  // namespace

GridDelegate::GridDelegate(GridView& view) : QStyledItemDelegate(&view), view_(view) {}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  painter->save();
  painter->setClipRect(option.rect);
  PaintGround(*painter, option.rect, index);
  const Grid& grid = view_.ShownGrid();
  const QVariant ticked = index.data(Qt::CheckStateRole);
  if (grid.Look(view_.Model().GridRow(index), index.column()).Picture) {
    PaintMark(*painter, option.rect);
  } else if (ticked.isValid()) {
    PaintTick(*painter, option.rect, ticked.toInt() == Qt::Checked);
  } else {
    PaintText(*painter, option.rect, index);
  }
  painter->setRenderHint(QPainter::Antialiasing, false);
  PaintPlace(*painter, option.rect, index);
  painter->restore();
}

bool GridDelegate::IsMarked(const QModelIndex& index) const {
  const QModelIndex current = view_.currentIndex();
  if (!current.isValid() || current.row() != index.row()) return false;
  return view_.MarksRow() || current.column() == index.column();
}

void GridDelegate::PaintGround(QPainter& painter, const QRect& cell,
                               const QModelIndex& index) const {
  const QVariant asked = index.data(Qt::BackgroundRole);
  QColor ground(look::Paper);
  if (view_.IsToBeCopied(index.row())) ground = QColor(look::RestingRow);
  if (IsMarked(index)) {
    ground = QColor(view_.hasFocus() ? look::CurrentRow : look::RestingRow);
  }
  if (asked.isValid()) ground = Softened(static_cast<int>(asked.value<QBrush>().color().rgb()));
  painter.fillRect(cell, ground);
  if (!view_.Tint) return;
  const QColor tint = view_.Tint(index.column(), index.data().toString());
  if (!tint.isValid()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(tint.darker(118), 1));
  painter.setBrush(tint);
  painter.drawRoundedRect(QRectF(cell).adjusted(3.5, 2.5, -3.5, -2.5), 3, 3);
}

void GridDelegate::PaintText(QPainter& painter, const QRect& cell, const QModelIndex& index) const {
  const QStringList lines = index.data().toString().split('\n');
  QFont font = view_.font();
  font.setBold(index.data(Qt::FontRole).isValid());
  painter.setFont(font);
  const QFontMetrics metrics(font);
  const QRect room = cell.adjusted(kTextMargin, 0, -kTextMargin, 0);
  const int height = metrics.lineSpacing();
  const auto align = static_cast<Qt::Alignment>(index.data(Qt::TextAlignmentRole).toInt());
  int top = cell.top() + (cell.height() - height * static_cast<int>(lines.size())) / 2;
  const bool enabled = view_.isEnabled();
  for (const QString& line : lines) {
    // Above a name stands its barcode, which one reads only to check.
    const bool isCode = lines.size() > 1 && &line == &lines.front();
    painter.setPen(QColor(isCode || !enabled ? look::Muted : look::Ink));
    PaintLine(painter, metrics, QRect(room.left(), top, room.width(), height), align,
              line.trimmed());
    top += height;
  }
}

void GridDelegate::PaintPlace(QPainter& painter, const QRect& cell,
                              const QModelIndex& index) const {
  painter.setPen(QColor(look::Line));
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  if (!view_.MarksRow()) painter.drawLine(cell.topRight(), cell.bottomRight());
  // A bar before what is copied, so that it is never taken for what is marked.
  if (view_.IsToBeCopied(index.row()) && index.column() == view_.Columns().Shown().front()) {
    painter.fillRect(QRect(cell.topLeft(), QSize(kCopyBar, cell.height())), QColor(look::Bright));
  }
  if (!IsMarked(index)) return;
  painter.setPen(QColor(view_.hasFocus() ? look::Bright : look::Muted));
  painter.drawLine(cell.topLeft(), cell.topRight());
  painter.drawLine(cell.bottomLeft(), cell.bottomRight());
  if (!view_.hasFocus() || index != view_.currentIndex()) return;
  painter.setPen(QPen(QColor(look::Bright), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(cell.adjusted(1, 1, -1, -1));
}

bool GridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
  if (event->type() != QEvent::ToolTip || !view->toolTip().isEmpty()) return false;
  const QString text = index.data().toString();
  const int needed = QFontMetrics(view->font()).boundingRect(QRect(), 0, text).width();
  if (needed + 2 * kTextMargin <= option.rect.width()) return false;
  QToolTip::showText(event->globalPos(), text, view);
  return true;
}

}  // namespace store
