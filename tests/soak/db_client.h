#pragma once

#include <string>
#include <utility>
#include <vector>

struct st_mysql;

namespace store {

using Rows = std::vector<std::vector<std::string>>;

/// The driver's own way to the database, by the C client library. It connects when it is needed and
/// again after the server was gone, then to the next one where there are several.
class DbClient {
 public:
  explicit DbClient(std::vector<int> ports) : ports_(std::move(ports)) {}
  ~DbClient();
  DbClient(const DbClient&) = delete;
  DbClient& operator=(const DbClient&) = delete;

  /// Runs statements parted by semicolons. False on a failure, whose words are in `Error`.
  bool Run(const std::string& statements);
  /// The rows of the last SELECT among them, NULL as an empty text. Ends the program when they
  /// cannot be had for a minute: without them nothing can be checked.
  Rows Select(const std::string& statements);

  std::string Error;

 private:
  bool Connect();
  void Leave();
  bool Send(const std::string& statements, Rows& rows);

  const std::vector<int> ports_;
  size_t next_ = 0;  // of the ports
  st_mysql* client_ = nullptr;
};

}  // namespace store
