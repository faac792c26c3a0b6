#include "lookup/HELP_RCT.h"

#include "basics/records.h"
#include "gateway/gateway.h"
#include "lookup/HELP_CT.h"

namespace store {

HELP_RCT::HELP_RCT() : LookupForm("HELP_RCT", "가맹점 도움창", "가맹점", PartyColumns()) {
  ShowTabs();
}

std::string HELP_RCT::FindStatement() const {
  return Splice(
      " SELECT RCT.RCT_CODE,RCT_NAME,RCT_CEO,RCTI_CPHONE,concat( RCT_SADDR1 , ' ' , RCT_SADDR2) "
      "FROM RCT LEFT JOIN RCTI ON RCT.RCT_CODE = RCTI.RCT_CODE WHERE RCT_NAME LIKE '%{0}%'  AND "
      "RCT.RCT_CODE <> '{1}' ORDER BY RCT_NAME ",
      {Text1.Text(), Session.StoreCode});
}

std::string HELP_RCT::TabStatement(int tab) const {
  return PartnerTabStatement(Text1.Text(), tab, GroupCode);
}

void HELP_RCT::ClearResults() {
  ResultCode.clear();
  ResultName.clear();
  ResultPhone.clear();
  ResultAddress.clear();
}

void HELP_RCT::TakeRow(int row) {
  ResultCode = FLEX1.TextMatrix(row, 0);
  ResultName = FLEX1.TextMatrix(row, 1);
  ResultPhone = FLEX1.TextMatrix(row, 3);
  ResultAddress = FLEX1.TextMatrix(row, 4);
}

}  // namespace store
