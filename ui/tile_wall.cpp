#include "ui/tile_wall.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>

#include "ui/desk.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kFingerHeight = 48;  // least height of a tile
constexpr int kDetailLines = 2;
constexpr int kGap = 4;  // between tiles
constexpr int kPadding = 7;
constexpr int kLineGap = 2;
constexpr double kCorner = 5;

QFont NameFont() {
  QFont font = BoxFont();
  font.setPointSizeF(font.pointSizeF() - 1);
  font.setBold(true);
  return font;
}

/// A name of two lines leaves room for one line of details, a shorter one for two.
int HeightOfTile(const QFont& name, const QFont& detail) {
  const int text =
      2 * QFontMetrics(name).lineSpacing() + kLineGap + QFontMetrics(detail).lineSpacing();
  return std::max(Scaled(kFingerHeight), text + 2 * kPadding) + kGap;
}

/// A name in one line or, parted between two words, in two: the end of a name often tells it from
/// its neighbour's.
QStringList NameLines(const QFontMetrics& metrics, const QString& name, int width) {
  if (metrics.horizontalAdvance(name) <= width) return {name};
  qsizetype part = 0;
  for (qsizetype blank = name.indexOf(' '); blank > 0; blank = name.indexOf(' ', blank + 1)) {
    if (metrics.horizontalAdvance(name.left(blank)) > width) break;
    part = blank;
  }
  const QString rest = metrics.elidedText(name.mid(part).trimmed(), Qt::ElideRight, width);
  return part == 0 ? QStringList{rest} : QStringList{name.left(part), rest};
}

void PaintGround(QPainter& painter, const QRect& room, const QColor& ground, const QColor& edge,
                 double width) {
  const double inset = width / 2;
  painter.setPen(QPen(edge, width));
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(room).adjusted(inset, inset, -inset, -inset), kCorner, kCorner);
}

}  // namespace

TileWall::TileWall(Grid& tiles, std::string marker)
    : tiles_(tiles), marker_(std::move(marker)), topRowSeen_(tiles.TopRowRevision()) {
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  FollowLook(*this, [this] { TakeFonts(); });
}

void TileWall::TakeFonts() {
  nameFont_ = NameFont();
  detailFont_ = DetailFont();
  tileHeight_ = HeightOfTile(nameFont_, detailFont_);
  plainGround_ = {};
  // A notch of the wheel is three steps: one row of tiles.
  verticalScrollBar()->setSingleStep(tileHeight_ / 3);
  MeasureRange();
}

// --- following the form

void TileWall::Follow() {
  if (seen_ != tiles_.Revision()) {
    seen_ = tiles_.Revision();
    pointed_.reset();
    MeasureRange();
    viewport()->update();
  }
  FollowTopRow();
  if (shownCurrent_ == Current()) return;
  shownCurrent_ = Current();
  if (QAccessible::isActive()) setAccessibleDescription(SeenLines(shownCurrent_).join(", "));
  BringIntoView(shownCurrent_);
  viewport()->update();
}

// What the form asks for is followed once; then the person may scroll on. It may ask for more than
// there is to scroll, so it hears where the wall has come to rest.
void TileWall::FollowTopRow() {
  if (topRowSeen_ == tiles_.TopRowRevision()) return;
  topRowSeen_ = tiles_.TopRowRevision();
  verticalScrollBar()->setValue(tiles_.TopRow() * tileHeight_);
  tiles_.NoteTopRow(verticalScrollBar()->value() / tileHeight_);
}

void TileWall::MeasureRange() {
  const int room = viewport()->height();
  verticalScrollBar()->setPageStep(room);
  verticalScrollBar()->setRange(0, std::max(0, tiles_.Rows() * tileHeight_ - room));
}

void TileWall::BringIntoView(const Cell& cell) {
  QScrollBar& bar = *verticalScrollBar();
  const int top = cell.Row * tileHeight_;
  const int lowest = top + tileHeight_ - viewport()->height();
  if (bar.value() > top) bar.setValue(top);
  if (bar.value() < lowest) bar.setValue(lowest);
}

void TileWall::resizeEvent(QResizeEvent* /*event*/) { MeasureRange(); }

