// Draws every window on the demo data into PNG files, to be looked at. It works as a person does,
// on the real windows, and stores nothing.
#include <QAbstractButton>
#include <QApplication>
#include <QCommandLineParser>
#include <QDateEdit>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QTableView>
#include <QTextStream>
#include <QTimer>
#include <deque>

#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/HELP_BPR.h"
#include "lookup/party_lookups.h"
#include "order/frm_OrderPLU.h"
#include "order/order_form.h"
#include "start/Main_Start.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"
#include "ui/qt_text.h"
#include "ui/run_store.h"

namespace store {
namespace {

constexpr int kPoll = 20;             // milliseconds
constexpr int kPatience = 20 * 1000;  // for one step

/// Steps that wait for a window each. A step may itself open a modal window: the next one then runs
/// while that window is open.
class Director : public QObject {
 public:
  Director(const QDir& folder, QSize size) : folder_(folder), size_(size) { PollLater(); }

  void When(std::function<bool()> ready, std::function<void()> act) {
    steps_.push_back({std::move(ready), std::move(act)});
  }
  /// When the window of that form is in front and its form has begun to work.
  void WhenShown(const std::string& form, std::function<void(FormWindow&)> act) {
    When(
        [form] {
          FormWindow* window = TheDesk().WindowNamed(form);
          return window != nullptr && window->isActiveWindow() && window->HasBegun();
        },
        [form, act = std::move(act)] { act(*TheDesk().WindowNamed(form)); });
  }
  void Save(QWidget& window, const QString& name) {
    Settle();
    if (!window.grab().save(folder_.filePath(name + ".png"))) Fail("cannot write " + name);
    QTextStream(stdout) << name << Qt::endl;
  }
  /// The large windows are drawn in the size that was asked for.
  void Fit(FormWindow& window) {
    window.move(0, 0);
    window.resize(size_);
    Settle();
  }
  [[noreturn]] static void Fail(const QString& why) {
    QTextStream(stderr) << "store_shots: " << why << Qt::endl;
    std::_Exit(1);
  }

 private:
  struct Step {
    std::function<bool()> ready;
    std::function<void()> act;
  };
  // A timer does not fire again while its step is still in a modal window, so each poll has its
  // own.
  void PollLater() {
    QTimer::singleShot(kPoll, this, [this] { Poll(); });
  }
  void Settle() {
    settling_ = true;
    QCoreApplication::processEvents();
    settling_ = false;
  }
  void Poll() {
    if (steps_.empty()) return;
    PollLater();
    if (settling_) return;
    waited_ += kPoll;
    if (waited_ > kPatience) Fail(QString("%1 steps were not reached").arg(steps_.size()));
    if (!steps_.front().ready()) return;
    waited_ = 0;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    step.act();
  }

