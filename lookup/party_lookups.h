#pragma once

#include "lookup/lookup_form.h"

namespace store {

/// The lookups of people and places. They differ in their row of a table (party_lookups.cpp) only.

/// Finds a partner (table CT) by a part of its name. Inputs: `GroupCode`, `SlipTable`.
struct HELP_CT : LookupForm {
  HELP_CT();
};

/// Finds another store (table RCT) by a part of its name. Its tabs list partners.
struct HELP_RCT : LookupForm {
  HELP_RCT();
};

/// Lists the depots (table HCT) of `StoreCode`. There is nothing to search by; the list comes with
/// the window.
struct HELP_HCT : LookupForm {
  HELP_HCT();
};

/// Finds a member of staff (table ST) by a part of the name.
struct HELP_ST : LookupForm {
  HELP_ST();
};

/// Finds a member of the second person list (table CTM). It asks for equality, so percent signs
/// around the text are part of the name that it finds.
struct HELP_CTM : LookupForm {
  HELP_CTM();
};

}  // namespace store
