#pragma once

#include <cstdint>
#include <string>

namespace store {

/// The small franchise of the seeded days: what clerk and driver both know of it. Two users work in
/// each store, the first of them at two terminals.
inline constexpr int kTerminals = 3;  ///< Of a store.
inline constexpr int kPartners = 3;
inline constexpr const char* kCompany = "soak";
inline constexpr const char* kPassword = "1111";

std::string StoreCodeOf(int store);  ///< From 0: "S001".
std::string UserCodeOf(int store, int terminal);
std::string ProductCodeOf(int product);  ///< From 0: "P001".
std::string BarcodeOf(int product);
std::string PartnerCodeOf(int product);  ///< The one that supplies it.
/// The receiver of a shipment of that store.
std::string NeighbourOf(int store, int stores);

/// How a store's workstations are set up. A chain has one way of working; here all are in one.
struct StoreOptions {
  std::int16_t OrderType;
  std::int16_t PartnersOnly;
  std::int16_t SkipZeroReceipt;
  std::string PricePolicy;
};
StoreOptions OptionsOf(int store);

}  // namespace store
