#pragma once

#include <string>

#include "tests/soak/db_client.h"
#include "tests/soak/findings.h"

namespace store {

/// What must hold in the tables of a store at every moment, whatever the clerks meant: a header is
/// the sum of its lines, stock and balances are the sums of what was posted, order and receipt name
/// each other. Each rule is one SELECT, so that it sees one moment while the clerks work on.
void CheckStore(DbClient& db, const std::string& store, Findings& findings);

}  // namespace store
