#include "tests/soak/store_rules.h"

#include <utility>

#include "gateway/splice.h"

namespace store {
namespace {

struct Rule {
  const char* What;
  std::string Select;  // the broken ones: key first, then facts
};

std::string HeaderRule(const std::string& store, const std::string& header,
                       const std::string& lines) {
  return Splice(
      "SELECT h.PE_ID,h.PE_AMT,h.PE_TAX,h.PE_TOT,COUNT(l.PS_NO),SUM(l.PS_AMT),SUM(l.PS_TAX) FROM "
      "{header} h LEFT JOIN {lines} l ON l.PE_ID=h.PE_ID WHERE h.PE_FCTCODE='{store}' GROUP BY "
      "h.PE_ID HAVING COUNT(l.PS_NO)=0 OR SUM(l.PS_AMT)<>h.PE_AMT OR SUM(l.PS_TAX)<>h.PE_TAX OR "
      "h.PE_AMT+h.PE_TAX<>h.PE_TOT OR MAX(l.PS_NO)<>COUNT(l.PS_NO)",
      "header"_a = header, "lines"_a = lines, "store"_a = store);
}

std::string StockRule(const std::string& store) {
  return Splice(
      "SELECT CONCAT(d,' ',p),SUM(i),SUM(o) FROM ("
      "SELECT HCT_CODE d,PR_CODE p,INQTY i,OTQTY o FROM IV WHERE RCT_CODE='{store}' UNION ALL "
      "SELECT l.PS_HCTCODE,l.PR_CODE,-l.PS_SQTY,0 FROM PEM23 h JOIN PSM23 l ON l.PE_ID=h.PE_ID "
      "WHERE h.PE_FCTCODE='{store}' UNION ALL "
      "SELECT l.PS_HCTCODE,l.PR_CODE,-l.PS_SQTY,0 FROM ME h JOIN MS l ON l.ME_ID=h.ME_ID WHERE "
      "h.ME_FCTCODE='{store}' UNION ALL "
      "SELECT l.PS_HCTCODE,l.PR_CODE,0,-l.PS_SQTY FROM PES13 h JOIN PSS13 l ON l.PE_ID=h.PE_ID "
      "WHERE h.PE_FCTCODE='{store}' UNION ALL "
      "SELECT l.PS_HCTCODE,l.PR_CODE,0,-l.PS_SQTY FROM PEM13 h JOIN PSM13 l ON l.PE_ID=h.PE_ID "
      "WHERE h.PE_FCTCODE='{store}') m GROUP BY d,p HAVING SUM(i)<>0 OR SUM(o)<>0",
      "store"_a = store);
}

std::string BalanceRule(const std::string& store) {
  return Splice(
      "SELECT CONCAT(k,' ',t,' ',m),SUM(o),SUM(i) FROM ("
      "SELECT CM_MGU k,CM_TCTCODE t,CM_MM m,CM_M13 o,CM_M23 i FROM CMM WHERE CM_FCTCODE='{store}' "
      "UNION ALL SELECT 'C',PE_TCTCODE,CONCAT(LEFT(PE_PDATE,4),SUBSTRING(PE_PDATE,6,2)),0,-PE_TOT "
      "FROM PEM23 WHERE PE_FCTCODE='{store}' UNION ALL SELECT "
      "'C',PE_TCTCODE,CONCAT(LEFT(PE_PDATE,4),SUBSTRING(PE_PDATE,6,2)),-PE_TOT,0 FROM PES13 WHERE "
      "PE_FCTCODE='{store}' UNION ALL SELECT "
      "'R',PE_TCTCODE,CONCAT(LEFT(PE_PDATE,4),SUBSTRING(PE_PDATE,6,2)),-PE_TOT,0 FROM PEM13 WHERE "
      "PE_FCTCODE='{store}') m GROUP BY k,t,m HAVING SUM(o)<>0 OR SUM(i)<>0",
      "store"_a = store);
}

std::string ReceiptLinkRule(const std::string& store) {
  return Splice(
      "SELECT r.PE_ID,r.PE_LINK,o.PE_CK,o.PE_LINK FROM PEM23 r LEFT JOIN PEM22 o ON "
      "o.PE_ID=r.PE_LINK WHERE r.PE_FCTCODE='{store}' AND r.PE_LINK<>'' AND (o.PE_ID IS NULL OR "
      "o.PE_CK<>'4')",
      "store"_a = store);
}

std::string OrderLinkRule(const std::string& store) {
  return Splice(
      "SELECT o.PE_ID,o.PE_CK,o.PE_LINK,r.PE_LINK FROM PEM22 o LEFT JOIN PEM23 r ON "
      "r.PE_ID=o.PE_LINK WHERE o.PE_FCTCODE='{store}' AND (o.PE_CK='4' OR o.PE_LINK<>'') AND "
      "(o.PE_CK<>'4' OR r.PE_ID IS NULL OR r.PE_LINK<>o.PE_ID)",
      "store"_a = store);
}

std::string MirrorRule(const std::string& store) {
  return Splice(
      "SELECT s.n,m.n FROM (SELECT COUNT(*) n FROM PEM13 WHERE PE_FCTCODE='{store}') s, (SELECT "
      "COUNT(*) n FROM PES23 WHERE PE_TCTCODE='{store}') m WHERE s.n<>m.n",
      "store"_a = store);
}

}  // namespace

void CheckStore(DbClient& db, const std::string& store, Findings& findings) {
  const Rule rules[] = {
      {"an order that is not the sum of its lines", HeaderRule(store, "PEM22", "PSM22")},
      {"a purchase slip that is not the sum of its lines", HeaderRule(store, "PEM23", "PSM23")},
      {"a sale slip that is not the sum of its lines", HeaderRule(store, "PES13", "PSS13")},
      {"a shipment that is not the sum of its lines", HeaderRule(store, "PEM13", "PSM13")},
      {"stock that is not the sum of what was posted", StockRule(store)},
      {"a balance that is not the sum of the slips", BalanceRule(store)},
      {"a receipt whose order is gone or open", ReceiptLinkRule(store)},
      {"a received order whose receipt does not name it", OrderLinkRule(store)},
      {"shipments and their mirrors differ in number", MirrorRule(store)}};
  for (const Rule& rule : rules) {
    for (const auto& row : db.Select(rule.Select)) {
      std::string facts;
      for (const std::string& field : row) facts += field + " ";
      findings.Add(rule.What, store + " " + row[0], facts);
    }
  }
}

}  // namespace store
