#pragma once

#include <optional>
#include <string>

namespace store {

/// An order of PEM22 as it stood at one moment: what tells that it is still the same.
struct OrderAsRead {
  std::string Id;     ///< PE_ID
  std::string State;  ///< PE_CK
  std::string Link;   ///< PE_LINK, the receipt that has closed it; blank before.
  std::string Stamp;  ///< PE_SDATE, which every change of the order sets anew.
};

/// The order, read anew. Nothing when there is none, or when it could not be read: then
/// `LastErrorText` has words, or the server was not reached.
std::optional<OrderAsRead> ReadOrder(const std::string& orderId);

/// The guard of a receipt: the order still stands as it was read, and stays so until the receipt
/// is stored. An order that was received before and is received again on purpose passes; one that
/// somebody else has received meanwhile does not.
std::string StillAsRead(const OrderAsRead& order);

/// What a batch's error text is when that guard has refused it.
inline constexpr const char* kOrderMoved = "다른 곳에서 이미 입고 처리되었거나 바뀐 전표입니다.";

/// What has happened to an order since it was read, in the clerk's words, from a look at the
/// database.
std::string WhatHappenedTo(const OrderAsRead& order);

}  // namespace store
