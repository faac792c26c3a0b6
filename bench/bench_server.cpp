#include "bench/bench_server.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <thread>

#include "basics/records.h"
#include "gateway/gateway.h"

namespace store {
namespace {

PrivateDbServer* serverInUse = nullptr;
bool ending = false;

/// Ends the server and takes its folder away, once.
void CleanUp() {
  static std::once_flag done;
  std::call_once(done, [] {
    ending = true;
    serverInUse->TakeAway();
  });
}

/// A run without its server has nothing to measure; what fails while it ends is only told.
void Fail(const std::string& what) {
  std::fprintf(stderr, "store_bench: %s\n", what.c_str());
  if (!ending) std::exit(2);
}

/// The server is a process of its own and would outlive a run that somebody breaks off.
void CleanUpWhenBrokenOff() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) sigaddset(&signals, signal);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  std::thread([signals] {
    int signal = 0;
    sigwait(&signals, &signal);
    CleanUp();
    std::_Exit(128 + signal);
  }).detach();
}

}  // namespace

BenchServer::BenchServer() : PrivateDbServer("store_bench", ProgramFolder() + "/demo_data", Fail) {
  serverInUse = this;
  std::atexit(CleanUp);
  CleanUpWhenBrokenOff();
  Start();
}

BenchServer::~BenchServer() { CleanUp(); }

void BenchServer::Load(const std::string& database, int items, int slips) {
  PrivateDbServer::Load(database,
                        "--items " + std::to_string(items) + " --slips " + std::to_string(slips));
}

void ConnectTo(int port, const std::string& database) {
  Session.UserCode = "u01";
  Session.UserStoreCode = "1001";
  Session.StoreCode = "1001";
  Session.StoreName = "성수역점";
  AppOptions.DataServer = BenchServer::ServerOption(port);
  AppOptions.CompanyId = database;
  AppOptions.BulkOrderPrice = "3";
  BuildConnectString(AppOptions.DataServer, "kt", database);
}

std::string ProgramFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

}  // namespace store
