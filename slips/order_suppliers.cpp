#include "slips/order_suppliers.h"

#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"

namespace store {
namespace {

std::string SupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_phone LIKE '%{digits}%'  AND B.CT_LEVEL2 IN "
      "('0','1') ",
      "digits"_a = digits);
}

std::string SupplierByCode(const std::string& code) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_CODE = '{code}' AND B.CT_LEVEL2 IN ('0','1') ",
      "code"_a = code);
}

std::string SupplierByName(const std::string& name) {
  return Splice(
      "SELECT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   CT A LEFT JOIN CTCOM B "
      "ON A.CT_CODE = B.CT_CODE  WHERE  A.CT_NAME LIKE '%{name}%' AND B.CT_LEVEL2 IN ('0','1') ",
      "name"_a = name);
}

// With the option on, the store's order settings decide who is a supplier, whatever the partner's
// level.
std::string SetUpSupplierByPhone(const std::string& digits) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_phone LIKE '%{digits}%'   ",
      "store"_a = Session.StoreCode, "digits"_a = digits);
}

std::string SetUpSupplierByCode(const std::string& code) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_CODE = '{code}'  ",
      "store"_a = Session.StoreCode, "code"_a = code);
}

std::string SetUpSupplierByName(const std::string& name) {
  return Splice(
      "SELECT DISTINCT A.CT_CODE,A.CT_NAME,A.CT_PHONE,A.CT_ADDR1 ,A.CT_ADDR2  FROM   ((SAFEIV LEFT "
      "JOIN CT A ON SAFEIV.CT_CODE = A.CT_CODE) LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE)  WHERE "
      " RCT_CODE = '{store}' AND A.CT_NAME LIKE '%{name}%'  ",
      "store"_a = Session.StoreCode, "name"_a = name);
}

}  // namespace

std::string SupplierStatement(const std::string& text) {
  const bool setUpOnly = AppOptions.OrderInfoPartnersOnly != 0;
  const std::string first = LeftChars(text, 1);
  const std::string rest = MidChars(text, 2);
  if (first == "/") return setUpOnly ? SetUpSupplierByPhone(rest) : SupplierByPhone(rest);
  if (first == "#") return setUpOnly ? SetUpSupplierByCode(rest) : SupplierByCode(rest);
  return setUpOnly ? SetUpSupplierByName(text) : SupplierByName(text);
}

SupplierStand LookUpSupplier(const std::string& code, std::string& name) {
  const RecordsetSlot rows = FetchRecordset(SupplierStatement("#" + code));
  if (!rows) return SupplierStand::Unreadable;
  if (rows->Eof()) return SupplierStand::NotOffered;
  name = FieldText(rows, 1);
  return SupplierStand::Offered;
}

}  // namespace store
