#include "basics/deployment.h"

#include <cstdlib>

namespace store {
namespace {

std::string FromEnvironment(const char* variable, const char* standard) {
  const char* set = std::getenv(variable);
  return set != nullptr && *set != '\0' ? set : standard;
}

std::chrono::seconds SecondsFromEnvironment(const char* variable, int standard) {
  const long seconds = std::strtol(FromEnvironment(variable, "").c_str(), nullptr, 10);
  return std::chrono::seconds(seconds > 0 && seconds < 1'000'000 ? seconds : standard);
}

}  // namespace

std::string DirectoryServer() {
  return FromEnvironment("STORE_DIRECTORY_SERVER", STORE_DIRECTORY_SERVER);
}

std::string WebHost() { return FromEnvironment("STORE_WEB_HOST", STORE_WEB_HOST); }

std::string TransferToolPath() { return FromEnvironment("STORE_TRANSFER_TOOL", ""); }
std::string SerialDevice(int port) {
  if (port < 1 || port > 4) return {};
#ifdef _WIN32
  const std::string standard = "COM" + std::to_string(port);
#else
  const std::string standard = "/dev/ttyS" + std::to_string(port - 1);
#endif
  return FromEnvironment(("STORE_COM" + std::to_string(port)).c_str(), standard.c_str());
}

std::string DataFolder() {
  constexpr const char* kOurs = "/store-client";
  const std::string data = FromEnvironment("XDG_DATA_HOME", "");
  const std::string home = FromEnvironment("HOME", "");
  std::string standard;
  if (!data.empty()) {
    standard = data + kOurs;
  } else if (!home.empty()) {
    standard = home + "/.local/share" + kOurs;
  }
  return FromEnvironment("STORE_DATA_FOLDER", standard.c_str());
}

std::chrono::seconds ConnectTimeout() { return SecondsFromEnvironment("STORE_CONNECT_TIMEOUT", 5); }
std::chrono::seconds LockWait() { return SecondsFromEnvironment("STORE_LOCK_WAIT", 4); }
std::chrono::seconds ReadLimit() { return SecondsFromEnvironment("STORE_READ_LIMIT", 20); }
std::chrono::seconds BatchLimit() { return SecondsFromEnvironment("STORE_BATCH_LIMIT", 20); }

}  // namespace store
