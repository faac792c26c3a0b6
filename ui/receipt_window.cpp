#include "ui/receipt_window.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "receipt/frm_PE_UNIT.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/line_undo.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1000, 660);
constexpr int kTwoLines = 2;
constexpr int kNameWidth = 100;
constexpr int kBoxWidth = 220;
constexpr int kGap = 24;

}  // namespace

ReceiptWindow::ReceiptWindow(frm_PE_UNIT& form) : FormWindow(form), receipt_(form) {
  auto* content = Column();
  content->addWidget(Header());
  content->addWidget(QuantityBox());
  auto* lines = Named("FLEX1", new GridView(form.FLEX1, kTwoLines));
  lines->ExportBy([this] { ExportLines(); }, "F12");
  content->addWidget(lines, 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_P),
             [this] { Act([this] { receipt_.PrintStored(); }); });
  BindControls();
  OfferActions(*lines, LineActions());
  TitleTells([this] { return StoreAnd(receipt_.Text1); });
  Layout().OpenAs(kSize, 1);
}

// What the right button offers on a line.
ContextActions ReceiptWindow::LineActions() {
  return {BoxLine("입고량 고치기", receipt_.FLEX1, receipt_.inBox),
          KeyLine("줄 삭제", Key::Delete, receipt_.FLEX1, receipt_.inBox),
          {.Text = "전표 인쇄",
           .Key = "Ctrl+P",
           .Event = [this] { Act([this] { receipt_.PrintStored(); }); }},
          {},
          ButtonLine("LineUndo"),
          ButtonLine("LineRedo")};
}

void ReceiptWindow::ExportLines() {
  Act([this] { receipt_.FLEX1_KeyDown(Key::F12); });
}

QWidget* ReceiptWindow::Header() {
  auto* depot = Named("Combo1", new QComboBox);
  depot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  depot->setMinimumContentsLength(8);
  auto* slip = Row();
  slip->addWidget(CaptionLabel("거래처"));
  slip->addWidget(Named("Text1", AtLeast(kNameWidth, new QLineEdit)), 3);
  slip->addWidget(CaptionLabel("발주일자"));
  slip->addWidget(Named("DTOrderDate", new QDateEdit));
  slip->addWidget(CaptionLabel("입고일자"));
  slip->addWidget(Named("DTPicker1", new QDateEdit));
  auto* place = Row();
  place->addWidget(CaptionLabel("입고하치장(창고)"));
  place->addWidget(depot, 2);
  place->addWidget(Named("Label4", new KeyButton("닫기", Qt::Key_Escape)));
  return Group("card", Folding(slip, place));
}

QWidget* ReceiptWindow::QuantityBox() {
  auto* box = Named("inBox", new QLineEdit);
  FollowFont(*box, BoxFont);
  FollowLook(*box, [box] { box->setFixedWidth(Scaled(kBoxWidth)); });
  box->setPlaceholderText("입고량");
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(box);
  row->addWidget(CaptionLabel("↑ ↓ 로 행을 고르고 입고량을 넣은 뒤 Enter      Del 행 삭제"));
  AddLineUndo(*this, *row);
  row->addSpacing(kGap);
  row->addWidget(Named("LaSheet", new ElidedLabel), 1);
  auto* line = new QWidget;
  line->setLayout(row);
  return line;
}

QWidget* ReceiptWindow::Foot() {
  auto* totals = Row();
  AddTotals(*totals, {"건수", "합계금액", "공급가액", "부가세액"});
  totals->addStretch();
  auto* sheet = new KeyButton("엑셀", Qt::Key_F12);
  auto* confirm = Named("Command1_1", new KeyButton({}, Qt::Key_F9));
  confirm->MarkMain();
  confirm->setFocusPolicy(Qt::TabFocus);
  auto* buttons = Row();
  buttons->addStretch();
  buttons->addWidget(sheet);
  buttons->addWidget(confirm);
  OnPress(*sheet, [this] { receipt_.FLEX1_KeyDown(Key::F12); });
  return Group("totals", Folding(totals, buttons));
}

}  // namespace store
