#pragma once

#include <string>

namespace store {

/// State words of an order, PE_CK "0" to "4".
inline constexpr const char* kWordEditing = "발주편집";
inline constexpr const char* kWordConfirmed = "발주확정";
inline constexpr const char* kWordApproved = "본부승인";
inline constexpr const char* kWordShipped = "물류출고";
inline constexpr const char* kWordReceived = "입고완료";

/// The word of a state; any value without one stands as it is.
std::string StateWord(const std::string& state);

}  // namespace store
