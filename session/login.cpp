#include "session/login.h"

#include "forms/host.h"
#include "gateway/gateway.h"
#include "session/session_record.h"

namespace store {
namespace {

std::string LoginStatement(const std::string& user, const std::string& password) {
  return Splice(
      "SELECT ST_CODE,ST_PWD,ST_NAME,RCT_CODE,ST_ASPLVL FROM ST WHERE  ST_CODE = '{0}' "
      "AND ST_PWD = '{1}'",
      {user, password});
}

}  // namespace

void ReadUser(const std::string& user, const std::string& password) {
  SqlText = LoginStatement(user, password);
  OpenRecordset(SlotA, SqlText);
}

void TakeUser() {
  Session.UserCode = FieldText(SlotA, 0);
  Session.UserPassword = FieldText(SlotA, 1);
  Session.UserName = FieldText(SlotA, 2);
  Session.UserStoreCode = FieldText(SlotA, 3);
  Session.UserLevel = FieldText(SlotA, 4);
}

void TellUnknownUser() {
  Host.Beep();
  Host.MsgBox(
      "사용자정보 오류입니다.                    \r\r"
      "시스템관리자에게 문의바랍니다. ",
      box::Critical, "에러");
}

}  // namespace store
