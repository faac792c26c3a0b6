#pragma once

#include <QString>
#include <deque>
#include <functional>
#include <string>

class QWidget;

namespace store {

class FormWindow;

/// The hands and eyes of a clerk: keys and clicks on widgets found by their names, and answers to
/// the modal windows and boxes that are announced, in their order.
class Hands {
 public:
  /// The next message box holds `fragment`; `key` answers it.
  void AnswerBox(const QString& fragment, Qt::Key key);
  /// When the window of that form is in front, `work` is done in it.
  void WorkIn(const std::string& formName, std::function<void(FormWindow&)> work);
  /// Whether everything that was announced has come.
  bool AllDone() const { return announced_.empty(); }
  QString NextAnnounced() const { return announced_.empty() ? "" : announced_.front().what; }

  /// Runs window events until `holds`; false when it does not within half a minute.
  static bool Wait(const std::function<bool()>& holds);
  /// The window of the form with that name once it is in front and has been drawn.
  static FormWindow& Window(const std::string& formName);

  /// To the widget of `window` that has the keyboard.
  static void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = {});
  /// Digits and Latin letters as keys, everything else as an input method commits it.
  static void Type(QWidget& window, const QString& text);
  static void Click(QWidget& window, const QString& name);
  static QString TextOf(QWidget& window, const QString& name);

  /// Row (from 0) of the grid whose cell in `column` holds `text`, or -1.
  static int RowWith(QWidget& window, const QString& grid, int column, const QString& text);
  static QString Cell(QWidget& window, const QString& grid, int row, int column);
  static void ClickCell(QWidget& window, const QString& grid, int row, int column,
                        bool twice = false);

 private:
  struct Announced {
    QString what;
    std::function<bool()> ready;
    std::function<void()> act;
  };
  void Announce(Announced announced);
  void Poll();

  std::deque<Announced> announced_;
  bool polling_ = false;
};

}  // namespace store
