#include "ui/store_windows.h"

#include "board/frmDeleted.h"
#include "board/frmDrafts.h"
#include "board/frm_Start.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_CRDIMP.h"
#include "handheld/FRM_DT900_01.h"
#include "handheld/FRM_NAMECHK.h"
#include "handheld/frmProperties.h"
#include "lookup/NEW_PR.h"
#include "lookup/frmPrint.h"
#include "lookup/lookup_form.h"
#include "order/frm_OrderPLU.h"
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "start/frmLogin.h"
#include "start/frmOptions.h"
#include "start/frmSplash.h"
#include "ui/batch_window.h"
#include "ui/board_window.h"
#include "ui/cradle_window.h"
#include "ui/deleted_window.h"
#include "ui/drafts_window.h"
#include "ui/inspector_window.h"
#include "ui/login_window.h"
#include "ui/lookup_window.h"
#include "ui/new_product_window.h"
#include "ui/options_window.h"
#include "ui/order_window.h"
#include "ui/port_settings_window.h"
#include "ui/print_window.h"
#include "ui/quick_pick_window.h"
#include "ui/receipt_window.h"
#include "ui/receive_window.h"
#include "ui/splash_window.h"
#include "ui/window_registry.h"

namespace store {

void RegisterStoreWindows() {
  RegisterWindow("frmLogin", MakerOf<LoginWindow, frmLogin>());
  RegisterWindow("frmSplash", MakerOf<SplashWindow, frmSplash>());
  RegisterWindow("frmOptions", MakerOf<OptionsWindow, frmOptions>());
  RegisterWindow("frm_Start", MakerOf<BoardWindow, frm_Start>());
  RegisterWindow("frmDeleted", MakerOf<DeletedWindow, frmDeleted>());
  RegisterWindow("frmDrafts", MakerOf<DraftsWindow, frmDrafts>());
  RegisterWindow("frm_PE_UNIT", MakerOf<ReceiptWindow, frm_PE_UNIT>());
  for (const char* order : {"frm_Order", "frm_Order01", "frm_Order02", "frm_Order03"}) {
    RegisterWindow(order, MakerOf<OrderWindow, OrderForm>());
  }
  RegisterWindow("frm_OrderPLU", MakerOf<QuickPickWindow, frm_OrderPLU>());
  RegisterWindow("FRM_DT900_01", MakerOf<BatchWindow, FRM_DT900_01>());
  RegisterWindow("DT9RECEV", MakerOf<ReceiveWindow, DT9RECEV>());
  RegisterWindow("frmProperties", MakerOf<PortSettingsWindow, frmProperties>());
  RegisterWindow("FRM_NAMECHK", MakerOf<InspectorWindow, FRM_NAMECHK>());
  RegisterWindow("frmPrint", MakerOf<PrintWindow, frmPrint>());
  RegisterWindow("NEW_PR", MakerOf<NewProductWindow, NEW_PR>());
  RegisterWindow("FRM_CRDIMP", MakerOf<CradleWindow, FRM_CRDIMP>());
  for (const char* lookup :
       {"HELP_CT", "HELP_RCT", "HELP_HCT", "HELP_ST", "HELP_CTM", "HELP_BPR"}) {
    RegisterWindow(lookup, MakerOf<LookupWindow, LookupForm>());
  }
}

}  // namespace store
