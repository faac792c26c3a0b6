#include "ui/guide_window.h"

#include <QFile>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/host.h"
#include "ui/guide_pages.h"
#include "ui/guide_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr QSize kSize(960, 700);
constexpr int kContentsWidth = 190;
constexpr int kPage = Qt::UserRole;

QPointer<GuideWindow>& OpenOne() {
  static QPointer<GuideWindow> window;
  return window;
}

}  // namespace

GuideWindow::GuideWindow(const QString& folder)
    : view_(new GuideView(folder)), contents_(new QListWidget) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle("사용 설명서");
  contents_->setAccessibleName("차례");
  auto* halves = new QSplitter(Qt::Horizontal);
  halves->addWidget(contents_);
  halves->addWidget(view_);
  halves->setStretchFactor(1, 1);
  halves->setSizes({Scaled(kContentsWidth), Scaled(kSize.width() - kContentsWidth)});
  halves->setChildrenCollapsible(false);
  auto* content = Column();
  content->addWidget(Top());
  content->addWidget(halves, 1);
  FillWindow(*this, content);
  FillContents(folder);
  connect(contents_, &QListWidget::itemActivated, this,
          [this](QListWidgetItem* item) { GoTo(item->data(kPage).toString()); });
  connect(contents_, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* item) { GoTo(item->data(kPage).toString()); });
  connect(view_, &QTextBrowser::sourceChanged, this, &GuideWindow::FollowPage);
  resize(Scaled(kSize).boundedTo(RoomForWindow(*this).size()));
  view_->setFocus();
}

KeyButton* GuideWindow::Button(const QString& text, const QKeySequence& keys,
                               void (GuideWindow::*press)()) {
  auto* button = new KeyButton(text, keys);
  connect(button, &KeyButton::clicked, this, press);
  connect(new QShortcut(keys, this), &QShortcut::activated, this, press);
  return button;
}

QWidget* GuideWindow::Top() {
  search_ = new QLineEdit;
  search_->setAccessibleName("이 쪽에서 찾기");
  search_->setPlaceholderText("이 쪽에서 찾기   Ctrl+F");
  found_ = CaptionLabel({});
  connect(search_, &QLineEdit::returnPressed, this, [this] { Find(false); });
  connect(new QShortcut(Qt::SHIFT | Qt::Key_Return, this), &QShortcut::activated, this,
          [this] { Find(true); });
  connect(new QShortcut(Qt::CTRL | Qt::Key_F, this), &QShortcut::activated, this,
          &GuideWindow::ToSearch);
  auto* row = Row();
  row->addWidget(Button("뒤로", Qt::ALT | Qt::Key_Left, &GuideWindow::Back));
  row->addWidget(Button("앞으로", Qt::ALT | Qt::Key_Right, &GuideWindow::Forward));
  row->addStretch();
  row->addWidget(found_);
  row->addWidget(search_, 1);
  auto* close = new KeyButton("닫기", Qt::Key_Escape);
  connect(close, &KeyButton::clicked, this, &QWidget::close);
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
  row->addWidget(close);
  return Group("card", row);
}

void GuideWindow::FillContents(const QString& folder) {
  QFile first(folder + "/" + kGuideStart);
  if (!first.open(QIODevice::ReadOnly)) return;
  for (const GuidePage& page : PagesNamedIn(QString::fromUtf8(first.readAll()))) {
    auto* item = new QListWidgetItem(page.Title, contents_);
    item->setData(kPage, page.File);
  }
}

void GuideWindow::GoTo(const QString& page) { view_->GoTo(page); }

// The view itself knows where it is only behind this.
void GuideWindow::FollowPage(const QUrl& page) {
  found_->clear();
  const QString shown = page.fileName();
  for (int row = 0; row < contents_->count(); ++row) {
    if (contents_->item(row)->data(kPage).toString() == shown) contents_->setCurrentRow(row);
  }
}

void GuideWindow::Find(bool backwards) {
  const bool found = view_->FindNext(search_->text(), backwards);
  found_->setText(found || search_->text().isEmpty() ? QString() : "이 쪽에는 없습니다.");
}

void GuideWindow::Back() { view_->backward(); }

void GuideWindow::Forward() { view_->forward(); }

void GuideWindow::ToSearch() {
  search_->setFocus();
  search_->selectAll();
}

void OpenGuide(const QString& page, QWidget* asker) {
  const QString folder = GuideFolder();
  if (folder.isEmpty()) {
    Host.MsgBox("사용 설명서가 이 컴퓨터에 설치되어 있지 않습니다.", box::Information,
                "사용 설명서");
    return;
  }
  QPointer<GuideWindow>& guide = OpenOne();
  if (guide == nullptr) guide = new GuideWindow(folder);
  if (asker != nullptr && asker->window() != guide) {
    // A modal window lets nothing be worked in but what stands before it.
    guide->winId();
    if (guide->windowHandle()->transientParent() != asker->window()->windowHandle()) guide->hide();
    guide->windowHandle()->setTransientParent(asker->window()->windowHandle());
  }
  guide->show();
  guide->raise();
  guide->activateWindow();
  guide->GoTo(page);  // once it is on the screen, because the pictures follow its width
}

void CloseGuide() { delete OpenOne(); }

}  // namespace store
