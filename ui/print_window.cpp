#include "ui/print_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QVBoxLayout>

#include "lookup/frmPrint.h"
#include "ui/elided_label.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/print_document.h"

namespace store {
namespace {

constexpr QSize kSize(960, 720);

}  // namespace

PrintWindow::PrintWindow(frmPrint& form)
    : FormWindow(form), print_(form), paper_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
  // The preview is of the paper, whatever printer there is.
  paper_->setOutputFormat(QPrinter::PdfFormat);
  UsePaper(*paper_);
  auto* content = Column();
  content->addWidget(Pages(), 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  Layout().OpenAs(kSize, 0.8);
  preview_->setFocus();
}

PrintWindow::~PrintWindow() { delete preview_; }  // it paints on the paper

QWidget* PrintWindow::Pages() {
  preview_ = Named("Preview", new QPrintPreviewWidget(paper_.get()));
  connect(preview_, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* printer) { PaintDocument(print_.Document, *printer); });
  connect(preview_, &QPrintPreviewWidget::previewChanged, this, [this] { TellPage(); });
  preview_->setViewMode(QPrintPreviewWidget::SinglePageView);
  preview_->fitInView();
  // The view and its page are parts of the library's own, and have no caption.
  for (auto* part : preview_->findChildren<QWidget*>()) part->setAccessibleName("인쇄 미리 보기");
  return preview_;
}

QWidget* PrintWindow::Foot() {
  auto* earlier = new KeyButton("앞 쪽", QKeySequence(Qt::ALT | Qt::Key_Left));
  auto* later = new KeyButton("다음 쪽", QKeySequence(Qt::ALT | Qt::Key_Right));
  auto* width = new KeyButton("너비 맞춤", QKeySequence(Qt::ALT | Qt::Key_W));
  auto* whole = new KeyButton("쪽 맞춤", QKeySequence(Qt::ALT | Qt::Key_P));
  page_ = Named("Page", new QLabel);
  auto* row = Row();
  row->addWidget(earlier);
  row->addWidget(page_);
  for (KeyButton* button : {later, width, whole}) row->addWidget(button);
  row->addWidget(Named("LaSheet", new ElidedLabel), 1);
  auto* print = Named("Command1", new KeyButton({}, QKeySequence(Qt::CTRL | Qt::Key_P)));
  print->MarkMain();
  row->addWidget(print);
  row->addWidget(Named("Command2", new KeyButton({}, QKeySequence(Qt::CTRL | Qt::Key_S))));
  row->addWidget(Named("Command3", new KeyButton({}, Qt::Key_Escape)));
  OnPress(*earlier, [this] { WalkPages(-1); });
  OnPress(*later, [this] { WalkPages(1); });
  OnPress(*width, [this] { preview_->fitToWidth(); });
  OnPress(*whole, [this] { preview_->fitInView(); });
  return Group("totals", row);
}

void PrintWindow::WalkPages(int step) {
  const int page = preview_->currentPage() + step;
  if (page >= 1 && page <= preview_->pageCount()) preview_->setCurrentPage(page);
  TellPage();
}

void PrintWindow::TellPage() {
  if (page_ == nullptr) return;
  page_->setText(QString("%1 / %2").arg(preview_->currentPage()).arg(preview_->pageCount()));
}

}  // namespace store
