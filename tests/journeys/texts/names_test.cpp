// Names of products and partners come from head office, with whatever letters they have.
#include "order/order_form.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/item_list.h"
#include "tests/support/slip_desk.h"

namespace store {
namespace {

const std::string kOther = "202405171001u01220001";  // an order of somebody else

class Names : public SlipDesk {
 protected:
  Names() { StartDay(); }
  void StartDay() {
    StartAgain();
    SetUpDesk();
    RegisterOrderForms();
    RegisterReceiptForms();
    AppOptions.BulkOrderPrice = "3";
    Sql("DELETE FROM PEM22 WHERE PE_ID<>'" + kOther + "'; DELETE FROM PEM23; DELETE FROM IV");
  }
  /// One of P0003 from C0001.
  void Order(const std::string& told, const std::string& slipId = "") {
    OpenItemList();
    auto& form = dynamic_cast<OrderForm&>(*TheForm("frm_Order"));
    form.SlipId = slipId;
    form.SlipTable = "PEM22";
    Host.Show(form);
    if (slipId.empty()) {
      form.Text1.SetText("#C0001");
      form.Text1_KeyPress(Key::Enter);
      form.inBox.SetText("88010003");
      form.inBox_KeyPress(Key::Enter);
    }
    host.ExpectBox(told, box::No);
    form.LaBtn_Click(0);
    host.ExpectAllShown();
    form.Close();
    ReleaseDroppedForms();
  }
  void Receive(const std::string& told, const std::string& orderId) {
    auto& form = dynamic_cast<frm_PE_UNIT&>(*TheForm("frm_PE_UNIT"));
    form.SlipId = orderId;
    form.SlipTable = "PEM23";
    Host.Show(form);
    host.ExpectBox("입고확정", box::Yes);
    host.ExpectBox(told);
    form.Command1_Click(1);
    host.ExpectAllShown();
    form.Close();
    ReleaseDroppedForms();
  }
  static std::string Ordered() {
    return Value("SELECT IFNULL(MAX(PE_ID),'') FROM PEM22 WHERE PE_ID<>'" + kOther + "'");
  }
};

TEST_F(Names, WithABackslashAreStoredAsTheyStand) {
  for (const char* letters : {"92", "110,92", "92,110", "92,92,63,92"}) {
    SCOPED_TRACE(letters);
    StartDay();
    const std::string text = std::string("CONCAT('가',CHAR(") + letters + " USING utf8mb4))";
    Sql("UPDATE PR SET PR_NAME=" + text + ", PR_STD=" + text +
        ", PR_UNT=CHAR(92 USING utf8mb4) "
        "WHERE PR_CODE='P0003'; UPDATE CT SET CT_NAME=" +
        text + " WHERE CT_CODE='C0001'");
    Order("발주가 정상적으로 처리되었습니다.");
    const std::string id = Ordered();
    Order("발주가 정상적으로 처리되었습니다.", id);
    Sql("UPDATE PEM22 SET PE_CK='2' WHERE PE_ID='" + id + "'");
    Receive("입고처리가 정상적으로 처리되었습니다.", id);
    for (const char* lines : {"PEM22 JOIN PSM22", "PEM23 JOIN PSM23"}) {
      EXPECT_EQ(Value(std::string("SELECT GROUP_CONCAT(BINARY PE_TCTNAME=CT_NAME AND "
                                  "L.PR_NAME=PR.PR_NAME AND L.PR_STD=PR.PR_STD AND "
                                  "L.PS_UNT=PR.PR_UNT) FROM (SELECT PE_TCTNAME,PE_TCTCODE,PR_CODE,"
                                  "PR_NAME,PR_STD,PS_UNT FROM ") +
                      lines + " USING (PE_ID) WHERE PE_ID<>'" + kOther +
                      "') L JOIN PR USING (PR_CODE) JOIN CT ON CT_CODE=PE_TCTCODE"),
                "1")
          << lines;
    }
    EXPECT_EQ(Value("SELECT COUNT(*) FROM IV JOIN PR USING (PR_CODE) WHERE "
                    "BINARY IV.PR_NAME=PR.PR_NAME AND IV.PR_UNT=PR.PR_UNT"),
              "1");
  }
}

TEST_F(Names, WithAQuoteAreRefusedAndAddNothingAnywhere) {
  const std::string reachesOut =
      "x'','','0','',1,0,0,1,1,0,'u','0','','100102','d'),('" + kOther + "',9,'','P0001','x";
  for (const std::string& name : {std::string("o'neil"), std::string("'"), reachesOut}) {
    for (const char* of : {"PR SET PR_NAME", "CT SET CT_NAME"}) {
      SCOPED_TRACE(of + name);
      StartDay();
      Order("발주가 정상적으로 처리되었습니다.");
      const std::string id = Ordered();
      const auto before = Rows("SELECT PE_ID,PS_NO FROM PSM22 ORDER BY 1,2");
      std::string doubled = name;
      for (size_t at = 0; (at = doubled.find('\'', at)) != std::string::npos; at += 2) {
        doubled.insert(at, "'");
      }
      Sql(std::string("UPDATE ") + of + "='" + doubled + "' WHERE 'P0003' IN (" +
          (of[0] == 'P' ? "PR_CODE" : "CT_CODE,'P0003'") + ")");
      Order("쓸 수 없습니다: " + name);
      if (of[0] == 'P') Order("쓸 수 없습니다: " + name, id);
      Sql("UPDATE PEM22 SET PE_CK='2',PE_TCTNAME=(SELECT CT_NAME FROM CT WHERE CT_CODE='C0001') "
          "WHERE PE_ID='" +
          id + "'");
      Receive("쓸 수 없습니다: " + name, id);
      EXPECT_EQ(Rows("SELECT PE_ID,PS_NO FROM PSM22 ORDER BY 1,2"), before);
      EXPECT_EQ(Value("SELECT COUNT(*) FROM PEM23") + Value("SELECT COUNT(*) FROM IV"), "00");
    }
  }
}

}  // namespace
}  // namespace store
