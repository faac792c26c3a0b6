#include "ui/window_layout.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSplitter>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "basics/records.h"
#include "forms/host.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"
#include "ui/layout_pieces.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr double kUnmaximized = 0.9;  // of the screen, for a window that opens maximized
constexpr int kLargestPart = 20000;   // pixels
constexpr const char* kPlace = "place";

/// "1920x1080+0+0" for each screen: a layout belongs to all of them together.
QString Screens() {
  QStringList screens;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect at = screen->geometry();
    screens << QString("%1x%2+%3+%4").arg(at.width()).arg(at.height()).arg(at.x()).arg(at.y());
  }
  return screens.join(' ');
}

std::string Section() {
  const std::string user = Session.UserCode.empty() ? "-" : Session.UserCode;
  return "windows/" + user + "/" + FromQt(Screens());
}

QString SizesOf(const QSplitter& splitter) {
  QStringList sizes;
  for (const int size : splitter.sizes()) sizes << QString::number(size);
  return sizes.join(' ');
}

void TakeSizes(QSplitter& splitter, const QString& text) {
  QList<int> sizes;
  for (const QString& part : text.split(' ', Qt::SkipEmptyParts)) sizes << part.toInt();
  const bool stands = sizes.size() == splitter.count() &&
                      std::all_of(sizes.begin(), sizes.end(),
                                  [](int size) { return size > 0 && size <= kLargestPart; });
  if (stands) splitter.setSizes(sizes);
}

/// The splitters and grids of a window with the name that each has in the settings.
template <class Part, class Act>
void ForEachPart(const QWidget& window, const Act& act) {
  int number = 0;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    auto* part = dynamic_cast<Part*>(widget);
    if (part == nullptr) continue;
    const QString name = part->objectName();
    act(name.isEmpty() ? QString("part%1").arg(number) : name, *part);
    ++number;
  }
}

}  // namespace

void WindowLayout::OpenAs(const QSize& least, double share) {
  least_ = least;
  share_ = share;
  GiveFirstSize();
}

bool WindowLayout::IsFixed() const { return window_.minimumSize() == window_.maximumSize(); }

QString WindowLayout::KeyOf(const QString& part) const { return window_.objectName() + "." + part; }

void WindowLayout::GiveFirstSize() {
  const QRect room = RoomForWindow(window_);
  const double share = share_ < 1 ? share_ : kUnmaximized;
  const QSize size = (QSizeF(room.size()) * share).toSize().expandedTo(Scaled(least_));
  QRect place({}, size.boundedTo(room.size()));
  place.moveCenter(room.center());
  window_.setGeometry(place);
}

bool WindowLayout::TakeGeometry(const QString& text) {
  const QByteArray before = window_.saveGeometry();
  const QByteArray kept = QByteArray::fromBase64(text.toLatin1());
  if (kept.size() != before.size() || !window_.restoreGeometry(kept)) return false;
  // As large as it will be: a window of one pixel in a corner grows out of the screen.
  const QRect place(window_.geometry().topLeft(),
                    window_.size().expandedTo(window_.minimumSizeHint()));
  const QList<QScreen*> screens = QGuiApplication::screens();
  const bool isSeen = std::any_of(screens.begin(), screens.end(), [&](const QScreen* screen) {
    return screen->availableGeometry().contains(place.center());
  });
  if (!isSeen) window_.restoreGeometry(before);
  return isSeen;
}

bool WindowLayout::Restore() {
  if (IsFixed()) return false;
  firstSize_ = window_.size();
  const auto kept = [this](const QString& part) {
    return kept_[part] = ToQt(Host.GetSetting(Host.ProgramTitle, Section(), FromQt(KeyOf(part))));
  };
  const bool placed = TakeGeometry(kept(kPlace));
  if (!placed && share_ >= 1) window_.setWindowState(Qt::WindowMaximized);
  ForEachPart<QSplitter>(window_, [&](const QString& name, QSplitter& splitter) {
    first_.push_back(splitter.saveState());
    TakeSizes(splitter, kept(name));
  });
  ForEachPart<GridView>(
      window_, [&](const QString& name, GridView& grid) { grid.Columns().TakeLayout(kept(name)); });
  return placed;
}

WindowLayout::Texts WindowLayout::Now() const {
  Texts now;
  now[kPlace] = QString::fromLatin1(window_.saveGeometry().toBase64());
  ForEachPart<QSplitter>(window_, [&](const QString& name, const QSplitter& splitter) {
    now[name] = SizesOf(splitter);
  });
  ForEachPart<GridView>(
      window_, [&](const QString& name, GridView& grid) { now[name] = grid.Columns().Layout(); });
  return now;
}

void WindowLayout::Save() {
  if (IsFixed()) return;
  for (const auto& [part, text] : Now()) {
    if (std::exchange(kept_[part], text) == text) continue;
    Host.SaveSetting(Host.ProgramTitle, Section(), FromQt(KeyOf(part)), FromQt(text));
  }
}

void WindowLayout::TakeFirstPlace() {
  // Not even for a moment less than the screen: desktops lose count of what follows at once.
  if (share_ >= 1 && window_.isMaximized()) return;
  window_.setWindowState(window_.windowState() & ~Qt::WindowMaximized);
  if (share_ > 0) {
    GiveFirstSize();
  } else {
    window_.resize(firstSize_);
  }
  if (share_ >= 1) window_.setWindowState(window_.windowState() | Qt::WindowMaximized);
}

void WindowLayout::BeginAnew() {
  if (IsFixed()) return;
  kept_.clear();
  TakeFirstPlace();
  auto state = first_.begin();
  ForEachPart<QSplitter>(window_, [&](const QString&, QSplitter& splitter) {
    if (state != first_.end()) splitter.restoreState(*state++);
  });
  ForEachPart<GridView>(window_,
                        [](const QString&, GridView& grid) { grid.Columns().TakeLayout({}); });
}

void ForgetLayouts() {
  Host.ForgetSettings(Host.ProgramTitle, Section());
  TheDesk().ForEachWindow([](FormWindow& window) { window.Layout().BeginAnew(); });
}

}  // namespace store
