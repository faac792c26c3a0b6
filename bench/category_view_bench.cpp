// The items of a category with their stock, their shortage and, when asked for, their sales.
#include <cstdio>
#include <utility>

#include "basics/records.h"
#include "bench/asked_selects.h"
#include "bench/benches.h"
#include "bench/client_library.h"
#include "bench/desk_hand.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/splice.h"
#include "lookup/lookup_form.h"
#include "order/frm_Order03.h"
#include "ui/desk.h"

namespace store {
namespace {

constexpr int kRounds = 9;
constexpr const char* kDatabase = "growth20000";

/// All items in one category, set up for the store, in its stock, and sold this month.
void SetUpItems(ClientLibrary& client) {
  client.Run("UPDATE PR SET PR_END='0', KD_ID='001000000000000'");
  client.Run("DELETE FROM SAFEIV WHERE RCT_CODE='1001'");
  client.Run(
      Splice("INSERT INTO SAFEIV (RCT_CODE,PR_CODE,CT_CODE,SAFE_QTY,ORD_QTY,ORD_UP) SELECT '1001',"
             "PR_CODE,'{supplier}',20,6,1000 FROM PR",
             "supplier"_a = kSupplier));
  client.Run("DELETE FROM IV WHERE RCT_CODE='1001'");
  client.Run(
      "INSERT INTO IV (RCT_CODE,HCT_CODE,PR_CODE,PR_NAME,BSQTY,INQTY,OTQTY) SELECT '1001','100101',"
      "PR_CODE,PR_NAME,CRC32(PR_CODE)%30,10,CRC32(PR_CODE)%11 FROM PR");
  client.Run(
      "INSERT INTO PES13 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) SELECT CONCAT("
      "DATE_FORMAT(NOW(),'%Y%m%d'),'1001b0113',LPAD(seq,5,'0')),'1',DATE_FORMAT(NOW(),'%Y-%m-%d'),"
      "NOW(),'1001','10101' FROM seq_1_to_100");
  client.Run(
      "INSERT INTO PSS13 (PE_ID,PS_NO,PS_DATE,PR_CODE,PR_NAME,PS_SQTY) SELECT CONCAT(DATE_FORMAT("
      "NOW(),'%Y%m%d'),'1001b0113',LPAD(1+number%100,5,'0')),number,DATE_FORMAT(NOW(),'%Y-%m-%d'),"
      "PR_CODE,PR_NAME,1+number%7 FROM (SELECT PR_CODE,PR_NAME,ROW_NUMBER() OVER (ORDER BY PR_CODE)"
      " AS number FROM PR) items");
  client.ReadAll("ANALYZE TABLE PR,SAFEIV,IV,PES13,PSS13");
}

/// The supplier as the lookup gives it: only then does the item list have units and safety stock.
void LookUpSupplier(OrderForm& order) {
  const auto show = std::exchange(Host.ShowModal, [](Form& form) {
    auto& lookup = dynamic_cast<LookupForm&>(form);
    lookup.ResultCode = kSupplier;
    lookup.ResultName = "참나무커피";
  });
  Dispatch([&] { order.LaCTHELP_Click(); });
  Host.ShowModal = show;
}

class CategoryView {
 public:
  explicit CategoryView(BenchServer& server)
      : port_(server.Port()), order_(dynamic_cast<frm_Order03&>(*OpenForm("frm_Order03"))) {
    LookUpSupplier(order_);
  }

  void Measure(RatioTable& table, const std::string& work) {
    const std::vector<std::string> selects = SelectsOf(port_, [this] { Show(); });
    ClientLibrary client(port_, kDatabase);
    table.AddTimes(work,
                   MeasureBoth(
                       kRounds, [this] { Show(); },
                       [&] {
                         for (const std::string& select : selects) client.ReadAll(select);
                       }),
                   1.3);
    std::printf("  %d items, %zu SELECTs\n", order_.FLEX2.Rows() - 1, selects.size());
  }
  void WithSales() { order_.Check1.Value = 1; }

 private:
  void Show() {
    Dispatch([this] { order_.PRHELP_Click(0, 0); });
    hand_.Draw();
  }

  int port_;
  DeskHand hand_{"frm_Order03", "FLEX2"};
  frm_Order03& order_;
};

}  // namespace

void BenchCategoryView(BenchServer& server, RatioTable& table) {
  {
    ClientLibrary client(server.Port(), kDatabase);
    SetUpItems(client);
  }
  ConnectTo(server.Port(), kDatabase);
  AppOptions.OrderInfoPartnersOnly = 1;
  CategoryView view(server);
  view.Measure(table, "a category with its stock until it is drawn, against its SELECT");
  view.WithSales();
  view.Measure(table, "the same with the sales of the month, against its two SELECTs");
  AppOptions.OrderInfoPartnersOnly = 0;
  ClearDesk();
  ConnectTo(server.Port());
}

}  // namespace store
