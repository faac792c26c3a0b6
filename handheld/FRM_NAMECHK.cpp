#include "handheld/FRM_NAMECHK.h"

#include "basics/records.h"
#include "forms/host.h"
#include "gateway/gateway.h"

namespace store {
namespace {

std::string InspectorStatement(const std::string& code) {
  return Splice(
      " SELECT ST_CODE,ST_PWD  FROM   ST  WHERE  ST_CODE = '{code}' AND RCT_CODE = '{store}'  ",
      "code"_a = code, "store"_a = Session.StoreCode);
}

}  // namespace

FRM_NAMECHK::FRM_NAMECHK() : Form("FRM_NAMECHK") {
  Caption = "검품자 확인";
  Publish("Label1", Label1);
  Publish("Text1", Text1);
  Text1.KeyDown = [this](Key key) { Text1_KeyDown(key); };
  Text1.OwnKeys = {Key::Enter, Key::Escape};
  TabOrder = {&Text1};
}

void FRM_NAMECHK::Load() { ShapeWindow(*this, placement::Centered, false); }

void FRM_NAMECHK::Activate() {
  if (activated_) return;
  activated_ = true;
  SetFocus(Text1);
}

void FRM_NAMECHK::Text1_KeyDown(Key key) {
  if (key == Key::Enter) Accept();
  if (key == Key::Escape) Cancel();
}

void FRM_NAMECHK::Accept() {
  InspectorCode = FindInspector(Text1.Text());
  if (!InspectorCode.empty()) {
    Close();
    return;
  }
  Host.MsgBox("사용자코드가 올바르지 않습니다.", box::Critical, "확인");
}

void FRM_NAMECHK::Cancel() {
  InspectorCode.clear();
  Close();
}

// The password is fetched with the code and asked for by nobody.
std::string FRM_NAMECHK::FindInspector(const std::string& code) {
  StringTable users;
  std::int32_t count = 0;
  std::int32_t highest = 0;
  QueryRows(InspectorStatement(code), users, count, highest);
  return count > 0 ? users.At(count, 0) : std::string();
}

}  // namespace store
