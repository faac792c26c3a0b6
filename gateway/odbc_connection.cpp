#include "gateway/odbc_connection.h"

#include <cstdlib>
#include <filesystem>
#include <mutex>

#include "basics/deployment.h"
#include "gateway/database_software.h"

namespace store {
namespace {

void FindOwnDriverList() {
  std::error_code failed;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  if (failed || !std::filesystem::exists(program.parent_path() / "odbcinst.ini", failed)) return;
  setenv("ODBCSYSINI", program.parent_path().c_str(), 0);
}

/// The driver puts names in brackets before the server's words.
std::string_view WithoutBrackets(std::string_view words) {
  while (!words.empty() && words.front() == '[' && words.find(']') != std::string_view::npos) {
    words.remove_prefix(words.find(']') + 1);
  }
  return words;
}

/// Every diagnostic record of a handle: the server's words, SQLSTATE and the server's number.
std::string Diagnostics(SQLSMALLINT handleType, SQLHANDLE handle) {
  std::string text;
  for (SQLSMALLINT record = 1;; ++record) {
    SQLCHAR state[6] = "";
    SQLINTEGER number = 0;
    SQLCHAR message[2048] = "";
    SQLSMALLINT length = 0;
    if (!SQL_SUCCEEDED(Odbc.GetDiagRec(handleType, handle, record, state, &number, message,
                                       sizeof(message), &length))) {
      return text;
    }
    if (!text.empty()) text += "\n";
    text += WithoutBrackets(reinterpret_cast<const char*>(message));
    text += std::string(" (") + reinterpret_cast<const char*>(state) + ", " +
            std::to_string(number) + ")";
  }
}

}  // namespace

SQLINTEGER ErrorNumberOf(SQLSMALLINT handleType, SQLHANDLE handle) {
  SQLCHAR state[6] = "";
  SQLINTEGER number = 0;
  SQLCHAR message[2] = "";
  SQLSMALLINT length = 0;
  Odbc.GetDiagRec(handleType, handle, 1, state, &number, message, sizeof(message), &length);
  return number;
}

bool Succeeded(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle, std::string& errorText) {
  if (SQL_SUCCEEDED(result)) return true;
  errorText = handle == SQL_NULL_HANDLE ? std::string() : Diagnostics(handleType, handle);
  if (errorText.empty()) errorText = "ODBC (HY000, " + std::to_string(result) + ")";
  return false;
}

void PointToOwnDriverList() {
  static std::once_flag done;
  std::call_once(done, FindOwnDriverList);
}

OdbcConnection::~OdbcConnection() { Close(); }

void OdbcConnection::Close() {
  // Whatever these answer, nothing is left to do with the handles.
  if (connected_) Odbc.Disconnect(handle_);
  connected_ = false;
  if (handle_ != SQL_NULL_HDBC) Odbc.FreeHandle(SQL_HANDLE_DBC, handle_);
  handle_ = SQL_NULL_HDBC;
  if (environment_ != SQL_NULL_HENV) Odbc.FreeHandle(SQL_HANDLE_ENV, environment_);
  environment_ = SQL_NULL_HENV;
}

bool OdbcConnection::Allocate(std::string& errorText) {
  // An environment of its own: a connection that has been given up then shares nothing with the one
  // that takes its place.
  return Succeeded(Odbc.AllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &environment_), SQL_HANDLE_ENV,
                   SQL_NULL_HANDLE, errorText) &&
         Succeeded(
             Odbc.SetEnvAttr(environment_, SQL_ATTR_ODBC_VERSION, AttributeValue(SQL_OV_ODBC3), 0),
             SQL_HANDLE_ENV, environment_, errorText) &&
         Succeeded(Odbc.AllocHandle(SQL_HANDLE_DBC, environment_, &handle_), SQL_HANDLE_ENV,
                   environment_, errorText);
}

bool OdbcConnection::Connect(const std::string& connectString, std::string& errorText) {
  PointToOwnDriverList();
  if (!Allocate(errorText)) return false;
  const auto timeout = static_cast<SQLULEN>(ConnectTimeout().count());
  std::string text = connectString;
  if (!Succeeded(Odbc.SetConnectAttr(handle_, SQL_ATTR_LOGIN_TIMEOUT, AttributeValue(timeout), 0),
                 SQL_HANDLE_DBC, handle_, errorText) ||
      !Succeeded(Odbc.DriverConnect(handle_, nullptr, reinterpret_cast<SQLCHAR*>(text.data()),
                                    SQL_NTS, nullptr, 0, nullptr, SQL_DRIVER_NOPROMPT),
                 SQL_HANDLE_DBC, handle_, errorText)) {
    return false;
  }
  connected_ = true;
  if (!Prepare(errorText)) return false;
  NoteDatabaseSoftware(handle_);
  NoteAnswer();
  return true;
}

