#include "order/kind_pane.h"

#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"

namespace store {
namespace {

constexpr int kKindsInRow = 3;
constexpr int kLevels = 5;
constexpr int kIdInEntry = 20;  // characters at the end of an entry that hold the id

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

std::string LevelCondition(int level, KindPane::Levels levels) {
  const std::string number = std::to_string(level);
  if (levels == KindPane::Levels::TopOnly) {
    return Splice(" KD_LVL = '{level}'", "level"_a = number);
  }
  return AppOptions.ShowMidCategory == 1
             ? Splice(" KD_LVL in ( '{level}','2') ", "level"_a = number)
             : Splice(" KD_LVL in ( '{level}') ", "level"_a = number);
}

/// Only the categories of what the store's order settings name for the supplier.
std::string SetUpKindStatement(const std::string& levels, const std::string& supplier,
                               const std::string& condition) {
  return Splice(
      "SELECT DISTINCT KIND.KD_ID,KIND.KD_NAME FROM  (KIND RIGHT JOIN PR ON  KIND.KD_ID = "
      "PR.KD_ID)  RIGHT JOIN SAFEIV ON SAFEIV.PR_CODE = PR.PR_CODE    WHERE {levels} AND "
      "SAFEIV.RCT_CODE = '{store}' AND SAFEIV.CT_CODE = '{supplier}' {condition} ORDER BY KD_NAME ",
      "levels"_a = levels, "store"_a = Session.StoreCode, "supplier"_a = supplier,
      "condition"_a = condition);
}

}  // namespace

std::string ZerosBelow(int level) {
  return std::string(static_cast<size_t>((kLevels - level) * kLevelLength), '0');
}

std::string CodeOfEntry(const std::string& entry) { return Trim(RightChars(entry, kIdInEntry)); }

std::string CodeOfCell(const Grid& grid, int row, int col) {
  return CodeOfEntry(grid.TextMatrix(row, col));
}

void ClickByKeyAndMouse(Grid& grid, std::function<void(int row, int col)> click) {
  grid.Click = [&grid, click = std::move(click)] { click(grid.Row(), grid.Col()); };
  grid.KeyDown = [&grid](Key key) {
    if (key == Key::Enter) grid.Click();
  };
  grid.OwnKeys = {Key::Enter};
}

void FillSelectionGrid(Grid& grid) {
  grid.SetRows(RecordCountOf(SlotA) / grid.Cols() + 1);
  int cell = 0;
  ForEachRow(SlotA, [&] {
    grid.SetTextMatrix(cell / grid.Cols(), cell % grid.Cols(),
                       ListEntry(FieldText(SlotA, 1), FieldText(SlotA, 0)));
    ++cell;
  });
  CloseRecordset(SlotA);
}

KindPane::KindPane(Form& form, PickListPane& pickList, Levels levels)
    : pickList_(pickList), levels_(levels) {
  form.Publish("PRHELP", PRHELP);
  PRHELP.SetColumns(std::vector<GridColumn>(kKindsInRow, {.Width = 1800}), 0);
  ClickByKeyAndMouse(PRHELP, [this](int row, int col) { PRHELP_Click(row, col); });
}

void KindPane::FillKindGrid(Grid& grid, int level, const std::string& code,
                            const std::string& supplier) {
  const std::string condition = SubKindCondition(level, code);
  grid.SetRows(0);
  SqlText = AppOptions.OrderInfoPartnersOnly != 0
                ? SetUpKindStatement(LevelCondition(level, levels_), supplier, condition)
                : KindStatement(level, condition);
  const StoppableReads mayBeStopped;
  OpenRecordset(SlotA, SqlText);
  FillSelectionGrid(grid);
}

void KindPane::PRHELP_Click(int row, int col) {
  const std::string topLevel = LeftChars(CodeOfCell(PRHELP, row, col), kLevelLength);
  if (topLevel.empty()) return;
  SetFilter(SlotC, Splice(" KD_ID LIKE '{kind}%'", "kind"_a = topLevel));
  pickList_.FillPickGrid();
}

}  // namespace store
