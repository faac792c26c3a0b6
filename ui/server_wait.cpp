#include "ui/server_wait.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "ui/desk.h"

namespace store {
namespace {

// For what is under way from the window system when a call comes back.
constexpr int kLastArrivals = 20;  // milliseconds
// Whoever presses Esc and sees the wait go on for a moment presses again.
constexpr int kImpatience = 700;  // milliseconds

bool IsEnter(const QKeyEvent& key) {
  return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

bool IsText(const QKeyEvent& key) {
  const auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  if ((key.modifiers() & commands) != 0) return false;
  return key.key() == Qt::Key_Backspace || (!key.text().isEmpty() && key.text()[0].isPrint());
}

/// A key whose press means nothing by itself.
bool IsModifier(const QKeyEvent& key) {
  return key.key() >= Qt::Key_Shift && key.key() <= Qt::Key_ScrollLock;
}

}  // namespace

void ServerWait::Forget() {
  link_ = ServerLink::Connected;
  kept_.clear();
  panel_.Hide();
  lookingOut_ = false;
  sinceStop_.invalidate();
  std::erase(lamps_, nullptr);
}

void ServerWait::Become(ServerLink link) {
  if (link == ServerLink::Waiting && link_ != ServerLink::Waiting) linkBefore_ = link_;
  if (link == ServerLink::Stopped) link = linkBefore_;
  if (std::exchange(link_, link) == link) return;
  for (const QPointer<QWidget>& lamp : lamps_) {
    if (lamp != nullptr) lamp->update();
  }
}

void ServerWait::Tell(ServerLink link, std::chrono::milliseconds lasted, int depth) {
  Become(link);
  if (link == ServerLink::Waiting) {
    if (waited_ + lasted >= kNoticed) panel_.ShowWaiting(lasted, false);
    TheDesk().PaintWindows(QEventLoop::ExcludeUserInputEvents);
    return;
  }
  panel_.Hide();
  if (link == ServerLink::Stopped) sinceStop_.start();
  answered_ = link == ServerLink::Connected;
  waited_ += lasted;
  if (waited_ >= kNoticed) {
    keptDepth_ = std::max(depth, 1);
    ThrowInputAway();
  }
  answered_ = true;
}

bool ServerWait::OfferStop(std::chrono::milliseconds lasted) {
  if (waited_ + lasted < kNoticed) {
    Tell(ServerLink::Waiting, lasted, 0);
    return false;
  }
  Become(ServerLink::Waiting);
  panel_.ShowWaiting(lasted, true);
  LookOutForStop();
  return stopWanted_;
}

/// Esc has to be seen while the call runs, and so the rest of what comes is taken as it comes.
void ServerWait::LookOutForStop() {
  if (!std::exchange(lookingOut_, true)) {
    thrown_ = textCame_ = stopWanted_ = false;
    keptBefore_ = kept_.size();
  }
  TakeInput(0);
}

void ServerWait::TakeInput(int milliseconds) {
  throwing_ = true;
  TheDesk().PaintWindows(QEventLoop::AllEvents, milliseconds);
  throwing_ = false;
}

void ServerWait::ThrowInputAway() {
  if (!lookingOut_) {
    thrown_ = textCame_ = false;
    keptBefore_ = kept_.size();
  }
  TakeInput(kLastArrivals);
  if (!answered_) {
    // A text for a call that has brought nothing; what was pressed before it is let go all the
    // same.
    const auto first = kept_.begin() + static_cast<std::ptrdiff_t>(keptBefore_);
    const auto last = std::remove_if(first, kept_.end(), [this](const Kept& kept) {
      const bool isText = kept.event->type() == QEvent::KeyPress;
      thrown_ = thrown_ || isText;
      return isText;
    });
    kept_.erase(last, kept_.end());
  }
  lookingOut_ = false;
  if (thrown_) Host.Beep();
}

bool ServerWait::IsImpatience(const QKeyEvent& key) const {
  return key.key() == Qt::Key_Escape && sinceStop_.isValid() && !sinceStop_.hasExpired(kImpatience);
}

bool ServerWait::Takes(QObject& watched, QEvent& event) {
  auto* window = qobject_cast<QWindow*>(&watched);
  if (!throwing_) {
    return window != nullptr && event.type() == QEvent::KeyPress &&
           IsImpatience(static_cast<QKeyEvent&>(event));
  }
  if (window != nullptr) return TakesFromWindow(*window, event);
  // A letter with Alt goes to its button past the window.
  if (event.type() == QEvent::ShortcutOverride) event.accept();
  return event.type() == QEvent::ShortcutOverride || event.type() == QEvent::Shortcut;
}

bool ServerWait::TakesFromWindow(QWindow& window, QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return TakesKey(window, static_cast<QKeyEvent&>(event));
    case QEvent::KeyRelease:
    case QEvent::MouseButtonRelease:
      Keep(window, event);  // of what was pressed before; a button must not stay down
      return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::Close:
      thrown_ = true;
      return true;
    case QEvent::ShortcutOverride:
      event.accept();
      return true;
    case QEvent::MouseMove:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
      return true;
    default:
      return false;
  }
}

bool ServerWait::TakesKey(QWindow& window, const QKeyEvent& key) {
  if (key.key() == Qt::Key_Escape && lookingOut_) {
    stopWanted_ = true;
  } else if (KeepsKey(key)) {
    Keep(window, key);
    textCame_ = !IsEnter(key);
  } else if (!IsModifier(key)) {
    thrown_ = true;
    textCame_ = false;
  }
  return true;
}

// A blank and Enter press what has the keyboard, unless they belong to a text.
bool ServerWait::KeepsKey(const QKeyEvent& key) const {
  if (!answered_) return false;
  const bool needsText = IsEnter(key) || key.key() == Qt::Key_Space;
  return needsText ? textCame_ : IsText(key);
}

void ServerWait::Keep(QWindow& window, const QEvent& event) {
  kept_.push_back({&window, std::unique_ptr<QEvent>(event.clone())});
}

void ServerWait::EndEvent(int depth) {
  if (depth >= keptDepth_ || giving_) return;
  giving_ = true;
  while (!kept_.empty()) {
    const Kept next = std::move(kept_.front());
    kept_.pop_front();
    Give(next);
  }
  giving_ = false;
}

void ServerWait::Give(const Kept& kept) {
  if (kept.window == nullptr || !kept.window->isVisible()) return;
  if (kept.event->type() == QEvent::KeyPress) {
    // Where the keyboard is now, a text may mean something else.
    const QWidget* at = QApplication::focusWidget();
    const bool sameWindow = QGuiApplication::focusWindow() == kept.window;
    if (!sameWindow || at == nullptr || !at->testAttribute(Qt::WA_InputMethodEnabled)) return;
  }
  QCoreApplication::sendEvent(kept.window, kept.event.get());
}

}  // namespace store
