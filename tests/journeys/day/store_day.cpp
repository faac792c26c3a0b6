#include "tests/journeys/day/store_day.h"

#include <QApplication>
#include <QtTest>

#include "basics/formats.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "start/start_data.h"
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
  LoadItems();
  Dispatch([] { Host.Show(*TheForm("frm_Start")); });
  ASSERT_NE(Window("frm_Start"), nullptr);
  ASSERT_TRUE(
      Wait([this] { return Board().FLEX1.Rows() > 1 || !Board().Label6[0].Caption.empty(); }));
}

void StoreDay::TearDown() {
  TheDesk().Clear();
  UseSmallStore();
}

bool StoreDay::Wait(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 30000); }

FormWindow* StoreDay::Window(const std::string& formName) {
  Wait([&] {
    FormWindow* window = TheDesk().WindowNamed(formName);
    return window != nullptr && window->isActiveWindow();
  });
  return TheDesk().WindowNamed(formName);
}

void StoreDay::LoadItems() {
  OpenRecordset(SlotC,
                " SELECT PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2,PR_PTNO,' ',' ',PR_BCODE,' ',KD_ID "
                "FROM PR WHERE PR_END = '0' ORDER BY PR_NAME");
}

frm_Start& StoreDay::Board() { return *dynamic_cast<frm_Start*>(OpenForm("frm_Start")); }

OrderForm& StoreDay::Order() { return *dynamic_cast<OrderForm*>(OpenForm("frm_Order")); }

}  // namespace store
