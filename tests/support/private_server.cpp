#include "tests/support/private_server.h"

#include <gtest/gtest.h>
#include <mysql.h>

#include <fstream>
#include <sstream>

#include "basics/records.h"
#include "gateway/gateway.h"
#include "slips/process_state.h"

namespace store {
namespace {

/// A connection of the test's own, closed at the end of the statement that made it.
class ClientConnection {
 public:
  ClientConnection(int port, const std::string& database) : client_(mysql_init(nullptr)) {
    mysql_options(client_, MYSQL_SET_CHARSET_NAME, "utf8mb4");
    if (mysql_real_connect(client_, "127.0.0.1", "kt", "qz4471", database.c_str(),
                           static_cast<unsigned>(port), nullptr,
                           CLIENT_MULTI_STATEMENTS) == nullptr) {
      ADD_FAILURE() << "the test's own connection: " << mysql_error(client_);
    }
    mysql_set_character_set(client_, "utf8mb4");  // a server may pass over what the login asked for
  }
  ~ClientConnection() { mysql_close(client_); }
  ClientConnection(const ClientConnection&) = delete;
  ClientConnection& operator=(const ClientConnection&) = delete;

  std::vector<std::vector<std::string>> Run(const std::string& statements) {
    std::vector<std::vector<std::string>> rows;
    int next = mysql_real_query(client_, statements.c_str(), statements.size());
    while (next == 0) {
      if (MYSQL_RES* result = mysql_store_result(client_)) {
        while (MYSQL_ROW row = mysql_fetch_row(result)) {
          const unsigned long* lengths = mysql_fetch_lengths(result);
          rows.emplace_back();
          for (unsigned i = 0; i < mysql_num_fields(result); ++i) {
            rows.back().push_back(row[i] ? std::string(row[i], lengths[i]) : "(null)");
          }
        }
        mysql_free_result(result);
      }
      next = mysql_next_result(client_);
    }
    if (next > 0) ADD_FAILURE() << statements << "\n" << mysql_error(client_);
    return rows;
  }

 private:
  MYSQL* client_;
};

const char* const kSmall = "small";

}  // namespace

PrivateServer::PrivateServer(const std::string& options)
    : PrivateDbServer(
          "store_test", STORE_DEMO_DATA, [](const std::string& what) { ADD_FAILURE() << what; },
          options) {}

void PrivateServer::Sql(const std::string& database, const std::string& statements) {
  ClientConnection(Port(), database).Run(statements);
}

std::vector<std::vector<std::string>> PrivateServer::Rows(const std::string& database,
                                                          const std::string& select) {
  return ClientConnection(Port(), database).Run(select);
}

PrivateServer& TestServer() {
  static PrivateServer server;
  static const bool started = [] {
    server.Start();
    return true;
  }();
  (void)started;
  return server;
}

void UseSmallStore() {
  PrivateServer& server = TestServer();
  static const std::string content = [&] {
    server.MakeSchema(kSmall);
    std::ifstream file(STORE_SMALL_STORE);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }();
  ResetProcessState();
  AppOptions.DataServer = server.ServerOption();
  AppOptions.CompanyId = kSmall;
  AppOptions.DbUser = "kt";
  BuildConnectString(AppOptions.DataServer, AppOptions.DbUser, AppOptions.CompanyId);
  server.Sql(kSmall, content);
}

void Sql(const std::string& statements) { TestServer().Sql(kSmall, statements); }

std::vector<std::vector<std::string>> Rows(const std::string& select) {
  return TestServer().Rows(kSmall, select);
}

std::string Value(const std::string& select) {
  const auto rows = Rows(select);
  if (rows.size() != 1 || rows[0].size() != 1) {
    ADD_FAILURE() << select << " gave " << rows.size() << " rows";
    return {};
  }
  return rows[0][0];
}

}  // namespace store
