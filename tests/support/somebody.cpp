#include "tests/support/somebody.h"

#include <gtest/gtest.h>

#include <chrono>

#include "tests/support/private_server.h"

namespace store {
namespace {

bool SomebodySleeps() {
  return TestServer().Rows("information_schema",
                           "SELECT COUNT(*) FROM PROCESSLIST WHERE STATE='User sleep'")[0][0] !=
         "0";
}

}  // namespace

Somebody::Somebody(const std::string& statements, const std::string& database)
    : works_([statements, database] {
        TestServer().Sql(database, "START TRANSACTION; " + statements);
      }) {
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
  while (!SomebodySleeps()) {
    if (std::chrono::steady_clock::now() > end) {
      ADD_FAILURE() << "nobody has come to the sleep of: " << statements;
      return;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
}

void Somebody::Leave() {
  if (works_.joinable()) works_.join();
}

}  // namespace store
