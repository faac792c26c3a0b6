#include "slips/post_order.h"

#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

std::string LineTable(const std::string& table) { return table == "PEM22" ? "PSM22" : ""; }

std::string DeleteStatement(const std::string& table, const std::string& slipId) {
  return Splice(" DELETE FROM {0} WHERE PE_ID = '{1}' ", {table, slipId});
}

/// {0} to {22} are the header's elements, {23} the table.
std::string HeaderStatement(const HeadArray& headValues, const std::string& table) {
  std::vector<std::string> fields = HeadFields(headValues, head::Supply, head::Total);
  fields.push_back(table);
  return Splice(
      " INSERT INTO {23} ( PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_FCTNAME,PE_TCTCODE,"
      "PE_TCTNAME,PE_AMT,PE_TAX,PE_TOT,PE_TMAN,ST_CODE,PE_PRJ,PE_LINK,PE_COND,PE_GRDAY,PE_CSDAY,"
      "PE_CSCT,PE_TYPE,PE_MEMO1,PE_MEMO2,PE_MEMO3) VALUES  ('{0}','{1}','{2}',now(),  '{4}','{5}',"
      "'{6}','{7}',    {8} ,{9} ,{10} ,  '{11}' ,'{12}' ,'{13}' ,'{14}' ,  '{15}','{16}','{17}',"
      "'{18}','{19}','{20}','{21}','{22}')",
      fields);
}

/// {0} to {22} are the line's columns, {23} the table.
std::string LineStatement(std::vector<std::string> fields, const std::string& lines) {
  fields.push_back(lines);
  return Splice(
      " INSERT INTO {23} (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
      "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME) VALUES "
      " ( '{0}',{1},'{2}',    '{3}','{4}','{5}', '{6}','{7}',    {8},{9},{10},{11},{12},{13},    "
      "'{14}','{15}','{16}','{17}','{18}' ) ",
      fields);
}

void AddOrder(const HeadArray& headValues, const StringTable& lineValues,
              const std::string& table) {
  AddToBatch(HeaderStatement(headValues, table));
  ForEachLine(lineValues, [&](const std::vector<std::string>& fields) {
    AddToBatch(LineStatement(fields, LineTable(table)));
  });
}

}  // namespace

std::int16_t PostNewOrder(const HeadArray& headValues, const StringTable& lineValues,
                          const std::string& table) {
  const Hourglass waiting;
  StartBatch();
  AddOrder(headValues, lineValues, table);
  return ExecuteBatch(SqlBatch);
}

std::int16_t PostOrderChange(const HeadArray& headValues, const StringTable& lineValues,
                             const std::string& table) {
  const Hourglass waiting;
  StartBatch();
  AddToBatch(DeleteStatement(table, headValues[head::Id]));
  AddOrder(headValues, lineValues, table);
  return ExecuteBatch(SqlBatch);
}

}  // namespace store
