#include "basics/deployment.h"

#include <cstdlib>

namespace store {
namespace {

std::string FromEnvironment(const char* variable, const char* standard) {
  const char* set = std::getenv(variable);
  return set != nullptr && *set != '\0' ? set : standard;
}

}  // namespace

std::string DirectoryServer() {
  return FromEnvironment("STORE_DIRECTORY_SERVER", STORE_DIRECTORY_SERVER);
}

std::string WebHost() { return FromEnvironment("STORE_WEB_HOST", STORE_WEB_HOST); }

}  // namespace store
