#include "tests/journeys/widgets/hands.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include "forms/form.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"

namespace store {
namespace {

constexpr int kPoll = 10;  // milliseconds

template <class Widget>
Widget& Named(QWidget& window, const QString& name) {
  auto* found = window.findChild<Widget*>(name);
  if (found == nullptr) qFatal("no widget %s", qPrintable(name));
  return *found;
}

QMessageBox* OpenBox() {
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  return box != nullptr && box->isVisible() ? box : nullptr;
}

}  // namespace

void Hands::AnswerBox(const QString& fragment, Qt::Key key) {
  Announce({"box: " + fragment,
            [fragment] { return OpenBox() != nullptr && OpenBox()->text().contains(fragment); },
            [key] {
              QWidget* at = OpenBox()->focusWidget();
              QTest::keyClick(at != nullptr ? at : OpenBox(), key);
            }});
}

void Hands::WorkIn(const std::string& formName, std::function<void(FormWindow&)> work) {
  Announce({QString::fromStdString(formName),
            [formName] {
              // A form gives somebody the keyboard when it has finished opening.
              FormWindow* window = TheDesk().WindowNamed(formName);
              return window != nullptr && window->isActiveWindow() &&
                     window->ShownForm().FocusRevision() > 0;
            },
            [formName, work = std::move(work)] { work(*TheDesk().WindowNamed(formName)); }});
}

void Hands::Announce(Announced announced) {
  announced_.push_back(std::move(announced));
  if (!polling_) Poll();
}

void Hands::Poll() {
  polling_ = !announced_.empty();
  if (!polling_) return;
  // The next round is set first: acting may open a window that keeps this one from coming back.
  QTimer::singleShot(kPoll, qApp, [this] { Poll(); });
  if (!announced_.front().ready()) return;
  const Announced now = std::move(announced_.front());
  announced_.pop_front();
  now.act();
}

bool Hands::Wait(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 30000); }

FormWindow& Hands::Window(const std::string& formName) {
  const bool shown = Wait([&] {
    FormWindow* window = TheDesk().WindowNamed(formName);
    return window != nullptr && window->isActiveWindow();
  });
  if (!shown) qFatal("the window %s did not come", formName.c_str());
  return *TheDesk().WindowNamed(formName);
}

void Hands::Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers) {
  QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  QTest::keyClick(at, static_cast<Qt::Key>(key), modifiers);
}

void Hands::Type(QWidget& window, const QString& text) {
  for (const QChar letter : text) {
    QWidget* at = window.focusWidget();
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

QString Hands::TextOf(QWidget& window, const QString& name) {
  if (auto* label = window.findChild<QLabel*>(name)) return label->text();
  return Named<QLineEdit>(window, name).text();
}

int Hands::RowWith(QWidget& window, const QString& grid, int column, const QString& text) {
  const QAbstractItemModel& model = *Named<GridView>(window, grid).model();
  for (int row = 0; row < model.rowCount(); ++row) {
    if (model.index(row, column).data().toString() == text) return row;
  }
  return -1;
}

QString Hands::Cell(QWidget& window, const QString& grid, int row, int column) {
  return Named<GridView>(window, grid).model()->index(row, column).data().toString();
}

void Hands::ClickCell(QWidget& window, const QString& grid, int row, int column, bool twice) {
  auto& view = Named<GridView>(window, grid);
  const QModelIndex cell = view.model()->index(row, column);
  view.scrollTo(cell);
  const QPoint place = view.visualRect(cell).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
  if (twice) QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
}

}  // namespace store
