// Slips that were deleted on the board today: it says that there are some, and takes one back.
#include "basics/records.h"
#include "board/frmDeleted.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/deleted_slips.h"

namespace store {
namespace {

constexpr const char* kTitle = "삭제한 전표";

std::string NameOf(const DeletedSlip& slip) {
  return "\r\r전표번호 " + slip.Id() + "  " + slip.Header.Text(0, "PE_TCTNAME");
}

void TellFate(RestoreFate fate, const DeletedSlip& slip) {
  const std::string words = "\r\r MSG: " + LastErrorText;
  switch (fate) {
    case RestoreFate::Restored:
      Host.MsgBox("전표를 되살렸습니다." + NameOf(slip), box::Information, kTitle);
      break;
    case RestoreFate::NeverGone:
      Host.MsgBox(
          "전표가 그대로 있습니다. 삭제되지 않았거나 이미 되살린 전표입니다." + NameOf(slip),
          box::Information, kTitle);
      break;
    case RestoreFate::KeyTaken:
      Host.MsgBox("같은 번호의 다른 전표가 있어 되살리지 않았습니다." + NameOf(slip) +
                      "\r\r삭제한 뒤에 새로 쓴 발주가 그 번호를 받았습니다. 삭제한 품목은 목록에서 "
                      "보고 새 발주로 쓰세요.",
                  box::Warning, kTitle);
      break;
    case RestoreFate::Failed:
      Host.MsgBox("되살리지 못했습니다. 삭제한 전표는 목록에 남아 있습니다." + words, box::Critical,
                  kTitle);
      break;
    case RestoreFate::NotFound:
      Host.MsgBox("되살렸는지 확인되지 않았습니다.\r다시 되살려도 두 번 들어가지 않습니다." + words,
                  box::Warning, kTitle);
      break;
    case RestoreFate::Unreachable:
      Host.MsgBox(
          "서버에 연결되지 않아 되살렸는지 알 수 없습니다.\r다시 되살려도 두 번 들어가지 "
          "않습니다." +
              words,
          box::Warning, kTitle);
      break;
  }
}

}  // namespace

void frm_Start::CountDeleted() {
  const int count = CountDeletedToday();
  const bool fails = !DeletedSlipsWork() && !Session.UserCode.empty();
  LaDeleted.Visible = count > 0 || fails;
  LaDeleted.Enabled = count > 0;
  LaDeleted.Caption =
      count > 0 ? "삭제한 전표 " + std::to_string(count) + "건" : "삭제한 전표를 남기지 못함";
}

void frm_Start::LaDeleted_Click() {
  frmDeleted list;
  Host.ShowModal(list);
  if (list.Chosen) Restore(*list.Chosen);
  CountDeleted();
}

void frm_Start::Restore(const DeletedSlip& slip) {
  const RestoreFate fate = RestoreSlip(slip);
  const bool stands = fate == RestoreFate::Restored || fate == RestoreFate::NeverGone;
  if (stands) ForgetDeleted(slip.Number);
  TellFate(fate, slip);
  if (!stands) return;
  SelectedSlipId = slip.Id();
  RefreshBoard();
}

}  // namespace store
