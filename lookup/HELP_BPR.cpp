#include "lookup/HELP_BPR.h"

#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "lookup/NEW_PR.h"
#include "lookup/consonant_tabs.h"

namespace store {
namespace {

std::string NameRange(int tab) {
  const ConsonantRange range = RangeOfTab(tab);
  if (range.Rest) return " AND SUBSTRING(PR_NAME,1,1) < '가' or MID(PR_NAME,1,1) > '희' ";
  return Splice(" AND SUBSTRING(PR_NAME,1,1) >= '{from}' AND SUBSTRING(PR_NAME,1,1) < '{to}' ",
                "from"_a = range.From, "to"_a = range.To);
}

std::string SearchCondition(const std::string& text) {
  if (LeftChars(text, 1) == "/") {
    return Splice("  PR_STD LIKE '%{standard}%'  ", "standard"_a = MidChars(text, 2));
  }
  return Splice(" (PR_NAME LIKE '%{text}%' OR PR_BCODE = '{text}' OR PR_PTNO = '{text}' ) ",
                "text"_a = text);
}

std::string ProductStatement(const LookupForm& form) {
  return Splice(
      " SELECT PR_PTNO,CONCAT(IF(PR_TAX='1','*',IF(PR_TAX='2','@',' ')),PR_CODE),PR_NAME,PR_STD,"
      "PR_UNT,PR_BCODE,' ',' '   FROM   PR   Where  {condition}",
      "condition"_a = SearchCondition(form.Text1.Text()));
}

std::string ProductTabStatement(const LookupForm& form, int tab) {
  return Splice(
      " SELECT PR_PTNO,CONCAT(IF(PR_TAX='1','*',IF(PR_TAX='2','@',' ')),PR_CODE),PR_NAME,PR_STD,"
      "PR_UNT,PR_BCODE,' '   FROM   PR   Where   PR_NAME LIKE '%{text}%' {range}",
      "text"_a = form.Text1.Text(), "range"_a = NameRange(tab));
}

const LookupKind& ProductLookup() {
  static const LookupKind kind = {"HELP_BPR",
                                  "품목 도움창",
                                  "품목명",
                                  {{.Header = "단축코드", .Width = 900, .Alignment = Align::Center},
                                   {.Header = "품목코드", .Width = 1200, .Alignment = Align::Left},
                                   {.Header = "품명", .Width = 2700, .Alignment = Align::Left},
                                   {.Header = "규격", .Width = 1500, .Alignment = Align::Left},
                                   {.Header = "단위", .Width = 600, .Alignment = Align::Center},
                                   {.Header = "바코드", .Width = 1500, .Alignment = Align::Center},
                                   {.Width = 300, .Hidden = true},
                                   {.Width = 300, .Hidden = true}},
                                  ProductStatement,
                                  ProductTabStatement,
                                  {},
                                  {"새품목"}};
  return kind;
}

}  // namespace

HELP_BPR::HELP_BPR() : LookupForm(ProductLookup()) {
  Label2.Caption = "(@ 포함  * 면세)";
  Label2.Visible = true;
  Command2.Click = [this] { Command2_Click(); };
}

void HELP_BPR::ClearResults() { Results.fill(""); }

void HELP_BPR::TakeRow(int row) {
  static constexpr std::array<int, 8> columns = {1, 2, 3, 4, 0, 5, 6, 7};
  for (size_t i = 0; i < columns.size(); ++i) Results[i] = FLEX1.TextMatrix(row, columns[i]);
}

void HELP_BPR::Command2_Click() {
  auto* const product = dynamic_cast<NEW_PR*>(TheForm("NEW_PR"));
  if (product == nullptr) return;
  Host.ShowModal(*product);
  if (product->SuggestedName.empty()) return;
  Text1.SetText(product->SuggestedName);
  Command1_Click();
}

}  // namespace store
