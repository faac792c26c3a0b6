#include "slips/unit_price.h"

#include "basics/records.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

constexpr const char* kToday = "2024-05-17";

class UnitPrice : public SmallStoreTest {
 protected:
  std::optional<double> Price(const std::string& policy, const std::string& partner,
                              const std::string& product) {
    AppOptions.BulkOrderPrice = policy;
    return ResolveUnitPrice(partner, product, kToday, "", "23", "J");
  }
};

TEST_F(UnitPrice, FollowsThePolicy) {
  const struct {
    const char* policy;
    const char* partner;
    const char* product;
    double price;
  } cases[] = {
      // Last trade: the newest date, whichever store paid it.
      {"0", "C0001", "P0001", 490},
      {"0", "C0001", "P0008", 8500},
      {"0", "C0002", "P0001", 0},
      {"0", "C0001", "P0005", 0},
      // Contract with head office, or the partner's level.
      {"1", "C0001", "P0001", 650},
      {"1", "C0001", "P0003", 300},  // the contract is the store's: level 02
      // One after the other.
      {"2", "C0001", "P0001", 490},
      {"2", "C0001", "P0005", 1500},
      {"3", "C0001", "P0001", 650},
      {"3", "C0001", "P0008", 8500},  // the contract's level has no price
      // The store's own order settings.
      {"5", "C0002", "P0001", 640},
      {"5", "C0001", "P0001", 0},
      {"5", "C0001", "P0005", 0},
      {"5", "C0003", "P0005", 0},  // the neighbour's setting
      {"5", "", "P0003", 280},
      // What names no policy.
      {"", "C0001", "P0001", 0},
      {"x", "C0001", "P0001", 0},
      {"6", "C0001", "P0001", 0},
      {"01", "C0001", "P0001", 0},
      {"05", "C0002", "P0001", 640},
  };
  for (const auto& c : cases)
    EXPECT_EQ(Price(c.policy, c.partner, c.product), c.price)
        << "policy " << c.policy << ", " << c.partner << ", " << c.product;
}

TEST_F(UnitPrice, UnderPolicyFourIsThePartnersToDecide) {
  AppOptions.BulkOrderPrice = "4";
  // A partner that has traded and is no longer on file.
  Sql("UPDATE PEM23 SET PE_TCTCODE = 'C9999' WHERE PE_FCTCODE = '1002'");
  const struct {
    const char* partner;
    const char* instead;  ///< The digit that replaces the partner's.
    const char* product;
    double price;
  } cases[] = {
      {"C0001", "", "P0001", 650},   // the partner's digit is 1
      {"C0001", "", "P0003", 333},   // any store's contract counts now
      {"C0002", "", "P0001", 640},   // 5
      {"C0003", "", "P0001", 0},     // 4: no price
      {"C0004", "", "P0001", 0},     // none
      {"C9999", "", "P0001", 490},   // no such partner: last trade
      {"C0001", "0", "P0001", 480},  // replaced
      {"C0001", "5", "P0002", 4800}, {"C0001", "4", "P0001", 0},
      {"C0002", "3", "P0003", 0},  // level 3 without a price, then no trade
  };
  for (const auto& c : cases)
    EXPECT_EQ(ResolveUnitPrice(c.partner, c.product, kToday, c.instead, "23", "J"), c.price)
        << c.partner << ", " << c.product << ", instead " << c.instead;
  AppOptions.BulkOrderPrice = "1";
  EXPECT_EQ(ResolveUnitPrice("C0001", "P0001", kToday, "0", "23", "J"), 650);
}

TEST_F(UnitPrice, HoldsAContractToItsDates) {
  const struct {
    const char* product;
    const char* date;
    double price;
  } cases[] = {
      {"P0001", "2023-12-31", 700},
      {"P0001", "2024-01-01", 650},
      {"P0001", "2024-05-17", 650},
      {"P0001", "2024-05-18", 700},
      {"P0004", "2024-05-16", 4444},
      {"P0004", kToday, 5500},
      {"P0005", "1999-01-01", 1500},
      {"P0005", "2999-12-31", 1500},
      // Zeros in one column alone are a date like any other.
      {"P0006", kToday, 2500},
      {"P0007", kToday, 2100},
      {"P0007", "2024-05-16", 7777},
  };
  AppOptions.BulkOrderPrice = "1";
  for (const auto& c : cases)
    EXPECT_EQ(ResolveUnitPrice("C0001", c.product, c.date, "", "23", "J"), c.price)
        << c.product << " on " << c.date;
}

