#include "ui/progress_panel.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "ui/form_window.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(420, 110);
constexpr int kMargin = 14;

}  // namespace

ProgressPanel::ProgressPanel(QWidget& window) : QFrame(&window) {
  setObjectName("SSPanel1");
  setProperty("role", "popup");
  setAutoFillBackground(true);
  auto* column = Column();
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  auto* bar = Named("ProgressBar1", new QProgressBar);
  column->addWidget(Named("Label2", HeadingLabel({})));
  column->addWidget(bar);
  column->addWidget(Named("SSPanel2", CaptionLabel("처리자료를 정리중입니다.....잠시만 "
                                                   "기다려주세요......")));
  column->addStretch();
  setLayout(column);
  hide();
}

void ProgressPanel::showEvent(QShowEvent* event) {
  QRect place(QPoint(), Scaled(kSize).boundedTo(parentWidget()->size()));
  place.moveCenter(parentWidget()->rect().center());
  setGeometry(place);
  raise();
  QFrame::showEvent(event);
}

}  // namespace store
