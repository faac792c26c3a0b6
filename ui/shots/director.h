#pragma once

#include <QAbstractButton>
#include <QDir>
#include <QObject>
#include <QSize>
#include <QString>
#include <deque>
#include <functional>
#include <string>

#include "ui/form_window.h"

namespace store {

/// Steps that wait for a window each. A step may itself open a modal window: the next one then runs
/// while that window is open.
class Director : public QObject {
 public:
  Director(const QDir& folder, QSize size);

  void When(std::function<bool()> ready, std::function<void()> act) {
    steps_.push_back({std::move(ready), std::move(act)});
  }
  /// When the window of that form is in front and its form has begun to work.
  void WhenShown(const std::string& form, std::function<void(FormWindow&)> act);
  void Save(QWidget& window, const QString& name);
  /// With the menu that is open over it, a window of its own, which is closed then.
  void SaveWithMenu(QWidget& window, const QString& name);
  void Keep(const QPixmap& picture, const QString& name);
  /// The large windows are drawn in the size that was asked for.
  void Fit(FormWindow& window);
  [[noreturn]] static void Fail(const QString& why);

 private:
  struct Step {
    std::function<bool()> ready;
    std::function<void()> act;
  };
  void PollLater();
  void Settle();
  void Poll();

  QDir folder_;
  QSize size_;
  std::deque<Step> steps_;
  int waited_ = 0;
  bool settling_ = false;
};

void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = {});
void Type(QWidget& window, const QString& text);
void ClickOn(FormWindow& window, const QString& button);
/// To a cell of a grid, with the keyboard.
void GoTo(FormWindow& window, const QString& grid, int row, int column);

template <class Widget>
Widget& Find(FormWindow& window, const QString& name) {
  auto* found = window.findChild<Widget*>(name);
  if (found == nullptr) Director::Fail("no widget " + name);
  return *found;
}

}  // namespace store
