#include "order/order_type.h"

#include "basics/formats.h"
#include "basics/numbers.h"
#include "basics/text.h"
#include "forms/host.h"
#include "gateway/splice.h"
#include "slips/item_list.h"

namespace store {
namespace {

constexpr int kLongestEntry = 6;  // characters

}  // namespace

std::string StateByButton(int button) { return button == 0 ? "0" : "1"; }

std::string StatePastConfirmation(int button) { return button == 0 ? "0" : "2"; }

std::string BarcodeBeginsWith(const std::string& text) {
  return Splice(" PR_BCODE  like '{text}%'", "text"_a = text);
}

std::vector<std::string> PickRowOfItem(const Recordset& items, std::uint32_t row) {
  const auto text = [&](int field) { return std::string(items.TextOfRow(row, field)); };
  return {text(item::Code), "", "", text(item::Barcode), text(item::Name), text(item::Standard)};
}

std::vector<GridColumn> HiddenPickColumns() {
  return {
      {.Header = "품목코드", .Width = 1050, .Alignment = Align::Left, .Hidden = true},
      {.Header = "S", .Width = 225, .Alignment = Align::Center, .Hidden = true, .CheckBox = true},
      {.Header = "상품분류", .Width = 1215, .Alignment = Align::Left, .Hidden = true}};
}

GridColumn CountColumn(const char* header, int width, int backColor) {
  return {.Header = header,
          .Width = width,
          .Alignment = Align::Right,
          .Format = kMaskWhole,
          .BackColor = backColor};
}

GridColumn EntryColumn(const char* header, int width) {
  GridColumn column = CountColumn(header, width, kEntryYellow);
  column.Editable = true;
  return column;
}

EntryVerdict OrderUnlessZero(const Grid& picks, int row, int column) {
  return ParseGrouped(picks.TextMatrix(row, column)) == 0 ? EntryVerdict::Nothing
                                                          : EntryVerdict::Order;
}

bool RefuseLongEntry(Grid& picks, int row, int column) {
  if (CharLength(picks.TextMatrix(row, column)) <= kLongestEntry) return false;
  Host.MsgBox("999,999개 이상 발주할 수 없습니다.     ", box::Critical, "발주량 체크");
  picks.SetTextMatrix(row, column, "");
  return true;
}

}  // namespace store
