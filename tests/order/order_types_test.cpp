// What each order type does otherwise: one row a behaviour, one column a type.
#include <algorithm>
#include <fstream>

#include "forms/options_file.h"
#include "lookup/party_lookups.h"
#include "order/frm_Order.h"
#include "order/frm_Order01.h"
#include "order/frm_Order02.h"
#include "order/frm_Order03.h"
#include "order/frm_OrderPLU.h"
#include "slips/slip_keys.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

constexpr const char* kNoSupplier = "발주처를 선택하세요.          ";
constexpr const char* kAgain = "계속해서 발주하시겠습니까?";

/// A store whose order settings decide what it may order. C0001 supplies P0001 in units of 20 and
/// P0002 in units of 10.
class OrderTypes : public OrderDesk {
 protected:
  OrderTypes() {
    AppOptions.OrderInfoPartnersOnly = 1;
    AppOptions.OrderZeroPrice = 1;
    Sql("UPDATE SAFEIV SET ORD_UP=600 WHERE CT_CODE='C0001'");
  }

  void Start(std::int16_t type) {
    if (Form* open = OpenForm(ChosenOrderType().FormName)) open->Close();
    ReleaseDroppedForms();
    Session.UserLevel = "1";
    host.Boxes.clear();
    WriteOption(kOptionSection, kOrderTypeKey, std::to_string(type));
    AppOptions.OrderType = type;
    Open();
  }
  /// Chooses C0001 in the lookup.
  void LookUp() {
    host.OnModal("HELP_CT", [](Form& form) {
      auto& lookup = dynamic_cast<HELP_CT&>(form);
      lookup.Command1_Click();
      for (int row = 1; lookup.FLEX1.TextMatrix(row, 0) != "C0001"; ++row) {
        lookup.FLEX1.SetRow(row + 1);
      }
      lookup.FLEX1_DblClick();
    });
    Order().LaCTHELP_Click();
  }
  /// One line of P0002.
  void Fill() {
    LookUp();
    Enter("88010001");
  }
  std::string Title() const { return host.Boxes.empty() ? "" : host.Boxes.back().Title; }
  std::string StoredState(int button) {
    Fill();
    host.ExpectBox(kAgain, box::No);
    Order().LaBtn_Click(button);
    return Value("SELECT PE_CK FROM PEM22 ORDER BY PE_ID DESC LIMIT 1");
  }
  std::string Confirmed(const std::string& level) {
    Fill();
    Session.UserLevel = level;
    host.ExpectBox(AppOptions.OrderType == 1 && level == "4" ? "권한" : kAgain, box::No);
    Order().LaBtn_Click(1);
    return Title();
  }
  std::string EnteredWithoutSupplier() {
    if (AppOptions.OrderType != 1) host.ExpectBox(kNoSupplier);
    Enter("88010001");
    return Lines().empty() ? Title() : "taken";
  }
  std::string SavedWithoutSupplier() {
    host.ExpectBox(AppOptions.OrderType == 1 ? "전표순번" : "거래처");
    Order().LaBtn_Click(0);
    return Order().HeadValues[head::ToCode] + Order().HeadValues[head::ToName];
  }
  std::string Hits(const std::string& search) {
    Supplier("#C0001");
    if (AppOptions.OrderType == 2 && search == ",") {
      host.OnModal("frm_OrderPLU", [](Form& panel) { Host.Hide(panel); });
    }
    PickList.Clear();
    Enter(search);
    const bool panel = host.FormsShown.back() == "frm_OrderPLU";
    return panel ? "panel" : Lines().empty() ? "list" : Lines();
  }
  std::string QuantityOfNewLine() {
    Fill();
    return Order().FLEX1.TextMatrix(1, 7) + "/" + Order().FLEX1.TextMatrix(1, 11);
  }
  std::string TypedQuantities() {
    Fill();
    std::string seen;
    for (const std::string typed : {"17", "-5", "30", "0"}) {
      const bool refused = AppOptions.OrderType == 3 && typed.back() != '0';
      if (refused) host.ExpectBox("해당상품은 발주단위가 [10] 입니다.      ");
      Enter(typed);
      seen += (refused ? Title() : Lines()) + "|";
      EXPECT_EQ(Order().inBox.Text(), "");
    }
    return seen + Order().LaAmt[0].Caption;
  }
  std::string PickColumns() {
    std::string columns;
    const Grid& picks = Order().FLEX2;
    for (int col = 0; col < picks.Cols(); ++col) {
      const GridColumn& column = picks.Columns()[static_cast<size_t>(col)];
      if (!column.Hidden) columns += std::to_string(col) + column.Header + " ";
    }
    return columns + "of " + std::to_string(picks.Cols());
  }
  std::string EditableColumns() {
    std::string columns;
    for (int col = 0; col < Order().FLEX2.Cols(); ++col) {
      if (Order().FLEX2_BeforeEdit(1, col)) columns += std::to_string(col) + " ";
    }
    return columns;
  }
  std::string SavedWithAGoneItem() {
    Fill();
    SlotC.reset();
    const bool stored = AppOptions.OrderType == 1 || AppOptions.OrderType == 2;
    if (!stored) host.ExpectBox("[P0002] 품목정보가 부족하여");
    host.ExpectBox(stored ? kAgain : "전표순번", box::No);
    Order().LaBtn_Click(0);
    const std::string title = host.Boxes.front().Title;
    return stored ? Value(
                        "SELECT CONCAT(PR_CODE,'/',PR_NAME,PR_STD,PS_TAXGU,PS_UNT) FROM PSM22 "
                        "ORDER BY PE_ID DESC LIMIT 1")
                  : title;
  }
  /// Fields of the item list when the form opens, and after a supplier was typed and looked up.
  std::string ItemLists() {
    std::string seen = std::to_string(SlotC->FieldCount());
    const auto list = [&] {
      seen += " " + std::to_string(SlotC->FieldCount()) + ":";
      for (SetFilter(SlotC, ""); !AtEof(SlotC); SlotC->MoveNext()) seen += FieldText(SlotC, 0)[4];
    };
    Supplier("#C0001");
    list();
    LookUp();
    list();
    return seen;
  }
  std::string LeftSide() {
    std::string seen;
    for (const auto& [name, control] : Order().Controls()) {
      for (const char* own : {"PRHELP", "Combo2_0", "TabOne1", "Check1", "Option1_0"}) {
        if (name == own) seen += name + " ";
      }
    }
    return seen;
  }
  std::string KeysOfTwoRefusedSaves() {
    int before = 0;
    for (int i = 0; i < 2; ++i) {
      before = SlipSeqCounter;
      host.ExpectBox(AppOptions.OrderType == 1 ? "전표순번" : "거래처");
      Order().LaBtn_Click(0);
    }
    return std::to_string(SlipSeqCounter - before);
  }
  std::string WordOfAnApprovedOrder() {
    Order().Close();
    ReleaseDroppedForms();
    Open("202405161001u01220003");
    return Order().LaSatae.Caption + (Order().inBox.Enabled ? "" : ", read only");
  }
};

