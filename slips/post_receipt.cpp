#include "slips/post_receipt.h"

#include "basics/dates.h"
#include "basics/numbers.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

/// What the header table decides.
struct Direction {
  std::string lines;
  std::string stockColumn;
  std::string balanceColumn;
};

Direction DirectionOf(const std::string& table) {
  if (table == "PES13") return {"PSS13", "OTQTY", "CM_M13"};
  return {"PSM23", "INQTY", "CM_M23"};
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

std::string LineStatement(const LineFields& fields, const std::string& lines) {
  return Splice(
      " INSERT INTO {lines} (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
      "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME,PS_INCK,"
      "PS_TMID) VALUES  ( '{L0}',{L1},'{L2}',    '{L3}','{L4}','{L5}', '{L6}','{L7}',    "
      "{L8},{L9},{L10},"
      "{L11},{L12},{L13},    '{L14}','{L15}','{L16}','{L17}','{L18}','{L19}','{L21}' ) ",
      fields, "lines"_a = lines);
}

std::string StockCountStatement(const LineFields& fields, const std::string& store) {
  return Splice(
      "select count(*) from IV where RCT_CODE='{store}' and HCT_CODE='{L17}' and PR_CODE='{L3}' ",
      fields, "store"_a = store);
}

std::string StockUpdateStatement(const LineFields& fields, const std::string& store,
                                 const std::string& column) {
  return Splice(
      "UPDATE IV SET {column} = {column} + {L8} WHERE  RCT_CODE='{store}' AND HCT_CODE='{L17}' AND "
      "PR_CODE='{L3}'",
      fields, "store"_a = store, "column"_a = column);
}

std::string StockInsertStatement(const LineFields& fields, const std::string& store,
                                 const std::string& column) {
  return Splice(
      "INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, PR_BCODE, {column}) "
      "values  ('{store}','{L17}','{L3}','{L4}','{L5} ','{L7}','',{L8})",
      fields, "store"_a = store, "column"_a = column);
}

std::string BalanceCountStatement(const HeadFields& fields, const std::string& month) {
  return Splice(
      "select count(*) from CMM where CM_FCTCODE='{H4}' and CM_TCTCODE='{H6}' and CM_MGU='C' and "
      "CM_MM='{month}'",
      fields, "month"_a = month);
}

std::string BalanceUpdateStatement(const HeadFields& fields, const std::string& month,
                                   const std::string& column) {
  return Splice(
      " update CMM set {column} = {column} + {H10} where  CM_FCTCODE='{H4}' and CM_TCTCODE='{H6}' "
      "and "
      "CM_MGU='C' and CM_MM='{month}' ",
      fields, "month"_a = month, "column"_a = column);
}

std::string BalanceInsertStatement(const HeadFields& fields, const std::string& month,
                                   const std::string& column) {
  return Splice(
      " insert into CMM (CM_FCTCODE, CM_TCTCODE, CM_MGU, CM_MM, {column}, CM_CK) values   "
      "('{H4}','{H6}','C','{month}',{H10},'0')",
      fields, "month"_a = month, "column"_a = column);
}

/// Exactly one row is there to be raised. With none, or with several, a further one is inserted:
/// every reader sums, and nobody can tell which of several to raise.
bool CountsOne(const std::string& statement) {
  OpenRecordset(SlotA, statement);
  const bool one = ParseNumber(FieldText(SlotA, 0)) == 1;
  CloseRecordset(SlotA);
  return one;
}

void AddStock(const LineFields& fields, const std::string& store, const std::string& column) {
  AddToBatch(CountsOne(StockCountStatement(fields, store))
                 ? StockUpdateStatement(fields, store, column)
                 : StockInsertStatement(fields, store, column));
}

void AddBalance(const HeadFields& fields, const std::string& column) {
  const std::string month = FormatDateText(fields.Field(head::Date), "YYYYMM");
  AddToBatch(CountsOne(BalanceCountStatement(fields, month))
                 ? BalanceUpdateStatement(fields, month, column)
                 : BalanceInsertStatement(fields, month, column));
}

}  // namespace

std::int16_t PostReceipt(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table) {
  const Hourglass waiting;  // a round trip a line, before the batch
  const Direction direction = DirectionOf(table);
  const HeadFields head(headValues, head::Supply, head::Discount);
  StartBatch();
  AddToBatch(HeaderStatement(head, table));
  AddToBatch(CloseOrderStatement(head));
  ForEachLine(lineValues, [&](const LineFields& fields) {
    AddToBatch(LineStatement(fields, direction.lines));
  });
  if (ParseNumber(headValues[head::State]) != 0) {
    ForEachLine(lineValues, [&](const LineFields& fields) {
      AddStock(fields, headValues[head::FromCode], direction.stockColumn);
    });
    AddBalance(head, direction.balanceColumn);
  }
  return ExecuteBatch(SqlBatch);
}

}  // namespace store
