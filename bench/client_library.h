#pragma once

#include <mysql.h>

#include <string>
#include <vector>

#include "bench/bench_server.h"

namespace store {

/// One open connection of the C client library: the plainest road to the same server.
class ClientLibrary {
 public:
  explicit ClientLibrary(int port, const std::string& database = kDemo);
  ~ClientLibrary();
  ClientLibrary(const ClientLibrary&) = delete;
  ClientLibrary& operator=(const ClientLibrary&) = delete;

  /// Reads every cell of a SELECT and gives the sum of their bytes.
  size_t ReadAll(const std::string& select);
  /// The first column of a SELECT.
  std::vector<std::string> Texts(const std::string& select);
  void Run(const std::string& statement);

 private:
  MYSQL* client_;
};

}  // namespace store
