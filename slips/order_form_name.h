#pragma once

namespace store {

/// Name of the form that serves an order type (`AppOptions.OrderType`, 0 to 3); empty for any other
/// value.
const char* OrderFormName(int orderType);

}  // namespace store
