#include "ui/desk.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QTimer>
#include <algorithm>

#include "forms/open_forms.h"
#include "ui/form_window.h"
#include "ui/user_choices.h"
#include "ui/window_registry.h"

namespace store {

/// Counts the event as running for as long as it lives.
class Desk::RunningEvent {
 public:
  explicit RunningEvent(Desk& desk) : desk_(desk) { ++desk_.depth_; }
  ~RunningEvent() {
    --desk_.depth_;
    desk_.FreeClosed();
  }
  RunningEvent(const RunningEvent&) = delete;
  RunningEvent& operator=(const RunningEvent&) = delete;

 private:
  Desk& desk_;
};

Desk::Desk(QObject* application) : QObject(application) {
  application->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget* from, QWidget* to) { FocusMoved(from, to); });
}

Desk::~Desk() = default;

void Desk::Run(const std::function<void()>& event) {
  server_.BeginEvent();
  {
    const RunningEvent running(*this);
    event();
    SyncWindows();
  }
  server_.EndEvent(depth_);
}

void Desk::SyncWindows() {
  // Moving the focus is an event of its own, so bringing windows into line can come back here.
  if (syncing_) {
    syncAgain_ = true;
    return;
  }
  syncing_ = true;
  do {
    syncAgain_ = false;
    const std::vector<FormWindow*> windows = open_;
    for (FormWindow* window : windows) {
      if (std::find(open_.begin(), open_.end(), window) != open_.end()) window->Sync();
    }
  } while (syncAgain_);
  syncing_ = false;
}

void Desk::LetWindowsPaint() {
  SyncWindows();
  Paint(QEventLoop::ExcludeUserInputEvents, 0);
}

void Desk::PaintWindows(QEventLoop::ProcessEventsFlags flags, int milliseconds) {
  const bool before = std::exchange(insideCall_, true);
  Paint(flags | QEventLoop::ExcludeSocketNotifiers, milliseconds);
  insideCall_ = before;
}

void Desk::ShowProgress(const std::string& what, int done, int of) {
  if (of == 0) return progress_.Hide();
  progress_.ShowProgress(what, done, of);
  PaintWindows(QEventLoop::ExcludeUserInputEvents);
}

void Desk::Paint(QEventLoop::ProcessEventsFlags flags, int milliseconds) {
  ++painting_;
  if (milliseconds == 0) {
    QCoreApplication::processEvents(flags);
  } else {
    QCoreApplication::processEvents(flags, milliseconds);
  }
  if (--painting_ > 0) return;
  for (const auto& work : std::exchange(afterPainting_, {})) work();
}

bool Desk::WaitsForPainting(std::function<void()> work) {
  if (painting_ == 0) return false;
  afterPainting_.push_back(std::move(work));
  return true;
}

void Desk::FreeClosed() {
  if (depth_ > 0) return;
  if (ending_) {
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  }
  if (!typedLater_.isEmpty()) QTimer::singleShot(0, this, [this] { TypeNext(); });
  if (leaving_.empty()) {
    ReleaseDroppedForms();
    return;
  }
  // A widget of a closed window may have sent this event and is still on the stack.
  QTimer::singleShot(0, this, [this] {
    if (depth_ > 0) return;  // the event that runs now calls again at its end
    DeleteLeaving();
    ReleaseDroppedForms();
  });
}

void Desk::DeleteLeaving() {
  for (const FormWindow* window : std::exchange(leaving_, {})) delete window;
}

FormWindow* Desk::Open(Form& form) {
  if (FormWindow* window = WindowOf(form)) return window;
  TakeUserChoices();  // somebody may have logged in
  FormWindow* window = MakeWindow(form);
  if (window == nullptr) return nullptr;
  open_.push_back(window);
  window->TakeLayout();
  window->TellSize();
  form.EnsureLoaded();
  if (form.IsClosed()) return nullptr;
  window->Sync();
  window->TakePlace();
  return window;
}

void Desk::Show(Form& form) {
  const RunningEvent running(*this);
  FormWindow* window = Open(form);
  if (window == nullptr) return;
  window->ComeForward();
}

void Desk::ShowModal(Form& form) {
  const RunningEvent running(*this);
  const QPointer<FormWindow> window = Open(form);
  if (window == nullptr) return;
  SyncWindows();
  QEventLoop loop;
  const QPointer<QWidget> owner = FrontWindow();
  window->BeginModal(&loop, owner);
  const bool again = window->HasBegun();
  window->ComeForward();
  if (again) window->ActivateAgain();
  loop.exec();
  const bool hidden = window != nullptr && !window->IsGone() && !window->IsModal();
  if (!hidden) {
    // Closed, or the program ends. The form may lie on its caller's stack, so its window must be
    // gone when the caller goes on.
    std::erase(leaving_, window.data());
    std::erase(open_, window.data());
    delete window;
  }
  if (owner != nullptr && owner->isVisible()) owner->activateWindow();
}

void Desk::Hide(Form& form) {
  FormWindow* window = WindowOf(form);
  if (window == nullptr) return;
  window->hide();
  window->EndModal();
}

void Desk::Minimize(Form& form) {
  if (FormWindow* window = WindowOf(form)) window->showMinimized();
}

