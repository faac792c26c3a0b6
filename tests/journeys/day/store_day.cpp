#include "tests/journeys/day/store_day.h"

#include <QApplication>

#include "basics/formats.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "slips/item_list.h"
#include "start/start_data.h"
#include "tests/journeys/hands.h"
#include "tests/support/private_server.h"
#include "ui/desk.h"
#include "ui/run_store.h"

namespace store {

void StoreDay::SetUp() {
  UseSmallStore();
  PrepareStore(*qApp);
  Session.UserCode = "u01";
  Session.UserStoreCode = "1001";
  LoadBaseCodes();
  LoadStore();
  LoadZ1Settings();
  FormatSetup();
  AppOptions.BulkOrderPrice = "3";
  Host.MsgBox = [](const std::string& text, int, const std::string&) {
    ADD_FAILURE() << "a box that nobody expects: " << text;
    return box::Ok;
  };
  OpenItemList();
  Dispatch([] { Host.Show(*TheForm("frm_Start")); });
  ASSERT_TRUE(Hands::Wait(
      [this] { return Board().FLEX1.Rows() > 1 || !Board().Label6[0].Caption.empty(); }));
}

void StoreDay::TearDown() {
  TheDesk().Clear();
  UseSmallStore();
}

frm_Start& StoreDay::Board() { return *dynamic_cast<frm_Start*>(OpenForm("frm_Start")); }

OrderForm& StoreDay::Order() { return *dynamic_cast<OrderForm*>(OpenForm("frm_Order")); }

}  // namespace store
