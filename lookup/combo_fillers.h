#pragma once

#include <string>

#include "forms/control.h"

namespace store {

/// Fill choice lists from the database. Entries are the name, 30 blanks and the code; `all` puts
/// "*전체*      " first. Each empties the list first; a failed read leaves it so.

/// Settings rows of BAS whose key begins with `prefix`.
void FillBaseCodes(ComboBox& combo, const std::string& prefix, bool all,
                   const std::string& order = " ORDER BY BAS_NAME1 ");

/// Item categories below `parentId`, whose own level is `level`; the top of the tree without a
/// parent.
void FillItemKinds(ComboBox& combo, const std::string& parentId, int level, bool all);

/// Depots of a store, its default one first. Without a store code the list stays empty.
void FillDepots(const std::string& storeCode, ComboBox& combo, bool all);

}  // namespace store
