#include "gateway/database_software.h"

#include <mutex>
#include <utility>

namespace store {
namespace {

std::mutex Guarding;
DatabaseSoftware Known;

std::string Told(SQLHDBC connection, SQLUSMALLINT what) {
  char text[128] = "";
  SQLSMALLINT length = 0;
  if (!SQL_SUCCEEDED(Odbc.GetInfo(connection, what, text, sizeof(text), &length))) return {};
  return text;
}

}  // namespace

DatabaseSoftware KnownDatabaseSoftware() {
  const std::lock_guard lock(Guarding);
  return Known;
}

void NoteDatabaseSoftware(SQLHDBC connection) {
  DatabaseSoftware told{
      .DriverManager = Told(connection, SQL_DM_VER),
      .Driver = Told(connection, SQL_DRIVER_NAME) + " " + Told(connection, SQL_DRIVER_VER),
      .Server = Told(connection, SQL_DBMS_NAME) + " " + Told(connection, SQL_DBMS_VER)};
  const std::lock_guard lock(Guarding);
  Known = std::move(told);
}

}  // namespace store
