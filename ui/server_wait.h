#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <chrono>
#include <deque>
#include <memory>
#include <vector>

#include "forms/host.h"
#include "ui/wait_panel.h"

class QEvent;
class QKeyEvent;
class QObject;
class QWidget;
class QWindow;

namespace store {

/// How the data server stands, and what becomes of the keys and clicks that come while the program
/// waits for it.
///
/// Whoever presses a key and sees nothing happen presses again, and elsewhere; carried out after
/// the wait, that would hit something else than was meant. So once the calls of an event have taken
/// `kNoticed`, what has come meanwhile is thrown away: clicks, the wheel, keys that do something.
/// A shorter wait nobody has had time to react to, and nothing is lost in it. Text is not thrown
/// away if the server has answered in the end, with the Enter behind it: it is what a scanner
/// sends, whose user looks at the shelf and not at the screen. It goes on when the event is over.
///
/// A call that has taken that long says so on a panel in front. Where the read may be stopped, Esc
/// stops it, and an Esc more that comes at once closes nothing.
class ServerWait {
 public:
  static constexpr std::chrono::milliseconds kNoticed{1000};

  /// Not told yet counts as connected.
  ServerLink Link() const { return link_; }
  /// Is drawn anew when the link changes.
  void ShowOn(QWidget& lamp) { lamps_.emplace_back(&lamp); }

  /// As at the start of a run.
  void Forget();

  /// An event of a form begins; its calls count together.
  void BeginEvent() { waited_ = {}; }
  /// The event that ran at this depth is over: text that came during its calls goes on.
  void EndEvent(int depth);
  /// What `Host.ShowServer` tells. `depth` is that of the event that calls.
  void Tell(ServerLink link, std::chrono::milliseconds lasted, int depth);
  /// What `Host.OfferStop` asks: whether Esc has been pressed since the panel offered it.
  bool OfferStop(std::chrono::milliseconds lasted);
  /// Offered every event of the program. True when it is taken away.
  bool Takes(QObject& watched, QEvent& event);

 private:
  struct Kept {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
  };
  void Become(ServerLink link);
  void TakeInput(int milliseconds);
  void ThrowInputAway();
  void LookOutForStop();
  bool IsImpatience(const QKeyEvent& key) const;
  bool TakesFromWindow(QWindow& window, QEvent& event);
  bool TakesKey(QWindow& window, const QKeyEvent& key);
  bool KeepsKey(const QKeyEvent& key) const;
  void Keep(QWindow& window, const QEvent& event);
  static void Give(const Kept& kept);

  ServerLink link_ = ServerLink::Connected;
  std::vector<QPointer<QWidget>> lamps_;
  std::chrono::milliseconds waited_{0};  // in all calls of the event
  bool throwing_ = false;                // what comes by now came during a call
  bool lookingOut_ = false;              // for Esc, and throwing away meanwhile
  bool stopWanted_ = false;
  bool answered_ = true;  // a text that comes by now may still be for something
  ServerLink linkBefore_ = ServerLink::Connected;  // the call that is running
  QElapsedTimer sinceStop_;
  bool giving_ = false;
  bool thrown_ = false;    // something of which a person wonders where it has gone
  bool textCame_ = false;  // and nothing has ended it yet
  std::deque<Kept> kept_;
  size_t keptBefore_ = 0;  // the call that is running
  WaitPanel panel_;
  int keptDepth_ = 0;
};

}  // namespace store
