#pragma once

#include <string>
#include <vector>

#include "gateway/odbc_connection.h"

namespace store {

/// Adds to a failed batch's text that nobody can say whether it took effect.
void TellOutcomeUnknown(std::string& errorText);

/// Runs the statements in order as one transaction: all of them, or none with the server's words in
/// `errorText`. Where the server can, they travel as one compound block in a single round trip.
/// When the commit fails, or the connection breaks, the outcome may not be known: the text then
/// says so. A connection that might still be inside the transaction is closed.
bool RunAsOneTransaction(OdbcConnection& connection, const std::vector<std::string>& statements,
                         std::string& errorText);

/// Whether a statement can stand inside a compound block and still mean what it means alone: it is
/// an INSERT, UPDATE, DELETE or REPLACE, closes its quotes, and holds neither delimiter nor comment
/// outside of them. Anything else must fail, or run, by itself and never reach into its neighbour.
bool StandsInBlock(const std::string& statement);

}  // namespace store
