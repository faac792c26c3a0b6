#include "ui/new_product_window.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "lookup/NEW_PR.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr QSize kSize(760, 400);

QLineEdit* Field(int index) { return Named(QString("txBox_%1").arg(index), new QLineEdit); }

QLineEdit* NumberField(int index) {
  QLineEdit* field = Field(index);
  field->setAlignment(Qt::AlignRight);
  return field;
}

QComboBox* Choice(int index) {
  auto* choice = Named(QString("Combo1_%1").arg(index), new QComboBox);
  choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  choice->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  return choice;
}

/// Captions in front of their fields, one under the other.
class Lines : public QGridLayout {
 public:
  Lines() {
    setHorizontalSpacing(10);
    setColumnStretch(1, 1);
  }
  void Add(const QString& caption, QWidget* field) { addWidget(field, AddCaption(caption), 1); }
  void Add(const QString& caption, QLayout* fields) { addLayout(fields, AddCaption(caption), 1); }

 private:
  int AddCaption(const QString& caption) {
    const int line = rowCount();
    addWidget(CaptionLabel(caption), line, 0);
    return line;
  }
};

}  // namespace

NewProductWindow::NewProductWindow(NEW_PR& form) : FormWindow(form), product_(form) {
  auto* halves = Row();
  halves->addWidget(Article(), 1);
  halves->addWidget(Trade(), 1);
  auto* content = Column();
  content->addLayout(halves);
  content->addWidget(Message(), 1);
  content->addWidget(Buttons());
  FillWindow(*this, content);
  BindControls();
  FitContent(*this, kSize);
}

QWidget* NewProductWindow::Article() {
  auto* code = Row();
  code->addWidget(Field(0), 1);
  code->addWidget(Named("LaCodeinformation", CaptionLabel({})));
  auto* lines = new Lines;
  lines->Add("코    드", code);
  lines->Add("품 목 명", Field(1));
  lines->Add("규    격", Field(2));
  lines->Add("파트넘버", Field(3));
  lines->Add("관리번호(바코드)", Field(4));
  lines->Add("품목분류", Choice(5));
  lines->Add("기본단위", Choice(0));
  lines->Add("세액구분", Choice(1));
  lines->setRowStretch(lines->rowCount(), 1);
  return Group("card", lines);
}

QWidget* NewProductWindow::Trade() {
  auto* lines = new Lines;
  lines->Add("재고구분", Choice(2));
  lines->Add("재고평가", Choice(3));
  lines->Add("재고취급", Choice(4));
  lines->Add("적정재고", NumberField(5));
  lines->Add("주발주처", Supplier());
  lines->Add("입 고 가", NumberField(7));
  lines->Add("소비자가", NumberField(8));
  lines->Add("출 고 가", NumberField(9));
  lines->Add("마 진 율", NumberField(10));
  lines->setRowStretch(lines->rowCount(), 1);
  return Group("card", lines);
}

QHBoxLayout* NewProductWindow::Supplier() {
  auto* find = new KeyButton("찾기");
  find->WriteKey("F1");
  OnPress(*find, [this] { product_.OpenSupplierLookup(); });
  auto* row = Row();
  row->addWidget(Field(6), 1);
  row->addWidget(find);
  return row;
}

/// The server's words about a failed save can take several lines.
QWidget* NewProductWindow::Message() {
  auto* message = Named("LBL_MSG", new QLabel);
  message->setProperty("role", "warning");
  message->setWordWrap(true);
  message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return message;
}

QWidget* NewProductWindow::Buttons() {
  auto* save = Named("Command1_0", new KeyButton);
  auto* close = Named("Command1_1", new KeyButton);
  for (KeyButton* button : {save, close}) button->setFocusPolicy(Qt::TabFocus);
  save->MarkMain();
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addStretch();
  row->addWidget(save);
  row->addWidget(close);
  auto* buttons = new QWidget;
  buttons->setLayout(row);
  return buttons;
}

}  // namespace store
