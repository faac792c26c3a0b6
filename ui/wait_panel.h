#pragma once

#include <QPointer>
#include <chrono>
#include <string>

class QFrame;
class QString;

namespace store {

/// The panel in the middle of the window in front that says that the program is busy: with a bar
/// that runs while it waits for the data server, with one that fills where the work is counted. It
/// never takes the keyboard.
class WaitPanel {
 public:
  WaitPanel() = default;
  ~WaitPanel();
  WaitPanel(const WaitPanel&) = delete;
  WaitPanel& operator=(const WaitPanel&) = delete;

  /// So long the server has been waited for; says that Esc stops it where it does.
  void ShowWaiting(std::chrono::milliseconds lasted, bool stoppable);
  /// So much of a counted work is done.
  void ShowProgress(const std::string& what, int done, int of);
  void Hide();

 private:
  void Show(const QString& what, const QString& remark, int done, int of);

  QPointer<QFrame> frame_;  // belongs to the window that it stands in
};

}  // namespace store
