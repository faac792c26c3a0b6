#include "slips/draft_texts.h"

#include "basics/text.h"
#include "forms/host.h"

namespace store {
namespace {

constexpr const char* kTitle = "쓰던 전표";
constexpr size_t kLinesNamed = 10;

bool IsOrder(const Draft& draft) { return draft.SlipTable == "PEM22"; }

const std::string& KeyOf(const Draft& draft) {
  return draft.SlipId.empty() ? draft.TriedId : draft.SlipId;
}

}  // namespace

void TellSlipChanged(const Draft& draft) {
  const std::string what =
      "전표 " + KeyOf(draft) + "은(는) 그 사이에 바뀌었거나 이미 처리되었습니다.\r\r";
  if (IsOrder(draft)) {
    Host.MsgBox(
        what +
            "쓰던 내용은 새 발주로 가져옵니다. 저장하면 발주가 하나 더 생기니, 저장하기 전에 "
            "보드에서 그 전표를 확인하세요.",
        box::Warning, kTitle);
  } else {
    Host.MsgBox(
        what + "이어서 입고할 수 없습니다. 적어 둔 수량은 쓰던 전표 목록에서 볼 수 있습니다.",
        box::Warning, kTitle);
  }
}

void TellNotGoneOnWith(const std::string& stand) {
  if (stand.empty()) return TellDraftUnreadable();
  Host.MsgBox(
      "그 사이에 다른 곳에서 바뀐 전표라 지금 내용을 보여 줍니다.\r\r쓰던 내용은 쓰던 전표 목록에 "
      "그대로 있습니다.",
      box::Warning, kTitle);
}

void TellAlreadyStored(const Draft& draft) {
  Host.MsgBox("쓰던 내용 그대로 이미 저장되어 있습니다.\r\r전표번호 " + KeyOf(draft),
              box::Information, kTitle);
}

void TellDraftUnreadable() {
  Host.MsgBox(
      "서버에 물어볼 수 없어 쓰던 전표를 열지 못했습니다.\r\r쓰던 내용은 그대로 있습니다. "
      "잠시 뒤에 다시 여세요.",
      box::Critical, kTitle);
}

void TellDraftTaken() {
  Host.MsgBox("다른 창에서 이미 이어 쓰고 있는 전표입니다.", box::Information, kTitle);
}

void TellNotBroughtBack(const std::vector<DraftLine>& refused, const std::string& depot) {
  if (refused.empty() && depot.empty()) return;
  std::string text;
  if (!refused.empty()) {
    text = "다음 품목은 목록에서 빠졌거나 단가가 없어 가져오지 못했습니다.\r\r";
    for (size_t i = 0; i < refused.size() && i < kLinesNamed; ++i) {
      text += "[" + refused[i].Code + "] " + refused[i].Name + "  " + refused[i].Quantity + "\r";
    }
    if (refused.size() > kLinesNamed) {
      text += "외 " + std::to_string(refused.size() - kLinesNamed) + "건\r";
    }
    text += "\r저장하지 않고 닫으면 이 품목도 쓰던 전표에 그대로 남습니다.";
  }
  if (!depot.empty()) {
    if (!text.empty()) text += "\r\r";
    text += "하치장 [" + std::string(NameOfEntry(depot)) +
            "]은(는) 목록에 없습니다. 하치장을 다시 고르세요.";
  }
  Host.MsgBox(text, box::Warning, kTitle);
}

bool MayThrowAway(const Draft& draft) {
  return Host.MsgBox("쓰던 전표를 버립니다. 되살릴 수 없습니다.\r\r" + KindOf(draft) + "  " +
                         draft.PartnerName + "  " + std::to_string(draft.Lines.size()) + "줄",
                     box::Question + box::YesNo, kTitle) == box::Yes;
}

std::string KindOf(const Draft& draft) {
  if (!IsOrder(draft)) return "입고";
  return draft.SlipId.empty() ? "발주" : "발주 수정";
}

}  // namespace store
