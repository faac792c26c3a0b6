#include "ui/run_store.h"

#include <QApplication>

#include "board/frm_Start.h"
#include "forms/open_forms.h"
#include "order/order_forms.h"
#include "receipt/frm_PE_UNIT.h"
#include "session/main_start.h"
#include "ui/desk.h"
#include "ui/real_host.h"
#include "ui/store_windows.h"
#include "ui/style.h"

namespace store {

void PrepareStore(QApplication& application) {
  ApplyStyle(application);
  // Between the login and the main window there are moments without a window.
  QApplication::setQuitOnLastWindowClosed(false);
  OpenRealHost();
  RegisterStoreWindows();
  RegisterSessionForms();
  RegisterBoardForms();
  RegisterOrderForms();
  RegisterReceiptForms();
}

int RunStore(QApplication& application, const std::string& commandLine) {
  PrepareStore(application);
  bool goesOn = false;
  Dispatch([&] { goesOn = Main_Start(commandLine); });
  const int code = goesOn && !TheDesk().Ending() ? QApplication::exec() : 0;
  TheDesk().Clear();
  DropAllForms();
  return code;
}

}  // namespace store
