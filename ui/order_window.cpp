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
#include "ui/binding.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/history_chart_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/line_undo.h"
#include "ui/order_left_sides.h"
#include "ui/progress_panel.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1024, 720);
constexpr int kTwoLines = 2;
constexpr int kNameWidth = 100;
constexpr int kRefusedMargin = 8;

}  // namespace

OrderWindow::OrderWindow(OrderForm& form) : FormWindow(form), order_(form) {
  // As on the board, the splitters are filled when they stand in the window.
  auto* choice = new QSplitter(Qt::Vertical);
  auto* halves = new QSplitter(Qt::Horizontal);
  auto* content = Column();
  content->addWidget(Header());
  content->addWidget(ItemBox());
  content->addWidget(halves, 1);
  content->addWidget(History());
  content->addWidget(Foot());
  FillWindow(*this, content);

  halves->addWidget(Lines());
  halves->addWidget(choice);
  choice->addWidget(OrderLeftSide(*this, order_));
  choice->addWidget(PickList());
  choice->setSizes({130, 400});
  choice->setStretchFactor(1, 1);
  halves->setSizes({500, 508});
  for (QSplitter* splitter : {choice, halves}) splitter->setChildrenCollapsible(false);
  new ProgressPanel(*this, {"SSPanel1", "Label2", "ProgressBar1", "SSPanel2"},
                    "처리자료를 정리중입니다.....잠시만 기다려주세요......");
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_P), [this] { Act([this] { order_.PrintStored(); }); });
  BindControls();
  OfferActions(*lines_, LineActions());
  OfferActions(*items_, ItemActions());
  TitleTells([this] { return StoreAnd(order_.Text1); });
  Layout().OpenAs(kSize, 1);
}

QWidget* OrderWindow::Header() {
  auto* head = Row();
  AddDateAndDepot(*head);
  AddSupplier(*head);
  auto* buttons = Row();
  buttons->addStretch();
  AddWindowButtons(*buttons);
  return Group("card", Folding(head, buttons));
}

void OrderWindow::AddSupplier(QHBoxLayout& row) {
  auto* supplier = Named("Text1", AtLeast(kNameWidth, new QLineEdit));
  auto* recent = Named("Recent", new KeyButton);
  auto* find = Named("LaCTHELP", new KeyButton("찾기"));
  recent->WriteKey("↓");
  find->WriteKey("F1");
  supplier->setPlaceholderText("상호   /전화   #코드");
  row.addWidget(Named("Label1", CaptionLabel({})));
  row.addWidget(supplier, 3);
  row.addWidget(recent);
  row.addWidget(find);
}

void OrderWindow::AddDateAndDepot(QHBoxLayout& row) {
  auto* depot = Named("Combo1", new QComboBox);
  depot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  depot->setMinimumContentsLength(8);
  row.addWidget(CaptionLabel("발주일자"));
  row.addWidget(Named("DTOrderDate", new QDateEdit));
  row.addWidget(CaptionLabel("입고하치장"));
  row.addWidget(depot, 2);
}

void OrderWindow::AddWindowButtons(QHBoxLayout& row) {
  auto* state = Named("LaSatae", new QLabel);
  state->setAlignment(Qt::AlignCenter);
  FollowLook(*state, [state] {
    state->setMinimumWidth(state->fontMetrics().horizontalAdvance("  발주확정  "));
  });
  row.addWidget(state);
  row.addWidget(Named("Label5_1", new KeyButton("최소화", QKeySequence(Qt::CTRL | Qt::Key_M))));
  row.addWidget(Named("Label5_0", new KeyButton("닫기", Qt::Key_Escape)));
  const auto dress = [this, state] {
    const QColor tint = StateTint(ToQt(order_.LaSatae.Caption));
    state->setStyleSheet(tint.isValid() ? "background: " + tint.name() + "; border-radius: 3px;"
                                        : QString());
  };
  FollowLook(*state, dress);
  AlsoSync([this, dress, seen = SeenText()]() mutable {
    if (seen.Differs(order_.LaSatae.Caption)) dress();
  });
}

QWidget* OrderWindow::ItemBox() {
  auto* box = Named("inBox", new QLineEdit);
  auto* warning = Named("Label6", new ElidedLabel);
  warning->setProperty("role", "warning");
  FollowFont(*box, BoxFont);
  box->setPlaceholderText("바코드 / 수량     ,품명     .규격");
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(box, 3);
  row->addWidget(Named("Image5", new KeyButton("빠른선택", QKeySequence(Qt::SHIFT | Qt::Key_F1))));
  row->addWidget(Named("Command2", new KeyButton("보기", QKeySequence(Qt::CTRL | Qt::Key_F1))));
  row->addWidget(
      Named("ItemLookup", new KeyButton("품목조회", QKeySequence(Qt::CTRL | Qt::Key_I))));
  row->addWidget(warning, 4);
  auto* line = new QWidget;
  line->setLayout(row);
  return line;
}

