#include "gateway/odbc_connection.h"

#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <mutex>
#include <thread>

namespace store {
namespace {

/// A limit of the data tier: a default that a deployment may change by an environment variable.
unsigned LimitInSeconds(const char* variable, unsigned standard) {
  const char* set = std::getenv(variable);
  const long seconds = set == nullptr ? 0 : std::strtol(set, nullptr, 10);
  return seconds > 0 ? static_cast<unsigned>(seconds) : standard;
}

unsigned ConnectTimeout() { return LimitInSeconds("STORE_CONNECT_TIMEOUT", 5); }
unsigned LockWait() { return LimitInSeconds("STORE_LOCK_WAIT", 10); }

/// The driver list beside the program gives the driver its old name. A deployment that sets
/// ODBCSYSINI has a list of its own.
void PointToOwnDriverList() {
  std::error_code failed;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  if (failed || !std::filesystem::exists(program.parent_path() / "odbcinst.ini", failed)) return;
  setenv("ODBCSYSINI", program.parent_path().c_str(), 0);
}

/// The driver manager's environment, for the life of the process.
class OdbcEnvironment {
 public:
  OdbcEnvironment() {
    PointToOwnDriverList();
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &handle_);
    SQLSetEnvAttr(handle_, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
  }
  ~OdbcEnvironment() { SQLFreeHandle(SQL_HANDLE_ENV, handle_); }
  OdbcEnvironment(const OdbcEnvironment&) = delete;
  OdbcEnvironment& operator=(const OdbcEnvironment&) = delete;
  SQLHENV Handle() const { return handle_; }

 private:
  SQLHENV handle_ = SQL_NULL_HENV;
};

SQLHENV Environment() {
  static const OdbcEnvironment environment;
  return environment.Handle();
}

/// One login, made beside the program's own thread: the driver's time-out covers the way to the
/// server, but neither a name that nobody resolves nor a server that takes the call and stays mute.
class ConnectAttempt {
 public:
  ConnectAttempt(SQLHDBC connection, std::string connectString)
      : connection_(connection), connectString_(std::move(connectString)) {}

  void Run() {
    const SQLRETURN result =
        SQLDriverConnect(connection_, nullptr, reinterpret_cast<SQLCHAR*>(connectString_.data()),
                         SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT);
    const std::lock_guard<std::mutex> lock(mutex_);
    if (abandoned_) {
      if (SQL_SUCCEEDED(result)) SQLDisconnect(connection_);
      SQLFreeHandle(SQL_HANDLE_DBC, connection_);
    }
    result_ = result;
    done_ = true;
    finished_.notify_all();
  }

  /// False when the attempt has not come back in time; the connection is then its own to free.
  bool WaitUntil(std::chrono::seconds limit) {
    std::unique_lock<std::mutex> lock(mutex_);
    abandoned_ = !finished_.wait_for(lock, limit, [this] { return done_; });
    return !abandoned_;
  }
  SQLRETURN Result() const { return result_; }

