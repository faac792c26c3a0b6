#include "lookup/HELP_HCT.h"

#include "gateway/gateway.h"

namespace store {

HELP_HCT::HELP_HCT()
    : LookupForm("HELP_HCT", "하치장 도움창", "",
                 {{.Header = "코드", .Width = 1200, .Alignment = Align::Center},
                  {.Header = "하치장명", .Width = 3600, .Alignment = Align::Left}}) {
  Label1.Visible = false;
  Text1.Visible = false;
  Command1.Visible = false;
}

void HELP_HCT::Load() {
  LookupForm::Load();
  Command1_Click();
}

std::string HELP_HCT::FindStatement() const {
  return Splice(" SELECT HCT_CODE,HCT_NAME FROM HCT WHERE RCT_CODE = '{0}' ORDER BY HCT_NAME ",
                {StoreCode});
}

void HELP_HCT::ClearResults() {
  ResultCode.clear();
  ResultName.clear();
}

void HELP_HCT::TakeRow(int row) {
  ResultCode = FLEX1.TextMatrix(row, 0);
  ResultName = FLEX1.TextMatrix(row, 1);
}

}  // namespace store
