#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "demo/calendar.h"
#include "demo/demo_line_money.h"

/// The records of the demo franchise. Records refer to each other by position in the vectors of
/// Franchise; codes and names are only spelled out when they are written.
namespace store::demo {

struct Options {
  std::size_t Items = 3000;
  std::size_t Slips = 200;
  Day Today;
};

/// More than this and the numbers inside keys and codes run out of digits.
inline constexpr std::size_t kMostItems = 500'000;
inline constexpr std::size_t kMostSlips = 200'000;

/// Head office, itself a row among the stores, and the store most of the data is about.
inline constexpr std::size_t kHeadOffice = 0;
inline constexpr std::size_t kMainStore = 1;

struct Staff {
  std::string Code, Password, Name, Phone;
  int Level = 9;
};

struct Depot {
  std::string Code, Name;
};

struct Store {
  std::string Code, Name, Owner, BusinessNo, Phone, Address, Address2;
  char Kind = '1';
  std::string PriceLevel;
  /// The first is the default depot.
  std::vector<Depot> Depots;
  std::vector<Staff> Users;
};

/// A partner without a category deals in everything.
inline constexpr int kAnyCategory = -1;

struct Partner {
  std::string Code, Name;
  /// Top category it supplies, counted from 0.
  int Category = kAnyCategory;
  char Kind = '0';
  char OrderLevel = '0';
  char PricePolicy = '0';
  std::string PriceLevel, Group;
  std::string BusinessNo, Phone, Fax, Mail, Zip, Address, Address2;
  std::string Owner, OwnerPhone, Contact, ContactPhone, ContactMail;

  /// Offered by the order lookups.
  [[nodiscard]] bool Orderable() const {
    return Kind == '0' && (OrderLevel == '0' || OrderLevel == '1');
  }
};

struct Kind {
  std::string Id, Name;
  int Level = 0;
};

struct Product {
  std::string Code, Name, KindId, PartNo, Barcode, Standard, Unit, EntryDate;
  std::size_t Partner = 0;
  std::int64_t Minimum = 0;
  char Tax = '0';
  bool Ended = false;
  Won Buy = 0;
  Won Sell = 0;
  Won Consumer = 0;
};

inline constexpr std::size_t kPriceLevels = 20;

struct LevelPrice {
  std::size_t Store = kHeadOffice;
  std::size_t Product = 0;
  char Side = 'C';
  std::array<Won, kPriceLevels> Prices{};
};

struct ContractTerm {
  std::string Level;
  Won Price = 0;
  std::string From, To;
};

struct PartnerContract {
  std::size_t Partner = 0;
  std::size_t Store = kHeadOffice;
  std::size_t Product = 0;
  ContractTerm Term;
};

struct StoreContract {
  std::size_t Store = 0;
  std::size_t Product = 0;
  ContractTerm Term;
};

struct OrderSetting {
  std::size_t Store = 0;
  std::size_t Product = 0;
  /// False: a safety stock without a partner to order from.
  bool WithPartner = true;
  std::int64_t Safety = 0;
  std::int64_t Unit = 0;
  Won Price = 0;
};

struct SlipLine {
  std::size_t Product = 0;
  std::size_t Depot = 0;
  std::int64_t Quantity = 0;
  /// On an order what was shipped, on a receipt what had been ordered.
  std::int64_t OtherQuantity = 0;
  Won Price = 0;
  DemoLineMoney Money;
};

struct Slip {
  std::string Id;
  char State = '1';
  Day Date;
  std::string StoredAt;
  std::size_t Store = 0;
  std::size_t Partner = 0;
  std::string User;
  std::string Link;
  /// On orders: the eight condition texts, or none.
  std::vector<std::string> Conditions;
  std::vector<SlipLine> Lines;

  [[nodiscard]] Won Amount() const;
  [[nodiscard]] Won Tax() const;
  [[nodiscard]] Won Total() const { return Amount() + Tax(); }
};

struct Stock {
  std::size_t Store = 0;
  std::size_t Depot = 0;
  std::size_t Product = 0;
  std::int64_t Opening = 0;
  std::int64_t In = 0;
  std::int64_t Out = 0;
  /// False: the row came to be by a posting, which copies less into it than head office does.
  bool Counted = true;
};

struct Balance {
  std::size_t Store = 0;
  std::size_t Partner = 0;
  std::string Month;
  Won Sold = 0;
  Won Bought = 0;
};

struct Notice {
  std::string Subject, Body, Moment;
  /// By store, in the order of Franchise::Stores.
  std::vector<bool> ForStore;
};

struct BaseCode {
  std::string Code, Name1, Name2, Op1, Op2, Op3, Op4;
};

struct Franchise {
  std::vector<Store> Stores;
  std::vector<Partner> Partners;
  std::vector<Kind> Kinds;
  std::vector<Product> Products;
  std::vector<LevelPrice> LevelPrices;
  std::vector<PartnerContract> Contracts;
  std::vector<StoreContract> StoreContracts;
  std::vector<OrderSetting> Settings;
  std::vector<Slip> Orders, Purchases, Sales;
  std::vector<Stock> StockRows;
  std::vector<Balance> Balances;
  std::vector<Notice> Notices;
  std::vector<BaseCode> BaseCodes;
};

/// The whole franchise. The same options give the same franchise, on any machine.
Franchise MakeFranchise(const Options& options);

}  // namespace store::demo
