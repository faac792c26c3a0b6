#pragma once

#include <QByteArray>
#include <QString>
#include <QWidget>
#include <map>
#include <vector>

namespace store {

inline constexpr const char* kFirstLayoutText = "창 배치 처음으로\tCtrl+0";

/// How a window stands on this workstation's screens: size and place, borders between its parts,
/// columns of its grids. Kept in the per-user settings, for each user of the program and each set
/// of screens, so that a small screen does not spoil what was set up on a large one.
class WindowLayout {
 public:
  explicit WindowLayout(QWidget& window) : window_(window) {}

  /// How the window opens the first time. `share` is the part of the screen that it takes, at least
  /// `least`; 1 is all of it, and then the window opens maximized.
  void OpenAs(const QSize& least, double share);

  /// Before the window is shown: puts back what was kept. What cannot be, as a damaged value or a
  /// place on no screen, is passed over. True when the window has a place of its own.
  bool Restore();
  /// Keeps what a person has changed since.
  void Save();
  /// Back to how the window opens the first time.
  void BeginAnew();

 private:
  using Texts = std::map<QString, QString>;
  bool IsFixed() const;
  Texts Now() const;
  QString KeyOf(const QString& part) const;
  void GiveFirstSize();
  void TakeFirstPlace();
  bool TakeGeometry(const QString& text);

  QWidget& window_;
  QSize least_;
  double share_ = 0;  // 0 leaves the window the size that it has
  QSize firstSize_;
  std::vector<QByteArray> first_;  // the splitters as laid out
  Texts kept_;                     // what stands in the settings, by part
};

/// Forgets the layouts of all windows for this user and these screens, and puts the open windows
/// back to how they open the first time.
void ForgetLayouts();

}  // namespace store
