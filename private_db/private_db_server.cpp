#include "private_db/private_db_server.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>
#include <utility>

#include "private_db/free_port.h"

namespace store {

PrivateDbServer::PrivateDbServer(const std::string& name, const std::string& demoData,
                                 std::function<void(const std::string& what)> failed,
                                 std::string options)
    : options_(std::move(options)), failed_(std::move(failed)), port_(FreePort()) {
  folder_ = (std::filesystem::temp_directory_path() / (name + "_XXXXXX")).string();
  if (port_ == 0 || mkdtemp(folder_.data()) == nullptr) failed_("no port or no folder: " + folder_);
  setenv("DEMO_DATA", demoData.c_str(), 1);
}

PrivateDbServer::~PrivateDbServer() { TakeAway(); }

void PrivateDbServer::Start(const std::string& more) {
  Script("start " + folder_ + " " + std::to_string(port_), more);
}
void PrivateDbServer::Stop() { Script("stop " + folder_); }
void PrivateDbServer::Kill() { Script("kill " + folder_); }

std::string PrivateDbServer::Pid() const {
  std::ifstream file(folder_ + "/server.pid");
  std::string pid;
  file >> pid;
  return pid;
}

void PrivateDbServer::Signal(int number) const {
  const std::string pid = Pid();
  if (pid.empty() || kill(std::stoi(pid), number) != 0) failed_("no server to signal");
}

// A signal is on its way when it has been sent; each thread of the server stops when it meets it.
bool PrivateDbServer::StandsStill() const {
  for (const auto& task : std::filesystem::directory_iterator("/proc/" + Pid() + "/task")) {
    std::ifstream status(task.path() / "status");
    const std::string text{std::istreambuf_iterator<char>(status), {}};
    if (text.find("\nState:\tT") == std::string::npos) return false;
  }
  return true;
}

void PrivateDbServer::Freeze() {
  Signal(SIGSTOP);
  while (!StandsStill()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

void PrivateDbServer::Thaw() { Signal(SIGCONT); }

void PrivateDbServer::TakeAway() {
  if (folder_.empty()) return;
  Kill();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
  folder_.clear();
}

void PrivateDbServer::MakeSchema(const std::string& database) {
  Script("schema " + folder_ + " " + std::to_string(port_) + " " + database);
}

void PrivateDbServer::Load(const std::string& database, const std::string& options) {
  Script("load " + folder_ + " " + std::to_string(port_) + " " + database + " " + options);
}

std::string PrivateDbServer::ServerOption(int port) {
  return "127.0.0.1;PORT=" + std::to_string(port);
}

void PrivateDbServer::Script(const std::string& arguments, const std::string& more) const {
  const std::string command = "PRIVATE_DB_OPTIONS='" + options_ + " " + more + "' " +
                              STORE_PRIVATE_DB + " " + arguments + " </dev/null";
  if (std::system(command.c_str()) != 0) failed_(command + " failed");
}

}  // namespace store
