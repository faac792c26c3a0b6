#include "tests/soak/clerks.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "tests/soak/franchise.h"

namespace store {
namespace {

constexpr int kOrderlyEnds[] = {0, 10, 11};  // as in clerk_end
constexpr auto kPatience = std::chrono::seconds(20);

}  // namespace

Clerks::Clerks(std::string program, const std::string& folder, std::vector<int> ports, int stores,
               unsigned seed, Findings& findings)
    : program_(std::move(program)),
      ports_(std::move(ports)),
      stores_(stores),
      seed_(seed),
      findings_(findings) {
  for (int store = 0; store < stores; ++store) {
    for (int terminal = 0; terminal < kTerminals; ++terminal) {
      const std::string own = folder + "/" + StoreCodeOf(store) + "." + std::to_string(terminal);
      std::filesystem::remove_all(own);  // what an earlier run has left
      std::filesystem::create_directories(own);
      clerks_.push_back({store, terminal, own, 0, DayLogReader(own + "/log")});
    }
  }
}

Clerks::~Clerks() {
  for (Clerk& clerk : clerks_) {
    if (clerk.Pid == 0) continue;
    kill(clerk.Pid, SIGKILL);
    waitpid(clerk.Pid, nullptr, 0);
  }
}

std::string Clerks::PortsOf(const Clerk& clerk) const {
  std::string ports;
  for (size_t i = 0; i < ports_.size(); ++i) {
    const size_t turn = static_cast<size_t>(clerk.Store + clerk.Terminal) + i;
    ports += (i == 0 ? "" : ",") + std::to_string(ports_[turn % ports_.size()]);
  }
  return ports;
}

void Clerks::Start(Clerk& clerk) {
  const std::string numbers[] = {PortsOf(clerk), std::to_string(clerk.Store),
                                 std::to_string(clerk.Terminal), std::to_string(stores_),
                                 std::to_string(seed_)};
  clerk.Pid = fork();
  if (clerk.Pid != 0) return;
  std::signal(SIGINT, SIG_IGN);      // of the terminal on which the driver was started
  prctl(PR_SET_PDEATHSIG, SIGKILL);  // nobody works on when the driver is gone
  // What a clerk keeps for the user goes to the terminal's own folder. Nobody waits long here: a
  // mute server must not stop a day.
  setenv("HOME", clerk.Folder.c_str(), 1);
  setenv("XDG_DATA_HOME", clerk.Folder.c_str(), 1);
  setenv("STORE_READ_LIMIT", "3", 1);
  setenv("STORE_BATCH_LIMIT", "5", 1);
  setenv("STORE_LOCK_WAIT", "2", 1);
  const int words = open((clerk.Folder + "/words").c_str(), O_WRONLY | O_APPEND | O_CREAT, 0600);
  dup2(words, STDOUT_FILENO);
  dup2(words, STDERR_FILENO);
  execl(program_.c_str(), program_.c_str(), clerk.Folder.c_str(), numbers[0].c_str(),
        numbers[1].c_str(), numbers[2].c_str(), numbers[3].c_str(), numbers[4].c_str(), nullptr);
  _exit(127);
}

/// A kill is a fault of ours; anything else that ends a clerk is a fault of the program's.
void Clerks::Ended(Clerk& clerk, int status) {
  clerk.Pid = 0;
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) return;
  if (WIFEXITED(status)) {
    for (const int code : kOrderlyEnds) {
      if (WEXITSTATUS(status) == code) return;
    }
  }
  findings_.Add("a clerk's program that ended by itself", clerk.Folder,
                "status " + std::to_string(status));
}

void Clerks::KeepWorking() {
  for (Clerk& clerk : clerks_) {
    int status = 0;
    if (clerk.Pid != 0 && waitpid(clerk.Pid, &status, WNOHANG) == clerk.Pid) Ended(clerk, status);
    if (clerk.Pid == 0) Start(clerk);
  }
}

void Clerks::KillOne(std::mt19937& random) {
  const Clerk& clerk = clerks_[random() % clerks_.size()];
  if (clerk.Pid != 0) kill(clerk.Pid, SIGKILL);
}

void Clerks::SendHome() {
  for (const Clerk& clerk : clerks_) {
    if (clerk.Pid != 0) kill(clerk.Pid, SIGTERM);
  }
  const auto limit = std::chrono::steady_clock::now() + kPatience;
  for (Clerk& clerk : clerks_) {
    int status = 0;
    while (clerk.Pid != 0) {
      if (waitpid(clerk.Pid, &status, WNOHANG) == clerk.Pid) {
        Ended(clerk, status);
      } else if (std::chrono::steady_clock::now() > limit) {
        findings_.Add("a clerk's program that does not come to its end", clerk.Folder, "");
        kill(clerk.Pid, SIGKILL);
      }
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  }
}

}  // namespace store
