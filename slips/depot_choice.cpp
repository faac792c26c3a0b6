#include "slips/depot_choice.h"

#include "basics/text.h"
#include "slips/slip_form.h"

namespace store {
namespace {

constexpr int kCodeLength = 6;

}  // namespace

std::string DepotCodeOf(const ComboBox& depots) { return RightChars(depots.Text(), kCodeLength); }

std::string DepotNameOf(const ComboBox& depots) {
  const std::string entry = depots.Text();
  return Trim(LeftChars(entry, CharLength(entry) - kCodeLength));
}

void ChooseDepot(ComboBox& depots, const std::string& code) {
  if (code.empty()) return;
  for (const std::string& entry : depots.List()) {
    if (RightChars(entry, kCodeLength) != code) continue;
    depots.SetText(entry);
    return;
  }
}

void CopyDepots(ComboBox& depots) {
  const MainWindow* board = TheMainWindow();
  if (board == nullptr) return;
  for (const std::string& entry : board->Combo1.List()) depots.AddItem(entry);
}

}  // namespace store
