#pragma once

#include <string>
#include <vector>

namespace store {

/// A supplier that a person has chosen before.
struct RecentSupplier {
  std::string Code;  ///< CT_CODE
  std::string Name;  ///< CT_NAME, as it was then.
  bool operator==(const RecentSupplier&) const = default;
};

/// The last ten suppliers that the user of the run has chosen for the store, the last one first.
/// They stand in the workstation's settings, for each company, store and user apart.
std::vector<RecentSupplier> RecentSuppliers();

/// Puts a supplier at the head; it stands there once, under its name of now.
void NoteRecentSupplier(const RecentSupplier& chosen);

void ForgetRecentSupplier(const std::string& code);

}  // namespace store
