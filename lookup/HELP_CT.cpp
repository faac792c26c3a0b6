#include "lookup/HELP_CT.h"

#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "lookup/consonant_tabs.h"

namespace store {
namespace {

std::string GroupCondition(const std::string& groupCode) {
  return groupCode.empty() ? "" : Splice(" AND GP_CODE = '{0}' ", {groupCode});
}

/// Partners that the store's order settings name.
std::string SetUpPartners(const std::string& text, const std::string& conditions) {
  return Splice(
      " SELECT DISTINCT CT.CT_CODE,CT_NAME,CTCOM.CT_CEO,CT_PHONE,concat( CT_ADDR1 , ' ' , "
      "CT_ADDR2) FROM  ((SAFEIV LEFT JOIN CT ON SAFEIV.CT_CODE = CT.CT_CODE) LEFT JOIN CTCOM ON "
      "CT.CT_CODE = CTCOM.CT_CODE) WHERE SAFEIV.RCT_CODE = '{0}' AND CT_NAME LIKE '%{1}%' {2}  "
      "ORDER BY CT_NAME ",
      {Session.StoreCode, text, conditions});
}

std::string AllPartners(const std::string& text, const std::string& conditions) {
  return Splice(
      " SELECT CT.CT_CODE,CT_NAME,CTCOM.CT_CEO,CT_PHONE,concat( CT_ADDR1 , ' ' , CT_ADDR2) FROM CT "
      "LEFT JOIN CTCOM ON CT.CT_CODE = CTCOM.CT_CODE WHERE CT_NAME LIKE '%{0}%' {1} ORDER BY "
      "CT_NAME ",
      {text, conditions});
}

std::string NameRange(int tab) {
  const ConsonantRange range = RangeOfTab(tab);
  if (range.Rest) {
    return " AND  (SUBSTRING(CT_NAME,1,1) < '가' or MID(CT_NAME,1,1) > '희') ";
  }
  return Splice(" AND  SUBSTRING(CT_NAME,1,1) >= '{0}' AND SUBSTRING(CT_NAME,1,1) < '{1}' ",
                {range.From, range.To});
}

}  // namespace

HELP_CT::HELP_CT() : LookupForm("HELP_CT", "거래처 도움창", "거래처", PartyColumns()) {
  ShowTabs();
}

std::string HELP_CT::FindStatement() const {
  const std::string kind = RightChars(SlipTable, 2) == "23" ? " AND CT_GUBUN = '0' " : "";
  const std::string extra = Splice("{0}{1}", {GroupCondition(GroupCode), kind});
  if (AppOptions.OrderInfoPartnersOnly == 1) return SetUpPartners(Text1.Text(), extra);
  return AllPartners(Text1.Text(), Splice("{0} AND CTCOM.CT_LEVEL2 IN ('0','1')", {extra}));
}

std::string PartnerTabStatement(const std::string& text, int tab, const std::string& groupCode) {
  const std::string conditions = Splice("{0}{1}", {NameRange(tab), GroupCondition(groupCode)});
  return AppOptions.OrderInfoPartnersOnly == 1 ? SetUpPartners(text, conditions)
                                               : AllPartners(text, conditions);
}

std::string HELP_CT::TabStatement(int tab) const {
  return PartnerTabStatement(Text1.Text(), tab, GroupCode);
}

void HELP_CT::ClearResults() {
  ResultCode.clear();
  ResultName.clear();
  ResultPhone.clear();
  ResultAddress.clear();
}

void HELP_CT::TakeRow(int row) {
  ResultCode = FLEX1.TextMatrix(row, 0);
  ResultName = FLEX1.TextMatrix(row, 1);
  ResultPhone = FLEX1.TextMatrix(row, 3);
  ResultAddress = FLEX1.TextMatrix(row, 4);
}

}  // namespace store
