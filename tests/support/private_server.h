#pragma once

#include <string>
#include <vector>

#include "private_db/private_db_server.h"

namespace store {

/// The private server of a test program. Statements of the test go over the C client library, not
/// over the gateway that is being tested. Whatever fails here is a test failure.
class PrivateServer : public PrivateDbServer {
 public:
  /// `options` are further ones of the server program, parted by blanks.
  explicit PrivateServer(const std::string& options = "");

  /// The demo franchise in database "demo", with the directory in "master".
  void LoadDemo(const std::string& options = "") { Load("demo", options); }

  /// Runs statements separated by semicolons in a database.
  void Sql(const std::string& database, const std::string& statements);
  /// The rows of a SELECT, NULL as "(null)".
  std::vector<std::vector<std::string>> Rows(const std::string& database,
                                             const std::string& select);
};

/// The one server of a test program, started on first use.
PrivateServer& TestServer();

/// Starts from a known small store in database "small": store 1001 with its depots, two users, a
/// handful of partners, products and prices. `AppOptions` and `ConnectString` point to it, and
/// every process-wide record is as at the start of a run.
void UseSmallStore();

/// Statements and reads on the small store.
void Sql(const std::string& statements);
std::vector<std::vector<std::string>> Rows(const std::string& select);
/// The one value of a SELECT of one row and column.
std::string Value(const std::string& select);

}  // namespace store
