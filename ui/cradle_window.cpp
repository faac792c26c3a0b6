#include "ui/cradle_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QVBoxLayout>

#include "handheld/FRM_CRDIMP.h"
#include "ui/binding.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kWidth = 460;

QRadioButton* Price(int index) {
  auto* option = Named(QString("Option1_%1").arg(index), new QRadioButton);
  option->setProperty(kLetterProperty, QString::number(index + 1));
  return option;
}

}  // namespace

CradleWindow::CradleWindow(FRM_CRDIMP& form) : FormWindow(form) {
  auto* content = Column();
  auto* title = Row();
  title->setSpacing(0);
  title->addWidget(Named("Label1", HeadingLabel({})));
  title->addWidget(Named("Label3", HeadingLabel({})));
  title->addStretch();
  content->addLayout(title);
  content->addWidget(Choices());
  content->addWidget(Progress());
  content->addStretch();
  content->addWidget(Buttons());
  FillWindow(*this, content);
  BindControls();
  FitContent(*this, {kWidth, 0});
}

QWidget* CradleWindow::Choices() {
  auto* choices = new QGridLayout;
  choices->addWidget(Price(0), 0, 0);
  for (const int level : {0, 1}) {
    choices->addWidget(Price(level + 1), level + 1, 0);
    choices->addWidget(Named(QString("Combo1_%1").arg(level), new QComboBox), level + 1, 1);
  }
  choices->addWidget(Named("ChkMaster", new QCheckBox), 3, 0);
  choices->setColumnStretch(1, 1);
  return Group("card", choices);
}

QWidget* CradleWindow::Progress() {
  auto* column = Column();
  column->addWidget(Named("LBLMsg", new QLabel));
  column->addWidget(Named("PBar1", new QProgressBar));
  auto* state = Row();
  for (const int label : {0, 3, 1, 2}) {
    state->addWidget(Named(QString("Label2_%1").arg(label), CaptionLabel({})));
  }
  state->addStretch();
  column->addLayout(state);
  return Group("card", column);
}

QWidget* CradleWindow::Buttons() {
  auto* confirm = Named("Command1_0", new KeyButton({}, Qt::Key_F9));
  confirm->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(confirm);
  row->addWidget(Named("Command1_1", new KeyButton({}, Qt::Key_Escape)));
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  return buttons;
}

}  // namespace store
