#include "slips/post_receipt.h"

#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/posted_lines.h"
#include "slips/slip_statements.h"
#include "slips/stock_balance.h"

namespace store {
namespace {

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

}  // namespace

std::int16_t PostReceipt(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table) {
  const Hourglass waiting;
  const Direction direction = DirectionOf(table);
  const HeadFields head(headValues, head::Supply, head::Discount);
  StartBatch();
  AddToBatch(HeaderStatement(head, table));
  AddToBatch(CloseOrderStatement(head));
  AddPostedLines(lineValues, direction.lines, line::TerminalId);
  if (ParseNumber(headValues[head::State]) != 0) {
    AddMovement(head, LinesOf(lineValues), direction.movement);
  }
  return ExecuteBatch(SqlBatch);
}

}  // namespace store
