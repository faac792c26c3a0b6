#include "ui/options_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "start/frmOptions.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kWidth = 520;

}  // namespace

OptionsWindow::OptionsWindow(frmOptions& form) : FormWindow(form) {
  auto* content = Column();
  content->addWidget(ConnectionFields());
  content->addWidget(Choices());
  content->addWidget(OrderTypes(static_cast<int>(form.SSOption1.size())));
  for (size_t i = 0; i < form.Label2.size(); ++i) {
    content->addWidget(Named(QString("Label2_%1").arg(i), CaptionLabel({})));
  }
  content->addStretch();
  content->addWidget(Buttons());
  FillWindow(*this, content);
  BindControls();
  FitContent(*this, {kWidth, 0});
}

QWidget* OptionsWindow::ConnectionFields() {
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(10);
  const auto place = [&](int index, QWidget* field) {
    const int line = fields->rowCount();
    fields->addWidget(Named(QString("Label1_%1").arg(index), CaptionLabel({})), line, 0);
    fields->addWidget(field, line, 1);
  };
  for (const int index : {0, 1, 2, 4}) {
    place(index, Named(QString("Text1_%1").arg(index), new QLineEdit));
  }
  place(3, Named("Combo1", new QComboBox));
  return Group("card", fields);
}

QWidget* OptionsWindow::Choices() {
  auto* column = Column();
  for (const char* check : {"Check1", "Check2", "Check3", "Check4"}) {
    column->addWidget(Named(check, new QCheckBox));
  }
  return Group("card", column);
}

QWidget* OptionsWindow::OrderTypes(int count) {
  auto* types = new QGridLayout;
  types->addWidget(HeadingLabel("발주타입"), 0, 0, 1, 2);
  for (int i = 0; i < count; ++i) {
    types->addWidget(Named(QString("SSOption1_%1").arg(i), new QRadioButton), 1 + i / 2, i % 2);
  }
  return Group("card", types);
}

QWidget* OptionsWindow::Buttons() {
  auto* apply = Named("cmdApply", new KeyButton({}, Qt::Key_F9));
  auto* cancel = Named("cmdCancel", new KeyButton({}, Qt::Key_Escape));
  for (KeyButton* button : {apply, cancel}) button->setFocusPolicy(Qt::TabFocus);
  apply->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(apply);
  row->addWidget(cancel);
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  return buttons;
}

}  // namespace store
