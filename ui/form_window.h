#pragma once

#include <QKeySequence>
#include <QWidget>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "ui/context_action.h"
#include "ui/scan_run.h"
#include "ui/window_layout.h"

class QEventLoop;
class QKeyEvent;

namespace store {

class Binding;
class GridView;
class KeyButton;

/// The window of one form: widgets that show the form's controls and turn what a person does into
/// the form's events. The derived windows are layout: they make the widgets and give each the name
/// of its control.
class FormWindow : public QWidget {
 public:
  explicit FormWindow(Form& form);
  ~FormWindow() override;

  Form& ShownForm() const { return form_; }

  /// An event of the form from the hand of a person: a cell that is being typed into is taken over
  /// first, as when one types a quantity and presses the save key.
  /// Within a call to the server, where no event of a form may run, it waits for the end of the
  /// call, and so has to own what it touches.
  void Act(const std::function<void()>& event);

  /// Something else that follows the form after each event.
  void AlsoSync(std::function<void()> sync) { syncs_.push_back(std::move(sync)); }
  /// A button, and the key written on it, for an event of the form.
  void OnPress(KeyButton& button, std::function<void()> event);
  /// A key, or a combination of keys, that works wherever the keyboard is in the window, unless the
  /// form or the control has used it up.
  void OnShortcut(const QKeySequence& keys, std::function<void()> event);
  /// A grid whose open cell is taken over by `Act`.
  void KeepOpenCellsOf(GridView& grid) { grids_.push_back(&grid); }
  /// The lines of a grid's context menu that are this window's own.
  void OfferActions(GridView& grid, ContextActions actions);
  /// Opens the filter of the grid that has the keyboard, or of the first one with such lines.
  void FilterRows();
  /// A line that does what the button of that name does.
  ContextAction ButtonLine(const QString& name) const;
  /// A line that does what the key does while `at` has the keyboard; it is there for a current row
  /// of `grid`.
  ContextAction KeyLine(const QString& text, Key key, const Grid& grid, Control& at);
  ContextAction KeyLine(const QString& text, Key key, Grid& grid) {
    return KeyLine(text, key, grid, grid);
  }
  /// A line that gives the keyboard to a box into which something about the current row is typed.
  ContextAction BoxLine(const QString& text, const Grid& grid, Control& box);
  /// The names of published controls for which the layout has no widget.
  std::vector<std::string> ControlsWithoutWidget() const;

  /// What stands behind the caption in the title: which one of several windows this is.
  void TitleTells(std::function<std::string()> subject) { subject_ = std::move(subject); }
  WindowLayout& Layout() { return layout_; }

  // For the desk.
  void TakeLayout() { placed_ = layout_.Restore(); }
  void TellSize();
  void TakePlace();
  void ComeForward();
  /// The window is modal, in front of `owner`, and ends `loop` when its form closes or hides.
  void BeginModal(QEventLoop* loop, QWidget* owner);
  void EndModal();
  bool IsModal() const { return loop_ != nullptr; }  ///< False again once it is hidden.
  bool IsGone() const { return gone_; }              ///< The form has closed.
  void ActivateAgain();
  void Leave();
  void Sync();
  void FocusMoved(QWidget& to, bool fromThisWindow);
  bool KeyPressed(const QKeyEvent& event, QWidget& at);
  /// Whether the window has been drawn and its form has done the work of its first activation.
  bool HasBegun() const { return begun_; }

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  /// Called once, at the end of the layout: each control that the form publishes is tied to the
  /// widget of its name, and the tab key walks as the form says.
  void BindControls();

 private:
  const Binding* BindingAt(const QWidget& widget) const;
  QWidget* WidgetOf(const Control* control) const;
  void FollowFocus();
  void QueueActivate();
  void ActLater(std::function<void()> event);
  bool InTypedText(const QWidget& at) const;
  bool EscapesFilter(const QWidget& at) const;
  void ChainTabOrder();
  bool ScanTakes(const QKeyEvent& event, const QWidget& at);
  bool ShortcutTakes(const QKeyEvent& event);
  void FollowTitle();
  /// At the page that is about this window.
  void ShowGuide();

  Form& form_;
  WindowLayout layout_{*this};
  std::function<std::string()> subject_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::vector<std::function<void()>> syncs_;
  std::vector<std::pair<QKeySequence, std::function<void()>>> shortcuts_;
  std::vector<GridView*> grids_;
  ScanRun scan_;
  std::vector<GridView*> worked_;  // the grids with lines of their own
  QEventLoop* loop_ = nullptr;
  unsigned focusSeen_ = 0;
  bool named_ = false;
  bool placed_ = false;  // where a person has left it
  bool gone_ = false;    // the form has closed and may not even be there any more
  bool painted_ = false;
  bool begun_ = false;
  bool left_ = false;  // for another window, not just for a box
};

/// A widget under the name of its control: "Text1", or "Text1_0" for a member of an array.
template <class Widget>
Widget* Named(const QString& name, Widget* widget) {
  widget->setObjectName(name);
  return widget;
}

}  // namespace store
