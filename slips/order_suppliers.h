#pragma once

#include <string>

namespace store {

/// Whether an order can go to a supplier.
enum class SupplierStand {
  Offered,
  NotOffered,  ///< The partner is gone, or is not one that orders go to.
  Unreadable,  ///< The database could not be asked.
};

/// The statement that finds the suppliers of a text: "/" and a part of the phone number, "#" and
/// the code, else a part of the name. From CT and CTCOM, partners of the levels 0 and 1; with the
/// option "발주정보거래처" those that the store's order settings (SAFEIV) name, of whatever level.
/// Its first two columns are CT_CODE and CT_NAME.
std::string SupplierStatement(const std::string& text);

/// Looks a code up as the supplier box does. `name` is the partner's name of today when it is
/// offered.
SupplierStand LookUpSupplier(const std::string& code, std::string& name);

}  // namespace store
