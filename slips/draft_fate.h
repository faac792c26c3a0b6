#pragma once

#include <string>

#include "slips/draft.h"

namespace store {

/// What can be done with a draft by what the database holds now.
enum class DraftFate {
  GoesOn,         ///< Its order stands as it was loaded, or it is a new one.
  SlipChanged,    ///< Its order was changed, moved on or deleted since; or, of a new one, the save
                  ///< that was tried may have been stored with other content.
  AlreadyStored,  ///< The order stands in the database with all that the draft holds.
  Unreadable,     ///< The database could not be asked.
};

/// Looks it up. For an order also whether a save that nobody saw succeed was stored.
DraftFate FateOf(const Draft& draft);

}  // namespace store
