// From the start of the program to a board that can be used.
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "basics/text.h"
#include "bench/benches.h"

namespace store {
namespace {

constexpr double kSplashDelay = 0.1;  // seconds that the splash waits before it reads anything

/// A copy of the program with options of its own, so that the developer's stay.
std::string CopyOfProgram(const BenchServer& server) {
  namespace fs = std::filesystem;
  const fs::path folder = fs::path(server.Folder()) / "program";
  fs::create_directories(folder);
  for (const char* file : {"store_client", "odbcinst.ini"}) {
    fs::copy_file(fs::path(ProgramFolder()) / file, folder / file,
                  fs::copy_options::overwrite_existing);
  }
  std::ofstream(folder / "OPT.ini")
      << ToCodePage949("[TARNWICK]\r\n데이터서버=" + BenchServer::ServerOption(server.Port()) +
                       "\r\n회사아이디=demo\r\n일괄발주단가=3\r\n");
  return folder.string();
}

void Run(const std::string& command) {
  if (std::system(command.c_str()) != 0) {
    std::fprintf(stderr, "store_bench: %s failed\n", command.c_str());
    std::exit(2);
  }
}

}  // namespace

void BenchStart(BenchServer& server, RatioTable& table) {
  const std::string program = CopyOfProgram(server) + "/store_client u01,1111 2>/dev/null";
  setenv("QT_QPA_PLATFORM", "offscreen", 1);
  setenv("STORE_MEASURE_START", "1", 1);
  std::printf("where the start goes, from the toolkit being up to the board:\n");
  std::fflush(stdout);
  Run(program);
  Duel start = MeasureBoth(
      7, [&] { Run(program + " >/dev/null"); },
      [] { Run(ProgramFolder() + "/bench_empty_window 2>/dev/null"); });
  start.Ours -= kSplashDelay;
  table.AddTimes("start less the splash's own wait, against an empty Qt main window", start, 3);
}

}  // namespace store
