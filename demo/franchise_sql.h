#pragma once

#include <ostream>
#include <string>

#include "demo/franchise.h"

namespace store::demo {

/// Writes the franchise as SQL for a database that already holds the empty tables, and its entry in
/// the directory database "master", which must hold its table too. `database` is the company id.
void WriteFranchise(std::ostream& out, const Franchise& franchise, const std::string& database);

/// The parts of it: what head office maintains, what the stores wrote, and what a terminal has
/// sent.
void WriteMasters(std::ostream& out, const Franchise& franchise);
void WriteTrade(std::ostream& out, const Franchise& franchise);
void WriteStaged(std::ostream& out, const Franchise& franchise);

}  // namespace store::demo
