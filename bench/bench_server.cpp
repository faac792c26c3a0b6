#include "bench/bench_server.h"

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <mutex>
#include <thread>

#include "basics/records.h"
#include "gateway/gateway.h"
#include "private_db/free_port.h"

namespace store {
namespace {

std::string folderInUse;

/// Ends the server and takes its folder away, once.
void CleanUp() {
  static std::once_flag done;
  std::call_once(done, [] {
    const std::string command =
        std::string(STORE_PRIVATE_DB) + " kill " + folderInUse + " </dev/null";
    if (std::system(command.c_str()) != 0) std::fprintf(stderr, "store_bench: the server stays\n");
    std::error_code ignored;
    std::filesystem::remove_all(folderInUse, ignored);
  });
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

BenchServer::BenchServer() : port_(FreePort()) {
  folder_ = (std::filesystem::temp_directory_path() / "store_bench_XXXXXX").string();
  if (port_ == 0 || mkdtemp(folder_.data()) == nullptr) {
    std::perror("store_bench");
    std::exit(2);
  }
  folderInUse = folder_;
  std::atexit(CleanUp);
  CleanUpWhenBrokenOff();
  setenv("DEMO_DATA", (ProgramFolder() + "/demo_data").c_str(), 1);
  Script("start " + folder_ + " " + std::to_string(port_));
}

BenchServer::~BenchServer() { CleanUp(); }

void BenchServer::Script(const std::string& arguments) const {
  const std::string command = std::string(STORE_PRIVATE_DB) + " " + arguments + " </dev/null";
  if (std::system(command.c_str()) != 0) {
    std::fprintf(stderr, "store_bench: %s failed\n", command.c_str());
    std::exit(2);
  }
}

void BenchServer::Load(const std::string& database, int items, int slips) {
  Script("load " + folder_ + " " + std::to_string(port_) + " " + database + " --items " +
         std::to_string(items) + " --slips " + std::to_string(slips));
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
