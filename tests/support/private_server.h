#pragma once

#include <string>
#include <vector>

namespace store {

/// A MariaDB of the test's own: its own folder, a free loopback port, gone at the end of the
/// program. Statements of the test go over the C client library, not over the gateway that is
/// being tested.
class PrivateServer {
 public:
  /// `options` are further ones of the server program, parted by blanks.
  explicit PrivateServer(std::string options = "");
  ~PrivateServer();

  void Start();  ///< Also again after `Stop` or `Kill`; the data stays.
  void Stop();
  void Kill();    ///< SIGKILL, as when the machine loses its power.
  void Freeze();  ///< It stands still, as a machine that is out of memory, until `Thaw`.
  void Thaw();
  int Port() const { return port_; }
  /// What a data server option names: "127.0.0.1;PORT=...".
  std::string ServerOption() const;

  /// An empty database of that name with every table.
  void MakeSchema(const std::string& database);
  /// The demo franchise in database "demo", with the directory in "master".
  void LoadDemo(const std::string& options = "");

  /// Runs statements separated by semicolons in a database. A failing one is a test failure.
  void Sql(const std::string& database, const std::string& statements);
  /// The rows of a SELECT, NULL as "(null)".
  std::vector<std::vector<std::string>> Rows(const std::string& database,
                                             const std::string& select);

 private:
  void Signal(int number) const;
  void Script(const std::string& arguments) const;

  std::string options_;
  std::string folder_;
  int port_ = 0;
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
