#include <array>

#include "demo/generators.h"
#include "demo/korean_names.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0xCA47E;
constexpr int kFirstCode = 10001;

struct Entry {
  const char* name;
  int category;
  char kind;
  char orderLevel;
  char pricePolicy;
  const char* priceLevel;
};

// Names open with every initial consonant, doubled ones too, and some with Latin letters, digits or
// a bracket, which belong to the last tab of the lookups; "희" and what follows it stand at the end
// of the alphabet there. No name is part of another. Price levels: "01" to "04" are sound, "00" and
// the empty one mean nothing, of longer ones the last two digits count.
constexpr std::array kEntries = {
    Entry{"솔빛마트 물류센터", kAnyCategory, '0', '0', '1', "02"},
    // Drinks.
    Entry{"강산음료", 0, '0', '0', '0', "02"},
    Entry{"단비음료", 0, '0', '1', '1', "03"},
    Entry{"파란하늘음료", 0, '0', '0', '2', "02"},
    Entry{"청솔생수", 0, '0', '0', '3', "01"},
    Entry{"참나무커피", 0, '0', '0', '3', "02"},
    Entry{"BON커피", 0, '0', '1', '4', "0102"},
    // Dairy.
    Entry{"다솜유업", 1, '0', '0', '3', "02"},
    Entry{"차오름유제품", 1, '0', '1', '2', "00"},
    Entry{"태백산유가공", 1, '0', '0', '5', "03"},
    // Sweets and bread.
    Entry{"누리제과", 2, '0', '0', '3', "03"},
    Entry{"마루제과", 2, '0', '0', '1', "0102"},
    Entry{"또바기제과", 2, '0', '1', '0', "02"},
    Entry{"흰구름제빵", 2, '0', '0', '2', "01"},
    // Ready meals.
    Entry{"가온식품", 3, '0', '0', '3', "02"},
    Entry{"명지식품", 3, '0', '1', '4', ""},
    Entry{"풍년라면", 3, '0', '0', '1', "02"},
    Entry{"백두냉동", 3, '0', '0', '5', "04"},
    Entry{"하늘채식품", 3, '0', '0', '0', "00"},
    Entry{"찌개명가", 3, '0', '1', '3', "02"},
    // Farm goods.
    Entry{"사계절농산", 4, '0', '0', '0', "02"},
    Entry{"푸른들농산", 4, '0', '0', '3', "01"},
    Entry{"자연담은농장", 4, '0', '1', '2', "02"},
    Entry{"뿌리농원", 4, '0', '0', '0', "00"},
    Entry{"콩새두부", 4, '0', '0', '1', "03"},
    // Fish and meat.
    Entry{"남해수산", 5, '0', '0', '0', "02"},
    Entry{"동산축산", 5, '0', '0', '3', "02"},
    Entry{"해오름수산", 5, '0', '1', '2', "12"},
    Entry{"바다마을", 5, '0', '2', '0', "02"},
    // Drinks with alcohol.
    Entry{"라온주류", 6, '0', '0', '1', "02"},
    Entry{"대로주류", 6, '0', '0', '3', "03"},
    // Household.
    Entry{"미르생활용품", 7, '0', '0', '3', "02"},
    Entry{"새솔제지", 7, '0', '0', '5', "0102"},
    Entry{"로운물산", 7, '0', '1', '2', "01"},
    Entry{"KH물산", 7, '0', '0', '0', "02"},
    // Stationery and sundries.
    Entry{"보람문구", 8, '0', '0', '3', "02"},
    Entry{"도토리문고", 8, '0', '1', '1', "03"},
    Entry{"타래실업", 8, '0', '9', '0', "00"},
    // Health and beauty.
    Entry{"토담건강", 9, '0', '0', '2', "02"},
    Entry{"조은화장품", 9, '0', '0', '3', "03"},
    Entry{"(주)늘봄산업", 9, '0', '1', '4', "02"},
    // Customers and service firms: not ordered from.
    Entry{"가람유통", kAnyCategory, '1', '2', '0', "00"},
    Entry{"나래푸드", kAnyCategory, '1', '0', '0', "02"},
    Entry{"래미상사", kAnyCategory, '1', '2', '1', "03"},
    Entry{"바른먹거리", kAnyCategory, '1', '1', '0', "02"},
    Entry{"아람유통", kAnyCategory, '1', '2', '2', "02"},
    Entry{"우람상회", kAnyCategory, '1', '2', '0', "01"},
    Entry{"카페마실", kAnyCategory, '1', '0', '3', "02"},
    Entry{"큰나무유통", kAnyCategory, '1', '2', '0', ""},
    Entry{"온누리물류", kAnyCategory, '2', '2', '0', "00"},
    Entry{"정든식품", kAnyCategory, '1', '2', '5', "02"},
    Entry{"산들식품", kAnyCategory, '1', '1', '0', "03"},
    Entry{"한빛물산", kAnyCategory, '1', '2', '0', "02"},
    Entry{"희망상회", kAnyCategory, '1', '0', '4', "02"},
    Entry{"까치상회", kAnyCategory, '1', '2', '0', "02"},
    Entry{"쑥골떡집", kAnyCategory, '1', '1', '0', "01"},
    Entry{"ACE상사", kAnyCategory, '1', '2', '0', "02"},
    Entry{"Daily Fresh", kAnyCategory, '1', '0', '1', "02"},
    Entry{"SUN식품", kAnyCategory, '1', '2', '0', "00"},
    Entry{"365냉장물류", kAnyCategory, '2', '9', '0', ""},
};

// The details of head office's system: a few partners have gaps in them.
void AddDetails(Partner& partner, Random& random) {
  partner.BusinessNo = BusinessNumber(random);
  partner.Phone = PhoneNumber(random, random.Percent(40) ? "02" : "031");
  partner.Fax = random.Percent(85) ? PhoneNumber(random, "02") : "";
  partner.Mail = "sales" + partner.Code + "@partner.example";
  partner.Zip = std::to_string(random.Between(10000, 63999));
  partner.Address = StreetAddress(random);
  partner.Address2 = random.Percent(70) ? std::to_string(random.Between(1, 9)) + "층" : "";
  partner.Owner = PersonName(random);
  partner.OwnerPhone = PhoneNumber(random, "010");
  partner.Contact = PersonName(random);
  partner.ContactPhone = random.Percent(90) ? PhoneNumber(random, "010") : "";
  partner.ContactMail = "contact" + partner.Code + "@partner.example";
}

}  // namespace

std::vector<Partner> MakePartners() {
  Random random(kSeed);
  std::vector<Partner> partners;
  for (const Entry& entry : kEntries) {
    Partner partner;
    partner.Code = std::to_string(kFirstCode + static_cast<int>(partners.size()));
    partner.Name = entry.name;
    partner.Category = entry.category;
    partner.Kind = entry.kind;
    partner.OrderLevel = entry.orderLevel;
    partner.PricePolicy = entry.pricePolicy;
    partner.PriceLevel = entry.priceLevel;
    partner.Group = entry.category == kAnyCategory ? "G99" : "G0" + std::to_string(entry.category);
    AddDetails(partner, random);
    partners.push_back(std::move(partner));
  }
  return partners;
}

}  // namespace store::demo
