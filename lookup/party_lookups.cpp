#include "lookup/party_lookups.h"

#include "basics/records.h"
#include "basics/text.h"
#include "gateway/gateway.h"
#include "lookup/consonant_tabs.h"

namespace store {
namespace {

std::string GroupCondition(const std::string& groupCode) {
  return groupCode.empty() ? "" : Splice(" AND GP_CODE = '{group}' ", "group"_a = groupCode);
}

/// Partners that the store's order settings name.
std::string SetUpPartners(const std::string& text, const std::string& conditions) {
  return Splice(
      " SELECT DISTINCT CT.CT_CODE,CT_NAME,CTCOM.CT_CEO,CT_PHONE,concat( CT_ADDR1 , ' ' , "
      "CT_ADDR2) FROM  ((SAFEIV LEFT JOIN CT ON SAFEIV.CT_CODE = CT.CT_CODE) LEFT JOIN CTCOM ON "
      "CT.CT_CODE = CTCOM.CT_CODE) WHERE SAFEIV.RCT_CODE = '{store}' AND CT_NAME LIKE '%{text}%' "
      "{conditions}  ORDER BY CT_NAME ",
      "store"_a = Session.StoreCode, "text"_a = text, "conditions"_a = conditions);
}

std::string AllPartners(const std::string& text, const std::string& conditions) {
  return Splice(
      " SELECT CT.CT_CODE,CT_NAME,CTCOM.CT_CEO,CT_PHONE,concat( CT_ADDR1 , ' ' , CT_ADDR2) FROM CT "
      "LEFT JOIN CTCOM ON CT.CT_CODE = CTCOM.CT_CODE WHERE CT_NAME LIKE '%{text}%' {conditions} "
      "ORDER BY CT_NAME ",
      "text"_a = text, "conditions"_a = conditions);
}

std::string NameRange(int tab) {
  const ConsonantRange range = RangeOfTab(tab);
  if (range.Rest) {
    return " AND  (SUBSTRING(CT_NAME,1,1) < '가' or MID(CT_NAME,1,1) > '희') ";
  }
  return Splice(" AND  SUBSTRING(CT_NAME,1,1) >= '{from}' AND SUBSTRING(CT_NAME,1,1) < '{to}' ",
                "from"_a = range.From, "to"_a = range.To);
}

std::string PartnerStatement(const LookupForm& form) {
  const std::string kind = RightChars(form.SlipTable, 2) == "23" ? " AND CT_GUBUN = '0' " : "";
  const std::string extra =
      Splice("{group}{kind}", "group"_a = GroupCondition(form.GroupCode), "kind"_a = kind);
  if (AppOptions.OrderInfoPartnersOnly == 1) return SetUpPartners(form.Text1.Text(), extra);
  return AllPartners(form.Text1.Text(),
                     Splice("{extra} AND CTCOM.CT_LEVEL2 IN ('0','1')", "extra"_a = extra));
}

/// Names that contain the text, within the tab's range. The partner's level is not looked at.
std::string PartnerTabStatement(const LookupForm& form, int tab) {
  const std::string conditions = Splice("{range}{group}", "range"_a = NameRange(tab),
                                        "group"_a = GroupCondition(form.GroupCode));
  return AppOptions.OrderInfoPartnersOnly == 1 ? SetUpPartners(form.Text1.Text(), conditions)
                                               : AllPartners(form.Text1.Text(), conditions);
}

std::string StoreStatement(const LookupForm& form) {
  return Splice(
      " SELECT RCT.RCT_CODE,RCT_NAME,RCT_CEO,RCTI_CPHONE,concat( RCT_SADDR1 , ' ' , RCT_SADDR2) "
      "FROM RCT LEFT JOIN RCTI ON RCT.RCT_CODE = RCTI.RCT_CODE WHERE RCT_NAME LIKE '%{text}%'  AND "
      "RCT.RCT_CODE <> '{own}' ORDER BY RCT_NAME ",
      "text"_a = form.Text1.Text(), "own"_a = Session.StoreCode);
}

std::string DepotStatement(const LookupForm& form) {
  return Splice(" SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '{store}' ORDER BY HCT_NAME ",
                "store"_a = form.StoreCode);
}

std::string StaffStatement(const LookupForm& form) {
  return Splice(
      " SELECT ST_CODE,ST_NAME,ST_CP FROM ST WHERE ST_NAME LIKE '%{text}%'  ORDER BY ST_NAME ASC ",
      "text"_a = form.Text1.Text());
}

std::string SecondStaffStatement(const LookupForm& form) {
  return Splice(
      " SELECT ST_CODE,ST_NAME,ST_CP FROM CTM WHERE ST_NAME = '%{text}%'  ORDER BY ST_NAME ASC ",
      "text"_a = form.Text1.Text());
}

std::vector<GridColumn> PartyColumns() {
  return {{.Header = "코드", .Width = 900, .Alignment = Align::Center},
          {.Header = "상호", .Width = 1995, .Alignment = Align::Left},
          {.Header = "대표", .Width = 1155, .Alignment = Align::Center},
          {.Header = "전화", .Width = 1440, .Alignment = Align::Center},
          {.Header = "주소", .Width = 900, .Alignment = Align::Left}};
}

std::vector<GridColumn> DepotColumns() {
  return {{.Header = "코드", .Width = 1200, .Alignment = Align::Center},
          {.Header = "하치장명", .Width = 3600, .Alignment = Align::Left}};
}

std::vector<GridColumn> StaffColumns() {
  return {{.Header = "사원코드", .Width = 1200, .Alignment = Align::Center},
          {.Header = "사원명", .Width = 2100, .Alignment = Align::Left},
          {.Header = "연락처", .Width = 1800, .Alignment = Align::Center}};
}

enum Party { kPartner, kStore, kDepot, kStaff, kSecondStaff };

const LookupKind& KindOf(Party party) {
  using Form = LookupForm;
  static const std::vector<LookupKind> table = {
      {"HELP_CT",
       "거래처 도움창",
       "거래처",
       PartyColumns(),
       PartnerStatement,
       PartnerTabStatement,
       {{&Form::ResultCode, 0},
        {&Form::ResultName, 1},
        {&Form::ResultPhone, 3},
        {&Form::ResultAddress, 4}},
       {"새거래처", "거래처 정보변경", "거래처 신규등록"}},
      {"HELP_RCT",
       "가맹점 도움창",
       "가맹점",
       PartyColumns(),
       StoreStatement,
       PartnerTabStatement,
       {{&Form::ResultCode, 0},
        {&Form::ResultName, 1},
        {&Form::ResultPhone, 3},
        {&Form::ResultAddress, 4}},
       {"새거래처"}},
      {"HELP_HCT",
       "하치장 도움창",
       "",
       DepotColumns(),
       DepotStatement,
       nullptr,
       {{&Form::ResultCode, 0}, {&Form::ResultName, 1}},
       {}},
      {"HELP_ST",
       "사원 도움창",
       "사원명",
       StaffColumns(),
       StaffStatement,
       nullptr,
       {{&Form::ResultCode, 0}, {&Form::ResultName, 1}, {&Form::ResultPhone, 2}},
       {}},
      {"HELP_CTM",
       "사원 도움창",
       "사원명",
       StaffColumns(),
       SecondStaffStatement,
       nullptr,
       {{&Form::ResultCode, 0}, {&Form::ResultName, 1}},
       {}},
  };
  return table[party];
}

}  // namespace

HELP_CT::HELP_CT() : LookupForm(KindOf(kPartner)) {}
HELP_RCT::HELP_RCT() : LookupForm(KindOf(kStore)) {}
HELP_HCT::HELP_HCT() : LookupForm(KindOf(kDepot)) {}
HELP_ST::HELP_ST() : LookupForm(KindOf(kStaff)) {}
HELP_CTM::HELP_CTM() : LookupForm(KindOf(kSecondStaff)) {}

}  // namespace store
