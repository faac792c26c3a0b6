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

ProgressPanel::ProgressPanel(QWidget& window, const Names& names, const QString& remark)
    : QFrame(&window) {
  setObjectName(names.Panel);
  setProperty("role", "popup");
  setAutoFillBackground(true);
  auto* column = Column();
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(Named(names.What, HeadingLabel({})));
  column->addWidget(Named(names.Bar, new QProgressBar));
  column->addWidget(Named(names.Remark, CaptionLabel(remark)));
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
