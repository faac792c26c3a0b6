#include "order/proposal_pane.h"

#include <utility>

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "order/stock_list.h"

namespace store {
namespace {

constexpr const char* kKeyDate = "YYYYMMDD";

/// Sales of what the store's order settings name for the supplier.
std::string SetUpSalesStatement(const std::string& days, const std::string& condition,
                                const std::string& supplier) {
  return Splice(
      "SELECT B.PR_CODE,' ' AS C1,D.KD_NAME AS C2,C.PR_BCODE,C.PR_NAME,C.PR_STD,"
      "SUM(B.PS_SQTY)/{days},' ' AS IV  FROM (((PES13 A LEFT JOIN PSS13 B ON A.PE_ID = B.PE_ID)  "
      "LEFT JOIN PR C ON B.PR_CODE = C.PR_CODE)  LEFT JOIN KIND D ON LEFT(C.KD_ID,3) = "
      "LEFT(D.KD_ID,3)) RIGHT JOIN SAFEIV ON  SAFEIV.PR_CODE = C.PR_CODE   WHERE A.PE_FCTCODE = "
      "'{store}' AND D.KD_LVL  = '1'  {condition} AND SAFEIV.RCT_CODE = '{store}' AND  "
      "SAFEIV.CT_CODE = '{supplier}'  GROUP BY B.PR_CODE  HAVING SUM(B.PS_SQTY)/{days} >= 1  ORDER "
      "BY D.KD_NAME,B.PR_NAME ",
      "days"_a = days, "store"_a = Session.StoreCode, "condition"_a = condition,
      "supplier"_a = supplier);
}

std::string SalesStatement(const std::string& days, const std::string& condition) {
  return Splice(
      "SELECT B.PR_CODE,' ' AS C1,D.KD_NAME AS C2,C.PR_BCODE,C.PR_NAME,C.PR_STD,"
      "SUM(B.PS_SQTY)/{days},' ' AS IV  FROM ((PES13 A LEFT JOIN PSS13 B ON A.PE_ID = B.PE_ID)  "
      "LEFT JOIN PR C ON B.PR_CODE = C.PR_CODE)  LEFT JOIN KIND D ON LEFT(C.KD_ID,3) = "
      "LEFT(D.KD_ID,3)  WHERE A.PE_FCTCODE = '{store}' AND D.KD_LVL  = '1'  {condition} GROUP BY "
      "B.PR_CODE  HAVING SUM(B.PS_SQTY)/{days} >= 1  ORDER BY D.KD_NAME,B.PR_NAME ",
      "days"_a = days, "store"_a = Session.StoreCode, "condition"_a = condition);
}

// Every item has the name of its top category, so its category joins on level 1 alone.
std::string SetUpSafetyStatement(const std::string& supplier) {
  return Splice(
      "SELECT PR.PR_CODE,' ' AS C1,KIND.KD_NAME AS C2,PR.PR_BCODE,PR.PR_NAME,PR.PR_STD,"
      "SAFEIV.SAFE_QTY,' ' AS C3  FROM (SAFEIV  LEFT JOIN PR  ON SAFEIV.PR_CODE = PR.PR_CODE)  "
      "LEFT JOIN KIND ON LEFT(PR.KD_ID,3) = LEFT(KIND.KD_ID,3) AND KIND.KD_LVL = '1'  WHERE "
      "SAFEIV.RCT_CODE = '{store}' AND  SAFEIV.CT_CODE = '{supplier}'  ORDER BY "
      "KIND.KD_NAME,PR.PR_NAME ",
      "store"_a = Session.StoreCode, "supplier"_a = supplier);
}

std::string SafetyStatement(const std::string& condition) {
  return Splice(
      "SELECT PR.PR_CODE,' ' AS C1,KIND.KD_NAME AS C2,PR.PR_BCODE,PR.PR_NAME,PR.PR_STD,"
      "SAFEIV.SAFE_QTY,' ' AS C3  FROM (SAFEIV  LEFT JOIN PR  ON SAFEIV.PR_CODE = PR.PR_CODE)  "
      "LEFT JOIN KIND ON LEFT(PR.KD_ID,3) = LEFT(KIND.KD_ID,3) AND KIND.KD_LVL = '1'  WHERE "
      "SAFEIV.RCT_CODE = '{store}' {condition} ORDER BY KIND.KD_NAME,PR.PR_NAME ",
      "store"_a = Session.StoreCode, "condition"_a = condition);
}

/// Reads the items into `SlotA`, and the stock that they are held against.
ItemSums ReadProposal(const std::string& statement) {
  const StoppableReads mayBeStopped;
  SqlText = statement;
  OpenRecordset(SlotA, SqlText);
  return ReadStock();
}

/// The cells of the current record of `SlotA`, tab-joined.
std::string ProposalRow(const ItemSums& stockOfItems) {
  std::string row;
  for (int field = 0; field < proposal::Stock; ++field) row += FieldText(SlotA, field) + "\t";
  const std::string base = FieldText(SlotA, proposal::Base);
  const std::string stock = stockOfItems.Of(FieldText(SlotA, pick::Code)).value_or("0");
  const std::string shortage = NumberText(ParseNumber(base) - ParseNumber(stock));
  return row.append(stock).append("\t").append(shortage).append("\t").append(base);
}

double ValueAt(const Grid& grid, int row, int col) {
  return ParseGrouped(grid.TextMatrix(row, col));
}

}  // namespace

ProposalPane::ProposalPane(Form& form, const SupplierPane& supplier, PickListPane& pickList,
                           ProgressPane& progress)
    : supplier_(supplier), pickList_(pickList), picks_(pickList.FLEX2), progress_(progress) {
  TabOne1.Captions = {"판매량", "적정재고"};
  TabOne1.CurrTab = 0;
  TabOne1.Click = [this](int tab) { LaOrder_Click(tab); };
  form.Publish("TabOne1", TabOne1);
  PublishPeriod(form);
  PublishMarks(form);
}

void ProposalPane::PublishPeriod(Form& form) {
  form.Publish("Label4", Label4);
  form.Publish("DTPicker1", DTPicker1);
  form.Publish("Check1", Check1);
  form.Publish("Text2", Text2);
  form.Publish("Check3", Check3);
  form.Publish("Text3", Text3);
  form.Publish("Check4", Check4);
  form.Publish("LaEP", LaEP);
  Check1.ToolTipText = "예상발주량은 1보다 크거나 같은것만 포함";
  Check3.ToolTipText = Check4.ToolTipText = "발주처상품만 보기";
  for (DatePicker& day : DTPicker1) day.Change = [this] { DTPicker1_Change(); };
  DTPicker1[0].SetValue(FormatDateValue(Today(), "yyyy-mm-01"));
  DTPicker1[1].SetValue(FormatDateValue(Today(), "yyyy-mm-dd"));
  Text3.KeyDown = [this](Key key) { Text3_KeyPress(key); };
  Text3.OwnKeys = {Key::Enter};
  for (const int index : {0, 1}) {
    LaEP[static_cast<size_t>(index)].Click = [this, index] { LaEP_Click(index); };
  }
}

void ProposalPane::PublishMarks(Form& form) {
  form.Publish("Check2", Check2);
  form.Publish("Option1", Option1);
  Check2.ToolTipText = "부족재고가 (-)재고를 과족재고로 정의";
  Check2.Click = [this] { Check2_Click(); };
  for (const int index : {0, 1, 2}) {
    Option1[static_cast<size_t>(index)].Click = [this, index] { Option1_Click(index); };
  }
}

void ProposalPane::LaOrder_Click(int tab) {
  TabOne1.CurrTab = tab;
  if (tab == 0) picks_.SetTextMatrix(0, proposal::Base, "판매량");
  if (tab == 1) picks_.SetTextMatrix(0, proposal::Base, "적정재고");
}

void ProposalPane::DTPicker1_Change() {
  ClockTime from;
  ClockTime to;
  if (!ParseDateText(DTPicker1[0].Value(), from) || !ParseDateText(DTPicker1[1].Value(), to)) {
    return;
  }
  const int days = DaysBetween({from.Year, from.Month, from.Day}, {to.Year, to.Month, to.Day}) + 1;
  Text2.SetText(std::to_string(days));
}

void ProposalPane::LaEP_Click(int index) {
  if (!supplier_.HasSupplier()) {
    Host.MsgBox("발주처를 선택하세요.", box::Critical, "발주처선택");
    return;
  }
  const Hourglass waiting;
  picks_.SetRows(1);
  Text3.SetText("");
  Check2.Value = 0;
  for (OptionButton& mark : Option1) mark.Value = false;  // the new rows bear no marks
  progress_.ShowWaiting();
  FillProposal(index == 0 ? SalesProposal() : SafetyProposal());
}

std::string ProposalPane::SalesProposal() const {
  if (AppOptions.OrderInfoPartnersOnly != 0) {
    return SetUpSalesStatement(DaysDivisor(), PeriodOrSupplier(), supplier_.Text1.Tag);
  }
  return SalesStatement(DaysDivisor(), PeriodOrSupplier());
}

std::string ProposalPane::DaysDivisor() const {
  std::int16_t days = 1;
  if (Check1.Value != 0) ToInt16(ParseNumber(Text2.Text()), days);
  return std::to_string(days);
}

// The supplier's items replace the period instead of joining it: their sales of all time count.
std::string ProposalPane::PeriodOrSupplier() const {
  if (AppOptions.OrderInfoPartnersOnly == 0 && Check3.Value != 0) {
    return Splice(" AND C.PR_BCTCODE = '{supplier}'", "supplier"_a = supplier_.Text1.Tag);
  }
  return Splice(" AND SUBSTRING(A.PE_ID,1,8) BETWEEN '{from}' AND '{to}' ",
                "from"_a = FormatDateText(DTPicker1[0].Value(), kKeyDate),
                "to"_a = FormatDateText(DTPicker1[1].Value(), kKeyDate));
}

std::string ProposalPane::SafetyProposal() const {
  const std::string& supplier = supplier_.Text1.Tag;
  if (AppOptions.OrderInfoPartnersOnly != 0) return SetUpSafetyStatement(supplier);
  return SafetyStatement(Check4.Value != 0
                             ? Splice(" AND PR.PR_BCTCODE = '{supplier}'", "supplier"_a = supplier)
                             : "");
}

void ProposalPane::FillProposal(const std::string& statement) {
  const ItemSums stock = ReadProposal(statement);
  // Against a stock that nobody could read, everything on the shelves would be ordered once more.
  if (!stock.WasRead()) CloseRecordset(SlotA);
  picks_.Redraw = false;
  progress_.ShowProgress(RecordCountOf(SlotA));
  ForEachRow(SlotA, [&] {
    progress_.StepProgress();
    picks_.AddItem(ProposalRow(stock));
  });
  progress_.HideProgress();
  picks_.Redraw = true;
  CloseRecordset(SlotA);
}

void RecalcShortage(Grid& picks, int row) {
  const double shortage =
      ValueAt(picks, row, proposal::Base) - ValueAt(picks, row, proposal::Stock);
  picks.SetTextMatrix(row, proposal::Shortage, NumberText(shortage));
}

void ProposalPane::Text3_KeyPress(Key key) {
  if (key != Key::Enter) return;
  const double times = ParseGrouped(Text3.Text());
  std::vector<PickCell> cells;
  for (int row = 1; row < picks_.Rows(); ++row) {
    const std::vector<std::string> before = CellsOfRow(picks_, row);
    picks_.SetTextMatrix(row, proposal::Base,
                         NumberText(times * ValueAt(picks_, row, proposal::Fetched)));
    RecalcShortage(picks_, row);
    AddChangedCells(picks_, row, before, cells);
  }
  pickList_.TellCellsChanged(std::move(cells));
}

void ProposalPane::Check2_Click() {
  const Hourglass waiting;
  for (int row = 1; row < picks_.Rows(); ++row) {
    picks_.SetRowHidden(row, Check2.Value != 0 && ValueAt(picks_, row, proposal::Shortage) <= 0);
  }
}

void ProposalPane::Option1_Click(int index) {
  for (size_t i = 0; i < Option1.size(); ++i) Option1[i].Value = static_cast<int>(i) == index;
  for (int row = 1; row < picks_.Rows(); ++row) {
    const bool marked = index == 0 || picks_.TextMatrix(row, pick::Mark) != "-1";
    picks_.SetTextMatrix(row, pick::Mark, marked ? "-1" : "0");
  }
}

}  // namespace store
