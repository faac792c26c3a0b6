#include "ui/batch_window.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>
#include <array>

#include "handheld/FRM_DT900_01.h"
#include "ui/binding.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(1024, 720);
constexpr int kDepotLetters = 16;
constexpr int kGap = 12;
constexpr int kMarkAlone = 1;  // a tax mark without a product code behind it

}  // namespace

BatchWindow::BatchWindow(FRM_DT900_01& form) : FormWindow(form), batch_(form) {
  auto* content = Column();
  content->addWidget(Header());
  content->addWidget(Choice());
  content->addWidget(Rows(), 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  OfferActions(*rows_, RowActions());
  Layout().OpenAs(kSize, 1);
}

QWidget* BatchWindow::Header() {
  auto* depot = Named("Combo1", new QComboBox);
  depot->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  depot->setMinimumContentsLength(kDepotLetters);
  auto* row = Row();
  row->addWidget(HeadingLabel("핸디터미널처리"));
  row->addWidget(Named("LaRun", HeadingLabel({})));
  row->addStretch();
  auto* slip = Row();
  slip->addWidget(CaptionLabel("하치장"));
  slip->addWidget(depot);
  slip->addWidget(CaptionLabel("일자"));
  slip->addWidget(Named("DTPicker1", new QDateEdit));
  slip->addWidget(Named("Command1_1", new KeyButton({}, Qt::Key_Escape)));
  return Group("card", Alone(Folding(row, slip)));
}

QWidget* BatchWindow::Choice() {
  auto* partner = Named("Text1_1", new QLineEdit);
  partner->setPlaceholderText("상호   /전화   Enter");
  auto* row = Row();
  const std::array<const char*, 3> letters = {"1", "2", "3"};
  for (int i = 0; i < 3; ++i) {
    auto* option = Named(QString("Option1_%1").arg(i), new QRadioButton);
    option->setProperty(kLetterProperty, letters[static_cast<size_t>(i)]);
    option->setFocusPolicy(Qt::NoFocus);
    row->addWidget(option);
  }
  row->addWidget(CaptionLabel("Space 선택"));
  auto* search = Row();
  search->addWidget(CaptionLabel("거래처"));
  search->addWidget(partner, 2);
  search->addWidget(Named("Command2", new KeyButton({}, Qt::Key_F1)));
  search->addWidget(Named("Command1_0", new KeyButton({}, Qt::Key_F5)));
  search->addWidget(CaptionLabel("메모"));
  search->addWidget(Named("Text1_0", new QLineEdit), 2);
  return Group("card", Alone(Folding(row, search)));
}

QWidget* BatchWindow::Rows() {
  rows_ = Named("FLEX", new GridView(batch_.FLEX));
  rows_->Tint = [](int column, const QString& text) {
    return column == staged::Product && text.trimmed().size() <= kMarkAlone ? Softened(0xFFC080)
                                                                            : QColor();
  };
  return rows_;
}

// What the right button offers on a row.
ContextActions BatchWindow::RowActions() {
  const auto ticks = [this](const QString& text, const QString& key, size_t option) {
    return ContextAction{.Text = text, .Key = key, .Event = [this, option] {
                           Act([this, option] { batch_.Option1[option].Click(); });
                         }};
  };
  return {ticks("모두 선택", "Alt+1", 0), ticks("선택 반전", "Alt+2", 1),
          ticks("선택 해제", "Alt+3", 2), {},
          ButtonLine("Command1_3"),       ButtonLine("Command1_4"),
          ButtonLine("Command1_0")};
}

QWidget* BatchWindow::Foot() {
  auto* message = Named("LBL_MSG", new ElidedLabel);
  auto* row = Row();
  row->addWidget(message, 1);
  for (int i = 0; i < 3; ++i) {
    row->addWidget(Named(QString("Label2_%1").arg(i), new QLabel));
    row->addSpacing(kGap);
  }
  auto* remove = Named("Command1_4", new KeyButton({}, QKeySequence(Qt::CTRL | Qt::Key_Delete)));
  auto* make = Named("Command1_3", new KeyButton({}, Qt::Key_F9));
  make->MarkMain();
  auto* buttons = Row();
  buttons->addStretch();
  buttons->addWidget(remove);
  buttons->addWidget(make);
  return Group("totals", Alone(Folding(row, buttons)));
}

}  // namespace store