void Desk::CloseWindow(Form& form) {
  FormWindow* window = WindowOf(form);
  if (window == nullptr) return;
  std::erase(open_, window);
  leaving_.push_back(window);
  window->Leave();
}

void Desk::EndProgram() {
  ending_ = true;
  FreeClosed();
}

FormWindow* Desk::WindowOf(const Form& form) const {
  const auto found = std::find_if(open_.begin(), open_.end(), [&](const FormWindow* window) {
    return &window->ShownForm() == &form;
  });
  return found == open_.end() ? nullptr : *found;
}

FormWindow* Desk::WindowNamed(const std::string& formName) const {
  const auto found = std::find_if(open_.begin(), open_.end(), [&](const FormWindow* window) {
    return window->ShownForm().Name == formName;
  });
  return found == open_.end() ? nullptr : *found;
}

void Desk::ForEachWindow(const std::function<void(FormWindow&)>& act) const {
  for (FormWindow* window : open_) act(*window);
}

QWidget* Desk::FrontWindow() const {
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (auto window = open_.rbegin(); window != open_.rend(); ++window) {
    if ((*window)->isVisible()) return *window;
  }
  return nullptr;
}

void Desk::ComeForward() {
  QWidget* front = FrontWindow();
  if (front == nullptr) return;
  if (auto* window = dynamic_cast<FormWindow*>(front)) {
    window->ComeForward();
  } else {
    front->raise();
    front->activateWindow();
  }
  // A desktop that lets no program take the keyboard shows it in the task bar.
  QApplication::alert(front);
}

void Desk::Clear() {
  for (FormWindow* window : std::exchange(open_, {})) {
    window->Leave();
    leaving_.push_back(window);
  }
  DeleteLeaving();
  ending_ = false;
  progress_.Hide();
  server_.Forget();
}

void Desk::FocusMoved(QWidget* from, QWidget* to) {
  if (to == nullptr) return;
  // It is an event of the form, which may be in the middle of another one.
  const auto again = [this, left = QPointer(from), now = QPointer(to)] {
    QTimer::singleShot(0, this, [this, left, now] {
      if (now != nullptr && now == QApplication::focusWidget()) FocusMoved(left, now);
    });
  };
  if (WaitsForPainting(again)) return;
  if (auto* window = dynamic_cast<FormWindow*>(to->window())) {
    window->FocusMoved(*to, from != nullptr && from->window() == window);
  }
}

void Desk::TypeLater(QLineEdit& field, const QString& text) {
  if (typedInto_ != &field) typedLater_.clear();
  typedInto_ = &field;
  typedLater_ += text;
}

/// A text up to its Enter at a time: that may bring up the next box, whose keys come behind what is
/// still to be typed.
void Desk::TypeNext() {
  if (depth_ > 0 || boxes_ > 0) return;  // the event that runs now calls again at its end
  if (typedInto_ == nullptr || !typedInto_->isEnabled() || !typedInto_->isVisible()) {
    typedLater_.clear();
    return;
  }
  const RunningEvent running(*this);
  const qsizetype end = typedLater_.indexOf('\r');
  const QString text = typedLater_.left(end);
  typedLater_.remove(0, end < 0 ? typedLater_.size() : end + 1);
  typedInto_->setFocus();
  QKeyEvent typing(QEvent::KeyPress, Qt::Key_unknown, Qt::NoModifier, text);
  QCoreApplication::sendEvent(typedInto_, &typing);
  if (end < 0 || typedInto_ == nullptr) return;
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(typedInto_, &enter);
}

bool Desk::TypesBehind(const QWidget& widget, const QKeyEvent& key) {
  if (typedLater_.isEmpty() || &widget != typedInto_ || !key.spontaneous()) return false;
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  if (isEnter) {
    typedLater_ += '\r';
  } else if (!key.text().isEmpty() && key.text().front().isPrint()) {
    typedLater_ += key.text();
  } else {
    return false;
  }
  return true;
}

bool Desk::eventFilter(QObject* watched, QEvent* event) {
  if (server_.Takes(*watched, *event)) return true;
  if (event->type() == QEvent::Wheel) {
    // Scrolling past a choice must not change it.
    auto* choice = qobject_cast<QWidget*>(watched);
    const bool isChoice = qobject_cast<QComboBox*>(choice) || qobject_cast<QDateEdit*>(choice);
    if (isChoice && !choice->hasFocus()) event->ignore();
    return isChoice && !choice->hasFocus();
  }
  if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
  auto* widget = static_cast<QWidget*>(watched);
  auto* window = dynamic_cast<FormWindow*>(widget->window());
  if (window == nullptr) return false;
  if (TypesBehind(*widget, static_cast<const QKeyEvent&>(*event))) return true;
  // The event is offered to the widget with the keyboard first and then to those around it.
  const QWidget* first = window->focusWidget() != nullptr ? window->focusWidget() : window;
  if (widget != first) return false;
  return window->KeyPressed(*static_cast<QKeyEvent*>(event), *widget);
}

Desk& TheDesk() {
  static QPointer<Desk> desk;
  if (desk == nullptr) desk = new Desk(qApp);
  return *desk;
}

void Dispatch(const std::function<void()>& event) { TheDesk().Run(event); }

}  // namespace store
