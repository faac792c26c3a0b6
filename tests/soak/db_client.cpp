#include "tests/soak/db_client.h"

#include <mysql.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "tests/soak/franchise.h"

namespace store {
namespace {

constexpr auto kPatience = std::chrono::minutes(1);

}  // namespace

DbClient::~DbClient() {
  if (client_ != nullptr) mysql_close(client_);
}

bool DbClient::Connect() {
  if (client_ != nullptr) return true;
  client_ = mysql_init(nullptr);
  mysql_options(client_, MYSQL_SET_CHARSET_NAME, "utf8mb4");
  if (mysql_real_connect(client_, "127.0.0.1", "kt", "qz4471", kCompany,
                         static_cast<unsigned>(ports_[next_]), nullptr,
                         CLIENT_MULTI_STATEMENTS) != nullptr) {
    return true;
  }
  Leave();
  return false;
}

/// What failed here may work at the next server.
void DbClient::Leave() {
  Error = mysql_error(client_);
  mysql_close(client_);
  client_ = nullptr;
  next_ = (next_ + 1) % ports_.size();
}

bool DbClient::Send(const std::string& statements, Rows& rows) {
  if (!Connect()) return false;
  int next = mysql_real_query(client_, statements.c_str(), statements.size());
  while (next == 0) {
    if (MYSQL_RES* result = mysql_store_result(client_)) {
      rows.clear();
      while (MYSQL_ROW row = mysql_fetch_row(result)) {
        const unsigned long* lengths = mysql_fetch_lengths(result);
        rows.emplace_back();
        for (unsigned i = 0; i < mysql_num_fields(result); ++i) {
          rows.back().emplace_back(row[i] == nullptr ? "" : row[i],
                                   row[i] == nullptr ? 0 : lengths[i]);
        }
      }
      mysql_free_result(result);
    }
    next = mysql_next_result(client_);
  }
  if (next < 0) return true;
  Leave();
  return false;
}

bool DbClient::Run(const std::string& statements) {
  Rows ignored;
  return Send(statements, ignored);
}

Rows DbClient::Select(const std::string& statements) {
  Rows rows;
  const auto limit = std::chrono::steady_clock::now() + kPatience;
  do {
    if (Send(statements, rows)) return rows;
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
  } while (std::chrono::steady_clock::now() < limit);
  std::fprintf(stderr, "soak_days: %s\n%s\n", Error.c_str(), statements.substr(0, 500).c_str());
  std::exit(2);
}

}  // namespace store
