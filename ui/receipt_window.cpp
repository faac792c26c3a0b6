#include "ui/receipt_window.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "receipt/frm_PE_UNIT.h"
#include "ui/bindings.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1000, 660);
constexpr int kTwoLines = 2;
constexpr int kBoxWidth = 220;

}  // namespace

ReceiptWindow::ReceiptWindow(frm_PE_UNIT& form) : FormWindow(form), receipt_(form) {
  auto* content = Column();
  content->addWidget(Header());
  content->addWidget(QuantityBox());
  content->addWidget(Lines(), 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  ChainTabOrder();
  resize(kSize);
}

QWidget* ReceiptWindow::Header() {
  auto* partner = new QLineEdit;
  auto* ordered = new QDateEdit;
  auto* received = new QDateEdit;
  auto* depot = new QComboBox;
  auto* close = new KeyButton("닫기", Qt::Key_Escape);
  depot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  depot->setMinimumContentsLength(8);
  auto* row = Row();
  row->addWidget(CaptionLabel("거래처"));
  row->addWidget(partner, 3);
  row->addWidget(CaptionLabel("발주일자"));
  row->addWidget(ordered);
  row->addWidget(CaptionLabel("입고일자"));
  row->addWidget(received);
  row->addWidget(CaptionLabel("입고하치장(창고)"));
  row->addWidget(depot, 2);
  row->addWidget(close);
  BindTextBox(*this, "Text1", receipt_.Text1, *partner);
  BindDatePicker(*this, "DTOrderDate", receipt_.DTOrderDate, *ordered);
  BindDatePicker(*this, "DTPicker1", receipt_.DTPicker1, *received);
  BindComboBox(*this, "Combo1", receipt_.Combo1, *depot);
  BindPress(*this, "Label4", receipt_.Label4, *close, [this] { receipt_.Label4_Click(); });
  return Group("card", row);
}

QWidget* ReceiptWindow::QuantityBox() {
  auto* box = new QLineEdit;
  box->setFont(BoxFont());
  box->setFixedWidth(kBoxWidth);
  box->setPlaceholderText("입고량");
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(box);
  row->addWidget(CaptionLabel("↑ ↓ 로 행을 고르고 입고량을 넣은 뒤 Enter      Del 행 삭제"), 1);
  auto* line = new QWidget;
  line->setLayout(row);
  BindTextBox(*this, "inBox", receipt_.inBox, *box);
  OnKey(receipt_.inBox, [this](Key key) {
    receipt_.inBox_KeyDown(key);
    receipt_.inBox_KeyPress(key);
    return key == Key::Enter || key == Key::Up || key == Key::Down;
  });
  return line;
}

QWidget* ReceiptWindow::Lines() {
  auto* lines = new GridView(receipt_.FLEX1, kTwoLines);
  lines->Events.KeyPress = [this](const std::string& text) { receipt_.FLEX1_KeyPress(text); };
  BindGrid(*this, "FLEX1", receipt_.FLEX1, *lines);
  OnKey(receipt_.FLEX1, [this](Key key) {
    receipt_.FLEX1_KeyDown(key);
    return key == Key::F12;
  });
  return lines;
}

QWidget* ReceiptWindow::Foot() {
  auto* row = Row();
  AddTotal(*row, "건수", 0, false);
  AddTotal(*row, "공급가액", 2, false);
  AddTotal(*row, "부가세액", 3, false);
  AddTotal(*row, "합계금액", 1, true);
  row->addStretch();
  auto* sheet = new KeyButton("엑셀", Qt::Key_F12);
  auto* confirm = new KeyButton({}, Qt::Key_F9);
  confirm->MarkMain();
  confirm->setFocusPolicy(Qt::TabFocus);
  row->addWidget(sheet);
  row->addWidget(confirm);
  connect(sheet, &QPushButton::clicked, this,
          [this] { Act([this] { receipt_.FLEX1_KeyDown(Key::F12); }); });
  OnShortcut(sheet->Keys(), [sheet] { sheet->click(); });
  BindPress(*this, "Command1_1", receipt_.Command1[1], *confirm,
            [this] { receipt_.Command1_Click(1); });
  return Group("totals", row);
}

void ReceiptWindow::AddTotal(QHBoxLayout& row, const QString& caption, size_t index, bool big) {
  QLabel* amount = big ? TotalLabel() : new QLabel;
  row.addWidget(CaptionLabel(caption));
  row.addWidget(amount);
  row.addSpacing(12);
  BindLabel(*this, QString("LaAmt_%1").arg(index), receipt_.LaAmt[index], *amount);
}

}  // namespace store
