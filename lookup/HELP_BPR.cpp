#include "lookup/HELP_BPR.h"

#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "lookup/consonant_tabs.h"

namespace store {
namespace {

std::string NameRange(int tab) {
  const ConsonantRange range = RangeOfTab(tab);
  if (range.Rest) return " AND SUBSTRING(PR_NAME,1,1) < '가' or MID(PR_NAME,1,1) > '희' ";
  return Splice(" AND SUBSTRING(PR_NAME,1,1) >= '{0}' AND SUBSTRING(PR_NAME,1,1) < '{1}' ",
                {range.From, range.To});
}

std::string SearchCondition(const std::string& text) {
  if (LeftChars(text, 1) == "/") return Splice("  PR_STD LIKE '%{0}%'  ", {MidChars(text, 2)});
  return Splice(" (PR_NAME LIKE '%{0}%' OR PR_BCODE = '{0}' OR PR_PTNO = '{0}' ) ", {text});
}

}  // namespace

HELP_BPR::HELP_BPR()
    : LookupForm("HELP_BPR", "품목 도움창", "품목명",
                 {{.Header = "단축코드", .Width = 900, .Alignment = Align::Center},
                  {.Header = "품목코드", .Width = 1200, .Alignment = Align::Left},
                  {.Header = "품명", .Width = 2700, .Alignment = Align::Left},
                  {.Header = "규격", .Width = 1500, .Alignment = Align::Left},
                  {.Header = "단위", .Width = 600, .Alignment = Align::Center},
                  {.Header = "바코드", .Width = 1500, .Alignment = Align::Center},
                  {.Width = 300, .Hidden = true},
                  {.Width = 300, .Hidden = true}}) {
  ShowTabs();
}

std::string HELP_BPR::FindStatement() const {
  return Splice(
      " SELECT PR_PTNO,CONCAT(IF(PR_TAX='1','*',IF(PR_TAX='2','@',' ')),PR_CODE),PR_NAME,PR_STD,"
      "PR_UNT,PR_BCODE,' ',' '   FROM   PR   Where  {0}",
      {SearchCondition(Text1.Text())});
}

std::string HELP_BPR::TabStatement(int tab) const {
  return Splice(
      " SELECT PR_PTNO,CONCAT(IF(PR_TAX='1','*',IF(PR_TAX='2','@',' ')),PR_CODE),PR_NAME,PR_STD,"
      "PR_UNT,PR_BCODE,' '   FROM   PR   Where   PR_NAME LIKE '%{0}%' {1}",
      {Text1.Text(), NameRange(tab)});
}

void HELP_BPR::ClearResults() { Results.fill(""); }

void HELP_BPR::TakeRow(int row) {
  static constexpr std::array<int, 8> columns = {1, 2, 3, 4, 0, 5, 6, 7};
  for (size_t i = 0; i < columns.size(); ++i) Results[i] = FLEX1.TextMatrix(row, columns[i]);
}

void HELP_BPR::Command2_Click() {
  if (Form* product = TheForm("NEW_PR")) Host.ShowModal(*product);
}

}  // namespace store
