#include "ui/form_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPainterPath>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "ui/accessible_names.h"
#include "ui/binding.h"
#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/guide_pages.h"
#include "ui/guide_window.h"
#include "ui/key_button.h"
#include "ui/key_names.h"
#include "ui/qt_text.h"
#include "ui/user_choices.h"

namespace store {
namespace {

/// The region of a window without a frame: the corners are cut by an ellipse of 19 by 19.
QRegion RoundedRegion(int width, int height) {
  QPainterPath path;
  path.addRoundedRect(QRectF(QPointF(3, 3), QPointF(width, height)), 9.5, 9.5);
  return QRegion(path.toFillPolygon().toPolygon());
}

bool IsButtonPress(Key key, const QWidget& at) {
  return key == Key::Enter && qobject_cast<const QAbstractButton*>(&at) != nullptr;
}

bool IsFunctionKey(const QKeyEvent& event) {
  return event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35;
}

}  // namespace

FormWindow::FormWindow(Form& form) : form_(form) {
  setObjectName(ToQt(form.Name));
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_0), [] { ForgetLayouts(); });
  OnShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F1), [this] { ShowGuide(); });
  // "+" stands above "=" on one keyboard, alone on another, and in the block of digits on most.
  for (const QKeyCombination plus :
       {Qt::ControlModifier | Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier | Qt::Key_Plus,
        Qt::ControlModifier | Qt::Key_Equal,
        Qt::ControlModifier | Qt::KeypadModifier | Qt::Key_Plus}) {
    OnShortcut(plus, [] { StepTypeSize(1); });
  }
  for (const QKeyCombination minus : {Qt::ControlModifier | Qt::Key_Minus,
                                      Qt::ControlModifier | Qt::KeypadModifier | Qt::Key_Minus}) {
    OnShortcut(minus, [] { StepTypeSize(-1); });
  }
  OnShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { FilterRows(); });
}

FormWindow::~FormWindow() = default;

void FormWindow::Act(const std::function<void()>& event) {
  if (gone_) return;
  for (GridView* grid : grids_) grid->TakeOverOpenCell();
  if (!gone_) Dispatch(event);
}

void FormWindow::BindControls() {
  for (const auto& [name, control] : form_.Controls()) {
    if (auto* timer = dynamic_cast<Timer*>(control)) {
      BindTimer(*this, *timer);
    } else if (auto* widget = findChild<QWidget*>(ToQt(name))) {
      bindings_.push_back(Bind(*this, *control, *widget));
    }
  }
  ChainTabOrder();
}

std::vector<std::string> FormWindow::ControlsWithoutWidget() const {
  std::vector<std::string> without;
  for (const auto& [name, control] : form_.Controls()) {
    const bool isTimer = dynamic_cast<Timer*>(control) != nullptr;
    if (!isTimer && WidgetOf(control) == nullptr) without.push_back(name);
  }
  return without;
}

void FormWindow::OnPress(KeyButton& button, std::function<void()> event) {
  connect(&button, &QPushButton::clicked, this, [this, event = std::move(event)] { Act(event); });
  // A key does no more than the button would: nothing while it is disabled or out of sight.
  if (button.Keys().isEmpty()) return;
  OnShortcut(button.Keys(), [&button] {
    if (button.isVisible()) button.click();
  });
}

void FormWindow::OfferActions(GridView& grid, ContextActions actions) {
  grid.SetContextActions(std::move(actions));
  worked_.push_back(&grid);
}

ContextAction FormWindow::ButtonLine(const QString& name) const {
  auto* button = dynamic_cast<KeyButton*>(findChild<QPushButton*>(name));
  Q_ASSERT(button != nullptr);
  return {.Button = button};
}

ContextAction FormWindow::KeyLine(const QString& text, Key key, const Grid& grid, Control& at) {
  return {.Text = text,
          .Key = WrittenKey(key),
          .Enabled = [&grid, &at] { return at.Enabled && grid.Row() >= grid.FixedRows(); },
          .Event = [this, key, &at] { Act([this, key, &at] { form_.Press(key, &at); }); }};
}

ContextAction FormWindow::BoxLine(const QString& text, const Grid& grid, Control& box) {
  return {.Text = text,
          .Enabled = [&grid, &box] { return box.Enabled && grid.Row() >= grid.FixedRows(); },
          .Event = [this, &box] { Act([this, &box] { form_.SetFocus(box); }); }};
}

