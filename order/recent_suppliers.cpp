#include "order/recent_suppliers.h"

#include <algorithm>

#include "basics/records.h"
#include "forms/host.h"

namespace store {
namespace {

constexpr size_t kRemembered = 10;
constexpr const char* kKey = "suppliers";
constexpr char kEndOfCode = '\t';
constexpr char kEndOfName = '\n';

std::string Section() {
  return "recent/" + Session.DatabaseName + "/" + Session.StoreCode + "/" + Session.UserCode;
}

void Remember(const std::vector<RecentSupplier>& suppliers) {
  std::string text;
  for (const RecentSupplier& each : suppliers) {
    text += each.Code + kEndOfCode + each.Name + kEndOfName;
  }
  Host.SaveSetting(Host.ProgramTitle, Section(), kKey, text);
}

/// All but that one.
std::vector<RecentSupplier> Others(const std::string& code) {
  std::vector<RecentSupplier> others = RecentSuppliers();
  std::erase_if(others, [&](const RecentSupplier& each) { return each.Code == code; });
  return others;
}

}  // namespace

std::vector<RecentSupplier> RecentSuppliers() {
  const std::string text = Host.GetSetting(Host.ProgramTitle, Section(), kKey);
  std::vector<RecentSupplier> suppliers;
  size_t at = 0;
  while (suppliers.size() < kRemembered) {
    const size_t code = text.find(kEndOfCode, at);
    const size_t name = code == std::string::npos ? code : text.find(kEndOfName, code);
    if (name == std::string::npos) break;
    suppliers.push_back({text.substr(at, code - at), text.substr(code + 1, name - code - 1)});
    at = name + 1;
  }
  return suppliers;
}

void NoteRecentSupplier(const RecentSupplier& chosen) {
  std::vector<RecentSupplier> suppliers = Others(chosen.Code);
  suppliers.insert(suppliers.begin(), chosen);
  if (suppliers.size() > kRemembered) suppliers.resize(kRemembered);
  Remember(suppliers);
}

void ForgetRecentSupplier(const std::string& code) { Remember(Others(code)); }

}  // namespace store
