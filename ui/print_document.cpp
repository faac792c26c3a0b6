#include "ui/print_document.h"

#include <QFile>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrinter>

#include "ui/desk.h"
#include "ui/print_pages.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr qreal kMargin = 12;  // millimetres
constexpr double kPointsInInch = 72;

}  // namespace

void UsePaper(QPagedPaintDevice& device) {
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                   QMarginsF(kMargin, kMargin, kMargin, kMargin),
                                   QPageLayout::Millimeter));
}

int PaintDocument(const PrintedDocument& document, QPagedPaintDevice& device) {
  const QSizeF room = device.pageLayout().paintRect(QPageLayout::Point).size();
  const PrintPages pages(document, room * PrintPages::kUnitsInPoint);
  QPainter painter;
  if (!painter.begin(&device)) return 0;
  const double scale = device.logicalDpiX() / kPointsInInch / PrintPages::kUnitsInPoint;
  for (int page = 0; page < pages.Count(); ++page) {
    if (page > 0 && !device.newPage()) return 0;
    painter.save();
    painter.scale(scale, scale);
    pages.Paint(painter, page);
    painter.restore();
  }
  return painter.end() ? pages.Count() : 0;
}

PrintFate PrintOnPrinter(const PrintedDocument& document) {
  Desk& desk = TheDesk();
  desk.SyncWindows();
  QPrinter printer(QPrinter::HighResolution);
  UsePaper(printer);
  printer.setDocName(ToQt(document.Title + " " + document.Key));
  QPrintDialog dialog(&printer, desk.FrontWindow());
  dialog.setWindowTitle("인쇄");
  desk.BoxOpened();
  const bool chosen = dialog.exec() == QDialog::Accepted;
  desk.BoxClosed();
  if (!chosen) return PrintFate::Cancelled;
  const Hourglass waiting;
  return PaintDocument(document, printer) > 0 ? PrintFate::Printed : PrintFate::Failed;
}

bool WritePdf(const PrintedDocument& document, const std::string& path) {
  QFile file(ToQt(path));
  if (!file.open(QIODevice::WriteOnly)) return false;
  {
    QPdfWriter writer(&file);
    UsePaper(writer);
    writer.setTitle(ToQt(document.Title + " " + document.Key));
    if (PaintDocument(document, writer) == 0) return false;
  }
  return file.flush() && file.error() == QFileDevice::NoError;
}

}  // namespace store
