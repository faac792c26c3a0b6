#pragma once

#include <QEventLoop>
#include <QObject>
#include <QPointer>
#include <QString>
#include <functional>
#include <vector>

#include "forms/form.h"
#include "ui/server_wait.h"
#include "ui/wait_panel.h"

class QKeyEvent;
class QLineEdit;
class QWidget;

namespace store {

class FormWindow;

/// Everything that stands on the screen: the windows of the open forms and the events that run on
/// them. There is one desk in a program; it goes with the application object.
///
/// A form never reports a change. Instead, whatever a person does arrives here as one event, and
/// after it every window is compared with its form.
class Desk : public QObject {
 public:
  explicit Desk(QObject* application);
  ~Desk() override;

  /// Runs an event of a form, brings all windows into line, and, when no other event is running any
  /// more, frees what was closed.
  void Run(const std::function<void()>& event);
  bool EventRunning() const { return depth_ > 0; }
  /// For the places where a running event lets a person look: before a box, a modal window, a
  /// round of pending events.
  void SyncWindows();
  /// Lets the windows paint in the middle of an event. What a person types or clicks meanwhile
  /// waits, and so does the work of windows that come to the front: it may need the very data that
  /// the running event is walking through.
  void LetWindowsPaint();
  /// The same for the middle of a call to the server: the forms may be half-way through a step, and
  /// so the windows show what they last showed. No timer of a form fires, and no port is listened
  /// to.
  void PaintWindows(QEventLoop::ProcessEventsFlags flags, int milliseconds = 0);
  bool InsideCall() const { return insideCall_; }
  ServerWait& Server() { return server_; }
  void ShowServer(ServerLink link, std::chrono::milliseconds lasted) {
    server_.Tell(link, lasted, depth_);
  }
  /// How far a counted work has come; it is over when `of` is 0.
  void ShowProgress(const std::string& what, int done, int of);
  /// Keeps `work` back while the windows paint. False when they do not, and it may run at once.
  bool WaitsForPainting(std::function<void()> work);

  /// The doors of `Host`.
  void Show(Form& form);
  void ShowModal(Form& form);
  void Hide(Form& form);
  void Minimize(Form& form);
  void CloseWindow(Form& form);
  void EndProgram();
  bool Ending() const { return ending_; }

  /// The window of a form that is open, or nothing.
  FormWindow* WindowOf(const Form& form) const;
  /// The window of the form with that name, or nothing.
  FormWindow* WindowNamed(const std::string& formName) const;
  void ForEachWindow(const std::function<void(FormWindow&)>& act) const;
  /// What a box stands in front of.
  QWidget* FrontWindow() const;

  /// Brings what a person works in to the front, as when the program is started once more.
  void ComeForward();

  /// While a box is open, windows lose and get the keyboard without being left by the person.
  void BoxOpened() { ++boxes_; }
  void BoxClosed() { --boxes_; }
  bool BoxIsOpen() const { return boxes_ > 0; }

  /// Types a text into a field once no event runs and no box stands, "\r" being Enter. What a
  /// person types into the field until then comes after it.
  void TypeLater(QLineEdit& field, const QString& text);

  /// Takes all windows away without asking anybody; for the end of the program.
  void Clear();

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  class RunningEvent;

  FormWindow* Open(Form& form);
  void Paint(QEventLoop::ProcessEventsFlags flags, int milliseconds);
  void FreeClosed();
  void DeleteLeaving();
  void FocusMoved(QWidget* from, QWidget* to);
  bool TypesBehind(const QWidget& widget, const QKeyEvent& key);
  void TypeNext();

  std::vector<FormWindow*> open_;
  std::vector<FormWindow*> leaving_;  // closed, but a handler of theirs may still be running
  std::vector<std::function<void()>> afterPainting_;
  QPointer<QLineEdit> typedInto_;
  QString typedLater_;
  ServerWait server_;
  WaitPanel progress_;
  bool insideCall_ = false;
  int painting_ = 0;
  int depth_ = 0;
  int boxes_ = 0;
  bool syncing_ = false;
  bool syncAgain_ = false;
  bool ending_ = false;
};

/// The desk of this program, made on first use.
Desk& TheDesk();

/// `TheDesk().Run(event)`.
void Dispatch(const std::function<void()>& event);

}  // namespace store
