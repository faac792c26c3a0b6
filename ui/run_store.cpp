#include "ui/run_store.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSysInfo>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "basics/log.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "handheld/handheld_forms.h"
#include "lookup/NEW_PR.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/deleted_slips.h"
#include "slips/drafts.h"
#include "start/Main_Start.h"
#include "start/frmSplash.h"
#include "ui/about.h"
#include "ui/accessible_names.h"
#include "ui/desk.h"
#include "ui/guide_window.h"
#include "ui/korean.h"
#include "ui/log_file.h"
#include "ui/program_icon.h"
#include "ui/qt_text.h"
#include "ui/real_host.h"
#include "ui/store_windows.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr const char* kDesktopFile = "store-client";  // as packaging/ names it

/// Tells how long the start took, piece by piece, when the environment asks for it.
class StartClock {
 public:
  StartClock() { clock_.start(); }
  bool Running() const { return running_; }
  void Tell(const char* what) const {
    if (!running_) return;
    std::printf("%6lld ms  %s\n", static_cast<long long>(clock_.elapsed()), what);
    std::fflush(stdout);
  }

 private:
  bool running_ = qEnvironmentVariableIsSet("STORE_MEASURE_START");
  QElapsedTimer clock_;
};

/// Tells when each step begins that the splash shows.
void TellSteps(const StartClock& start) {
  Host.DoEvents = [&start, letEventsRun = Host.DoEvents] {
    letEventsRun();
    const auto* splash = dynamic_cast<frmSplash*>(OpenForm("frmSplash"));
    if (splash == nullptr) return;
    const std::string& step = splash->lblStep.Caption;
    start.Tell(step.empty() ? "logged in, the splash is shown" : step.c_str());
  };
}

/// The board can be used when its slips and sums stand on the screen.
void QuitWhenBoardIsUsable(const StartClock& start) {
  QTimer::singleShot(0, qApp, [&start] {
    const auto* board = dynamic_cast<frm_Start*>(OpenForm("frm_Start"));
    if (board == nullptr || board->Label6[0].Caption.empty()) {
      QuitWhenBoardIsUsable(start);
      return;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible()) window->repaint();
    }
    start.Tell("board with notices and slips, drawn");
    QCoreApplication::exit();
  });
}

void LogStart() {
  WriteLog(LogWeight::Note, "program",
           "started: version " + FromQt(QApplication::applicationVersion()) + ", build " +
               FromQt(qApp->property(kBuildProperty).toString()) + ", Qt " + qVersion() + ", " +
               FromQt(QSysInfo::prettyProductName()) + ", " +
               FromQt(QGuiApplication::platformName()));
}

}  // namespace

void PrepareStore(QApplication& application) {
  SpeakKorean(application);
  ApplyStyle(application);
  QApplication::setWindowIcon(ProgramIcon());
  QGuiApplication::setDesktopFileName(kDesktopFile);
  // Between the login and the main window there are moments without a window.
  QApplication::setQuitOnLastWindowClosed(false);
  TellKindsOfParts();
  QApplication::setApplicationVersion(STORE_VERSION);
  OpenRealHost();
  RegisterStoreWindows();
  RegisterStartForms();
  RegisterLookupForms();
  RegisterBoardForms();
  RegisterOrderForms();
  RegisterReceiptForms();
  RegisterHandheldForms();
}

int RunStore(QApplication& application, const std::string& commandLine) {
  const StartClock start;
  PrepareStore(application);
  OpenLogFile();
  LogStart();
  start.Tell("toolkit, style and forms");
  if (start.Running()) TellSteps(start);
  bool goesOn = false;
  Dispatch([&] { goesOn = Main_Start(commandLine); });
  start.Tell("start data and items are there, the board opens");
  if (start.Running()) QuitWhenBoardIsUsable(start);
  const int code = goesOn && !TheDesk().Ending() ? QApplication::exec() : 0;
  CloseGuide();
  TheDesk().Clear();
  DropAllForms();
  ResetDrafts();
  ResetDeletedSlips();
  WriteLog(LogWeight::Note, "program", "ended");
  CloseLogFile();
  return code;
}

}  // namespace store
