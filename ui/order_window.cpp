#include "ui/order_window.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSplitter>
#include <QVBoxLayout>

#include "order/order_form.h"
#include "ui/bindings.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/history_chart_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1024, 720);
constexpr int kTwoLines = 2;
constexpr int kNameColumn = 4;  // of the pick list
constexpr int kQuantityRow = 4;

QWidget* Titled(const QString& title, QWidget* content) {
  auto* column = Column();
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addWidget(HeadingLabel(title));
  column->addWidget(content, 1);
  auto* titled = new QWidget;
  titled->setLayout(column);
  return titled;
}

}  // namespace

OrderWindow::OrderWindow(OrderForm& form) : FormWindow(form), order_(form) {
  auto* choice = new QSplitter(Qt::Vertical);
  choice->addWidget(Categories());
  choice->addWidget(PickList());
  choice->setSizes({130, 400});
  choice->setStretchFactor(1, 1);
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->addWidget(Lines());
  halves->addWidget(choice);
  halves->setSizes({520, 480});
  for (QSplitter* splitter : {choice, halves}) splitter->setChildrenCollapsible(false);

  auto* content = Column();
  content->addWidget(Header());
  content->addWidget(ItemBox());
  content->addWidget(halves, 1);
  content->addWidget(History());
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindTimer(*this, form.Timer1, [&form] { form.Timer1_Timer(); });
  ChainTabOrder();
  resize(kSize);
}

QWidget* OrderWindow::Header() {
  auto* row = Row();
  AddDateAndDepot(*row);
  AddSupplier(*row);
  AddWindowButtons(*row);
  return Group("card", row);
}

void OrderWindow::AddSupplier(QHBoxLayout& row) {
  QLabel* caption = CaptionLabel({});
  auto* supplier = new QLineEdit;
  auto* find = new KeyButton("찾기");
  find->WriteKey("F1");
  supplier->setPlaceholderText("상호   /전화   #코드");
  row.addWidget(caption);
  row.addWidget(supplier, 3);
  row.addWidget(find);
  BindLabel(*this, "Label1", order_.Label1, *caption);
  BindTextBox(*this, "Text1", order_.Text1, *supplier);
  BindPress(*this, "LaCTHELP", order_.LaCTHELP, *find, [this] { order_.LaCTHELP_Click(); });
  OnGotFocus(order_.Text1, [this] { order_.Text1_GotFocus(); });
  OnKey(order_.Text1, [this](Key key) {
    order_.Text1_KeyDown(key);
    order_.Text1_KeyPress(key);
    return key == Key::F1 || key == Key::Enter;
  });
}

void OrderWindow::AddDateAndDepot(QHBoxLayout& row) {
  auto* date = new QDateEdit;
  auto* depot = new QComboBox;
  depot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  depot->setMinimumContentsLength(8);
  row.addWidget(CaptionLabel("발주일자"));
  row.addWidget(date);
  row.addWidget(CaptionLabel("입고하치장"));
  row.addWidget(depot, 2);
  BindDatePicker(*this, "DTOrderDate", order_.DTOrderDate, *date);
  BindComboBox(*this, "Combo1", order_.Combo1, *depot);
}

void OrderWindow::AddWindowButtons(QHBoxLayout& row) {
  auto* state = new QLabel;
  state->setAlignment(Qt::AlignCenter);
  state->setMinimumWidth(state->fontMetrics().horizontalAdvance("  발주확정  "));
  auto* smaller = new KeyButton("최소화", QKeySequence(Qt::CTRL | Qt::Key_M));
  auto* close = new KeyButton("닫기", Qt::Key_Escape);
  row.addWidget(state);
  row.addWidget(smaller);
  row.addWidget(close);
  BindLabel(*this, "LaSatae", order_.LaSatae, *state);
  AlsoSync([state] {
    const QColor tint = StateTint(state->text());
    const QString ground =
        tint.isValid() ? "background: " + tint.name() + "; border-radius: 3px;" : QString();
    if (state->styleSheet() != ground) state->setStyleSheet(ground);
  });
  BindPress(*this, "Label5_1", order_.Label5[1], *smaller, [this] { order_.Label5_Click(1); });
  BindPress(*this, "Label5_0", order_.Label5[0], *close, [this] { order_.Label5_Click(0); });
}

