#pragma once

#include <string>

#include "private_db/private_db_server.h"

namespace store {

/// The private server of a run, gone at its end however the run ends. There is one in a run.
class BenchServer : public PrivateDbServer {
 public:
  BenchServer();
  ~BenchServer();

  /// Makes a database anew and fills it with so many products and orders of the demo franchise.
  void Load(const std::string& database, int items, int slips);
};

/// The database that all but the growth is measured on.
constexpr const char* kDemo = "demo";

/// Points the gateway at a database behind `port`, as u01 of store 1001.
void ConnectTo(int port, const std::string& database = kDemo);

/// The folder that holds the bench, the client and what they need.
std::string ProgramFolder();

}  // namespace store
