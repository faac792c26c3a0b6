// The item categories beside the pick list.
#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "order/order_form.h"

namespace store {
namespace {

constexpr int kLevelLength = 3;  // characters of a category id that each level adds

std::string SubKindCondition(int level, const std::string& code) {
  if (level == 1) return "";
  return Splice(" AND KD_ID LIKE '{0}%' ", {LeftChars(code, (level - 1) * kLevelLength)});
}

std::string KindStatement(int level, const std::string& condition) {
  return Splice("SELECT KD_ID,KD_NAME FROM KIND WHERE  KD_LVL = '{0}' {1} ORDER BY KD_NAME ",
                {std::to_string(level), condition});
}

/// Only the categories of what the store's order settings name for the supplier.
std::string SetUpKindStatement(int level, const std::string& supplier,
                               const std::string& condition) {
  const std::string levels =
      Splice(AppOptions.ShowMidCategory == 1 ? " KD_LVL in ( '{0}','2') " : " KD_LVL in ( '{0}') ",
             {std::to_string(level)});
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "PR.KD_ID)  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = PR.PR_CODE    WHERE {0} AND "
      "SAFEIV.RCT_CODE = '{1}' AND SAFEIV.CT_CODE = '{2}' {3} ORDER BY KD_NAME ",
      {levels, Session.StoreCode, supplier, condition});
}

}  // namespace

void OrderForm::FillKindGrid(Grid& grid, int level, const std::string& code) {
  const std::string condition = SubKindCondition(level, code);
  grid.SetRows(0);
  SqlText = AppOptions.OrderInfoPartnersOnly != 0 ? SetUpKindStatement(level, Text1.Tag, condition)
                                                  : KindStatement(level, condition);
  OpenRecordset(SlotA, SqlText);
  grid.SetRows(RecordCountOf(SlotA) / grid.Cols() + 1);
  for (int cell = 0; !AtEof(SlotA); ++cell, SlotA->MoveNext()) {
    grid.SetTextMatrix(cell / grid.Cols(), cell % grid.Cols(),
                       FieldText(SlotA, 1) + std::string(30, ' ') + FieldText(SlotA, 0));
  }
  CloseRecordset(SlotA);
  FLEX2.SetRows(1);
}

}  // namespace store