bool OdbcConnection::Alive() const {
  SQLULEN dead = SQL_CD_TRUE;
  return connected_ &&
         SQL_SUCCEEDED(Odbc.GetConnectAttr(handle_, SQL_ATTR_CONNECTION_DEAD, &dead, 0, nullptr)) &&
         static_cast<SQLUINTEGER>(dead) == SQL_CD_FALSE;
}

bool OdbcConnection::RecentlyAnswered() const {
  return connected_ && std::chrono::steady_clock::now() - answered_ < std::chrono::seconds(1);
}

bool OdbcConnection::Prepare(std::string& errorText) {
  // Texts travel as UTF-8, whatever the server is set to. The driver refuses to send SET NAMES, so
  // the three variables behind it are set. The statements group by less than they select, store
  // "0000-00-00" as a date, and quote texts with single quotes in which a backslash is a letter;
  // and nobody waits for a lock for ever.
  const std::string settings =
      "SET character_set_client=utf8mb4, character_set_connection=utf8mb4, "
      "character_set_results=utf8mb4, innodb_lock_wait_timeout=" +
      std::to_string(LockWait().count()) +
      ", sql_mode=CONCAT(REPLACE(REPLACE(REPLACE(REPLACE(@@sql_mode,'ONLY_FULL_GROUP_BY',''),"
      "'NO_ZERO_IN_DATE',''),'NO_ZERO_DATE',''),'ANSI_QUOTES',''),',NO_BACKSLASH_ESCAPES')";
  if (!OdbcStatement(*this).Run(settings, errorText) || !AskWhetherMariaDb(errorText)) return false;
  if (isMariaDb_) SortWholeRows();
  AskServerId();
  return true;
}

// Only for ending a read at the server that somebody stops; without the number it runs to its end.
void OdbcConnection::AskServerId() {
  std::string ignored;
  OdbcStatement asked(*this);
  char id[24] = "";
  SQLLEN length = 0;
  if (asked.Run("SELECT CONNECTION_ID()", ignored) && SQL_SUCCEEDED(Odbc.Fetch(asked.Handle())) &&
      SQL_SUCCEEDED(Odbc.GetData(asked.Handle(), 1, SQL_C_CHAR, id, sizeof(id), &length)) &&
      length > 0 && length < static_cast<SQLLEN>(sizeof(id))) {
    serverId_.assign(id, static_cast<size_t>(length));
  }
}

void OdbcConnection::SortWholeRows() {
  // A row of the item list may be wider than this server carries through a sort by default. It then
  // sorts row numbers and fetches each row once more, which doubles the time of the whole list. A
  // server that no longer knows the setting may refuse it: the list comes all the same.
  std::string ignored;
  OdbcStatement(*this).Run("SET max_length_for_sort_data=8192", ignored);
}

bool OdbcConnection::AskWhetherMariaDb(std::string& errorText) {
  char name[64] = "";
  SQLSMALLINT length = 0;
  if (!Succeeded(Odbc.GetInfo(handle_, SQL_DBMS_NAME, name, sizeof(name), &length), SQL_HANDLE_DBC,
                 handle_, errorText)) {
    return false;
  }
  isMariaDb_ = std::string_view(name) == "MariaDB";
  return true;
}

OdbcStatement::OdbcStatement(const OdbcConnection& connection) : connection_(connection.Handle()) {
  if (!SQL_SUCCEEDED(Odbc.AllocHandle(SQL_HANDLE_STMT, connection_, &handle_))) {
    handle_ = SQL_NULL_HSTMT;  // `Run` tells it
  }
}

OdbcStatement::~OdbcStatement() {
  if (handle_ != SQL_NULL_HSTMT) Odbc.FreeHandle(SQL_HANDLE_STMT, handle_);
}

bool OdbcStatement::Run(const std::string& text, std::string& errorText) {
  if (handle_ == SQL_NULL_HSTMT) {
    return Succeeded(SQL_ERROR, SQL_HANDLE_DBC, connection_, errorText);
  }
  std::string statement = text;
  const SQLRETURN result = Odbc.ExecDirect(handle_, reinterpret_cast<SQLCHAR*>(statement.data()),
                                           static_cast<SQLINTEGER>(statement.size()));
  return result == SQL_NO_DATA || Succeeded(result, SQL_HANDLE_STMT, handle_, errorText);
}

}  // namespace store
