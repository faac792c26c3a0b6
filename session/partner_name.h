#pragma once

#include <string>

namespace store {

/// CT_NAME of a partner. Empty for an empty code, which is not asked for, an unknown one and a
/// failed read. Reads through `SlotA`.
std::string PartnerNameOf(const std::string& code);

}  // namespace store
