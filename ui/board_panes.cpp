// What stands below the board: notices, the partner of a slip, its conditions.
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <array>

#include "board/frm_Start.h"
#include "ui/board_window.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

/// A value of a pane: its caption and its label's index in the form.
struct Place {
  const char* Caption;
  size_t Index;
};

/// In the order in which they are read, two to a line.
constexpr std::array<Place, 11> kPartner = {{{"발 주 처", 0},
                                             {"사 업 자", 1},
                                             {"대 표 자", 4},
                                             {"담 당 자", 7},
                                             {"전    화", 2},
                                             {"팩    스", 3},
                                             {"휴 대 폰", 5},
                                             {"휴 대 폰", 8},
                                             {"메    일", 6},
                                             {"메    일", 9},
                                             {"주    소", 10}}};
constexpr std::array<Place, 8> kConditions = {{{"결제조건", 0},
                                               {"납 기 일", 1},
                                               {"유 효 일", 6},
                                               {"납품장소", 2},
                                               {"납품형태", 7},
                                               {"참   조1", 3},
                                               {"참   조1", 4},
                                               {"참   조1", 5}}};
constexpr QSize kNoticePane(460, 320);
constexpr int kPaneMargin = 12;

/// Captions and values, two pairs to a line.
class PairGrid {
 public:
  PairGrid() {
    grid_->setHorizontalSpacing(6);
    grid_->setVerticalSpacing(3);
    grid_->setColumnStretch(1, 1);
    grid_->setColumnStretch(3, 1);
  }
  void Heading(QWidget* heading) { grid_->addWidget(heading, 0, 0, 1, 4); }
  /// The next pair; the last one of an odd number gets the whole line.
  void Add(const char* caption, QWidget* value, bool wholeLine) {
    const int line = 1 + count_ / 2;
    const int column = count_++ % 2 == 0 ? 0 : 2;
    grid_->addWidget(CaptionLabel(caption), line, column);
    grid_->addWidget(value, line, column + 1, 1, wholeLine ? 3 : 1);
    grid_->setRowStretch(line, 0);
    grid_->setRowStretch(line + 1, 1);
  }
  QLayout* Layout() const { return grid_; }

 private:
  QGridLayout* grid_ = new QGridLayout;
  int count_ = 0;
};

}  // namespace

QWidget* BoardWindow::Notices() {
  notices_ = Named("FLEX0", new GridView(board_.FLEX0));
  FollowLook(*notices_, [this] { notices_->setMinimumHeight(Scaled(60)); });
  auto* column = Column();
  column->addWidget(HeadingLabel("공지사항"));
  column->addWidget(notices_, 1);
  return Group("card", column);
}

QWidget* BoardWindow::PartnerPane() {
  PairGrid pairs;
  auto* details = Named("Image5", new KeyButton("상세", Qt::Key_F4));
  auto* heading = Row();
  heading->setContentsMargins(0, 0, 0, 0);
  heading->addWidget(HeadingLabel("거래처 정보"));
  heading->addStretch();
  heading->addWidget(details);
  auto* top = new QWidget;
  top->setLayout(heading);
  pairs.Heading(top);
  for (const auto& [caption, index] : kPartner) {
    pairs.Add(caption, Named(QString("LaCT_%1").arg(index), ValueLabel()),
              &caption == &kPartner.back().Caption);
  }
  return Group("card", pairs.Layout());
}

QWidget* BoardWindow::ConditionPane() {
  PairGrid pairs;
  pairs.Heading(HeadingLabel("거래 조건"));
  for (const auto& [caption, index] : kConditions) {
    pairs.Add(caption, Named(QString("LaPM_%1").arg(index), ValueLabel()), false);
  }
  return Group("card", pairs.Layout());
}

void BoardWindow::MakeNoticePane() {
  auto* subject = Named("Text1_0", new QLineEdit);
  auto* body = Named("Text1_1", new QPlainTextEdit);
  QLabel* date = Named("Label2", CaptionLabel({}));
  auto* close = Named("Image3", new KeyButton("닫기", Qt::Key_Escape));
  subject->setReadOnly(true);
  subject->setFocusPolicy(Qt::ClickFocus);
  auto* top = Row();
  top->addWidget(subject, 1);
  top->addWidget(date);
  auto* column = Column();
  column->addLayout(top);
  column->addWidget(body, 1);
  column->addWidget(close, 0, Qt::AlignRight);
  noticePane_ = Named("Frame1", Group("popup", column));
  noticePane_->setParent(this);
  noticePane_->setAutoFillBackground(true);
  AlsoSync([this] {
    if (noticePane_->isVisible()) PlaceNoticePane();
  });
}

// Over the notices, as far to the left and up as its text wants.
void BoardWindow::PlaceNoticePane() {
  if (noticePane_ == nullptr) return;
  const QPoint corner = notices_->mapTo(this, notices_->rect().bottomLeft());
  const QSize size(std::min(Scaled(kNoticePane.width()), width() - 2 * kPaneMargin),
                   std::min(Scaled(kNoticePane.height()), height() - 2 * kPaneMargin));
  noticePane_->setGeometry(corner.x(), corner.y() - size.height(), size.width(), size.height());
  noticePane_->raise();
}

}  // namespace store
