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
#include "ui/bindings.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kWidth = 520;

}  // namespace

OptionsWindow::OptionsWindow(frmOptions& form) : FormWindow(form), options_(form) {
  auto* content = Column();
  content->addWidget(ConnectionFields());
  content->addWidget(Choices());
  content->addWidget(OrderTypes());
  for (size_t i = 0; i < form.Label2.size(); ++i) {
    QLabel* note = CaptionLabel({});
    content->addWidget(note);
    BindLabel(*this, QString("Label2_%1").arg(i), form.Label2[i], *note);
  }
  content->addStretch();
  content->addWidget(Buttons());
  FillWindow(*this, content);
  ChainTabOrder();
  resize(kWidth, sizeHint().height());
}

QWidget* OptionsWindow::ConnectionFields() {
  auto* fields = new QGridLayout;
  fields->setHorizontalSpacing(10);
  int line = 0;
  const auto place = [&](size_t index, QWidget* field) {
    QLabel* caption = CaptionLabel({});
    BindLabel(*this, QString("Label1_%1").arg(index), options_.Label1[index], *caption);
    fields->addWidget(caption, line, 0);
    fields->addWidget(field, line++, 1);
  };
  for (const int index : {0, 1, 2, 4}) {
    const auto at = static_cast<size_t>(index);
    auto* edit = new QLineEdit;
    place(at, edit);
    BindTextBox(*this, QString("Text1_%1").arg(index), options_.Text1[at], *edit);
    OnKey(options_.Text1[at], [this, index](Key key) {
      options_.Text1_KeyPress(index, key);
      return key == Key::Enter;
    });
  }
  auto* policy = new QComboBox;
  place(3, policy);
  BindComboBox(*this, "Combo1", options_.Combo1, *policy);
  return Group("card", fields);
}

QWidget* OptionsWindow::Choices() {
  auto* column = Column();
  const auto add = [&](const char* name, CheckBox& check) {
    auto* box = new QCheckBox;
    column->addWidget(box);
    BindCheckBox(*this, name, check, *box);
  };
  add("Check1", options_.Check1);
  add("Check2", options_.Check2);
  add("Check3", options_.Check3);
  add("Check4", options_.Check4);
  return Group("card", column);
}

QWidget* OptionsWindow::OrderTypes() {
  auto* types = new QGridLayout;
  types->addWidget(HeadingLabel("발주타입"), 0, 0, 1, 2);
  for (size_t i = 0; i < options_.SSOption1.size(); ++i) {
    OptionButton& option = options_.SSOption1[i];
    auto* radio = new QRadioButton;
    const int at = static_cast<int>(i);
    types->addWidget(radio, 1 + at / 2, at % 2);
    BindOption(*this, QString("SSOption1_%1").arg(at), option, *radio,
               [this, at] { options_.SSOption1_Click(at); });
  }
  return Group("card", types);
}

QWidget* OptionsWindow::Buttons() {
  auto* apply = new KeyButton({}, Qt::Key_F9);
  auto* cancel = new KeyButton({}, Qt::Key_Escape);
  for (KeyButton* button : {apply, cancel}) button->setFocusPolicy(Qt::TabFocus);
  apply->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(apply);
  row->addWidget(cancel);
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  BindPress(*this, "cmdApply", options_.cmdApply, *apply, [this] { options_.cmdApply_Click(); });
  BindPress(*this, "cmdCancel", options_.cmdCancel, *cancel,
            [this] { options_.cmdCancel_Click(); });
  return buttons;
}

}  // namespace store