  QDir folder_;
  QSize size_;
  std::deque<Step> steps_;
  int waited_ = 0;
  bool settling_ = false;
};

void Press(QWidget& window, int key, Qt::KeyboardModifiers modifiers = {}) {
  QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
  QKeyEvent event(QEvent::KeyPress, key, modifiers);
  QCoreApplication::sendEvent(at, &event);
}

void Type(QWidget& window, const QString& text) {
  for (const QChar letter : text) {
    QWidget* at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    QKeyEvent event(QEvent::KeyPress, 0, {}, letter);
    QCoreApplication::sendEvent(at, &event);
  }
}

template <class Widget>
Widget& Find(FormWindow& window, const QString& name) {
  auto* found = window.findChild<Widget*>(name);
  if (found == nullptr) Director::Fail("no widget " + name);
  return *found;
}

void ClickOn(FormWindow& window, const QString& button) {
  Find<QAbstractButton>(window, button).click();
}

void GoTo(FormWindow& window, const QString& grid, int row, int column) {
  auto& view = Find<QTableView>(window, grid);
  view.setFocus();
  view.setCurrentIndex(view.model()->index(row, column));
}

frm_Start& Board() { return dynamic_cast<frm_Start&>(*OpenForm("frm_Start")); }

void ShootStart(Director& director) {
  director.WhenShown("frmLogin", [](FormWindow& window) { Press(window, Qt::Key_F10); });
  director.WhenShown("frmOptions", [&](FormWindow& window) {
    director.Save(window, "options");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frmLogin", [&](FormWindow& window) {
    Type(window, "u01");
    Press(window, Qt::Key_Enter);
    Type(window, "1111");
    director.Save(window, "login");
    Press(window, Qt::Key_Enter);
  });
}

/// The splash is gone before a step could look at it; it lets events run at each thing it reads.
void ShootSplash(Director& director) {
  Host.DoEvents = [&director, doEvents = Host.DoEvents] {
    doEvents();
    FormWindow* splash = TheDesk().WindowNamed("frmSplash");
    if (splash != nullptr) director.Save(*splash, "splash");
  };
}

void ShootBoard(Director& director) {
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    director.Fit(window);
    auto& from = Find<QDateEdit>(window, "DTOrderDate_0");
    from.setDate(from.date().addDays(-30));
    ClickOn(window, "Option1_0");
    director.Save(window, "board");
    for (const char* option : {"1", "2", "3"}) {
      ClickOn(window, QString("Option1_") + option);
      director.Save(window, QString("board_option") + option);
    }
    ClickOn(window, "Option1_0");
    GoTo(window, "FLEX1", 2, 2);
    Press(window, Qt::Key_Down);
    Press(window, Qt::Key_F4);
    director.Save(window, "board_details");
    GoTo(window, "FLEX0", 0, 1);
    Press(window, Qt::Key_Enter);
    director.Save(window, "board_notice");
    Press(window, Qt::Key_Escape);
  });
}

/// One that the store has ordered from.
void ChooseSupplier(FormWindow& window) {
  Type(window, ToQt(Board().FLEX1.TextMatrix(1, 2)));
  Press(window, Qt::Key_Enter);
}

void FillOrder(FormWindow& window) {
  ChooseSupplier(window);
  GoTo(window, "PRHELP", 0, 0);
  Press(window, Qt::Key_Enter);
  GoTo(window, "FLEX2", 0, 8);
  for (const char* quantity : {"12", "5", "24", "10", "3"}) {
    Type(window, quantity);
    Press(window, Qt::Key_Enter);
  }
}

void ShootNewOrder(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) { Press(window, Qt::Key_F2); });
  director.WhenShown("frm_Order", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "order_empty");
    FillOrder(window);
    director.Save(window, "order_new");
    Press(window, Qt::Key_F4);
    director.Save(window, "order_history");
    Press(window, Qt::Key_F5);
    director.Save(window, "order_history_narrow");
    Press(window, Qt::Key_Escape);
  });
}

void ShootQuickPick(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) { Press(window, Qt::Key_F2); });
  director.WhenShown("frm_Order", [](FormWindow& window) {
    ChooseSupplier(window);
    Type(window, ",라면");
    Press(window, Qt::Key_Enter);
    auto& panel = dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU"));
    panel.ListMode = panel.Reload = -1;
    Dispatch([&panel] { Host.ShowModal(panel); });
  });
  director.WhenShown("frm_OrderPLU", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "quick_pick");
    Find<QWidget>(window, "PRHELP_1").setFocus();
    for (int level = 1; level <= 3; ++level) {
      Press(window, Qt::Key_Down);
      Press(window, Qt::Key_Enter);
    }
    Press(window, Qt::Key_Right);
    Press(window, Qt::Key_Down);
    director.Save(window, "quick_pick_categories");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frm_Order", [](FormWindow& window) { Press(window, Qt::Key_Escape); });
}

void ShootStoredSlips(Director& director) {
  const auto open = [](const QString& option) {
    return [option](FormWindow& window) {
      ClickOn(window, option);
      GoTo(window, "FLEX1", 0, 2);
      Press(window, Qt::Key_Enter);
    };
  };
  director.WhenShown("frm_Start", open("Option1_2"));
  director.WhenShown("frm_Order", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "order_confirmed");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frm_Start", open("Option1_3"));
  director.WhenShown("frm_PE_UNIT", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "receipt");
    Press(window, Qt::Key_Escape);
  });
}

