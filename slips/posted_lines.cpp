#include "slips/posted_lines.h"

#include <cstddef>

#include "gateway/gateway.h"
#include "slips/slip_statements.h"

namespace store {
namespace {

std::string LineStatement(const LineFields& fields, const std::string& lines,
                          const std::string& terminal) {
  return Splice(
      " INSERT INTO {lines} (PE_ID,PS_NO,PS_DATE, PR_CODE,PR_NAME,PR_STD,PS_TAXGU,PS_UNT, PS_SQTY,"
      "PS_EQTY,PS_COST,PS_UP,PS_AMT,PS_TAX, ST_CODE,PS_TYPE,PS_MEMO,PS_HCTCODE,PS_HCTNAME,PS_INCK,"
      "PS_TMID) VALUES  ( '{L0}',{L1},'{L2}',    '{L3}','{L4}','{L5}', '{L6}','{L7}',    "
      "{L8},{L9},{L10},"
      "{L11},{L12},{L13},    '{L14}','{L15}','{L16}','{L17}','{L18}','{L19}','{terminal}' ) ",
      fields, "lines"_a = lines, "terminal"_a = terminal);
}

}  // namespace

void AddPostedLines(const StringTable& lineValues, const std::string& table, int terminalColumn) {
  ForEachLine(lineValues, [&](const LineFields& fields) {
    AddToBatch(
        LineStatement(fields, table, fields.Field(static_cast<std::size_t>(terminalColumn))));
  });
}

}  // namespace store
