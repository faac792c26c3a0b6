#pragma once

#include <cstdint>
#include <string>

#include "basics/dates.h"

namespace store {

/// Keys of documents: 8 digits of the database's date, store code, user code, two digits of kind
/// and a number of four digits or more. The number is taken from the highest key of the store and
/// day, and then counted in memory; nothing reserves it, and the user code inside the key keeps two
/// people apart.

/// Last number handed out in this run; 0 means that the next key reads the database.
extern std::int16_t SlipSeqCounter;
/// Date and store of the last database read.
extern std::string SlipKeyPrefix;
/// The workstation's day at that read, or no day when nobody noted it; the database's where that is
/// the day before. On another day the date in the prefix may be over, so the next key reads the
/// database, whose date alone counts.
extern CalendarDate SlipKeyDay;

/// A key for a header table ("PEM22", "PEM23", ...), whose last two characters are the kind. This
/// run never gives a key twice for a table while it counts in memory. If the database cannot be
/// read the result is "0001", which no date check lets pass.
std::string NextSlipId(const std::string& table);

/// What the sequence is at the start of a run: nothing was handed out.
void ResetSlipKeys();

/// A key for the stock-count header ME. It always reads the database and leaves the counter alone;
/// it carries no kind. `before` is how many keys the batch in hand has taken, of which the database
/// does not know yet. "0001" when the database cannot be read.
std::string NextStockCountId(int before = 0);

/// Whether a key was made from the database's date, and not in place of one that could not be read.
bool IsWholeKey(const std::string& slipId);

/// Whether a document date, "YYYY-MM-DD", lies within a month on either side of the date in a slip
/// key, bounds included. The key's date is the database's day, so a workstation's wrong clock does
/// not count. A key without a date ("0001") lets nothing pass.
bool DateFitsKey(const std::string& date, const std::string& slipId);

}  // namespace store