TEST_F(UnitPrice, OfALevelStandsInItsColumn) {
  const struct {
    const char* level;
    double price;
  } cases[] = {
      {"1", 900}, {"2", 700}, {"3", 610}, {"12", 600}, {"0102", 700}, {"0012", 600},
      {"", 0},    {"0", 0},   {"99", 0},  {"x", 0},    {"-5", 0},
  };
  for (const auto& c : cases) {
    Sql(std::string("UPDATE CT SET CT_DANLV = '") + c.level + "' WHERE CT_CODE = 'C0002'");
    EXPECT_EQ(Price("1", "C0002", "P0001"), c.price) << c.level;
  }
  Sql("UPDATE CT SET CT_DANLV = '3' WHERE CT_CODE = 'C0002'");
  EXPECT_EQ(Price("1", "C0002", "P0010"), 0);  // no row of level prices
  EXPECT_EQ(Price("1", "C9999", "P0001"), 0);
  // A contract's level is read whole, the partner's own by its last two characters.
  Sql("UPDATE CTP SET CTP_GU = '0102' WHERE PR_CODE = 'P0002'");
  EXPECT_EQ(Price("1", "C0001", "P0002"), 0);
  Sql("UPDATE CTP SET CTP_GU = '1' WHERE PR_CODE = 'P0002'");
  EXPECT_EQ(Price("1", "C0001", "P0002"), 6000);
}

TEST_F(UnitPrice, OfASaleComesFromSaleSlips) {
  Sql("INSERT INTO PES13 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE) VALUES"
      " ('s1','1','2024-05-01',now(),'1001','C0001');"
      "INSERT INTO PSS13 (PE_ID,PS_NO,PS_DATE,PR_CODE,PS_UP) VALUES"
      " ('s1',1,'2024-05-01','P0001',990.5)");
  AppOptions.BulkOrderPrice = "0";
  const struct {
    const char* kind;
    double price;
  } cases[] = {{"11", 990.5}, {"12", 990.5}, {"13", 990.5},  {"PES13", 990.5}, {"21", 490},
               {"22", 490},   {"23", 490},   {"PEM23", 490}, {"14", 0},        {"82", 0},
               {"3", 0},      {"", 0},       {"231", 0}};
  for (const auto& c : cases)
    EXPECT_EQ(ResolveUnitPrice("C0001", "P0001", kToday, "", c.kind, "J"), c.price) << c.kind;
  // The order settings belong to neither side.
  AppOptions.BulkOrderPrice = "5";
  EXPECT_EQ(ResolveUnitPrice("C0002", "P0001", kToday, "", "82", "J"), 640);
}

TEST_F(UnitPrice, IsNothingWhenItCannotBeRead) {
  for (const char* policy : {"0", "1", "2", "3", "5"})
    EXPECT_EQ(Price(policy, "C0001'", "P0001"), std::nullopt) << policy;
  Disconnect();
  for (const char* policy : {"0", "1", "2", "3", "4", "5"})
    EXPECT_EQ(Price(policy, "C0001", "P0001"), std::nullopt) << policy;
}

TEST_F(UnitPrice, TowardsAStoreAppliesNoPolicy) {
  AppOptions.BulkOrderPrice = "0";
  const struct {
    const char* storeCode;
    const char* product;
    double price;
  } cases[] = {
      {"1001", "P0001", 555},   // contract
      {"1001", "P0002", 6000},  // its level 1
      {"1001", "P0003", 270},   // ended yesterday: the store's level 0003
      {"1001", "P0005", 0},     // level 3 without a row
      {"1002", "P0001", 700},   // level 0102 by its last two characters
      {"1000", "P0001", 0},     // no level
      {"9999", "P0001", 0},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ResolveStorePrice(c.storeCode, c.product, kToday), c.price)
        << c.storeCode << ", " << c.product;
  // On the store's side the level prices are its own: DP2 of 'R', not of 'C'.
  Sql("UPDATE RCT SET RCT_DANLV = '4' WHERE RCT_CODE = '1002'");
  EXPECT_EQ(ResolveStorePrice("1002", "P0001", kToday), 585);
}

}  // namespace
}  // namespace store
