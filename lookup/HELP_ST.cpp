#include "lookup/HELP_ST.h"

#include "gateway/gateway.h"

namespace store {

std::vector<GridColumn> StaffColumns() {
  return {{.Header = "사원코드", .Width = 1200, .Alignment = Align::Center},
          {.Header = "사원명", .Width = 2100, .Alignment = Align::Left},
          {.Header = "연락처", .Width = 1800, .Alignment = Align::Center}};
}

HELP_ST::HELP_ST() : LookupForm("HELP_ST", "사원 도움창", "사원명", StaffColumns()) {}

std::string HELP_ST::FindStatement() const {
  return Splice(
      " SELECT ST_CODE,ST_NAME,ST_CP FROM ST WHERE ST_NAME LIKE '%{0}%'  ORDER BY ST_NAME ASC ",
      {Text1.Text()});
}

void HELP_ST::ClearResults() {
  ResultCode.clear();
  ResultName.clear();
  ResultPhone.clear();
}

void HELP_ST::TakeRow(int row) {
  ResultCode = FLEX1.TextMatrix(row, 0);
  ResultName = FLEX1.TextMatrix(row, 1);
  ResultPhone = FLEX1.TextMatrix(row, 2);
}

}  // namespace store
