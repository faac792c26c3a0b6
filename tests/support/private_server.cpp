#include "tests/support/private_server.h"

#include <gtest/gtest.h>
#include <mysql.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "basics/records.h"
#include "gateway/gateway.h"
#include "private_db/free_port.h"
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

PrivateServer::PrivateServer(std::string options)
    : options_(std::move(options)), port_(FreePort()) {
  std::string folder = (std::filesystem::temp_directory_path() / "store_test_XXXXXX").string();
  if (port_ == 0 || mkdtemp(folder.data()) == nullptr)
    ADD_FAILURE() << "no port or no folder for the test's server";
  folder_ = folder;
  setenv("DEMO_DATA", STORE_DEMO_DATA, 1);
}

PrivateServer::~PrivateServer() {
  Kill();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void PrivateServer::Script(const std::string& arguments) const {
  const std::string command =
      "PRIVATE_DB_OPTIONS='" + options_ + "' " + STORE_PRIVATE_DB + " " + arguments + " </dev/null";
  if (std::system(command.c_str()) != 0) ADD_FAILURE() << command;
}

void PrivateServer::Start() { Script("start " + folder_ + " " + std::to_string(port_)); }
void PrivateServer::Stop() { Script("stop " + folder_); }
void PrivateServer::Kill() { Script("kill " + folder_); }

void PrivateServer::Signal(int number) const {
  std::ifstream file(folder_ + "/server.pid");
  pid_t pid = 0;
  if (!(file >> pid) || kill(pid, number) != 0) ADD_FAILURE() << "no server to signal";
}

void PrivateServer::Freeze() {
  Signal(SIGSTOP);
  // A signal is on its way when it has been sent; each thread stops when it meets it.
  const auto standsStill = [this] {
    std::ifstream file(folder_ + "/server.pid");
    std::string pid;
    file >> pid;
    for (const auto& task : std::filesystem::directory_iterator("/proc/" + pid + "/task")) {
      std::ifstream status(task.path() / "status");
      const std::string text{std::istreambuf_iterator<char>(status), {}};
      if (text.find("\nState:\tT") == std::string::npos) return false;
    }
    return true;
  };
  while (!standsStill()) usleep(1000);
}
void PrivateServer::Thaw() { Signal(SIGCONT); }

std::string PrivateServer::ServerOption() const {
  return "127.0.0.1;PORT=" + std::to_string(port_);
}

void PrivateServer::MakeSchema(const std::string& database) {
  Script("schema " + folder_ + " " + std::to_string(port_) + " " + database);
}

void PrivateServer::LoadDemo(const std::string& options) {
  Script("load " + folder_ + " " + std::to_string(port_) + " demo " + options);
}

void PrivateServer::Sql(const std::string& database, const std::string& statements) {
  ClientConnection(port_, database).Run(statements);
}

std::vector<std::vector<std::string>> PrivateServer::Rows(const std::string& database,
                                                          const std::string& select) {
  return ClientConnection(port_, database).Run(select);
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
