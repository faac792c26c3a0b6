#pragma once

#include <string>

namespace store {

/// What a deployment decides for all its workstations: a default of the build, which an environment
/// variable of the same meaning overrides unless it is empty.

/// Host of the directory database, as the SERVER of a connection string ("host" or
/// "host;PORT=number"). Variable STORE_DIRECTORY_SERVER.
std::string DirectoryServer();

/// Where the product's web pages stand, with the slash at the end. Variable STORE_WEB_HOST.
std::string WebHost();

}  // namespace store