/// `text` is searched; nothing is typed when it is empty.
template <class Lookup>
void ShootLookup(
    Director& director, const QString& text,
    std::function<void(Lookup&)> prepare = [](Lookup&) {}) {
  const std::string name = Lookup().Name;
  director.WhenShown("frm_Start", [prepare](FormWindow&) {
    Lookup lookup;
    prepare(lookup);
    Host.ShowModal(lookup);
  });
  director.WhenShown(name, [&director, name, text](FormWindow& window) {
    if (auto* box = window.findChild<QLineEdit*>("Text1"); box != nullptr && box->isVisible()) {
      box->setFocus();
      Type(window, text);
      Press(window, Qt::Key_Enter);
    }
    director.Save(window, ToQt(name));
    Press(window, Qt::Key_Escape);
  });
}

void ShootLookups(Director& director) {
  ShootLookup<HELP_CT>(director, "");
  ShootLookup<HELP_RCT>(director, "");
  ShootLookup<HELP_HCT>(director, "", [](HELP_HCT& form) { form.StoreCode = Session.StoreCode; });
  ShootLookup<HELP_ST>(director, "");
  ShootLookup<HELP_CTM>(director, "");
  ShootLookup<HELP_BPR>(director, "라");
}

/// Opened as a clerk does who does not find an item.
void ShootNewProduct(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow&) {
    HELP_BPR lookup;
    Host.ShowModal(lookup);
  });
  director.WhenShown("HELP_BPR", [](FormWindow& window) { ClickOn(window, "Command2"); });
  director.WhenShown("NEW_PR", [&](FormWindow& window) {
    Type(window, "유자차 선물세트");
    for (const char* text : {"500g*2", "", "8809990000011"}) {
      Press(window, Qt::Key_Down);
      Type(window, text);
    }
    director.Save(window, "new_product");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("HELP_BPR", [](FormWindow& window) { Press(window, Qt::Key_Escape); });
}

void ShootBox(Director& director, const QString& name, std::function<void()> show) {
  director.WhenShown("frm_Start", [show = std::move(show)](FormWindow&) { Dispatch(show); });
  director.When(
      [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; },
      [&director, name] {
        QWidget& box = *QApplication::activeModalWidget();
        director.Save(box, name);
        Press(box, Qt::Key_Escape);
      });
}

void ShootBoxes(Director& director) {
  ShootBox(director, "box_question", [] { Board().Close(); });
  ShootBox(director, "box_critical", [] {
    Host.MsgBox("발주일자를 확인바랍니다. 현재일기준 전후한달만 처리가능합니다.", box::Critical,
                "발주일자오류");
  });
}

QSize AskedSize(const QString& text) {
  const QStringList sides = text.split('x');
  const QSize size(sides.value(0).toInt(), sides.value(1).toInt());
  if (size.isEmpty()) Director::Fail("not a size: " + text);
  return size;
}

}  // namespace
}  // namespace store

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QCommandLineParser parser;
  parser.addPositionalArgument("DIR", "Where the pictures go.");
  parser.addOption({"size", "Size of the large windows.", "WxH", "1024x768"});
  parser.addHelpOption();
  parser.process(application);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);
  const QDir folder(parser.positionalArguments().constFirst());
  if (!folder.mkpath(".")) store::Director::Fail("cannot make " + folder.path());

  store::PrepareStore(application);
  store::Host.PreviousInstance = [] { return false; };  // a client may be at work meanwhile
  store::Director director(folder, store::AskedSize(parser.value("size")));
  store::ShootStart(director);
  store::ShootSplash(director);
  store::ShootBoard(director);
  store::ShootNewOrder(director);
  store::ShootQuickPick(director);
  store::ShootStoredSlips(director);
  store::ShootLookups(director);
  store::ShootNewProduct(director);
  store::ShootBoxes(director);
  director.When([] { return true; }, [] { QCoreApplication::exit(); });
  bool goesOn = false;
  store::Dispatch([&] { goesOn = store::Main_Start(""); });
  if (!goesOn) store::Director::Fail("the login did not succeed");
  const int code = QApplication::exec();
  store::TheDesk().Clear();
  store::DropAllForms();
  return code;
}
