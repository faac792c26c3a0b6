// The two panes about the selected slip: its partner and its conditions.
#include <span>

#include "board/frm_Start.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"

namespace store {
namespace {

std::string PartnerStatement(const std::string& partnerCode) {
  return Splice(
      " SELECT A.CT_NAME,A.CT_JUMIN,A.CT_PHONE,A.CT_FAX,B.CT_CEO,B.CT_CEOPHONE,A.CT_MAIL,B.CT_TMAN,"
      "B.CT_TPHONE,B.CT_TMAIL,concat('[',A.CT_ZIP,'] ',A.CT_ADDR1,' ' ,A.CT_ADDR2)   FROM CT A "
      "LEFT JOIN CTCOM B ON A.CT_CODE = B.CT_CODE  WHERE A.CT_CODE = '{partner}'",
      "partner"_a = partnerCode);
}

std::string ConditionStatement(const std::string& value) {
  return Splice(
      " SELECT  PE_COND,PE_CSDAY,PE_CSCT,PE_MEMO1,PE_MEMO2,PE_MEMO3,PE_GRDAY,PE_TYPE   FROM PEM22  "
      "WHERE PE_ID = '{value}'",
      "value"_a = value);
}

/// Puts the first row of a read into the labels, NULL as an empty text. Without a row the labels
/// keep what they show.
void ShowFirstRow(const std::string& statement, std::span<Label> labels) {
  SqlText = statement;
  OpenRecordset(SlotA, SqlText);
  if (!AtEof(SlotA)) {
    for (size_t i = 0; i < labels.size(); ++i) {
      labels[i].Caption = FieldText(SlotA, static_cast<int>(i));
    }
  }
  CloseRecordset(SlotA);
}

}  // namespace

void frm_Start::Image5_Click() {
  const StoppableReads mayBeStopped;
  ShowPartner(FLEX1.TextMatrix(FLEX1.Row(), board::PartnerCode));
  // The conditions are looked up by the slip's total instead of its key, so the pane stays empty.
  // Customers know it that way, and it is kept.
  ShowConditions(FLEX1.TextMatrix(FLEX1.Row(), board::Total));
}

void frm_Start::ShowPartner(const std::string& partnerCode) {
  ShowFirstRow(PartnerStatement(partnerCode), LaCT);
}

void frm_Start::ShowConditions(const std::string& value) {
  ShowFirstRow(ConditionStatement(value), LaPM);
}

}  // namespace store
