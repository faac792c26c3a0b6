#include "order/order_forms.h"

#include <memory>

#include "forms/open_forms.h"
#include "order/order_form.h"

namespace store {

void RegisterOrderForms() {
  RegisterForm(BasicOrderType().FormName,
               [] { return std::make_unique<OrderForm>(BasicOrderType()); });
}

}  // namespace store
