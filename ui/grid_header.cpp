#include "ui/grid_header.h"

namespace store {

void GridHeader::ShowBelow(QWidget* line) {
  line_ = line;
  PlaceLine();
  updateGeometry();
}

int GridHeader::LineHeight() const { return line_ == nullptr ? 0 : line_->sizeHint().height(); }

QSize GridHeader::sizeHint() const {
  const QSize titles = QHeaderView::sizeHint();
  return {titles.width(), titles.height() + LineHeight()};
}

void GridHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  QHeaderView::paintSection(painter, rect.adjusted(0, 0, 0, -LineHeight()), section);
}

void GridHeader::resizeEvent(QResizeEvent* event) {
  QHeaderView::resizeEvent(event);
  PlaceLine();
}

void GridHeader::PlaceLine() {
  if (line_ != nullptr) line_->setGeometry(0, height() - LineHeight(), width(), LineHeight());
}

}  // namespace store
