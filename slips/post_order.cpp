#include "slips/post_order.h"

#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

std::string LineTable(const std::string& table) { return table == "PEM22" ? "PSM22" : ""; }

std::string DeleteStatement(const std::string& table, const std::string& slipId) {
  return Splice(" DELETE FROM {table} WHERE PE_ID = '{slip}' ", "table"_a = table,
                "slip"_a = slipId);
}

std::string HeaderStatement(const HeadFields& fields, const std::string& table) {
  return Splice(
      " INSERT INTO {table} ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,"
      "PE_CSCT,PE_TYPE,PE_MEMO1,PE_MEMO2,PE_MEMO3) VALUES  ('{H0}','{H1}','{H2}',now(),  "
      "'{H4}','{H5}',"
      "'{H6}','{H7}',    {H8} ,{H9} ,{H10} ,  '{H11}' ,'{H12}' ,'{H13}' ,'{H14}' ,  "
      "'{H15}','{H16}','{H17}',"
      "'{H18}','{H19}','{H20}','{H21}','{H22}')",
      fields, "table"_a = table);
}

std::string LineStatement(const LineFields& fields, const std::string& lines) {
  return Splice(
      " INSERT INTO {lines} (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
      "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME) VALUES "
      " ( '{L0}',{L1},'{L2}',    '{L3}','{L4}','{L5}', '{L6}','{L7}',    "
      "{L8},{L9},{L10},{L11},{L12},{L13},    "
      "'{L14}','{L15}','{L16}','{L17}','{L18}' ) ",
      fields, "lines"_a = lines);
}

void AddOrder(const HeadArray& headValues, const StringTable& lineValues,
              const std::string& table) {
  AddToBatch(HeaderStatement(HeadFields(headValues, head::Supply, head::Total), table));
  ForEachLine(lineValues, [&](const LineFields& fields) {
    AddToBatch(LineStatement(fields, LineTable(table)));
  });
}

void AddChange(const HeadArray& headValues, const StringTable& lineValues,
               const std::string& table) {
  AddToBatch(DeleteStatement(table, headValues[head::Id]));
  AddOrder(headValues, lineValues, table);
}

}  // namespace

std::int16_t PostNewOrder(const HeadArray& headValues, const StringTable& lineValues,
                          const std::string& table, const std::vector<StoredOrder>& earlierTries) {
  const Hourglass waiting;
  StartBatch();
  if (!earlierTries.empty()) AddToBatch(DeleteOwnStatement(headValues[head::Id], earlierTries));
  AddOrder(headValues, lineValues, table);
  return ExecuteBatch(SqlBatch);
}

std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table) {
  const Hourglass waiting;
  StartBatch();
  AddChange(headValues, lineValues, table);
  return ExecuteBatch(SqlBatch);
}

std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table, const std::vector<StoredOrder>& known) {
  const Hourglass waiting;
  StartBatch();
  AddToBatch(StillThereGuard(headValues[head::Id]));
  AddToBatch(UntouchedGuard(headValues[head::Id], known));
  AddChange(headValues, lineValues, table);
  return ExecuteBatch(SqlBatch);
}

}  // namespace store
