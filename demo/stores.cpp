#include <array>
#include <initializer_list>

#include "demo/generators.h"
#include "demo/korean_names.h"

namespace store::demo {
namespace {

constexpr std::uint64_t kSeed = 0x5707E5;

struct Login {
  const char* code;
  const char* password;
  int level;
};

struct StoreEntry {
  const char* code;
  const char* name;
  char kind;
  const char* priceLevel;
  std::initializer_list<Login> logins;
};

// The logins stand here and not in the random part: people type them.
const std::array kEntries = {
    StoreEntry{"1000", "솔빛마트 본사", '0', "02", {{"hq01", "9999", 1}, {"hq02", "8888", 2}}},
    StoreEntry{"1001",
               "솔빛마트 성수역점",
               '1',
               "02",
               {{"u01", "1111", 1}, {"u02", "2222", 3}, {"u03", "3333", 4}}},
    StoreEntry{"1002", "솔빛마트 망원시장점", '1', "03", {{"u11", "1111", 2}, {"u12", "2222", 5}}},
    StoreEntry{
        "1003", "솔빛마트 광교호수점", '2', "0102", {{"u21", "1111", 3}, {"u22", "2222", 6}}},
    StoreEntry{"1004", "솔빛마트 센텀점", '1', "04", {{"u31", "1111", 3}, {"u32", "2222", 7}}},
    StoreEntry{"1005", "솔빛마트 한옥마을점", '2', "01", {{"u41", "1111", 4}, {"u42", "2222", 8}}},
    StoreEntry{"1006", "솔빛마트 노형점", '1', "", {{"u51", "1111", 3}, {"u52", "2222", 9}}},
};

constexpr std::array kDepotNames = {"매장창고", "냉장창고", "외부창고"};

std::vector<Depot> MakeDepots(const std::string& store, std::size_t count) {
  std::vector<Depot> depots;
  for (std::size_t i = 0; i < count; ++i) {
    depots.push_back({store + "0" + std::to_string(i + 1), kDepotNames[i]});
  }
  return depots;
}

}  // namespace

std::vector<Store> MakeStores() {
  Random random(kSeed);
  std::vector<Store> stores;
  for (const StoreEntry& entry : kEntries) {
    Store store;
    store.Code = entry.code;
    store.Name = entry.name;
    store.Owner = PersonName(random);
    store.BusinessNo = BusinessNumber(random);
    store.Phone = PhoneNumber(random, "070");
    store.Address = StreetAddress(random);
    store.Address2 = "1층";
    store.Kind = entry.kind;
    store.PriceLevel = entry.priceLevel;
    store.Depots = MakeDepots(store.Code, 2 + stores.size() % 2);
    for (const Login& login : entry.logins) {
      store.Users.push_back({login.code, login.password, PersonName(random),
                             PhoneNumber(random, "010"), login.level});
    }
    stores.push_back(std::move(store));
  }
  return stores;
}

}  // namespace store::demo
