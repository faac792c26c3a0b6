#include <algorithm>
#include <array>
#include <map>
#include <string_view>

#include "demo/barcode.h"
#include "demo/categories.h"
#include "demo/generators.h"
#include "demo/random.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0x9806C7;
constexpr std::size_t kFirstCode = 1'000'001;

constexpr std::array kBrands = {
    "산들바람", "해맑은", "달보드레", "아람드리", "나린", "다온누리", "라라",   "마루한",
    "바름",     "새벽들", "자연숲",   "차오름",   "코코", "토담",     "푸르미", "하늘빛",
    "햇살가득", "꽃마루", "GOOD",     "ECO",      "MOM",  "별헤는",   "우리집", "고운"};
constexpr std::array kFoodQualities = {"",      "유기농 ", "프리미엄 ", "옛날 ",   "진한 ",
                                       "순한 ", "담백한 ", "신선한 ",   "국내산 ", "알뜰 ",
                                       "참 ",   "골드 ",   "수제 ",     "고소한 "};
constexpr std::array kOtherQualities = {"",        "프리미엄 ", "알뜰 ", "고급 ",
                                        "튼튼한 ", "친환경 ",   "순한 "};
constexpr std::array kFreshVariants = {"", "", " 특", " 상", " 대", " 못난이", " 세척", " 선물용"};
constexpr std::array kVariants = {"",     "",      "",        " 오리지널", " 라이트", " Zero",
                                  " BIG", " Mini", " Plus",   " 1+1",      " 실속형", " 대용량",
                                  " XL",  " 2번",  " 가족형", " 혼합",     " 시즌2"};

// The first top category whose goods nobody eats or drinks.
constexpr int kFirstOther = 8;

struct Standard {
  const char* text;
  const char* unit;
  // Pieces that the price is for.
  int pieces;
};

constexpr std::array kLiquidStandards = {
    Standard{"500ml*24", "BOX", 24}, Standard{"190ml*30", "BOX", 30},
    Standard{"1.5L*12", "BOX", 12},  Standard{"250ml", "EA", 1},
    Standard{"500ml", "EA", 1},      Standard{"1.8L", "병", 2}};
constexpr std::array kDryStandards = {
    Standard{"45g*20", "BOX", 20}, Standard{"1BOX(12개)", "BOX", 12}, Standard{"90g", "EA", 1},
    Standard{"120g", "봉", 1},     Standard{"200g*5", "팩", 5},       Standard{"1kg", "봉", 3}};
constexpr std::array kFreshStandards = {Standard{"500g", "팩", 1}, Standard{"1kg", "봉", 2},
                                        Standard{"3입", "팩", 1}, Standard{"5kg(상)", "BOX", 8}};
constexpr std::array kPieceStandards = {Standard{"1EA", "EA", 1}, Standard{"2입", "팩", 2},
                                        Standard{"30매*10", "팩", 4},
                                        Standard{"1BOX(24개)", "BOX", 24}};

const Standard& PickStandard(PackingKind packing, Random& random) {
  switch (packing) {
    case PackingKind::Liquid:
      return random.Pick(kLiquidStandards);
    case PackingKind::Dry:
      return random.Pick(kDryStandards);
    case PackingKind::Fresh:
      return random.Pick(kFreshStandards);
    case PackingKind::Pieces:
      break;
  }
  return random.Pick(kPieceStandards);
}

