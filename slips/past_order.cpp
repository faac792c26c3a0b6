#include "slips/past_order.h"

#include <algorithm>
#include <set>

#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "slips/slip.h"

namespace store {
namespace {

constexpr size_t kLinesNamed = 20;

std::string PastOrderStatement(const std::string& slipId) {
  return Splice(
      "SELECT PE_TCTCODE,PE_TCTNAME,PSM22.PR_CODE,PSM22.PR_NAME,PS_SQTY FROM PEM22 LEFT JOIN PSM22 "
      "ON PEM22.PE_ID = PSM22.PE_ID WHERE PEM22.PE_ID = '{slip}' ORDER BY PSM22.PS_NO DESC",
      "slip"_a = slipId);
}

std::string SoldStatement(const std::string& codes) {
  return Splice("SELECT PR_CODE FROM PR WHERE PR_END = '0' AND PR_CODE IN ({codes})",
                "codes"_a = codes);
}

/// Head office's side may have written an item twice; an order has it once.
void AddLine(std::vector<DraftLine>& lines, DraftLine line) {
  const auto same = std::find_if(lines.begin(), lines.end(),
                                 [&](const DraftLine& each) { return each.Code == line.Code; });
  if (same == lines.end()) {
    lines.push_back(std::move(line));
  } else {
    same->Quantity = NumberText(ParseNumber(same->Quantity) + ParseNumber(line.Quantity));
  }
}

}  // namespace

std::optional<PastOrder> ReadPastOrder(const std::string& slipId) {
  const RecordsetSlot rows = FetchRecordset(PastOrderStatement(slipId));
  if (!rows) return std::nullopt;
  if (rows->Eof()) return PastOrder();
  const std::string supplier = FieldText(rows, 0);
  const bool combined = supplier == kCombinedSupplierCode;
  PastOrder order{.SlipId = slipId,
                  .SupplierCode = combined ? "" : supplier,
                  .SupplierName = combined ? "" : FieldText(rows, 1),
                  .Lines = {}};
  ForEachRow(rows, [&] {
    if (Trim(FieldText(rows, 2)).empty()) return;
    AddLine(order.Lines, {FieldText(rows, 2), FieldText(rows, 3), FieldText(rows, 4)});
  });
  return order;
}

void GiveReasons(std::vector<RefusedLine>& refused) {
  std::vector<std::string> codes;
  for (const RefusedLine& each : refused) {
    if (each.Reason.empty()) codes.push_back(each.Line.Code);
  }
  if (codes.empty()) return;
  const RecordsetSlot rows = FetchRecordset(SoldStatement(QuotedList(codes)));
  std::set<std::string> sold;
  ForEachRow(rows, [&] { sold.insert(FieldText(rows, 0)); });
  for (RefusedLine& each : refused) {
    if (!each.Reason.empty()) continue;
    each.Reason = !rows                            ? "목록에 없음"
                  : sold.count(each.Line.Code) > 0 ? "취급 품목 아님"
                                                   : "판매 종료";
  }
}

void TellLeftOut(const std::vector<RefusedLine>& refused) {
  if (refused.empty()) return;
  std::string text = "다음 품목은 지금 발주할 수 없어 뺐습니다.\r\r";
  for (size_t i = 0; i < refused.size() && i < kLinesNamed; ++i) {
    const DraftLine& line = refused[i].Line;
    text += "[" + line.Code + "] " + line.Name + "  " + line.Quantity + "   " + refused[i].Reason +
            "\r";
  }
  if (refused.size() > kLinesNamed) {
    text += "외 " + std::to_string(refused.size() - kLinesNamed) +
            "건은 발주 내역의 제목 줄 [거절]에 있습니다.\r";
  }
  Host.MsgBox(text, box::Warning, "지난 발주 다시");
}

}  // namespace store
