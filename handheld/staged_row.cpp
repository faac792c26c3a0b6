#include "handheld/staged_row.h"

#include "basics/numbers.h"
#include "gateway/guard.h"
#include "gateway/splice.h"

namespace store {

std::string StagedRowId(const std::string& transfer, int row) {
  return transfer + FormatNumber(row, "000000");
}

std::string TaxMarkOf(const std::string& tax) {
  if (tax == "1") return "*";
  if (tax == "2") return "@";
  return "-";
}

std::string StagedRowStatement(const StagedRow& row) {
  const std::string number = std::to_string(row.Row);
  return Splice(
      " INSERT INTO DT900 VALUES ( '{id}','{id}',{number},'{date}','{short}','{tax}','{code}',"
      "'{name}','{standard}','{unit}',{quantity},0,{price},'0',0,'','','{mark}','{user}','',"
      "'{party}','{partyName}','{inspector}','{module}','') ",
      "id"_a = row.Id, "number"_a = number, "date"_a = row.Date, "short"_a = row.ShortCode,
      "tax"_a = row.TaxMark, "code"_a = row.ProductCode, "name"_a = row.ProductName,
      "standard"_a = row.Standard, "unit"_a = row.Unit, "quantity"_a = row.Quantity,
      "price"_a = row.Price, "mark"_a = row.ReturnMark, "user"_a = row.UserCode,
      "party"_a = row.PartyCode, "partyName"_a = row.PartyName, "inspector"_a = row.Inspector,
      "module"_a = row.ModuleCode);
}

std::string NotStagedYet(const StagedRow& row) {
  return Guard(Splice(" SELECT 'none' FROM DUAL WHERE NOT EXISTS (SELECT PE_ID FROM DT900 WHERE "
                      "PE_ID = '{id}' FOR UPDATE)",
                      "id"_a = row.Id),
               kStagedAlready);
}

std::string StagedRowTrace(const StagedRow& row) {
  return Splice(
      " SELECT PE_ID FROM DT900 WHERE PE_ID = '{id}' AND PR_CODE = '{code}' AND PS_SQTY = "
      "{quantity} AND PS_rctCODE = '{party}' AND ST_CODE = '{user}' AND DT_GU = '{module}' ",
      "id"_a = row.Id, "code"_a = row.ProductCode, "quantity"_a = row.Quantity,
      "party"_a = row.PartyCode, "user"_a = row.UserCode, "module"_a = row.ModuleCode);
}

}  // namespace store
