#pragma once

#include <string>
#include <vector>

#include "gateway/odbc_connection.h"

namespace store {

/// How a batch failed.
struct BatchFailure {
  std::string Text;       ///< The server's words, or those of the guard that found nothing.
  SQLINTEGER Number = 0;  ///< The server's number; 0 when it was not the server that refused.
  bool InDoubt = false;   ///< Nobody can say whether the batch took effect. The text says so too.
};

/// What the text of a batch in doubt ends with.
inline constexpr const char* kInDoubtText = "\n저장되었는지 알 수 없습니다.";

/// Runs the statements in order as one transaction: all of them, or none. Where the server can,
/// they travel as one compound block in a single round trip. A guard among them
/// (gateway/guard.h) that finds no row undoes the transaction. One that the server has undone
/// because somebody else's stood against it is known not to have happened and runs again, three
/// times at most. A connection that might still be inside the transaction is closed.
bool RunAsOneTransaction(OdbcConnection& connection, const std::vector<std::string>& statements,
                         BatchFailure& failure);

/// Whether a statement can stand inside a compound block and still mean what it means alone: it is
/// an INSERT, UPDATE, DELETE or REPLACE, or a guard, closes its quotes, and holds neither delimiter
/// nor comment outside of them. Anything else must fail, or run, by itself and never reach into its
/// neighbour.
bool StandsInBlock(const std::string& statement);

}  // namespace store
