#pragma once

#include <QKeySequence>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"

class QEventLoop;
class QKeyEvent;

namespace store {

class GridView;

/// The window of one form: widgets that show the form's controls and turn what a person does into
/// the form's events. The derived windows build the widgets and say which belongs to which control.
class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& form);

  Form& ShownForm() const { return form_; }

  /// An event of the form from the hand of a person: a cell that is being typed into is taken over
  /// first, as when one types a quantity and presses the save key.
  void Act(const std::function<void()>& event);

  /// Ties a widget to its control: enabled, visible and tool tip follow it, `sync` does the rest.
  /// The widget bears the control's name.
  void Bind(
      const QString& name, Control& control, QWidget& widget, std::function<void()> sync = [] {});
  /// Something else that follows the form after each event.
  void AlsoSync(std::function<void()> sync) { syncs_.push_back(std::move(sync)); }
  /// The control's own keys, after the form has seen them. True means that the key is used up.
  void OnKey(const Control& control, std::function<bool(Key)> handler);
  /// The control got the keyboard from another one of this window.
  void OnGotFocus(const Control& control, std::function<void()> handler);
  /// A key, or a combination of keys, that works wherever the keyboard is in the window, unless the
  /// form or the control has used it up.
  void OnShortcut(const QKeySequence& keys, std::function<void()> event);
  /// A grid whose open cell is taken over by `Act`.
  void HoldsGrid(GridView& grid) { grids_.push_back(&grid); }

  // For the desk.
  void TellSize();
  void TakePlace();
  void ComeForward();
  void RunsIn(QEventLoop* loop, QWidget* owner);
  void Leave();
  void Sync();
  void FocusMoved(QWidget& to, bool fromThisWindow);
  bool KeyPressed(const QKeyEvent& event, QWidget& at);
  /// Whether the window has been drawn and its form has done the work of its first activation.
  bool HasBegun() const { return begun_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  /// Called once, when all widgets are bound: the tab key walks as the form says.
  void ChainTabOrder();

 private:
  struct Bound {
    Control* control;
    QPointer<QWidget> widget;
  };
  const Bound* BoundAt(const QWidget& widget) const;
  QWidget* WidgetOf(const Control* control) const;
  void SyncCommon(const Bound& bound);
  void FollowFocus();
  void QueueActivate();
  bool InOpenCell(const QWidget& at) const;
  bool ControlTakes(Key key, QWidget& at);
  bool ShortcutTakes(const QKeyEvent& event);

  Form& form_;
  std::vector<Bound> bound_;
  std::vector<std::function<void()>> syncs_;
  std::vector<std::pair<const Control*, std::function<bool(Key)>>> keys_;
  std::vector<std::pair<const Control*, std::function<void()>>> gotFocus_;
  std::vector<std::pair<QKeySequence, std::function<void()>>> shortcuts_;
  std::vector<GridView*> grids_;
  QEventLoop* loop_ = nullptr;
  unsigned focusSeen_ = 0;
  bool gone_ = false;  // the form has closed and may not even be there any more
  bool painted_ = false;
  bool begun_ = false;
  bool left_ = false;  // for another window, not just for a box
};

}  // namespace store
