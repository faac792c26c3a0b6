#include "ui/board_window.h"

#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "basics/records.h"
#include "board/frm_Start.h"
#include "ui/binding.h"
#include "ui/board_menu.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/server_lamp.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1024, 720);
constexpr int kFinderWidth = 150;

QWidget* Holder(QLayout* layout) {
  auto* holder = new QWidget;
  layout->setContentsMargins(0, 0, 0, 0);
  holder->setLayout(layout);
  return holder;
}

}  // namespace

BoardWindow::BoardWindow(frm_Start& form) : FormWindow(form), board_(form) {
  // What is put into another widget is dressed anew, and a splitter dresses what it gets at once:
  // so the splitters are filled when they stand in the window.
  auto* details = new QSplitter(Qt::Horizontal);
  auto* halves = new QSplitter(Qt::Vertical);
  auto* work = Column();
  work->setContentsMargins(8, 6, 8, 8);
  work->addWidget(Actions());
  work->addWidget(Search());
  work->addWidget(halves, 1);
  auto* content = new QVBoxLayout;
  content->setContentsMargins(0, 0, 0, 0);
  content->setSpacing(0);
  content->setMenuBar(BoardMenu(*this, form));
  content->addWidget(Band());
  content->addWidget(Scrolled(work), 1);
  setLayout(content);

  auto* upper = Column();
  upper->addWidget(Slips(), 1);
  upper->addWidget(Sums());
  halves->addWidget(Holder(upper));
  halves->addWidget(details);
  details->addWidget(Notices());
  details->addWidget(PartnerPane());
  details->addWidget(ConditionPane());
  details->setSizes({340, 420, 240});
  halves->setStretchFactor(0, 1);
  halves->setSizes({kSize.height(), details->widget(1)->sizeHint().height()});
  for (QSplitter* splitter : {details, halves}) splitter->setChildrenCollapsible(false);
  MakeNoticePane();
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_P),
             [this] { Act([this] { board_.PrintSelected(); }); });
  OnShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
             [this] { Act([this] { board_.PrintLastReceipt(); }); });
  BindControls();
  OfferActions(*slips_, SlipActions());
  OfferActions(*notices_, {KeyLine("공지 열기", Key::Enter, board_.FLEX0)});
  TitleTells([] { return Session.StoreName; });
  Layout().OpenAs(kSize, 1);
  slips_->setFocus();
}

QWidget* BoardWindow::Band() {
  auto* store = Named("LaCaption", new QLabel);
  auto* drafts = Named("LaDraft", new KeyButton("쓰던 전표", QKeySequence(Qt::CTRL | Qt::Key_D)));
  auto* web = Named("Label4", new KeyButton("홈페이지", QKeySequence(Qt::ALT | Qt::Key_H)));
  auto* smaller = Named("Label5_1", new KeyButton("최소화", QKeySequence(Qt::CTRL | Qt::Key_M)));
  auto* end = Named("Label5_0", new KeyButton("종료", Qt::Key_F12));
  auto* row = Row();
  row->addWidget(store, 1);
  for (KeyButton* button : {drafts, web, smaller, end}) row->addWidget(button);
  FollowFont(*store, BoldFont);
  return Group("band", row);
}

QWidget* BoardWindow::Actions() {
  auto* row = Row();
  const auto add = [&](int index, const QKeySequence& keys) {
    auto* button = Named(QString("Image1_%1").arg(index), new KeyButton({}, keys));
    row->addWidget(button);
    return button;
  };
  add(0, Qt::Key_F2)->MarkMain();
  add(1, QKeySequence(Qt::SHIFT | Qt::Key_F2));
  add(4, Qt::Key_F8);
  row->addWidget(Named("HandheldMenu", new KeyButton({}, Qt::Key_F7)));
  row->addWidget(Named("LaAgain", new KeyButton({}, Qt::Key_F6)));
  row->addStretch();
  return Holder(Folding(row, SlipFinder()));
}