void TileWall::scrollContentsBy(int /*dx*/, int /*dy*/) {
  tiles_.NoteTopRow(verticalScrollBar()->value() / tileHeight_);
  viewport()->update();
}

// --- places

// All tiles are of one size; the few pixels that are over stay free at the right.
int TileWall::ColumnWidth() const {
  return std::max(kGap + 1, (viewport()->width() + kGap) / tiles_.Cols());
}

QRect TileWall::TileAt(int row, int column) const {
  const int top = row * tileHeight_ - verticalScrollBar()->value();
  return {column * ColumnWidth(), top, ColumnWidth() - kGap, tileHeight_ - kGap};
}

std::optional<TileWall::Cell> TileWall::CellAt(const QPoint& point) const {
  const int row = (point.y() + verticalScrollBar()->value()) / tileHeight_;
  const int column = point.x() / ColumnWidth();
  if (point.y() < 0 || point.x() < 0 || row >= tiles_.Rows() || column >= tiles_.Cols()) return {};
  return Cell{row, column};
}

/// What a person sees of a tile, line by line; nothing for a gap.
QStringList TileWall::SeenLines(const Cell& cell) const {
  const std::string& text = tiles_.TextMatrix(cell.Row, cell.Column);
  QStringList lines = ToQt(std::string_view(text).substr(0, text.rfind(marker_))).split('\n');
  while (!lines.isEmpty() && lines.back().isEmpty()) lines.pop_back();
  return lines;
}

// --- walking and picking

void TileWall::Select(const Cell& cell) {
  Dispatch([&] { tiles_.Select(cell.Row, cell.Column); });
}

/// The tile at a place of the wall, counted from its beginning, or the last one before the gap
/// there.
TileWall::Cell TileWall::LastTileBefore(int place) const {
  const int columns = tiles_.Cols();
  const auto isGap = [&](int at) { return tiles_.TextMatrix(at / columns, at % columns).empty(); };
  while (place > 0 && isGap(place)) --place;
  return {place / columns, place % columns};
}

std::optional<TileWall::Cell> TileWall::TargetOf(const QKeyEvent& event) const {
  const int columns = tiles_.Cols();
  const int end = tiles_.Rows() * columns - 1;
  const int place = tiles_.Row() * columns + tiles_.Col();
  const auto at = [&](int wanted) {
    const bool outside = wanted < 0 || wanted > end;
    return LastTileBefore(outside ? place : wanted);
  };
  switch (event.key()) {
    case Qt::Key_Left:
      return at(place - 1);
    case Qt::Key_Right:
      return at(place + 1);
    case Qt::Key_Up:
      return at(place - columns);
    case Qt::Key_Down: {
      const Cell below = at(place + columns);
      return below.Row == tiles_.Row() ? Current() : below;  // under it is the gap
    }
    case Qt::Key_Home:
      return at(0);
    case Qt::Key_End:
      return at(end);
    default:
      return {};
  }
}

void TileWall::keyPressEvent(QKeyEvent* event) {
  const std::optional<Cell> target = TargetOf(*event);
  if (!target) {
    event->ignore();
    return;
  }
  if (tiles_.Rows() == 0) return;
  Select(*target);
  BringIntoView(*target);  // also one that was current already and had been scrolled away from
}

void TileWall::mousePressEvent(QMouseEvent* event) {
  const std::optional<Cell> cell = CellAt(event->position().toPoint());
  if (!cell || event->button() != Qt::LeftButton) return;
  Select(*cell);
  if (tiles_.Click) Dispatch(tiles_.Click);
}

void TileWall::mouseDoubleClickEvent(QMouseEvent* event) {
  const std::optional<Cell> cell = CellAt(event->position().toPoint());
  if (!cell || event->button() != Qt::LeftButton) return;
  Select(*cell);
  if (tiles_.DblClick) Dispatch(tiles_.DblClick);
}

void TileWall::mouseMoveEvent(QMouseEvent* event) { Point(CellAt(event->position().toPoint())); }

void TileWall::Point(const std::optional<Cell>& cell) {
  if (cell == pointed_) return;
  pointed_ = cell;
  viewport()->update();
  QToolTip::hideText();
  if (cell && tiles_.MouseMove) {
    Dispatch([&] { tiles_.MouseMove(cell->Row, cell->Column); });
  }
}