void FormWindow::OnShortcut(const QKeySequence& keys, std::function<void()> event) {
  shortcuts_.emplace_back(keys, std::move(event));
}

void FormWindow::TellSize() {
  form_.Place.Width = width();
  form_.Place.Height = height();
}

void FormWindow::TakePlace() {
  const WindowPlace& place = form_.Place;
  if (place.Rounded) {
    setWindowFlag(Qt::FramelessWindowHint);
    setMask(RoundedRegion(width(), height()));
  }
  if (place.Positioned && !placed_) move(place.Left, place.Top);
  if (place.OnTop) setWindowFlag(Qt::WindowStaysOnTopHint);
  if (place.State == WindowState::Minimized) setWindowState(Qt::WindowMinimized);
  if (place.State == WindowState::Maximized && !placed_) setWindowState(Qt::WindowMaximized);
}

void FormWindow::ComeForward() {
  if (isMinimized()) setWindowState(windowState() & ~Qt::WindowMinimized);
  show();
  raise();
  activateWindow();
}

void FormWindow::BeginModal(QEventLoop* loop, QWidget* owner) {
  loop_ = loop;
  setWindowModality(Qt::ApplicationModal);
  if (owner == nullptr) return;
  winId();
  windowHandle()->setTransientParent(owner->window()->windowHandle());
}

void FormWindow::EndModal() {
  if (loop_ != nullptr) loop_->quit();
  loop_ = nullptr;
}

void FormWindow::Leave() {
  if (painted_) layout_.Save();
  gone_ = true;
  hide();
  for (QTimer* timer : findChildren<QTimer*>()) timer->stop();
  EndModal();
}

void FormWindow::Sync() {
  if (gone_) return;
  FollowTitle();
  for (const auto& binding : bindings_) binding->Follow();
  for (const auto& sync : syncs_) sync();
  // The captions that the form writes are there now.
  if (!std::exchange(named_, true)) NameControls(*this);
  FollowFocus();
}

void FormWindow::FollowTitle() {
  QString title = ToQt(form_.Caption);
  const QString subject = subject_ ? ToQt(subject_()) : QString();
  if (!subject.isEmpty()) title += " - " + subject;
  if (windowTitle() != title) setWindowTitle(title);
}

void FormWindow::FollowFocus() {
  if (form_.FocusRevision() == focusSeen_) return;
  focusSeen_ = form_.FocusRevision();
  QWidget* wanted = WidgetOf(form_.ActiveControl);
  if (wanted != nullptr && !wanted->isEnabled()) {
    // A stored slip disables what the form usually begins with; the keyboard must be somewhere.
    const auto answers = [this](const Control* control) {
      const QWidget* widget = WidgetOf(control);
      return widget != nullptr && widget->isEnabled() && !widget->isHidden();
    };
    const auto next = std::find_if(form_.TabOrder.begin(), form_.TabOrder.end(), answers);
    wanted = next == form_.TabOrder.end() ? nullptr : WidgetOf(*next);
  }
  if (wanted != nullptr) wanted->setFocus(Qt::OtherFocusReason);
}

const Binding* FormWindow::BindingAt(const QWidget& widget) const {
  for (const QWidget* at = &widget; at != nullptr && at != this; at = at->parentWidget()) {
    const auto found = std::find_if(bindings_.begin(), bindings_.end(),
                                    [&](const auto& binding) { return binding->Shown() == at; });
    if (found != bindings_.end()) return found->get();
  }
  return nullptr;
}

QWidget* FormWindow::WidgetOf(const Control* control) const {
  const auto found = std::find_if(bindings_.begin(), bindings_.end(), [&](const auto& binding) {
    return &binding->Bound() == control;
  });
  return found == bindings_.end() ? nullptr : (*found)->Shown();
}

void FormWindow::FocusMoved(QWidget& to, bool fromThisWindow) {
  if (gone_) return;
  const Binding* binding = BindingAt(to);
  if (binding == nullptr) return;
  const auto takeFocus = [&] { form_.TakeFocus(binding->Bound(), fromThisWindow); };
  const Control* leaves = form_.FocusedControl();
  if (binding->Bound().GotFocus || (leaves != nullptr && leaves->LostFocus)) {
    Dispatch(takeFocus);
  } else {
    takeFocus();
  }
}

bool FormWindow::InTypedText(const QWidget& at) const {
  return std::any_of(grids_.begin(), grids_.end(),
                     [&](const GridView* grid) { return grid->TakesTyping(at); });
}

