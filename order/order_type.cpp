#include "order/order_type.h"

namespace store {

const OrderTypeChoices& BasicOrderType() {
  static const OrderTypeChoices choices{
      .FormName = "frm_Order",
      .Caption = "발주시스템",
      .ConfirmedState = "1",
      .BarcodeFilter = " PR_BCODE  like '{0}%'",
      .FirstQuantity = "1",
      .PickEntryColumn = 8,
      .PickColumns =
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
               .Format = "#,###",
               .Hidden = true},
              {.Header = "부족재고",
               .Width = 915,
               .Alignment = Align::Right,
               .Format = "#,###",
               .Hidden = true},
              {.Header = "발주량", .Width = 915, .Alignment = Align::Right, .Format = "#,###"},
              {.Width = 900, .Hidden = true},
          },
  };
  return choices;
}

}  // namespace store
