#include "ui/order_left_sides.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedLayout>
#include <QVBoxLayout>

#include "order/kind_pane.h"
#include "order/order_form.h"
#include "order/proposal_pane.h"
#include "order/selection_pane.h"
#include "order/stock_view_pane.h"
#include "ui/binding.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kNarrowBox = 56;

QHBoxLayout* BareRow() {
  QHBoxLayout* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  return row;
}

QWidget* Holding(QLayout* layout) {
  auto* widget = new QWidget;
  layout->setContentsMargins(0, 0, 0, 0);
  widget->setLayout(layout);
  return widget;
}

/// An option that Alt and a letter choose.
QRadioButton* Option(const QString& name, const char* letter) {
  auto* option = Named(name, new QRadioButton);
  option->setProperty(kLetterProperty, letter);
  return option;
}

QLineEdit* NarrowBox(const QString& name) {
  auto* box = Named(name, new QLineEdit);
  FollowLook(*box, [box] { box->setMaximumWidth(Scaled(kNarrowBox)); });
  box->setAlignment(Qt::AlignRight);
  return box;
}

void AddPeriod(QHBoxLayout& row) {
  row.addWidget(Named("Label4", CaptionLabel({})));
  row.addWidget(Named("DTPicker1_0", new QDateEdit));
  row.addWidget(CaptionLabel("~"));
  row.addWidget(Named("DTPicker1_1", new QDateEdit));
}

GridView* SelectionGrid(FormWindow& window, Grid& grid) {
  auto* view = Named("PRHELP", new GridView(grid));
  view->MarkCellsOnly();
  window.OfferActions(*view, {window.KeyLine("품목 보기", Key::Enter, grid)});
  return view;
}

QWidget* KindSide(FormWindow& window, KindPane& pane, StockViewPane* stock) {
  auto* column = Column();
  if (stock != nullptr) {
    auto* row = BareRow();
    row->addWidget(Named("Check1", new QCheckBox));
    AddPeriod(*row);
    row->addStretch();
    column->addLayout(row);
  }
  column->addWidget(SelectionGrid(window, pane.PRHELP), 1);
  return Titled(HeadingLabel("상품 분류"), Holding(column));
}

QWidget* SelectionSide(FormWindow& window, SelectionPane& pane) {
  auto* row = BareRow();
  row->addWidget(Option("Option1_0", "1"));
  row->addWidget(Option("Option1_1", "2"));
  for (const char* level : {"Combo2_0", "Combo2_1", "Combo2_2"}) {
    auto* kinds = Named(level, new QComboBox);
    kinds->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    kinds->setMinimumContentsLength(4);
    row->addWidget(kinds, 1);
  }
  auto* column = Column();
  column->addLayout(row);
  column->addWidget(SelectionGrid(window, pane.PRHELP), 1);
  return Titled(HeadingLabel("분류 · 발주처"), Holding(column));
}

QWidget* SalesPage() {
  auto* period = BareRow();
  AddPeriod(*period);
  period->addWidget(NarrowBox("Text2"));
  period->addWidget(CaptionLabel("일"));
  period->addStretch();
  auto* choices = BareRow();
  choices->addWidget(Named("Check1", new QCheckBox));
  choices->addWidget(Named("Check3", new QCheckBox));
  choices->addStretch();
  choices->addWidget(Named("LaEP_0", new KeyButton("예상발주", Qt::Key_F7)));
  auto* multiplier = BareRow();
  multiplier->addWidget(CaptionLabel("판매량의"));
  multiplier->addWidget(NarrowBox("Text3"));
  multiplier->addWidget(CaptionLabel("일분량을  금일[기본발주]로함"));
  multiplier->addStretch();
  auto* column = Column();
  column->addLayout(period);
  column->addLayout(choices);
  column->addLayout(multiplier);
  return Holding(column);
}

QWidget* SafetyPage() {
  auto* sentence = BareRow();
  sentence->addWidget(CaptionLabel("관리자모드에서 적정재고가 셋팅된 정보를"));
  sentence->addWidget(
      Named("LaEP_1", new KeyButton("예상발주", QKeySequence(Qt::SHIFT | Qt::Key_F7))));
  sentence->addWidget(CaptionLabel("합니다."));
  sentence->addStretch();
  auto* column = Column();
  column->addLayout(sentence);
  column->addWidget(Named("Check4", new QCheckBox));
  column->addStretch();
  return Holding(column);
}

QWidget* ProposalSide(FormWindow& window, ProposalPane& pane) {
  auto* pages = new QStackedLayout;
  pages->addWidget(SalesPage());
  pages->addWidget(SafetyPage());
  window.AlsoSync([pages, &pane] { pages->setCurrentIndex(pane.TabOne1.CurrTab); });
  const auto tabKey = [&](Qt::Key key, int tab) {
    window.OnShortcut(QKeySequence(Qt::ALT | key),
                      [&window, &pane, tab] { window.Act([&] { pane.LaOrder_Click(tab); }); });
  };
  tabKey(Qt::Key_1, 0);
  tabKey(Qt::Key_2, 1);
  auto* marks = BareRow();
  marks->addWidget(Named("Check2", new QCheckBox));
  marks->addStretch();
  marks->addWidget(CaptionLabel("표시"));
  marks->addWidget(Option("Option1_0", "3"));
  marks->addWidget(Option("Option1_1", "4"));
  marks->addWidget(Option("Option1_2", "5"));
  auto* column = Column();
  column->addWidget(Named("TabOne1", new QWidget));
  column->addLayout(pages);
  column->addLayout(marks);
  return Titled(HeadingLabel("예상발주   (Alt+1 판매량, Alt+2 적정재고)"), Holding(column));
}

}  // namespace

QWidget* OrderLeftSide(FormWindow& window, OrderForm& form) {
  if (auto* proposal = dynamic_cast<ProposalPane*>(&form)) return ProposalSide(window, *proposal);
  if (auto* selection = dynamic_cast<SelectionPane*>(&form))
    return SelectionSide(window, *selection);
  return KindSide(window, dynamic_cast<KindPane&>(form), dynamic_cast<StockViewPane*>(&form));
}

}  // namespace store
