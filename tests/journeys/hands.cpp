#include "tests/journeys/hands.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>
#include <algorithm>
#include <cstdlib>

#include "forms/form.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"

namespace store {
namespace {

constexpr int kPoll = 10;              // milliseconds
constexpr int kPatience = 30000;       // milliseconds
constexpr int kStuck = 2 * kPatience;  // a window may be waited in, so longer than any wait

/// Ends the run, but by way of the objects' ends: the private server must not stay behind.
[[noreturn]] void GiveUp(const std::string& why) {
  ADD_FAILURE() << why;
  std::exit(EXIT_FAILURE);
}

template <class Widget>
Widget& Named(const QWidget& window, const QString& name) {
  auto* found = window.findChild<Widget*>(name);
  if (found == nullptr) GiveUp("no widget " + name.toStdString());
  return *found;
}

QMessageBox* OpenBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  return box != nullptr && box->isVisible() ? box : nullptr;
}

bool IsInFront(const std::string& formName) {
  FormWindow* window = TheDesk().WindowNamed(formName);
  return window != nullptr && window->isActiveWindow();
}

}  // namespace

Hands::Hands() {
  sinceProgress_.start();
  Poll();
}

void Hands::AnswerBox(const QString& fragment, Qt::Key key) {
  announced_.push_back({"box: " + fragment,
                        [fragment] {
                          const QMessageBox* box = OpenBox();
                          return box != nullptr && (box->text().contains(fragment) ||
                                                    box->windowTitle().contains(fragment));
                        },
                        [this, key] { Answer(*OpenBox(), key); }});
}

void Hands::See(const std::string& formName, std::function<void(FormWindow&)> look) {
  announced_.push_back(
      {QString::fromStdString(formName),
       [formName] {
         const FormWindow* window = TheDesk().WindowNamed(formName);
         return window != nullptr && window->isVisible();
       },
       [formName, look = std::move(look)] { look(*TheDesk().WindowNamed(formName)); }});
}

void Hands::WorkIn(const std::string& formName, std::function<void(FormWindow&)> work) {
  announced_.push_back(
      {QString::fromStdString(formName),
       [formName] {
         // A form gives somebody the keyboard when it has finished opening.
         return IsInFront(formName) &&
                TheDesk().WindowNamed(formName)->ShownForm().FocusRevision() > 0;
       },
       [formName, work = std::move(work)] { work(*TheDesk().WindowNamed(formName)); }});
}

void Hands::Poll() {
  // The next round is set first: acting may open a window that keeps this one from coming back.
  QTimer::singleShot(kPoll, &whileAlive_, [this] { Poll(); });
  if (TheDesk().InsideCall()) return;  // a hand reaches the program when the call is over
  if (announced_.empty() || !announced_.front().ready()) {
    SendAwayUnexpected();
    return;
  }
  sinceProgress_.restart();
  const Announced now = std::move(announced_.front());
  announced_.pop_front();
  now.act();
}

void Hands::Answer(QMessageBox& box, Qt::Key key) {
  answered_ = &box;
  QTest::keyClick(box.focusWidget() != nullptr ? box.focusWidget() : &box, key);
}

void Hands::SendAwayUnexpected() {
  QMessageBox* box = OpenBox();
  if (box != nullptr && box != answered_) {
    // Nothing else moves while a box is open, so it will not become the announced one.
    ADD_FAILURE() << "nobody expected the box: " << box->text().toStdString()
                  << "\nexpected next: " << NextAnnounced().toStdString();
    Answer(*box, Qt::Key_Escape);
    return;
  }
  QWidget* modal = QApplication::activeModalWidget();
  if (modal == nullptr) sinceProgress_.restart();
  if (modal == nullptr || sinceProgress_.elapsed() < kStuck) return;
  ADD_FAILURE() << "nobody works in " << modal->objectName().toStdString();
  sinceProgress_.restart();
  modal->close();
}

bool Hands::Wait(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, kPatience); }

FormWindow& Hands::Window(const std::string& formName) {
  if (!Wait([&] { return IsInFront(formName); })) GiveUp(formName + " did not come to the front");
  return *TheDesk().WindowNamed(formName);
}

void Hands::ComeTo(const std::string& formName) {
  if (FormWindow* window = TheDesk().WindowNamed(formName)) window->activateWindow();
  Window(formName);
}

void Hands::Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers) {
  QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  QTest::keyClick(at, static_cast<Qt::Key>(key), modifiers);
}

void Hands::Type(QWidget& window, const QString& text) {
  for (const QChar letter : text) {
    QWidget* at = window.focusWidget();
    if (at == nullptr) GiveUp("nothing has the keyboard in " + window.objectName().toStdString());
    if (letter.unicode() < 128) {
      QTest::keyClick(at, letter.toLatin1());
    } else {
      QInputMethodEvent committed;
      committed.setCommitString(QString(letter));
      QCoreApplication::sendEvent(at, &committed);
    }
  }
}

void Hands::Click(QWidget& window, const QString& name) {
  QTest::mouseClick(&Named<QWidget>(window, name), Qt::LeftButton);
}

void Hands::ClickCell(QWidget& window, const QString& grid, int row, int column, bool twice) {
  auto& view = Named<GridView>(window, grid);
  const QModelIndex cell = view.model()->index(row, column);
  if (!cell.isValid()) GiveUp("no row " + std::to_string(row) + " in " + grid.toStdString());
  view.scrollTo(cell);
  const QPoint place = view.visualRect(cell).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
  if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

std::string Hands::KeyboardAt(const QWidget& window) {
  return window.focusWidget() == nullptr ? "" : window.focusWidget()->objectName().toStdString();
}

std::string Hands::TextOf(const QWidget& window, const QString& name) {
  if (auto* label = window.findChild<QLabel*>(name)) return label->text().toStdString();
  if (auto* button = window.findChild<QAbstractButton*>(name)) return button->text().toStdString();
  return Named<QLineEdit>(window, name).text().toStdString();
}

std::vector<std::vector<std::string>> Hands::Rows(const QWidget& window, const QString& grid,
                                                  const std::vector<int>& columns) {
  const QAbstractItemModel& model = *Named<GridView>(window, grid).model();
  std::vector<std::vector<std::string>> rows(static_cast<size_t>(model.rowCount()));
  for (int row = 0; row < model.rowCount(); ++row) {
    for (const int column : columns) {
      const QString shown = model.index(row, column).data().toString();
      rows[static_cast<size_t>(row)].push_back(shown.simplified().toStdString());
    }
  }
  return rows;
}

int Hands::RowWith(const QWidget& window, const QString& grid, int column,
                   const std::string& text) {
  const auto rows = Rows(window, grid, {column});
  const auto found = std::find(rows.begin(), rows.end(), std::vector{text});
  return found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
}

}  // namespace store
