#pragma once

#include <string>

#include "gateway/odbc_api.h"

namespace store {

/// What serves the last connection that was made: each a name with its version, as the driver
/// manager, the driver and the server tell it. Empty before there was one.
struct DatabaseSoftware {
  std::string DriverManager;
  std::string Driver;
  std::string Server;

  bool operator==(const DatabaseSoftware&) const = default;
};

/// From any thread, as is the next.
DatabaseSoftware KnownDatabaseSoftware();

/// Asks a connection that stands, and keeps what it says. What it does not tell stays empty.
void NoteDatabaseSoftware(SQLHDBC connection);

}  // namespace store
