#include "slips/depot_choice.h"

#include <algorithm>

#include "basics/text.h"
#include "slips/slip_form.h"

namespace store {
namespace {

constexpr int kCodeLength = 6;

}  // namespace

std::string DepotCodeOf(const std::string& entry) { return RightChars(entry, kCodeLength); }

std::string DepotCodeOf(const ComboBox& depots) { return DepotCodeOf(depots.Text()); }

std::string DepotNameOf(const ComboBox& depots) {
  const std::string entry = depots.Text();
  return Trim(LeftChars(entry, CharLength(entry) - kCodeLength));
}

bool ChooseDepot(ComboBox& depots, const std::string& code) {
  const auto& list = depots.List();
  const auto found = std::find_if(
      list.begin(), list.end(), [&](const std::string& each) { return DepotCodeOf(each) == code; });
  if (code.empty() || found == list.end()) return false;
  depots.SetListIndex(static_cast<int>(found - list.begin()));
  return true;
}

void CopyDepots(ComboBox& depots) {
  const MainWindow* board = TheMainWindow();
  if (board == nullptr) return;
  for (const std::string& entry : board->Combo1.List()) depots.AddItem(entry);
}

}  // namespace store