TEST_F(OrderTypes, BehaveAsTheirChainsWork) {
  const struct {
    const char* behaviour;
    std::function<std::string()> seen;
    std::array<const char*, 4> wanted;
  } table[] = {
      {"caption",
       [&] { return Order().Caption; },
       {"발주시스템", "발주시스템", "발주시스템", "발주시스템 (3)"}},
      {"state by the first button", [&] { return StoredState(0); }, {"0", "0", "0", "0"}},
      {"state by the second", [&] { return StoredState(1); }, {"1", "1", "2", "2"}},
      {"confirmed by level 3",
       [&] { return Confirmed("3"); },
       {"계속발주", "계속발주", "계속발주", "계속발주"}},
      {"by level 4", [&] { return Confirmed("4"); }, {"계속발주", "권한", "계속발주", "계속발주"}},
      {"by nobody's level",
       [&] { return Confirmed(""); },
       {"계속발주", "계속발주", "계속발주", "계속발주"}},
      {"an item without a supplier",
       [&] { return EnteredWithoutSupplier(); },
       {"발주처", "taken", "발주처", "발주처"}},
      {"saved without a supplier",
       [&] { return SavedWithoutSupplier(); },
       {"", "1000000000000000통합 발주", "", ""}},
      {"a barcode that begins another",
       [&] { return Hits("8801000"); },
       {"list", "list", "P0001x1 ", "list"}},
      {"several hits", [&] { return Hits(","); }, {"list", "list", "panel", "list"}},
      {"first quantity and unit",
       [&] { return QuantityOfNewLine(); },
       {"1/", "10/", "1/", "10/10"}},
      {"typed quantities",
       [&] { return TypedQuantities(); },
       {"P0002x17 |P0002x-5 |P0002x30 |P0002x0 |1", "P0002x17 |P0002x-5 |P0002x30 |P0002x0 |1",
        "P0002x17 |P0002x-5 |P0002x30 |P0002x0 |1",
        "발주단위 오류   **** 적정발주량 [20]  ****|"
        "발주단위 오류   **** 적정발주량 [10]  ****|P0002x30 ||0"}},
      {"columns of the pick list",
       [&] { return PickColumns(); },
       {"3바코드 4품명 5규격 8발주량 of 10",
        "3바코드 4품명 5규격 6현재고 7발주단위 8발주량 10단위 of 11",
        "1S 2상품분류 4품명 5규격 6판매량 7현재고 8부족재고 of 10",
        "3바코드 4품명 5규격 6안전고 7현재고 8부족 9단위 10발주량 of 12"}},
      {"editable columns", [&] { return EditableColumns(); }, {"8 ", "8 ", "1 6 ", "10 "}},
      {"an item gone from the list",
       [&] { return SavedWithAGoneItem(); },
       {"품목정보오류", "P0002/", "P0002/", "품목정보오류"}},
      {"item lists",
       [&] { return ItemLists(); },
       {"11 11:12 11:12", "15 15:214 15:214", "11 11:21 11:21", "13 11:12 13:12"}},
      {"left side",
       [&] { return LeftSide(); },
       {"PRHELP ", "Option1_0 Combo2_0 PRHELP ", "TabOne1 Check1 Option1_0 ", "PRHELP Check1 "}},
      {"keys used up by a refused save",
       [&] { return KeysOfTwoRefusedSaves(); },
       {"1", "0", "0", "0"}},
      {"an approved order",
       [&] { return WordOfAnApprovedOrder(); },
       {"발주편집, read only", "발주편집, read only", "발주편집, read only",
        "발주편집, read only"}},
  };
  for (const auto& row : table) {
    for (std::int16_t type = 0; type < 4; ++type) {
      SCOPED_TRACE(std::string(row.behaviour) + ", type " + std::to_string(type));
      Start(type);
      EXPECT_EQ(row.seen(), row.wanted[static_cast<size_t>(type)]);
    }
  }
}

}  // namespace
}  // namespace store
