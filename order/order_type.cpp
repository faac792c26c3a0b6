#include "order/order_type.h"

#include "basics/formats.h"
#include "gateway/splice.h"

namespace store {
namespace {

std::string BarcodeBeginsWith(const std::string& text) {
  return Splice(" PR_BCODE  like '{text}%'", "text"_a = text);
}

}  // namespace

const OrderTypeChoices& BasicOrderType() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order",
      .Caption = "발주시스템",
      .ConfirmedState = "1",
      .FirstQuantity = "1",
      .BarcodeCriteria = BarcodeBeginsWith,
      .Pick = {.Code = 0, .Barcode = 3, .Name = 4, .Standard = 5, .Entry = 8},
      .PickGrid =
          {
              {.Header = "품목코드", .Width = 1050, .Alignment = Align::Left, .Hidden = true},
              {.Header = "S",
               .Width = 225,
               .Alignment = Align::Center,
               .Hidden = true,
               .CheckBox = true},
              {.Header = "상품분류", .Width = 1215, .Alignment = Align::Left, .Hidden = true},
              {.Header = "바코드", .Width = 1725, .Alignment = Align::Center},
              {.Header = "품명", .Width = 2070, .Alignment = Align::Left},
              {.Header = "규격", .Width = 1785, .Alignment = Align::Left},
              {.Header = "현재고",
               .Width = 930,
               .Alignment = Align::Right,
               .Format = kMaskWhole,
               .Hidden = true},
              {.Header = "부족재고",
               .Width = 915,
               .Alignment = Align::Right,
               .Format = kMaskWhole,
               .Hidden = true},
              {.Header = "발주량",
               .Width = 915,
               .Alignment = Align::Right,
               .Format = kMaskWhole,
               .Editable = true},
              {.Width = 900, .Hidden = true},
          },
  };
  return choices;
}

}  // namespace store
