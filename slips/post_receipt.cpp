#include "slips/post_receipt.h"

#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/posted_lines.h"
#include "slips/slip_statements.h"
#include "slips/stock_balance.h"

namespace store {
namespace {

constexpr int kAttempts = 4;

/// What the header table decides.
struct Direction {
  std::string lines;
  Movement movement;
};

Direction DirectionOf(const std::string& table) {
  if (table == "PES13") return {"PSS13", {.StockColumn = "OTQTY", .BalanceColumn = "CM_M13"}};
  return {"PSM23", {.StockColumn = "INQTY", .BalanceColumn = "CM_M23"}};
}

std::string ProgramVersion() {
  return std::to_string(Host.Version.Major) + std::to_string(Host.Version.Minor) +
         std::to_string(Host.Version.Revision);
}

std::string HeaderStatement(const HeadFields& fields, const std::string& table) {
  return Splice(
      " INSERT INTO {table} ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,"
      "ST_CODE,PE_PRJ,PE_LINK,INPUT_PROGRAM) VALUES  ('{H0}','{H1}','{H2}',NOW(),  "
      "'{H4}','{H5}','{H6}',"
      "'{H7}',    {H8} ,{H9} ,{H10} ,{H11} ,{H12} ,{H13} ,  '{H14}' ,'{H15}' ,'{H16}' ,  "
      "'{H17}','{H18}',"
      "'{H19}','{H20}','{version}')",
      fields, "table"_a = table, "version"_a = ProgramVersion());
}

std::string CloseOrderStatement(const HeadFields& head) {
  return Splice(" UPDATE PEM22 SET PE_CK = '4' , PE_LINK = '{H0}' WHERE PE_ID = '{H20}'", head);
}

/// The user's other workstation may have received the same order under the same key, and where
/// goods cost nothing with the same totals. So the lines are held against each other too.
std::string TraceStatement(const HeadFields& head, const std::string& table,
                           const std::string& lines, const std::vector<LineFields>& sent) {
  std::string rows;
  for (const LineFields& fields : sent) {
    rows += Splice("{comma}({L1},'{L3}',{L8},{L12},'{L17}')", fields,
                   "comma"_a = rows.empty() ? "" : ",");
  }
  return Splice(
      " SELECT PE_ID FROM {table} WHERE PE_ID = '{H0}' AND PE_PDATE = '{H2}' AND PE_AMT = {H8} AND "
      "PE_TAX = {H9} AND PE_TOT = {H10} AND PE_LINK = '{H20}' AND (SELECT COUNT(*) = {count} AND "
      "SUM((PS_NO,PR_CODE,PS_SQTY,PS_AMT,PS_HCTCODE) IN ({rows})) = {count} FROM {lines} WHERE "
      "PE_ID = '{H0}')",
      head, "table"_a = table, "lines"_a = lines, "count"_a = std::to_string(sent.size()),
      "rows"_a = rows);
}

void BuildReceipt(const HeadArray& headValues, const StringTable& lineValues,
                  const std::string& table, const std::string& guard) {
  const Direction direction = DirectionOf(table);
  const HeadFields head(headValues, head::Supply, head::Discount);
  StartBatch();
  if (!guard.empty()) AddToBatch(guard);
  AddToBatch(HeaderStatement(head, table));
  AddToBatch(CloseOrderStatement(head));
  AddPostedLines(lineValues, direction.lines, line::TerminalId);
  if (ParseNumber(headValues[head::State]) != 0) {
    AddMovement(head, LinesOf(lineValues), direction.movement);
  }
}

}  // namespace

std::string ReceiptTrace(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table) {
  return TraceStatement(HeadFields(headValues, head::Supply, head::Discount), table,
                        DirectionOf(table).lines, LinesOf(lineValues));
}

std::int16_t PostReceipt(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table, const std::string& guard) {
  const Hourglass waiting;
  for (int attempt = 1;; ++attempt) {
    BuildReceipt(headValues, lineValues, table, guard);
    const std::int16_t posted = ExecuteBatch(SqlBatch);
    if (posted != 0 || LastErrorText != kCountsMoved || attempt == kAttempts) return posted;
  }
}

}  // namespace store
