#include "ui/print_pages.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <numeric>

#include "ui/barcode.h"
#include "ui/palette.h"
#include "ui/print_text.h"
#include "ui/qt_text.h"

namespace store {
namespace {

// Tenths of a point.
constexpr int kTextSize = 85;
constexpr int kTitleSize = 200;
constexpr int kSmallSize = 75;
constexpr double kBandHeight = 480;
constexpr double kBarcodeHeight = 280;
constexpr double kWidestModule = 10;
constexpr double kHeadLine = 150;
constexpr double kHeadCaption = 560;
constexpr double kGap = 80;
constexpr double kPadding = 25;
constexpr double kTotalsHeight = 260;
constexpr double kFootHeight = 180;
constexpr double kHairline = 4;
constexpr size_t kHeadColumns = 2;
constexpr double kLeastName = 500;

const QColor kInk(paper::Ink);
const QColor kLine(paper::Line);
const QColor kHeader(paper::Header);

Qt::Alignment AlignmentOf(const PrintedColumn& column) {
  switch (column.Alignment) {
    case Align::Right:
      return Qt::AlignRight | Qt::AlignVCenter;
    case Align::Center:
      return Qt::AlignHCenter | Qt::AlignVCenter;
    default:
      return Qt::AlignLeft | Qt::AlignVCenter;
  }
}

}  // namespace

PrintPages::PrintPages(const PrintedDocument& document, QSizeF room)
    : document_(document), room_(room) {
  ChooseWidths();
  MeasureRows();
  BreakPages();
}

QFont PrintPages::FontOf(int size, bool bold) const {
  QFont font = QApplication::font();
  // The screen's letters have one drawing for the blank and the control characters, so that the
  // blanks of a PDF would read as such.
  font.setFamilies(QStringList("NanumBarunGothic") + font.families());
  font.setPixelSize(size);
  font.setBold(bold);
  font.setHintingPreference(QFont::PreferNoHinting);  // or screen and paper would measure apart
  return font;
}

double PrintPages::WidthNeeded(size_t column) const {
  const QFontMetricsF metrics(FontOf(kTextSize));
  const QFontMetricsF bold(FontOf(kTextSize, true));
  double widest = bold.horizontalAdvance(ToQt(document_.Columns[column].Header));
  for (const auto& row : document_.Rows) {
    widest = std::max(widest, metrics.horizontalAdvance(ToQt(row[column])));
  }
  return widest + 2 * kPadding;
}

/// Codes and figures get what their longest text needs. The names share the rest: one that needs
/// less than its part leaves it to the others, and the last takes what is over.
void PrintPages::ChooseWidths() {
  std::vector<size_t> names;
  double rest = room_.width();
  for (size_t i = 0; i < document_.Columns.size(); ++i) {
    widths_.push_back(WidthNeeded(i));
    if (document_.Columns[i].IsName) {
      names.push_back(i);
    } else {
      rest -= widths_[i];
    }
  }
  std::sort(names.begin(), names.end(),
            [this](size_t one, size_t other) { return widths_[one] < widths_[other]; });
  for (size_t i = 0; i < names.size(); ++i) {
    const double part = std::max(kLeastName, rest / static_cast<double>(names.size() - i));
    const bool last = i + 1 == names.size();
    widths_[names[i]] = last ? part : std::min(widths_[names[i]], part);
    rest -= widths_[names[i]];
  }
}

double PrintPages::CellHeight(const std::string& text, size_t column) const {
  return TextHeight(FontOf(kTextSize), widths_[column] - 2 * kPadding, ToQt(text));
}

void PrintPages::MeasureRows() {
  const double oneLine = QFontMetricsF(FontOf(kTextSize)).height();
  for (const auto& row : document_.Rows) {
    double height = oneLine;
    for (size_t i = 0; i < widths_.size(); ++i) {
      if (document_.Columns[i].IsName) height = std::max(height, CellHeight(row[i], i));
    }
    heights_.push_back(height + 2 * kPadding);
  }
}

double PrintPages::HeadHeight(bool firstPage) const {
  const size_t lines = (document_.Head.size() + kHeadColumns - 1) / kHeadColumns;
  return kBandHeight + (firstPage ? static_cast<double>(lines) * kHeadLine + kGap : 0);
}

void PrintPages::BreakPages() {
  const double tableHead = QFontMetricsF(FontOf(kTextSize, true)).height() + 2 * kPadding;
  const auto roomOf = [&](bool firstPage) {
    return room_.height() - HeadHeight(firstPage) - tableHead - kFootHeight;
  };
  double left = roomOf(true);
  pages_.emplace_back();
  for (size_t row = 0; row < heights_.size(); ++row) {
    if (heights_[row] > left && pages_.back().End > pages_.back().First) {
      pages_.push_back({.First = row, .End = row});
      left = roomOf(false);
    }
    left -= heights_[row];
    pages_.back().End = row + 1;
  }
  if (left < kGap + kTotalsHeight) pages_.push_back({heights_.size(), heights_.size()});
  pages_.back().HasTotals = true;
}

void PrintPages::Paint(QPainter& painter, int page) const {
  const Page& shown = pages_[static_cast<size_t>(page)];
  painter.setPen(QPen(kInk, kHairline));
  PaintBand(painter);
  double top = kBandHeight;
  if (page == 0) top = PaintHead(painter, top);
  if (shown.End > shown.First) top = PaintTableHead(painter, top);
  for (size_t row = shown.First; row < shown.End; ++row) top = PaintRow(painter, row, top);
  if (shown.HasTotals) PaintTotals(painter, top + kGap);
  PaintFoot(painter, page);
}

void PrintPages::PaintBand(QPainter& painter) const {
  painter.setFont(FontOf(kTitleSize, true));
  DrawText(painter, QRectF(0, 0, room_.width() / 2, kBarcodeHeight),
           Qt::AlignLeft | Qt::AlignVCenter, ToQt(document_.Title));
  PaintBarcode(painter);
}

void PrintPages::PaintBarcode(QPainter& painter) const {
  const Barcode barcode = Code128(document_.Key);
  const double most = room_.width() * 0.62;
  painter.setFont(FontOf(kSmallSize));
  if (barcode.Width <= 0) {
    DrawText(painter, QRectF(room_.width() - most, 0, most, kBarcodeHeight),
             Qt::AlignRight | Qt::AlignVCenter, ToQt(document_.Key));
    return;
  }
  const double scale = std::min(kWidestModule / barcode.ModuleWidth, most / barcode.Width);
  const double left = room_.width() - barcode.Width * scale;
  for (const Barcode::Bar& bar : barcode.Bars) {
    painter.fillRect(QRectF(left + bar.Left * scale, 0, bar.Width * scale, kBarcodeHeight), kInk);
  }
  DrawText(painter, QRectF(left, kBarcodeHeight + 10, barcode.Width * scale, 120),
           Qt::AlignHCenter | Qt::AlignTop, ToQt(document_.Key));
}

double PrintPages::PaintHead(QPainter& painter, double top) const {
  const double half = room_.width() / kHeadColumns;
  for (size_t i = 0; i < document_.Head.size(); ++i) {
    const double left = half * static_cast<double>(i % kHeadColumns);
    const double line = top + kHeadLine * static_cast<double>(i / kHeadColumns);
    const QFont font = FontOf(kTextSize, true);
    painter.setFont(font);
    DrawText(painter, QRectF(left, line, kHeadCaption, kHeadLine), Qt::AlignVCenter,
             ToQt(document_.Head[i].first));
    painter.setFont(FontOf(kTextSize));
    const double room = half - kHeadCaption - kGap;
    const QString value = QFontMetricsF(painter.font())
                              .elidedText(ToQt(document_.Head[i].second), Qt::ElideRight, room);
    DrawText(painter, QRectF(left + kHeadCaption, line, room, kHeadLine), Qt::AlignVCenter, value);
  }
  return HeadHeight(true);
}

void PrintPages::PaintCell(QPainter& painter, const QRectF& cell, size_t column,
                           const std::string& text, bool header) const {
  const PrintedColumn& shown = document_.Columns[column];
  DrawText(painter, cell.adjusted(kPadding, 0, -kPadding, 0),
           header ? Qt::AlignCenter : AlignmentOf(shown), ToQt(text), shown.IsName && !header);
}

double PrintPages::PaintTableHead(QPainter& painter, double top) const {
  painter.setFont(FontOf(kTextSize, true));
  const double height = QFontMetricsF(painter.font()).height() + 2 * kPadding;
  painter.fillRect(QRectF(0, top, room_.width(), height), kHeader);
  double left = 0;
  for (size_t i = 0; i < widths_.size(); ++i) {
    PaintCell(painter, {left, top, widths_[i], height}, i, document_.Columns[i].Header, true);
    left += widths_[i];
  }
  return top + height;
}

double PrintPages::PaintRow(QPainter& painter, size_t row, double top) const {
  painter.setFont(FontOf(kTextSize));
  double left = 0;
  for (size_t i = 0; i < widths_.size(); ++i) {
    PaintCell(painter, {left, top, widths_[i], heights_[row]}, i, document_.Rows[row][i], false);
    left += widths_[i];
  }
  const double bottom = top + heights_[row];
  painter.setPen(QPen(kLine, kHairline));
  painter.drawLine(QPointF(0, bottom), QPointF(room_.width(), bottom));
  painter.setPen(QPen(kInk, kHairline));
  return bottom;
}

void PrintPages::PaintTotals(QPainter& painter, double top) const {
  const double width = room_.width() / static_cast<double>(document_.Totals.size());
  painter.drawRect(QRectF(0, top, room_.width(), kTotalsHeight));
  double left = 0;
  for (const auto& [caption, value] : document_.Totals) {
    const QRectF cell = QRectF(left, top, width, kTotalsHeight).adjusted(kGap, 0, -kGap, 0);
    painter.setFont(FontOf(kTextSize));
    DrawText(painter, cell, Qt::AlignLeft | Qt::AlignVCenter, ToQt(caption));
    painter.setFont(FontOf(kTextSize + 25, true));
    DrawText(painter, cell, Qt::AlignRight | Qt::AlignVCenter, ToQt(value));
    left += width;
  }
}

void PrintPages::PaintFoot(QPainter& painter, int page) const {
  const QRectF foot(0, room_.height() - kFootHeight + kGap, room_.width(), kFootHeight - kGap);
  painter.setFont(FontOf(kSmallSize));
  DrawText(painter, foot, Qt::AlignLeft | Qt::AlignBottom, ToQt(document_.Foot));
  DrawText(painter, foot, Qt::AlignHCenter | Qt::AlignBottom,
           QString("%1 / %2").arg(page + 1).arg(Count()));
}

}  // namespace store