/// Escape among filtered rows shows them all again, before it means anything to the form.
bool FormWindow::EscapesFilter(const QWidget& at) const {
  const auto filtered = std::find_if(grids_.begin(), grids_.end(), [&](const GridView* grid) {
    return grid == &at && grid->FilterIsOpen();
  });
  if (filtered == grids_.end()) return false;
  (*filtered)->CloseFilter();
  return true;
}

void FormWindow::FilterRows() {
  for (const std::vector<GridView*>* grids : {&grids_, &worked_}) {
    for (GridView* grid : *grids) {
      const bool isMeant = grids == &worked_ || grid->hasFocus();
      if (!isMeant || !grid->isVisible() || !grid->MayArrange()) continue;
      grid->OpenFilter();
      return;
    }
  }
}

bool FormWindow::KeyPressed(const QKeyEvent& event, QWidget& at) {
  const Key key = NamedKey(event);
  if (InTypedText(at) && !IsFunctionKey(event)) return false;
  if (qobject_cast<const QMenuBar*>(&at) != nullptr) return false;  // a person walks along it
  if (key == Key::Escape && EscapesFilter(at)) return true;

  const bool walks = key == Key::Up || key == Key::Down || key == Key::Delete || key == Key::Tab;
  if (key != Key::None && event.isAutoRepeat() && !walks) return true;  // a key that was held down
  if (ScanTakes(event, at)) return true;

  if (key != Key::None) {
    bool used = false;
    const Binding* binding = BindingAt(at);
    Act([&] { used = form_.Press(key, binding == nullptr ? nullptr : &binding->Bound()); });
    if (used || gone_) return true;
    if (IsButtonPress(key, at)) {
      static_cast<QAbstractButton&>(at).click();
      return true;
    }
  }
  return ShortcutTakes(event) || gone_;
}

/// A scanner's code, with its Enter, goes to a box that asks for codes.
bool FormWindow::ScanTakes(const QKeyEvent& event, const QWidget& at) {
  const QString code = scan_.Take(event);
  const Binding* binding = code.isEmpty() ? nullptr : BindingAt(at);
  const auto* box = binding == nullptr ? nullptr : dynamic_cast<TextBox*>(&binding->Bound());
  if (box == nullptr || !box->Enabled || !box->Scan) return false;
  Act([&] { box->Scan(FromQt(code)); });
  return true;
}

bool FormWindow::ShortcutTakes(const QKeyEvent& event) {
  const QKeySequence pressed(event.keyCombination());
  for (const auto& [keys, handler] : shortcuts_) {
    if (keys != pressed) continue;
    if (!event.isAutoRepeat()) handler();
    return true;
  }
  // Where F1 has no other meaning in the window.
  if (pressed != QKeySequence(Qt::Key_F1)) return false;
  ShowGuide();
  return true;
}

void FormWindow::ShowGuide() { OpenGuide(GuidePageOf(form_.Name), this); }

bool FormWindow::event(QEvent* event) {
  const bool handled = QWidget::event(event);
  switch (event->type()) {
    case QEvent::Paint:
      // Only a window that a person can see may begin to work and keep them waiting.
      if (!std::exchange(painted_, true)) QueueActivate();
      break;
    case QEvent::Resize:
      if (!mask().isEmpty()) setMask(RoundedRegion(width(), height()));
      break;
    case QEvent::WindowDeactivate:
      left_ = !TheDesk().BoxIsOpen();
      break;
    case QEvent::WindowActivate:
      if (std::exchange(left_, false)) QueueActivate();
      break;
    default:
      break;
  }
  return handled;
}

void FormWindow::ActivateAgain() {
  left_ = false;
  QueueActivate();
}

void FormWindow::QueueActivate() {
  QTimer::singleShot(0, this, [this] {
    if (gone_) return;
    const QPointer<FormWindow> here(this);
    const auto again = [here] {
      if (here != nullptr) here->QueueActivate();
    };
    if (TheDesk().WaitsForPainting(again)) return;
    Dispatch([this] { form_.Activate(); });
    if (here != nullptr) begun_ = true;
  });
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  Act([this] { form_.Close(); });
}

void FormWindow::ChainTabOrder() {
  QWidget* last = nullptr;
  for (const Control* control : form_.TabOrder) {
    QWidget* widget = WidgetOf(control);
    if (widget == nullptr) continue;
    if (last != nullptr) setTabOrder(last, widget);
    last = widget;
  }
}

}  // namespace store
