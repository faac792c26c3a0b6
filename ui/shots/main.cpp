// Draws every window on the demo data into PNG files, to be looked at. It works as a person does,
// on the real windows, and stores nothing.
#include <QApplication>
#include <QCommandLineParser>
#include <QDateEdit>
#include <QDialog>
#include <QLineEdit>
#include <QSettings>
#include <QTemporaryDir>

#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/HELP_BPR.h"
#include "lookup/party_lookups.h"
#include "start/Main_Start.h"
#include "ui/about.h"
#include "ui/desk.h"
#include "ui/qt_text.h"
#include "ui/run_store.h"
#include "ui/shots/batch_shots.h"
#include "ui/shots/director.h"
#include "ui/shots/handheld_shots.h"
#include "ui/shots/menu_shots.h"
#include "ui/shots/order_shots.h"
#include "ui/user_choices.h"

namespace store {
namespace {

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

void ShootPrint(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow& window) {
    ClickOn(window, "Option1_3");
    GoTo(window, "FLEX1", 0, 2);
    Press(window, Qt::Key_P, Qt::ControlModifier);
  });
  director.WhenShown("frmPrint", [&](FormWindow& window) {
    director.Save(window, "print");
    Press(window, Qt::Key_W, Qt::AltModifier);
    director.Save(window, "print_wide");
    Press(window, Qt::Key_Escape);
  });
}

/// As after four seconds in a search that may be stopped.
void ShootWaiting(Director& director) {
  using namespace std::chrono_literals;
  director.WhenShown("frm_Start", [&](FormWindow& window) {
    Host.OfferStop(4s);
    director.Save(window, "waiting");
    Host.ShowServer(ServerLink::Connected, 0ms);
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
  director.When([] { return qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr; },
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
  ShootBox(director, "about", [] { ShowAbout(TheDesk().FrontWindow()); });
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
  parser.addOption({"type", "Size of type: 100, 125 or 150 percent.", "PERCENT", "100"});
  parser.addOption({"theme", "light or dark.", "THEME", "light"});
  parser.addHelpOption();
  parser.process(application);
  if (parser.positionalArguments().size() != 1) parser.showHelp(2);
  const QDir folder(parser.positionalArguments().constFirst());
  if (!folder.mkpath(".")) store::Director::Fail("cannot make " + folder.path());

  const QTemporaryDir data;  // the user's own drafts and window places are no part of the pictures
  qputenv("STORE_DATA_FOLDER", data.path().toUtf8());
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, data.path());
  store::PrepareStore(application);
  store::Host.PreviousInstance = [] { return false; };  // a client may be at work meanwhile
  store::ChooseTypeSize(parser.value("type").toInt());
  store::ChooseTheme(parser.value("theme") == "dark" ? store::Theme::Dark : store::Theme::Light);
  store::Director director(folder, store::AskedSize(parser.value("size")));
  store::ShootStart(director);
  store::ShootSplash(director);
  store::ShootBoard(director);
  store::ShootMenus(director);
  store::ShootGuide(director);
  store::ShootPrint(director);
  store::ShootWaiting(director);
  store::ShootNewOrder(director);
  store::ShootOrderTypes(director);
  store::ShootQuickPick(director);
  store::ShootStoredSlips(director);
  store::ShootDrafts(director);
  store::ShootDeleted(director);
  store::ShootBatch(director);
  store::ShootLookups(director);
  store::ShootNewProduct(director);
  store::ShootReceive(director);
  store::ShootCradle(director);
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