std::vector<std::string_view> Split(std::string_view text) {
  std::vector<std::string_view> parts;
  for (std::size_t start = 0; start <= text.size();) {
    const std::size_t end = std::min(text.find('|', start), text.size());
    parts.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return parts;
}

std::string ThreeDigits(int number) {
  const std::string digits = std::to_string(number);
  return std::string(3 - digits.size(), '0') + digits;
}

// A category id is five levels of three digits; the levels below its own are "000".
std::string KindId(int top, int middle, int leaf) {
  return ThreeDigits(top) + ThreeDigits(middle) + ThreeDigits(leaf) + "000000";
}

struct Place {
  int top = 0;
  int middle = 0;
  int leaf = 0;
};

// Adds the rows of the tree and tells where each lowest category stands in it.
std::vector<Place> AddKinds(std::vector<Kind>& kinds) {
  kinds.push_back({KindId(0, 0, 0), "전체분류", 0});
  std::vector<Place> places;
  Place place;
  std::string_view top;
  std::string_view middle;
  for (const Category& category : kCategories) {
    if (category.Top != top) {
      place = {place.top + 1, 0, 0};
      top = category.Top;
      middle = {};
      kinds.push_back({KindId(place.top, 0, 0), std::string(top), 1});
    }
    if (category.Middle != middle) {
      place = {place.top, place.middle + 1, 0};
      middle = category.Middle;
      kinds.push_back({KindId(place.top, place.middle, 0), std::string(middle), 2});
    }
    ++place.leaf;
    kinds.push_back({KindId(place.top, place.middle, place.leaf), std::string(category.Leaf), 3});
    places.push_back(place);
  }
  return places;
}

// Some goods were never sorted deeper than the first or second level.
std::string KindOf(const Place& place, Random& random) {
  const auto roll = random.Between(1, 100);
  if (roll <= 4) return KindId(place.top, 0, 0);
  if (roll <= 12) return KindId(place.top, place.middle, 0);
  return KindId(place.top, place.middle, place.leaf);
}

// Partners to order from by top category. Some hidden ones stay on old goods.
std::map<int, std::vector<std::size_t>> SuppliersByCategory(const std::vector<Partner>& partners) {
  std::map<int, std::vector<std::size_t>> suppliers;
  for (std::size_t i = 0; i < partners.size(); ++i) {
    if (partners[i].Kind == '0') suppliers[partners[i].Category].push_back(i);
  }
  return suppliers;
}

Won RoundTo(Won step, Won price) { return (price + step / 2) / step * step; }

void SetPrices(Product& product, const Category& category, int pieces, Random& random) {
  // A case costs a little less than its pieces.
  const Won piece = random.Between(category.Low, category.High) * 10;
  product.Buy = RoundTo(10, pieces > 1 ? piece * pieces * 9 / 10 : piece);
  product.Sell = RoundTo(10, product.Buy * random.Between(122, 145) / 100);
  product.Consumer = RoundTo(100, product.Sell * random.Between(105, 118) / 100);
  // New goods stand in the list before anybody has set their prices.
  const auto roll = random.Between(1, 100);
  if (roll <= 3) product.Buy = 0;
  if (roll == 2 || roll == 4) product.Sell = 0;
  if (roll == 2) product.Consumer = 0;
}

char TaxOf(const Category& category, Random& random) {
  if (category.Tax != '?') return category.Tax;
  return random.Percent(30) ? '2' : '0';
}

// Letter of the top category and a running number, at least four digits.
std::string PartNumber(const Place& place, std::size_t n) {
  const std::string number = std::to_string(n + 1);
  std::string part(1, static_cast<char>('A' + place.top - 1));
  if (number.size() < 4) part.append(4 - number.size(), '0');
  return part + number;
}

std::string NameOf(const Category& category, const Place& place, Random& random) {
  std::string name = random.Pick(kBrands);
  name += ' ';
  name += place.top < kFirstOther ? random.Pick(kFoodQualities) : random.Pick(kOtherQualities);
  name += random.Pick(Split(category.Goods));
  name +=
      category.Packing == PackingKind::Fresh ? random.Pick(kFreshVariants) : random.Pick(kVariants);
  return name;
}

}  // namespace

void AddProducts(Franchise& franchise, const Options& options) {
  Random random(kSeed);
  const std::vector<Place> places = AddKinds(franchise.Kinds);
  const auto suppliers = SuppliersByCategory(franchise.Partners);
  franchise.Products.reserve(options.Items);
  for (std::size_t i = 0; i < options.Items; ++i) {
    const std::size_t position = random.Index(kCategories.size());
    const Category& category = kCategories[position];
    const Place& place = places[position];
    const Standard& standard = PickStandard(category.Packing, random);
    Product product;
    product.Code = std::to_string(kFirstCode + i);
    product.Name = NameOf(category, place, random);
    product.KindId = KindOf(place, random);
    product.PartNo = PartNumber(place, i);
    product.Barcode = Barcode(i);
    product.Standard = standard.text;
    product.Unit = standard.unit;
    product.EntryDate = DateText(options.Today - std::chrono::days(random.Between(1, 1500)));
    const int dealsIn = random.Percent(5) ? kAnyCategory : place.top - 1;
    product.Partner = random.Pick(suppliers.at(dealsIn));
    product.Minimum = random.Between(0, 12) * 5;
    product.Tax = TaxOf(category, random);
    product.Ended = random.Percent(2);
    SetPrices(product, category, standard.pieces, random);
    franchise.Products.push_back(std::move(product));
  }
}

}  // namespace store::demo
