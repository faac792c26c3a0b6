#include "order/kind_pane.h"

#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"

namespace store {
namespace {

constexpr int kKindsInRow = 3;
constexpr int kLevelLength = 3;  // characters of a category id that each level adds
constexpr int kIdInEntry = 20;   // characters at the end of an entry that hold the id

std::string SubKindCondition(int level, const std::string& code) {
  if (level == 1) return "";
  return Splice(" AND KD_ID LIKE '{prefix}%' ",
                "prefix"_a = LeftChars(code, (level - 1) * kLevelLength));
}

std::string KindStatement(int level, const std::string& condition) {
  return Splice(
      "SELECT KD_ID,KD_NAME FROM KIND WHERE  KD_LVL = '{level}' {condition} ORDER BY KD_NAME ",
      "level"_a = std::to_string(level), "condition"_a = condition);
}

std::string LevelCondition(int level) {
  const std::string number = std::to_string(level);
  return AppOptions.ShowMidCategory == 1
             ? Splice(" KD_LVL in ( '{level}','2') ", "level"_a = number)
             : Splice(" KD_LVL in ( '{level}') ", "level"_a = number);
}

/// Only the categories of what the store's order settings name for the supplier.
std::string SetUpKindStatement(int level, const std::string& supplier,
                               const std::string& condition) {
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "PR.KD_ID)  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = PR.PR_CODE    WHERE {levels} AND "
      "SAFEIV.RCT_CODE = '{store}' AND SAFEIV.CT_CODE = '{supplier}' {condition} ORDER BY KD_NAME ",
      "levels"_a = LevelCondition(level), "store"_a = Session.StoreCode, "supplier"_a = supplier,
      "condition"_a = condition);
}

}  // namespace

KindPane::KindPane(Form& form) {
  form.Publish("PRHELP", PRHELP);
  PRHELP.SetColumns(std::vector<GridColumn>(kKindsInRow, {.Width = 1800}), 0);
  const auto choose = [this] { PRHELP_Click(PRHELP.Row(), PRHELP.Col()); };
  PRHELP.Click = choose;
  PRHELP.KeyDown = [choose](Key key) {
    if (key == Key::Enter) choose();
  };
  PRHELP.OwnKeys = {Key::Enter};
}

void KindPane::FillKindGrid(Grid& grid, int level, const std::string& code,
                            const std::string& supplier) {
  const std::string condition = SubKindCondition(level, code);
  grid.SetRows(0);
  SqlText = AppOptions.OrderInfoPartnersOnly != 0 ? SetUpKindStatement(level, supplier, condition)
                                                  : KindStatement(level, condition);
  OpenRecordset(SlotA, SqlText);
  grid.SetRows(RecordCountOf(SlotA) / grid.Cols() + 1);
  int cell = 0;
  ForEachRow(SlotA, [&] {
    grid.SetTextMatrix(cell / grid.Cols(), cell % grid.Cols(),
                       ListEntry(FieldText(SlotA, 1), FieldText(SlotA, 0)));
    ++cell;
  });
  CloseRecordset(SlotA);
}

void KindPane::PRHELP_Click(int row, int col) {
  const std::string kindId = Trim(RightChars(PRHELP.TextMatrix(row, col), kIdInEntry));
  const std::string topLevel = LeftChars(kindId, kLevelLength);
  if (!topLevel.empty()) KindChosen(topLevel);
}

}  // namespace store
