#include "slips/slip_checks.h"

#include "basics/dates.h"
#include "basics/numbers.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/item_list.h"
#include "slips/slip_keys.h"

namespace store {

namespace {

std::string PartnerNameStatement(const std::string& code) {
  return Splice(
      " SELECT  CT_NAME "
      " FROM   CT WHERE CT_CODE = '{code}'",
      "code"_a = code);
}

}  // namespace

std::string PartnerNameOf(const std::string& code) {
  if (code.empty()) return {};
  return QueryText(PartnerNameStatement(code), "");
}

void FillSlipHeader(HeadArray& headValues, const TextBox& partner, const TotalLabels& totals) {
  headValues[head::Today] = FormatDateValue(Today(), "YYYY-MM-DD");
  headValues[head::FromCode] = Session.StoreCode;
  headValues[head::FromName] = Session.StoreName;
  headValues[head::ToCode] = partner.Tag;
  headValues[head::ToName] = partner.Text();
  headValues[head::Supply] = PlainNumber(totals[2].Caption);
  headValues[head::Tax] = PlainNumber(totals[3].Caption);
  headValues[head::Total] = PlainNumber(totals[1].Caption);
}

bool CheckSlipDate(const HeadArray& headValues) {
  if (DateFitsKey(headValues[head::Date], headValues[head::Id])) return true;
  Host.MsgBox("발주일자를 확인바랍니다. 현재일기준 전후한달만 처리가능합니다.", box::Critical,
              "발주일자오류");
  return false;
}

bool CheckSlipStore(const HeadArray& headValues) {
  if (!Trim(headValues[head::FromCode]).empty() && !Trim(headValues[head::FromName]).empty()) {
    return true;
  }
  Host.MsgBox("본사/가맹점입력은 필수입력입니다.                ", box::Critical, "본사/가맹점");
  return false;
}

void TellWrongPartner() {
  Host.MsgBox("거래처입력오류 확인바랍니다.             ", box::Critical, "거래처");
}

void TellNoLines() {
  Host.MsgBox("전표순번자료가 없습니다.                    ", box::Critical, "전표순번");
}

std::string SaveFailedText() { return "저장이 실패하였습니다.\r\r MSG: " + LastErrorText; }

void TellSaveFailed() { Host.MsgBox(SaveFailedText(), box::Question, "오류"); }

bool CheckLineDepot(const StringTable& lineValues, int number) {
  if (!Trim(lineValues.At(number, line::DepotCode)).empty()) return true;
  Host.MsgBox(
      "입고될 기본하치장을 반드시 선택하세요.  \r또는 최대전표건수를 확인하세요 "
      "셋팅최대처리건수(" +
          std::to_string(BaseSettings.MaxSlipLines) + "건)\r",
      box::Critical, "하치장선택");
  return false;
}

}  // namespace store
