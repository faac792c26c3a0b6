#include "ui/guide_view.h"

#include <QAbstractTextDocumentLayout>
#include <QImage>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextTable>
#include <utility>

#include "ui/guide_pages.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kMargin = 14;
constexpr int kCellPadding = 4;

void DressTable(QTextTable& table) {
  QTextTableFormat format = table.format();
  format.setBorder(1);
  format.setBorderBrush(QColor(look::Line));
  format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
  format.setBorderCollapse(true);
  format.setCellPadding(Scaled(kCellPadding));
  table.setFormat(format);
  for (int column = 0; column < table.columns(); ++column) {
    QTextTableCell cell = table.cellAt(0, column);
    QTextTableCellFormat head = cell.format().toTableCellFormat();
    head.setBackground(QColor(look::Header));
    cell.setFormat(head);
  }
}

}  // namespace

GuideView::GuideView(QString folder) : folder_(std::move(folder)) {
  setAccessibleName("사용 설명서");
  connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl& page) {
    Dress();
    GoToHeading(page.fragment());
  });
  FollowLook(*this, [this] {
    if (!source().isEmpty()) reload();
  });
}

void GuideView::GoTo(const QString& page) {
  QUrl address = QUrl::fromLocalFile(folder_ + "/" + page.section('#', 0, 0));
  address.setFragment(page.section('#', 1));
  setSource(address);
}

void GuideView::Dress() {
  document()->setDocumentMargin(Scaled(kMargin));
  for (QTextFrame* frame : document()->rootFrame()->childFrames()) {
    if (auto* table = qobject_cast<QTextTable*>(frame)) DressTable(*table);
  }
}

// A page of this kind has no anchors of its own; its headings are them.
void GuideView::GoToHeading(const QString& anchor) {
  if (anchor.isEmpty()) return;
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    if (block.blockFormat().headingLevel() == 0 || AnchorOf(block.text()) != anchor) continue;
    setTextCursor(QTextCursor(block));
    verticalScrollBar()->setValue(
        static_cast<int>(document()->documentLayout()->blockBoundingRect(block).top()));
    return;
  }
}

bool GuideView::FindNext(const QString& text, bool backwards) {
  if (text.isEmpty()) return false;
  const auto way = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
  if (find(text, way)) return true;
  const QTextCursor before = textCursor();
  moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
  if (find(text, way)) return true;
  setTextCursor(before);
  return false;
}

QVariant GuideView::loadResource(int type, const QUrl& name) {
  const QVariant content = QTextBrowser::loadResource(type, name);
  if (type != QTextDocument::ImageResource) return content;
  QImage picture = QImage::fromData(content.toByteArray());
  const double ratio = devicePixelRatioF();
  const int room = static_cast<int>((viewport()->width() - 2 * Scaled(kMargin)) * ratio);
  if (picture.width() > room) picture = picture.scaledToWidth(room, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(ratio);
  return picture;
}

}  // namespace store