bool TileWall::viewportEvent(QEvent* event) {
  switch (event->type()) {
    case QEvent::ToolTip: {
      auto* help = static_cast<QHelpEvent*>(event);
      ShowTip(help->pos(), help->globalPos());
      return true;
    }
    case QEvent::Leave:
    case QEvent::Hide:
      Point({});
      break;
    default:
      break;
  }
  return QAbstractScrollArea::viewportEvent(event);
}

// The form's tip is the tile's whole text; the code behind the marker is not for reading.
void TileWall::ShowTip(const QPoint& at, const QPoint& globalAt) {
  const std::optional<Cell> cell = CellAt(at);
  const QStringList lines = cell ? SeenLines(*cell) : QStringList();
  if (lines.isEmpty()) return QToolTip::hideText();
  const QString text = lines.join('\n').toHtmlEscaped().replace('\n', "<br>");
  QToolTip::showText(globalAt, "<p style='white-space:pre'>" + text + "</p>", viewport(),
                     TileAt(cell->Row, cell->Column));
}

void TileWall::focusInEvent(QFocusEvent* /*event*/) { viewport()->update(); }

void TileWall::focusOutEvent(QFocusEvent* /*event*/) { viewport()->update(); }

// --- painting

void TileWall::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), QColor(look::Window));
  if (tiles_.Rows() == 0) {
    painter.setPen(QColor(look::Muted));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, placeholder_);
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  const int offset = verticalScrollBar()->value();
  const int first = (event->rect().top() + offset) / tileHeight_;
  const int last = std::min(tiles_.Rows() - 1, (event->rect().bottom() + offset) / tileHeight_);
  for (int row = first; row <= last; ++row) {
    for (int column = 0; column < tiles_.Cols(); ++column) PaintTile(painter, {row, column});
  }
}

void TileWall::PaintTile(QPainter& painter, const Cell& cell) {
  const bool current = cell == Current();
  const QStringList lines = SeenLines(cell);
  if (lines.isEmpty() && !current) return;
  const QRect room = TileAt(cell.Row, cell.Column);
  if (current) {
    PaintGround(painter, room, hasFocus() ? look::CurrentRow : look::RestingRow,
                hasFocus() ? look::Bright : look::Muted, hasFocus() ? 2 : 1);
  } else if (cell == pointed_) {
    PaintGround(painter, room, look::Paper, look::Bright, 1);
  } else {
    painter.drawPixmap(room.topLeft(), PlainGround(room.size()));
  }
  PaintText(painter, room.adjusted(kPadding, kPadding, -kPadding, -kPadding), lines);
}

// Round corners take half as long to draw as a tile's texts, and nearly all tiles look alike.
const QPixmap& TileWall::PlainGround(const QSize& size) {
  const qreal ratio = devicePixelRatioF();
  if (plainGround_.size() == size * ratio) return plainGround_;
  plainGround_ = QPixmap(size * ratio);
  plainGround_.setDevicePixelRatio(ratio);
  plainGround_.fill(look::Window);
  QPainter painter(&plainGround_);
  painter.setRenderHint(QPainter::Antialiasing);
  PaintGround(painter, QRect({0, 0}, size), look::Paper, look::Line, 1);
  return plainGround_;
}

void TileWall::PaintText(QPainter& painter, const QRect& room, const QStringList& lines) const {
  int top = room.top();
  const auto paint = [&](const QFontMetrics& metrics, const QString& line) {
    painter.drawText(QPoint(room.left(), top + metrics.ascent()), line);
    top += metrics.lineSpacing();
  };
  const QFontMetrics nameMetrics(nameFont_);
  const QStringList name = NameLines(nameMetrics, lines.value(0), room.width());
  painter.setFont(nameFont_);
  painter.setPen(QColor(isEnabled() ? look::Ink : look::Muted));
  for (const QString& line : name) paint(nameMetrics, line);

  QStringList details = lines.mid(1, kDetailLines);
  if (name.size() > 1) details = {details.join("   ")};
  const QFontMetrics metrics(detailFont_);
  painter.setFont(detailFont_);
  painter.setPen(QColor(look::Muted));
  for (const QString& line : details) {
    top += kLineGap;
    paint(metrics, metrics.elidedText(line, Qt::ElideRight, room.width()));
  }
}

}  // namespace store