QLayout* BoardWindow::SlipFinder() {
  auto* caption = new QLabel(ToQt(board_.Label7.Caption) + " (&F)");
  auto* number = Named("Text2", new QLineEdit);
  caption->setBuddy(number);
  FollowLook(*number, [number] { number->setFixedWidth(Scaled(kFinderWidth)); });
  number->setPlaceholderText("전표번호 Enter");
  auto* row = Row();
  row->addStretch();
  row->addWidget(caption);
  row->addWidget(number);
  return row;
}

QWidget* BoardWindow::Search() {
  auto* row = Row();
  for (size_t i = 0; i < board_.Option1.size(); ++i) {
    auto* radio = Named(QString("Option1_%1").arg(i), new QRadioButton);
    radio->setProperty(kLetterProperty, QString::number(i + 1));
    // Whoever searches by letter or click goes on among the slips.
    radio->setFocusPolicy(Qt::TabFocus);
    row->addWidget(radio);
  }
  row->addStretch();
  auto* period = Row();
  period->addStretch();
  for (size_t i = 0; i < board_.DTOrderDate.size(); ++i) {
    if (i == 1) period->addWidget(CaptionLabel("~"));
    auto* date = Named(QString("DTOrderDate_%1").arg(i), new QDateEdit);
    date->setAccessibleName(i == 0 ? "조회 시작일" : "조회 끝일");
    period->addWidget(date);
  }
  period->addWidget(Named("Image1_3", new KeyButton({}, Qt::Key_F5)));
  return Group("card", Folding(row, period));
}

QWidget* BoardWindow::Slips() {
  slips_ = Named("FLEX1", new GridView(board_.FLEX1));
  slips_->setAccessibleName("발주 전표");
  slips_->Tint = [](int column, const QString& text) {
    return column == board::State ? StateTint(text) : QColor();
  };
  return slips_;
}

// What the right button offers on a slip.
ContextActions BoardWindow::SlipActions() {
  return {KeyLine("전표 열기", Key::Enter, board_.FLEX1),
          ButtonLine("Image5"),
          ButtonLine("Image1_4"),
          ButtonLine("LaAgain"),
          {.Text = "전표 인쇄",
           .Key = "Ctrl+P",
           .Enabled = [this] { return board_.FLEX1.Row() >= 1; },
           .Event = [this] { Act([this] { board_.PrintSelected(); }); }},
          {},
          ButtonLine("Image1_0"),
          ButtonLine("Image1_1"),
          {},
          ButtonLine("LaDraft"),
          ButtonLine("LaDeleted"),
          ButtonLine("Image1_3")};
}

QWidget* BoardWindow::Sums() {
  auto* count = Named("Label6_0", new QLabel);
  QLabel* chosen = Named("Selected", CaptionLabel({}));
  QLabel* total = Named("Label6_1", TotalLabel());
  auto* row = Row();
  row->addWidget(count);
  row->addSpacing(12);
  row->addWidget(Named("LaRead", CaptionLabel({})));
  row->addSpacing(12);
  row->addWidget(new ServerLamp);
  row->addSpacing(24);
  row->addWidget(chosen);
  row->addStretch();
  auto* sum = Row();
  sum->addStretch();
  sum->addWidget(
      Named("LaDeleted", new KeyButton("삭제한 전표", QKeySequence(Qt::CTRL | Qt::Key_Z))));
  sum->addSpacing(12);
  sum->addWidget(CaptionLabel("합계"));
  sum->addWidget(total);
  AlsoSync([this, chosen, seen = SeenText()]() mutable {
    if (!seen.Differs(board_.SelectedSlipId + board_.SelectedSlipState)) return;
    const QString slip = ToQt(board_.SelectedSlipId);
    chosen->setText(slip.isEmpty() ? QString()
                                   : "선택전표  " + ToQt(board_.SelectedSlipState) + "  " + slip);
  });
  return Group("totals", Folding(row, sum));
}

void BoardWindow::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  PlaceNoticePane();
}

}  // namespace store
