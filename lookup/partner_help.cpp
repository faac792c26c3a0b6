#include "lookup/partner_help.h"

#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "lookup/party_lookups.h"

namespace store {
namespace {

std::string PartnersByPhone(const std::string& digits) {
  return Splice(
      " SELECT CT.CT_CODE,CT_NAME,CT_CEO,CT_PHONE,CONCAT(CT_ADDR1 ,' ', CT_ADDR2)  FROM   CT LEFT "
      "JOIN CTCOM ON CT.CT_CODE = CTCOM.CT_CODE   WHERE  CT_phone LIKE '%{digits}%' ",
      "digits"_a = digits);
}

std::string PartnersByNameOrCode(const std::string& text) {
  return Splice(
      " SELECT CT.CT_CODE,CT_NAME,CT_CEO,CT_PHONE,CONCAT(CT_ADDR1 ,' ', CT_ADDR2)  FROM   CT LEFT "
      "JOIN CTCOM ON CT.CT_CODE = CTCOM.CT_CODE   WHERE  CT_NAME LIKE '%{text}%' OR CT.CT_CODE = "
      "'{text}' ",
      "text"_a = text);
}

std::string JoinedRow(const StringTable& table, int row, int lastColumn) {
  std::string joined = table.At(row, 0);
  for (int column = 1; column <= lastColumn; ++column) joined += "\t" + table.At(row, column);
  return joined;
}

}  // namespace

bool PartnerHelp(TextBox& box) {
  const std::string text = box.Text();
  SqlText =
      LeftChars(text, 1) == "/" ? PartnersByPhone(MidChars(text, 2)) : PartnersByNameOrCode(text);
  StringTable partners;
  std::int32_t rows = 0;
  std::int32_t highestColumn = 0;
  QueryRows(SqlText, partners, rows, highestColumn);
  if (rows == 1) {
    box.SetText(partners.At(1, 0) + " " + partners.At(1, 1));
  } else {
    HELP_CT lookup;
    if (rows == 0) lookup.Text1.SetText(text);
    for (int row = 1; row <= rows; ++row) {
      lookup.FLEX1.AddItem(JoinedRow(partners, row, highestColumn));
    }
    Host.ShowModal(lookup);
    box.SetText(Trim(lookup.ResultCode + " " + lookup.ResultName));
  }
  return !box.Text().empty();
}

}  // namespace store
