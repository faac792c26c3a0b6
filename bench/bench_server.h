#pragma once

#include <string>

namespace store {

/// A MariaDB of the run's own, gone at its end however the run ends. There is one in a run.
class BenchServer {
 public:
  BenchServer();
  ~BenchServer();
  BenchServer(const BenchServer&) = delete;
  BenchServer& operator=(const BenchServer&) = delete;

  /// Makes a database anew and fills it with so many products and orders of the demo franchise.
  void Load(const std::string& database, int items, int slips);
  int Port() const { return port_; }
  const std::string& Folder() const { return folder_; }
  /// What a data server option names.
  static std::string ServerOption(int port) { return "127.0.0.1;PORT=" + std::to_string(port); }

 private:
  void Script(const std::string& arguments) const;
  std::string folder_;
  int port_ = 0;
};

/// The database that all but the growth is measured on.
constexpr const char* kDemo = "demo";

/// Points the gateway at a database behind `port`, as u01 of store 1001.
void ConnectTo(int port, const std::string& database = kDemo);

/// The folder that holds the bench, the client and what they need.
std::string ProgramFolder();

}  // namespace store