QWidget* OrderWindow::ItemBox() {
  auto* box = new QLineEdit;
  auto* warning = new ElidedLabel;
  warning->setProperty("role", "warning");
  box->setFont(BoxFont());
  box->setPlaceholderText("바코드 / 수량     ,품명     .규격");
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(box, 1);
  row->addWidget(warning, 1);
  auto* line = new QWidget;
  line->setLayout(row);
  BindTextBox(*this, "inBox", order_.inBox, *box);
  BindLabel(*this, "Label6", order_.Label6, *warning);
  OnKey(order_.inBox, [this](Key key) {
    order_.inBox_KeyDown(key);
    order_.inBox_KeyPress(key);
    return key == Key::Enter || key == Key::Up || key == Key::Down;
  });
  return line;
}

QWidget* OrderWindow::Lines() {
  auto* lines = new GridView(order_.FLEX1, kTwoLines);
  lines->Events.KeyPress = [this](const std::string& text) { order_.FLEX1_KeyPress(text); };
  BindGrid(*this, "FLEX1", order_.FLEX1, *lines);
  OnKey(order_.FLEX1, [this](Key key) {
    order_.FLEX1_KeyDown(key);
    return false;
  });
  return Titled("발주 내역   (Del 행 삭제)", lines);
}

QWidget* OrderWindow::Categories() {
  auto* kinds = new GridView(order_.PRHELP);
  kinds->MarkCellsOnly();
  const auto choose = [this] { order_.PRHELP_Click(order_.PRHELP.Row(), order_.PRHELP.Col()); };
  kinds->Events.Click = choose;
  BindGrid(*this, "PRHELP", order_.PRHELP, *kinds);
  OnKey(order_.PRHELP, [choose](Key key) {
    if (key == Key::Enter) choose();
    return key == Key::Enter;
  });
  return Titled("상품 분류", kinds);
}

QWidget* OrderWindow::PickList() {
  auto* items = new GridView(order_.FLEX2);
  items->Events.BeforeEdit = [this](int row, int col) { return order_.FLEX2_BeforeEdit(row, col); };
  items->Events.AfterEdit = [this](int row, int col) { order_.FLEX2_AfterEdit(row, col); };
  BindGrid(*this, "FLEX2", order_.FLEX2, *items);
  OnKey(order_.FLEX2, [this](Key key) {
    order_.FLEX2_KeyDown(key);
    return key == Key::F4;
  });
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down), [this] { Act([this] { WalkToPickList(); }); });
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_Up),
             [this] { Act([this] { order_.SetFocus(order_.inBox); }); });
  return Titled("품목 선택   (Ctrl+↓ ↑,  수량 입력 후 Enter,  F4 판매이력)", items);
}

void OrderWindow::WalkToPickList() {
  order_.SetFocus(order_.FLEX2);
  if (order_.FLEX2.Row() == 0) order_.FLEX2.SetRow(1);
}

QWidget* OrderWindow::History() {
  history_ = new HistoryChartView(order_.PRGHP);
  Bind("PRGHP", order_.PRGHP, *history_, [this] { FollowHistory(); });
  return history_;
}

// The item's name stays with its figures while the person walks on in the pick list.
void OrderWindow::FollowHistory() {
  history_->Follow();
  std::string quantities;
  for (int day = 0; day < order_.PRGHP.Cols(); ++day) {
    quantities += order_.PRGHP.TextMatrix(kQuantityRow, day) + " ";
  }
  if (quantities == historyOf_) return;
  historyOf_ = quantities;
  history_->SetItem(ToQt(order_.FLEX2.TextMatrix(order_.FLEX2.Row(), kNameColumn)));
}

QWidget* OrderWindow::Foot() {
  auto* row = Row();
  AddTotal(*row, "발주건수", 0, false);
  AddTotal(*row, "공 급 가", 2, false);
  AddTotal(*row, "부 가 세", 3, false);
  AddTotal(*row, "발주금액", 1, true);
  row->addStretch();
  auto* save = new KeyButton("발주편집 저장", Qt::Key_F9);
  auto* confirm = new KeyButton("발주확정", QKeySequence(Qt::SHIFT | Qt::Key_F9));
  confirm->MarkMain();
  row->addWidget(save);
  row->addWidget(confirm);
  BindPress(*this, "LaBtn_0", order_.LaBtn[0], *save, [this] { order_.LaBtn_Click(0); });
  BindPress(*this, "LaBtn_1", order_.LaBtn[1], *confirm, [this] { order_.LaBtn_Click(1); });
  return Group("totals", row);
}

void OrderWindow::AddTotal(QHBoxLayout& row, const QString& caption, size_t index, bool big) {
  QLabel* amount = big ? TotalLabel() : new QLabel;
  row.addWidget(CaptionLabel(caption));
  row.addWidget(amount);
  row.addSpacing(12);
  BindLabel(*this, QString("LaAmt_%1").arg(index), order_.LaAmt[index], *amount);
}

}  // namespace store
