#include "ui/quick_pick_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>

#include "order/frm_OrderPLU.h"
#include "ui/binding.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/style.h"
#include "ui/tile_wall.h"

namespace store {
namespace {

constexpr QSize kSize(1000, 700);
constexpr int kFingerLines = 2;  // the height of two lines of text takes a finger
constexpr int kFingerButton = 40;

}  // namespace

QuickPickWindow::QuickPickWindow(frm_OrderPLU& form) : FormWindow(form), panel_(form) {
  auto* parts = new QSplitter(Qt::Vertical);
  parts->addWidget(Categories());
  parts->addWidget(Tiles());
  parts->setSizes({165, 475});
  parts->setStretchFactor(1, 1);
  parts->setChildrenCollapsible(false);
  auto* content = Column();
  content->addWidget(parts, 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  Layout().OpenAs(kSize, 1);
}

QWidget* QuickPickWindow::Categories() {
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  for (const int level : {1, 2, 3}) row->addWidget(CategoryList(level), 1);
  auto* lists = new QWidget;
  lists->setLayout(row);
  return lists;
}

QWidget* QuickPickWindow::CategoryList(int level) {
  static const std::array<const char*, 4> titles = {"", "대분류", "중분류", "소분류"};
  const auto index = static_cast<size_t>(level);
  auto* kinds =
      Named(QString("PRHELP_%1").arg(level), new GridView(panel_.PRHELP[index], kFingerLines));
  kinds->MarkCellsOnly();
  OfferActions(*kinds, {KeyLine("고르기", Key::Enter, panel_.PRHELP[index])});
  return Titled(Heading(titles[index], level), kinds);
}

QWidget* QuickPickWindow::Tiles() {
  auto* wall = Named("PRHELP_0", new TileWall(panel_.PRHELP[0], kTileMarker));
  AlsoSync([this, wall] {
    wall->SetPlaceholder(panel_.BranchOf[0].empty() ? "소분류를 고르면 그 품목이 여기에 나옵니다."
                                                    : "이 소분류에는 품목이 없습니다.");
  });
  return Titled(Heading("품목", 0), wall);
}

/// A heading that says of which category what stands below it is.
QLabel* QuickPickWindow::Heading(const QString& title, int index) {
  QLabel* heading = HeadingLabel(title);
  const std::string& branch = panel_.BranchOf[static_cast<size_t>(index)];
  AlsoSync([heading, title, &branch, seen = SeenText()]() mutable {
    if (!seen.Differs(branch)) return;
    heading->setText(branch.empty() ? title : title + "  ·  " + ToQt(branch));
  });
  return heading;
}

QWidget* QuickPickWindow::Foot() {
  auto* up = Named("Image1_1", new KeyButton("▲ 위로", Qt::Key_PageUp));
  auto* down = Named("Image1_0", new KeyButton("▼ 아래로", Qt::Key_PageDown));
  auto* pick = new KeyButton("선택");
  pick->WriteKey("Enter");
  pick->MarkMain();
  OnPress(*pick, [this] { panel_.PRHELP_DblClick(); });
  auto* back = new KeyButton("돌아가기");
  back->WriteKey("Esc");
  OnPress(*back, [this] { panel_.KeyDown(Key::Escape); });
  auto* close = Named("Label5", new KeyButton("닫기", QKeySequence(Qt::CTRL | Qt::Key_W)));
  auto* row = Row();
  row->setContentsMargins(0, 0, 0, 0);
  for (KeyButton* button : {up, down, pick, back, close}) {
    FollowLook(*button, [button] { button->setMinimumHeight(Scaled(kFingerButton)); });
    row->addWidget(button);
  }
  row->insertStretch(2);
  auto* foot = new QWidget;
  foot->setLayout(row);
  return foot;
}

}  // namespace store
