#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "demo/calendar.h"
#include "demo/line_money.h"

/// The records of the demo franchise. Records refer to each other by position in the vectors of
/// Franchise; codes and names are only spelled out when they are written.
namespace store::demo {

struct Options {
  std::size_t items = 3000;
  std::size_t slips = 200;
  Day today;
};

/// More than this and the numbers inside keys and codes run out of digits.
inline constexpr std::size_t kMostItems = 500'000;
inline constexpr std::size_t kMostSlips = 200'000;

/// Head office, itself a row among the stores, and the store most of the data is about.
inline constexpr std::size_t kHeadOffice = 0;
inline constexpr std::size_t kMainStore = 1;

struct Staff {
  std::string code, password, name, phone;
  int level = 9;
};

struct Depot {
  std::string code, name;
};

struct Store {
  std::string code, name, owner, business_no, phone, address, address2;
  char kind = '1';
  std::string price_level;
  /// The first is the default depot.
  std::vector<Depot> depots;
  std::vector<Staff> staff;
};

/// A partner without a category deals in everything.
inline constexpr int kAnyCategory = -1;

struct Partner {
  std::string code, name;
  /// Top category it supplies, counted from 0.
  int category = kAnyCategory;
  char kind = '0';
  char order_level = '0';
  char price_policy = '0';
  std::string price_level, group;
  std::string business_no, phone, fax, mail, zip, address, address2;
  std::string owner, owner_phone, contact, contact_phone, contact_mail;

  /// Offered by the order lookups.
  [[nodiscard]] bool Orderable() const {
    return kind == '0' && (order_level == '0' || order_level == '1');
  }
};

struct Kind {
  std::string id, name;
  int level = 0;
};

struct Product {
  std::string code, name, kind_id, part_no, barcode, standard, unit, entry_date;
  std::size_t partner = 0;
  std::int64_t minimum = 0;
  char tax = '0';
  bool ended = false;
  Won buy = 0;
  Won sell = 0;
  Won consumer = 0;
};

inline constexpr std::size_t kPriceLevels = 20;

struct LevelPrice {
  std::size_t store = kHeadOffice;
  std::size_t product = 0;
  char side = 'C';
  std::array<Won, kPriceLevels> prices{};
};

struct ContractTerm {
  std::string level;
  Won price = 0;
  std::string from, to;
};

struct PartnerContract {
  std::size_t partner = 0;
  std::size_t store = kHeadOffice;
  std::size_t product = 0;
  ContractTerm term;
};

struct StoreContract {
  std::size_t store = 0;
  std::size_t product = 0;
  ContractTerm term;
};

struct OrderSetting {
  std::size_t store = 0;
  std::size_t product = 0;
  /// False: a safety stock without a partner to order from.
  bool with_partner = true;
  std::int64_t safety = 0;
  std::int64_t unit = 0;
  Won price = 0;
};

struct SlipLine {
  std::size_t product = 0;
  std::size_t depot = 0;
  std::int64_t quantity = 0;
  /// On an order what was shipped, on a receipt what had been ordered.
  std::int64_t other_quantity = 0;
  Won price = 0;
  LineMoney money;
};

struct Slip {
  std::string id;
  char state = '1';
  Day day;
  std::string stored_at;
  std::size_t store = 0;
  std::size_t partner = 0;
  std::string user;
  std::string link;
  /// On orders: the eight condition texts, or none.
  std::vector<std::string> conditions;
  std::vector<SlipLine> lines;

  [[nodiscard]] Won Amount() const;
  [[nodiscard]] Won Tax() const;
  [[nodiscard]] Won Total() const { return Amount() + Tax(); }
};

struct Stock {
  std::size_t store = 0;
  std::size_t depot = 0;
  std::size_t product = 0;
  std::int64_t opening = 0;
  std::int64_t in = 0;
  std::int64_t out = 0;
  /// False: the row came to be by a posting, which copies less into it than head office does.
  bool counted = true;
};

struct Balance {
  std::size_t store = 0;
  std::size_t partner = 0;
  std::string month;
  Won sold = 0;
  Won bought = 0;
};

struct Notice {
  std::string subject, body, moment;
  /// By store, in the order of Franchise::stores.
  std::vector<bool> for_store;
};

struct BaseCode {
  std::string code, name1, name2, op1, op2, op3, op4;
};

struct Franchise {
  std::vector<Store> stores;
  std::vector<Partner> partners;
  std::vector<Kind> kinds;
  std::vector<Product> products;
  std::vector<LevelPrice> level_prices;
  std::vector<PartnerContract> contracts;
  std::vector<StoreContract> store_contracts;
  std::vector<OrderSetting> settings;
  std::vector<Slip> orders, purchases, sales;
  std::vector<Stock> stock;
  std::vector<Balance> balances;
  std::vector<Notice> notices;
  std::vector<BaseCode> base_codes;
};

/// The whole franchise. The same options give the same franchise, on any machine.
Franchise MakeFranchise(const Options& options);

}  // namespace store::demo
