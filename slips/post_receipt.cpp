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

/// {0} to {22} are the header's elements, {23} the table, {24} the version.
std::string HeaderStatement(std::vector<std::string> fields, const std::string& table) {
  fields.push_back(table);
  fields.push_back(ProgramVersion());
  return Splice(
      " INSERT INTO {23} ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_MISU,PE_EC,PE_DC,PE_PAYGU,PE_ACCK,PE_TMAN,PE_MEMO,"
      "ST_CODE,PE_PRJ,PE_LINK,INPUT_PROGRAM) VALUES  ('{0}','{1}','{2}',NOW(),  '{4}','{5}','{6}',"
      "'{7}',    {8} ,{9} ,{10} ,{11} ,{12} ,{13} ,  '{14}' ,'{15}' ,'{16}' ,  '{17}','{18}',"
      "'{19}','{20}','{24}')",
      fields);
}

std::string CloseOrderStatement(const std::vector<std::string>& head) {
  return Splice(" UPDATE PEM22 SET PE_CK = '4' , PE_LINK = '{0}' WHERE PE_ID = '{20}'", head);
}

/// {0} to {22} are the line's columns, {23} the table.
std::string LineStatement(std::vector<std::string> fields, const std::string& lines) {
  fields.push_back(lines);
  return Splice(
      " INSERT INTO {23} (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
      "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME,PS_INCK,"
      "PS_TMID) VALUES  ( '{0}',{1},'{2}',    '{3}','{4}','{5}', '{6}','{7}',    {8},{9},{10},"
      "{11},{12},{13},    '{14}','{15}','{16}','{17}','{18}','{19}','{21}' ) ",
      fields);
}

/// The stock statements see a line's columns as {0} to {22}, the store as {23} and the stock column
/// as {24}.
std::string StockCountStatement(const std::vector<std::string>& fields) {
  return Splice(
      "select count(*) from IV where RCT_CODE='{23}' and HCT_CODE='{17}' and PR_CODE='{3}' ",
      fields);
}

std::string StockUpdateStatement(const std::vector<std::string>& fields) {
  return Splice(
      "UPDATE IV SET {24} = {24} + {8} WHERE  RCT_CODE='{23}' AND HCT_CODE='{17}' AND "
      "PR_CODE='{3}'",
      fields);
}

std::string StockInsertStatement(const std::vector<std::string>& fields) {
  return Splice(
      "INSERT INTO IV (RCT_CODE, HCT_CODE, PR_CODE, PR_NAME, PR_STD, PR_UNT, PR_BCODE, {24}) "
      "values  ('{23}','{17}','{3}','{4}','{5} ','{7}','',{8})",
      fields);
}

/// The balance statements see the header's elements as {0} to {22}, the month as {23} and the
/// balance column as {24}.
std::string BalanceCountStatement(const std::vector<std::string>& fields) {
  return Splice(
      "select count(*) from CMM where CM_FCTCODE='{4}' and CM_TCTCODE='{6}' and CM_MGU='C' and "
      "CM_MM='{23}'",
      fields);
}

std::string BalanceUpdateStatement(const std::vector<std::string>& fields) {
  return Splice(
      " update CMM set {24} = {24} + {10} where  CM_FCTCODE='{4}' and CM_TCTCODE='{6}' and "
      "CM_MGU='C' and CM_MM='{23}' ",
      fields);
}

std::string BalanceInsertStatement(const std::vector<std::string>& fields) {
  return Splice(
      " insert into CMM (CM_FCTCODE, CM_TCTCODE, CM_MGU, CM_MM, {24}, CM_CK) values   "
      "('{4}','{6}','C','{23}',{10},'0')",
      fields);
}

/// Exactly one row is there to be raised. With none, or with several, a further one is inserted:
/// every reader sums, and nobody can tell which of several to raise.
bool CountsOne(const std::string& statement) {
  OpenRecordset(SlotA, statement);
  const bool one = ParseNumber(FieldText(SlotA, 0)) == 1;
  CloseRecordset(SlotA);
  return one;
}

void AddStock(std::vector<std::string> fields, const std::string& storeCode,
              const std::string& stockColumn) {
  fields.push_back(storeCode);
  fields.push_back(stockColumn);
  AddToBatch(CountsOne(StockCountStatement(fields)) ? StockUpdateStatement(fields)
                                                    : StockInsertStatement(fields));
}

void AddBalance(std::vector<std::string> fields, const std::string& balanceColumn) {
  const std::string month = FormatDateText(fields[head::Date], "YYYYMM");
  fields.push_back(month);
  fields.push_back(balanceColumn);
  AddToBatch(CountsOne(BalanceCountStatement(fields)) ? BalanceUpdateStatement(fields)
                                                      : BalanceInsertStatement(fields));
}

}  // namespace

std::int16_t PostReceipt(const HeadArray& headValues, const StringTable& lineValues,
                         const std::string& table) {
  const Hourglass waiting;  // a round trip a line, before the batch
  const Direction direction = DirectionOf(table);
  const std::vector<std::string> head = HeadFields(headValues, head::Supply, head::Discount);
  StartBatch();
  AddToBatch(HeaderStatement(head, table));
  AddToBatch(CloseOrderStatement(head));
  ForEachLine(lineValues, [&](const std::vector<std::string>& fields) {
    AddToBatch(LineStatement(fields, direction.lines));
  });
  if (ParseNumber(headValues[head::State]) != 0) {
    ForEachLine(lineValues, [&](const std::vector<std::string>& fields) {
      AddStock(fields, headValues[head::FromCode], direction.stockColumn);
    });
    AddBalance(head, direction.balanceColumn);
  }
  return ExecuteBatch(SqlBatch);
}

}  // namespace store
