#include "lookup/HELP_CTM.h"

#include "gateway/gateway.h"
#include "lookup/HELP_ST.h"

namespace store {

HELP_CTM::HELP_CTM() : LookupForm("HELP_CTM", "사원 도움창", "사원명", StaffColumns()) {}

std::string HELP_CTM::FindStatement() const {
  return Splice(
      " SELECT ST_CODE,ST_NAME,ST_CP FROM CTM WHERE ST_NAME = '%{0}%'  ORDER BY ST_NAME ASC ",
      {Text1.Text()});
}

void HELP_CTM::ClearResults() {
  ResultCode.clear();
  ResultName.clear();
}

void HELP_CTM::TakeRow(int row) {
  ResultCode = FLEX1.TextMatrix(row, 0);
  ResultName = FLEX1.TextMatrix(row, 1);
}

}  // namespace store
