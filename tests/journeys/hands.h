#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>
#include <vector>

class QMessageBox;

namespace store {

class FormWindow;

/// The hands and eyes of a clerk: keys and clicks on widgets found by their names, and answers to
/// the modal windows and boxes that are announced, in their order. A box that was not announced is
/// a failure, and so is a modal window that nobody works in; both are sent away, so that the test
/// goes on to its end.
class Hands {
 public:
  Hands();

  /// The next message box holds `fragment` in its text or title; `key` answers it.
  void AnswerBox(const QString& fragment, Qt::Key key);
  /// When the window of that form is on the screen, even one that nobody can work in.
  void See(const std::string& formName, std::function<void(FormWindow&)> look);
  /// When the window of that form is in front, `work` is done in it.
  void WorkIn(const std::string& formName, std::function<void(FormWindow&)> work);
  /// Whether everything that was announced has come.
  bool AllDone() const { return announced_.empty(); }
  QString NextAnnounced() const { return announced_.empty() ? "" : announced_.front().what; }

  /// Runs window events until `holds`; false when it does not within half a minute.
  [[nodiscard]] static bool Wait(const std::function<bool()>& holds);
  /// The window of the form with that name once it is in front. One that never comes ends the run.
  static FormWindow& Window(const std::string& formName);
  /// Brings an open window to the front, as the window system does when one clicks into it.
  static void ComeTo(const std::string& formName);

  /// To the widget of `window` that has the keyboard.
  static void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = {});
  /// Digits and Latin letters as keys, everything else as an input method commits it.
  static void Type(QWidget& window, const QString& text);
  static void Click(QWidget& window, const QString& name);
  static void ClickCell(QWidget& window, const QString& grid, int row, int column,
                        bool twice = false);

  /// Name of the widget that has the keyboard.
  static std::string KeyboardAt(const QWidget& window);
  static std::string TextOf(const QWidget& window, const QString& name);
  /// The grid's rows as they are shown, of each the named columns; the lines of a cell are joined
  /// by a blank.
  static std::vector<std::vector<std::string>> Rows(const QWidget& window, const QString& grid,
                                                    const std::vector<int>& columns);
  /// Row (from 0) of the grid whose cell in `column` holds `text`, or -1.
  static int RowWith(const QWidget& window, const QString& grid, int column,
                     const std::string& text);

 private:
  struct Announced {
    QString what;
    std::function<bool()> ready;
    std::function<void()> act;
  };
  void Poll();
  void Answer(QMessageBox& box, Qt::Key key);
  void SendAwayUnexpected();

  std::deque<Announced> announced_;
  QPointer<QWidget> answered_;  // a button that a key presses stays down for a moment, with its box
  QElapsedTimer sinceProgress_;
  QObject whileAlive_;  // the polling ends with it
};

}  // namespace store