QWidget* OrderWindow::Lines() {
  lines_ = Named("FLEX1", new GridView(order_.FLEX1, kTwoLines));
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_G), [this] { lines_->SwitchOptionalColumns(); });
  auto* refused = Named("LaRefused", new ElidedLabel);
  refused->setProperty("role", "warning");
  refused->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  auto* heading = Row();
  heading->addWidget(HeadingLabel("발주 내역   (Del 행 삭제,  Ctrl+G 규격)"));
  heading->addWidget(refused, 1);
  heading->addSpacing(kRefusedMargin);
  auto* undo = Row();
  undo->setContentsMargins(0, 0, 0, 0);
  AddLineUndo(*this, *undo);
  undo->addStretch();
  auto* column = Column();
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(Titled(heading, lines_), 1);
  column->addLayout(undo);
  auto* widget = new QWidget;
  widget->setLayout(column);
  return widget;
}

// What the right button offers on a line of the order.
ContextActions OrderWindow::LineActions() {
  return {BoxLine("수량 고치기", order_.FLEX1, order_.inBox),
          KeyLine("줄 삭제", Key::Delete, order_.FLEX1),
          {.Text = "전표 인쇄",
           .Key = "Ctrl+P",
           .Event = [this] { Act([this] { order_.PrintStored(); }); }},
          {},
          ButtonLine("LineUndo"),
          ButtonLine("LineRedo"),
          {},
          ButtonLine("ItemLookup"),
          ButtonLine("Image5"),
          {.Text = "규격 켜고 끄기", .Key = "Ctrl+G", .Event = [this] {
             lines_->SwitchOptionalColumns();
           }}};
}

// What it offers on an item of the pick list.
ContextActions OrderWindow::ItemActions() {
  return {{.Text = "발주량 넣기",
           .Key = "F2",
           .Enabled = [this] { return order_.FLEX2.Row() >= 1; },
           .Event = [this] { items_->OpenCell(); }},
          KeyLine("판매이력", Key::F4, order_.FLEX2),
          {},
          ButtonLine("Image1_0"),
          ButtonLine("Image1_1")};
}

QWidget* OrderWindow::PickList() {
  items_ = Named("FLEX2", new GridView(order_.FLEX2));
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down),
             [this] { Act([this] { order_.WalkToPickList(); }); });
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_Up),
             [this] { Act([this] { order_.SetFocus(order_.inBox); }); });
  auto* list =
      Titled(HeadingLabel("품목 선택   (Ctrl+↓ ↑,  수량 입력 후 Enter,  F4 판매이력)"), items_);
  auto* column = Column();
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(list, 1);
  column->addLayout(Transfers());
  auto* widget = new QWidget;
  widget->setLayout(column);
  return widget;
}

QLayout* OrderWindow::Transfers() {
  auto* row = Row();
  row->addWidget(Named("Image1_0", new KeyButton("발주량발주", Qt::Key_F11)));
  row->addWidget(
      Named("Image1_1", new KeyButton("부족재고발주", QKeySequence(Qt::SHIFT | Qt::Key_F11))));
  row->addStretch();
  return row;
}

QWidget* OrderWindow::History() {
  history_ = Named("PRGHP", new HistoryChartView(order_.PRGHP));
  AlsoSync([this] { FollowHistory(); });
  return history_;
}

// The item's name stays with its figures while the person walks on in the pick list.
void OrderWindow::FollowHistory() {
  history_->Follow();
  if (order_.HistoryOf != historyOf_) {
    historyOf_ = order_.HistoryOf;
    history_->SetItem(ToQt(historyOf_));
  }
}

QWidget* OrderWindow::Foot() {
  auto* totals = Row();
  AddTotals(*totals, {"발주건수", "발주금액", "공 급 가", "부 가 세"});
  totals->addStretch();
  auto* save = Named("LaBtn_0", new KeyButton("발주편집 저장", Qt::Key_F9));
  auto* confirm = Named("LaBtn_1", new KeyButton("발주확정", QKeySequence(Qt::SHIFT | Qt::Key_F9)));
  confirm->MarkMain();
  auto* buttons = Row();
  buttons->addStretch();
  buttons->addWidget(save);
  buttons->addWidget(confirm);
  return Group("totals", Folding(totals, buttons));
}

}  // namespace store