 private:
  SQLHDBC connection_;
  std::string connectString_;
  std::mutex mutex_;
  std::condition_variable finished_;
  SQLRETURN result_ = SQL_ERROR;
  bool done_ = false;
  bool abandoned_ = false;
};

}  // namespace

OdbcConnection::OdbcConnection() {
  SQLAllocHandle(SQL_HANDLE_DBC, Environment(), &handle_);
  SQLSetConnectAttr(handle_, SQL_ATTR_LOGIN_TIMEOUT, AttributeValue(ConnectTimeout()), 0);
}

OdbcConnection::~OdbcConnection() {
  Disconnect();
  if (handle_ != SQL_NULL_HDBC) SQLFreeHandle(SQL_HANDLE_DBC, handle_);
}

bool OdbcConnection::Connect(const std::string& connectString, std::string& errorText) {
  const auto attempt = std::make_shared<ConnectAttempt>(handle_, connectString);
  std::thread([attempt] { attempt->Run(); }).detach();
  if (!attempt->WaitUntil(std::chrono::seconds(ConnectTimeout() + 1))) {
    handle_ = SQL_NULL_HDBC;  // the attempt frees it whenever it comes back
    errorText = "데이터서버가 응답하지 않습니다.";
    return false;
  }
  if (!SQL_SUCCEEDED(attempt->Result())) {
    errorText = Diagnostics(SQL_HANDLE_DBC, handle_);
    return false;
  }
  connected_ = true;
  return Prepare(errorText);
}

void OdbcConnection::Disconnect() {
  if (connected_) SQLDisconnect(handle_);
  connected_ = false;
}

bool OdbcConnection::Alive() const {
  SQLULEN dead = SQL_CD_TRUE;
  return connected_ &&
         SQL_SUCCEEDED(SQLGetConnectAttr(handle_, SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr)) &&
         static_cast<SQLUINTEGER>(dead) == SQL_CD_FALSE;
}

bool OdbcConnection::AnsweredLately() const {
  return connected_ && std::chrono::steady_clock::now() - answered_ < std::chrono::seconds(1);
}

OdbcConnection* ConnectionTo(const std::string& connectString, bool trustLately,
                             std::string& errorText) {
  Environment();  // made first, so that it outlives the connection
  static std::unique_ptr<OdbcConnection> kept;
  static std::string keptString;
  if (kept && keptString == connectString &&
      ((trustLately && kept->AnsweredLately()) || kept->Alive())) {
    return kept.get();
  }
  kept = std::make_unique<OdbcConnection>();
  keptString = connectString;
  if (!kept->Connect(connectString, errorText)) kept.reset();
  return kept.get();
}

bool OdbcConnection::Prepare(std::string& errorText) {
  // The statements group by less than they select, store "0000-00-00" as a date, and quote texts
  // with single quotes in which a backslash escapes; and nobody waits for a lock for ever.
  const std::string settings =
      "SET innodb_lock_wait_timeout=" + std::to_string(LockWait()) +
      ", sql_mode=REPLACE(REPLACE(REPLACE(REPLACE(REPLACE(@@sql_mode,'ONLY_FULL_GROUP_BY',''),"
      "'NO_ZERO_IN_DATE',''),'NO_ZERO_DATE',''),'NO_BACKSLASH_ESCAPES',''),'ANSI_QUOTES','')";
  if (!OdbcStatement(*this).Run(settings, errorText)) return false;
  if (IsMariaDb()) SortWholeRows();
  return true;
}

void OdbcConnection::SortWholeRows() {
  // A row of the item list may be wider than this server carries through a sort by default. It then
  // sorts row numbers and fetches each row once more, which doubles the time of the whole list. A
  // server that no longer knows the setting may refuse it: the list comes all the same.
  std::string ignored;
  OdbcStatement(*this).Run("SET max_length_for_sort_data=8192", ignored);
}

bool OdbcConnection::IsMariaDb() const {
  char name[64] = "";
  SQLSMALLINT length = 0;
  SQLGetInfo(handle_, SQL_DBMS_NAME, name, sizeof(name), &length);
  return std::string_view(name) == "MariaDB";
}

bool OdbcConnection::RunsCompoundBlocks() const { return IsMariaDb(); }

OdbcStatement::OdbcStatement(const OdbcConnection& connection) {
  SQLAllocHandle(SQL_HANDLE_STMT, connection.Handle(), &handle_);
}

OdbcStatement::~OdbcStatement() { SQLFreeHandle(SQL_HANDLE_STMT, handle_); }

bool OdbcStatement::Run(const std::string& text, std::string& errorText) {
  std::string statement = text;
  const SQLRETURN result = SQLExecDirect(handle_, reinterpret_cast<SQLCHAR*>(statement.data()),
                                         static_cast<SQLINTEGER>(statement.size()));
  if (SQL_SUCCEEDED(result) || result == SQL_NO_DATA) return true;
  errorText = Diagnostics(SQL_HANDLE_STMT, handle_);
  if (errorText.empty()) errorText = "HY000";
  return false;
}

std::string Diagnostics(SQLSMALLINT handleType, SQLHANDLE handle) {
  std::string text;
  for (SQLSMALLINT record = 1;; ++record) {
    SQLCHAR state[6] = "";
    SQLINTEGER number = 0;
    SQLCHAR message[2048] = "";
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(SQLGetDiagRec(handleType, handle, record, state, &number, message,
                                     sizeof(message), &length))) {
      return text;
    }
    std::string_view words(reinterpret_cast<const char*>(message));
    while (!words.empty() && words.front() == '[' && words.find(']') != std::string_view::npos) {
      words.remove_prefix(words.find(']') + 1);
    }
    if (!text.empty()) text += "\n";
    text += std::string(words) + " (" + reinterpret_cast<const char*>(state) + ", " +
            std::to_string(number) + ")";
  }
}

}  // namespace store
