#include "ui/board_window.h"

#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSplitter>
#include <QVBoxLayout>

#include "board/frm_Start.h"
#include "ui/bindings.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
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
  auto* details = new QSplitter(Qt::Horizontal);
  details->addWidget(Notices());
  details->addWidget(PartnerPane());
  details->addWidget(ConditionPane());
  details->setSizes({340, 420, 240});
  auto* upper = Column();
  upper->addWidget(Slips(), 1);
  upper->addWidget(Sums());
  auto* halves = new QSplitter(Qt::Vertical);
  halves->addWidget(Holder(upper));
  halves->addWidget(details);
  halves->setStretchFactor(0, 1);
  halves->setSizes({kSize.height(), details->widget(1)->sizeHint().height()});
  for (QSplitter* splitter : {details, halves}) splitter->setChildrenCollapsible(false);

  auto* work = Column();
  work->setContentsMargins(8, 6, 8, 8);
  work->addWidget(Actions());
  work->addWidget(Search());
  work->addWidget(halves, 1);
  auto* content = new QVBoxLayout;
  content->setContentsMargins(0, 0, 0, 0);
  content->setSpacing(0);
  content->addWidget(Band());
  content->addLayout(work, 1);
  setLayout(content);
  MakeNoticePane();
  ChainTabOrder();
  resize(kSize);
  slips_->setFocus();
}

QWidget* BoardWindow::Band() {
  auto* store = new QLabel;
  auto* web = new KeyButton("홈페이지", QKeySequence(Qt::ALT | Qt::Key_H));
  auto* smaller = new KeyButton("최소화", QKeySequence(Qt::CTRL | Qt::Key_M));
  auto* end = new KeyButton("종료", Qt::Key_F12);
  auto* row = Row();
  row->addWidget(store, 1);
  for (KeyButton* button : {web, smaller, end}) row->addWidget(button);
  QFont font = store->font();
  font.setBold(true);
  store->setFont(font);
  BindLabel(*this, "LaCaption", board_.LaCaption, *store);
  BindPress(*this, "Label4", board_.Label4, *web, [this] { board_.Label4_Click(); });
  BindPress(*this, "Label5_1", board_.Label5[1], *smaller, [this] { board_.Label5_Click(1); });
  BindPress(*this, "Label5_0", board_.Label5[0], *end, [this] { board_.Label5_Click(0); });
  return Group("band", row);
}

QWidget* BoardWindow::Actions() {
  auto* row = Row();
  const auto add = [&](int index, const QKeySequence& keys) {
    auto* button = new KeyButton({}, keys);
    row->addWidget(button);
    BindPress(*this, QString("Image1_%1").arg(index), board_.Image1[static_cast<size_t>(index)],
              *button, [this, index] { board_.Image1_Click(index); });
    return button;
  };
  add(0, Qt::Key_F2)->MarkMain();
  add(1, QKeySequence(Qt::SHIFT | Qt::Key_F2));
  add(4, Qt::Key_F8);
  row->addStretch();
  row->addWidget(SlipFinder());
  return Holder(row);
}

QWidget* BoardWindow::SlipFinder() {
  auto* caption = new QLabel(ToQt(board_.Label7.Caption) + " (&F)");
  auto* number = new QLineEdit;
  caption->setBuddy(number);
  number->setFixedWidth(kFinderWidth);
  number->setPlaceholderText("전표번호 Enter");
  Bind("Label7", board_.Label7, *caption);
  BindTextBox(*this, "Text2", board_.Text2, *number);
  OnKey(board_.Text2, [this](Key key) {
    board_.Text2_KeyPress(key);
    return key == Key::Enter;
  });
  auto* row = Row();
  row->addStretch();
  row->addWidget(caption);
  row->addWidget(number);
  return Holder(row);
}

QWidget* BoardWindow::Search() {
  auto* row = Row();
  for (size_t i = 0; i < board_.Option1.size(); ++i) {
    auto* radio = new QRadioButton;
    // Whoever searches by letter or click goes on among the slips.
    radio->setFocusPolicy(Qt::TabFocus);
    row->addWidget(radio);
    const int index = static_cast<int>(i);
    BindOption(
        *this, QString("Option1_%1").arg(index), board_.Option1[i], *radio,
        [this, index] { board_.Option1_Click(index); }, QString::number(index + 1));
  }
  row->addStretch();
  for (size_t i = 0; i < board_.DTOrderDate.size(); ++i) {
    auto* date = new QDateEdit;
    if (i == 1) row->addWidget(CaptionLabel("~"));
    row->addWidget(date);
    BindDatePicker(*this, QString("DTOrderDate_%1").arg(i), board_.DTOrderDate[i], *date);
    OnKey(board_.DTOrderDate[i], [this](Key key) {
      if (key == Key::Enter) board_.Image1_Click(3);
      return key == Key::Enter;
    });
  }
  auto* refresh = new KeyButton({}, Qt::Key_F5);
  row->addWidget(refresh);
  BindPress(*this, "Image1_3", board_.Image1[3], *refresh, [this] { board_.Image1_Click(3); });
  return Group("card", row);
}

QWidget* BoardWindow::Slips() {
  slips_ = new GridView(board_.FLEX1);
  slips_->Tint = [](int column, const QString& text) {
    return column == board::State ? StateTint(text) : QColor();
  };
  slips_->Events.Click = [this] { board_.FLEX1_Click(); };
  slips_->Events.DblClick = [this] { board_.FLEX1_DblClick(); };
  slips_->Events.Walk = [this] { board_.FLEX1_Walk(); };
  BindGrid(*this, "FLEX1", board_.FLEX1, *slips_);
  OnKey(board_.FLEX1, [this](Key key) {
    board_.FLEX1_KeyDown(key);
    return key == Key::F4 || key == Key::Enter;
  });
  return slips_;
}

QWidget* BoardWindow::Sums() {
  auto* count = new QLabel;
  QLabel* chosen = CaptionLabel({});
  QLabel* total = TotalLabel();
  auto* row = Row();
  row->addWidget(count);
  row->addSpacing(24);
  row->addWidget(chosen);
  row->addStretch();
  row->addWidget(CaptionLabel("합계"));
  row->addWidget(total);
  BindLabel(*this, "Label6_0", board_.Label6[0], *count);
  BindLabel(*this, "Label6_1", board_.Label6[1], *total);
  AlsoSync([this, chosen] {
    const QString slip = ToQt(board_.SelectedSlipId);
    const QString text =
        slip.isEmpty() ? QString() : "선택전표  " + ToQt(board_.SelectedSlipState) + "  " + slip;
    if (chosen->text() != text) chosen->setText(text);
  });
  return Group("totals", row);
}

void BoardWindow::resizeEvent(QResizeEvent* event) {
  FormWindow::resizeEvent(event);
  PlaceNoticePane();
}

}  // namespace store
