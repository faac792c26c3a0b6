#pragma once

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <vector>

#include "forms/printed_document.h"

class QPainter;

namespace store {

/// A document on pages. Its lengths are tenths of a point, whatever it is painted on, so that
/// preview, printer and file break the lines and the pages at the same places.
class PrintPages {
 public:
  static constexpr double kUnitsInPoint = 10;

  /// `room` is what the margins of the paper leave.
  PrintPages(const PrintedDocument& document, QSizeF room);

  int Count() const { return static_cast<int>(pages_.size()); }
  /// Paints a page, counted from 0; the painter's unit is a tenth of a point.
  void Paint(QPainter& painter, int page) const;

 private:
  struct Page {
    size_t First = 0;  // of its rows
    size_t End = 0;
    bool HasTotals = false;
  };

  double WidthNeeded(size_t column) const;
  void ChooseWidths();
  void MeasureRows();
  void BreakPages();
  double HeadHeight(bool firstPage) const;
  double CellHeight(const std::string& text, size_t column) const;
  QFont FontOf(int size, bool bold = false) const;

  void PaintBand(QPainter& painter) const;
  void PaintBarcode(QPainter& painter) const;
  double PaintHead(QPainter& painter, double top) const;
  double PaintTableHead(QPainter& painter, double top) const;
  double PaintRow(QPainter& painter, size_t row, double top) const;
  void PaintTotals(QPainter& painter, double top) const;
  void PaintFoot(QPainter& painter, int page) const;
  void PaintCell(QPainter& painter, const QRectF& cell, size_t column, const std::string& text,
                 bool header) const;

  const PrintedDocument& document_;
  QSizeF room_;
  std::vector<double> widths_;   // of the columns
  std::vector<double> heights_;  // of the rows
  std::vector<Page> pages_;
};

}  // namespace store
