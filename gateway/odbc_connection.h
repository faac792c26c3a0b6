#pragma once

#include <atomic>
#include <chrono>
#include <string>

#include "gateway/odbc_api.h"

namespace store {

/// A connection to a data source, with the session settings that the statements rely on. All calls
/// but `GiveUp` come from one thread, and each may take as long as the network likes.
class OdbcConnection {
 public:
  OdbcConnection() = default;
  ~OdbcConnection();
  OdbcConnection(const OdbcConnection&) = delete;
  OdbcConnection& operator=(const OdbcConnection&) = delete;

  /// Connects with the string as composed. False on failure, with the reason in `errorText`.
  bool Connect(const std::string& connectString, std::string& errorText);
  /// Ends the connection and gives everything back. What it had not committed is undone.
  void Close();
  /// Asks the server, without running anything, whether the connection still stands.
  bool Alive() const;
  /// Remembers that the server has just answered, and whether it did so within the last second.
  void NoteAnswer() { answered_ = std::chrono::steady_clock::now(); }
  bool RecentlyAnswered() const;

  /// Says that nobody waits any more for what runs on the connection. From any thread.
  void GiveUp() { givenUp_ = true; }
  /// Whether that is so: a batch that has not been sent, or not committed, then must not be.
  bool GivenUp() const { return givenUp_; }

  SQLHDBC Handle() const { return handle_; }
  /// The server's number of this connection; empty where it has not said one.
  const std::string& ServerId() const { return serverId_; }
  /// Whether the server runs a compound block sent as one statement.
  bool RunsCompoundBlocks() const { return isMariaDb_; }

 private:
  bool Allocate(std::string& errorText);
  bool Prepare(std::string& errorText);
  bool AskWhetherMariaDb(std::string& errorText);
  void SortWholeRows();
  void AskServerId();

  SQLHENV environment_ = SQL_NULL_HENV;
  SQLHDBC handle_ = SQL_NULL_HDBC;
  bool connected_ = false;
  bool isMariaDb_ = false;
  std::string serverId_;
  std::atomic<bool> givenUp_{false};
  std::chrono::steady_clock::time_point answered_{};
};

/// Points the driver manager to the driver list beside the program, which gives the driver its old
/// name. A deployment that sets ODBCSYSINI has a list of its own. To be called before a connection
/// is made on another thread, as it changes the environment.
void PointToOwnDriverList();

/// The server's number of a handle's first diagnostic record; 0 without one.
SQLINTEGER ErrorNumberOf(SQLSMALLINT handleType, SQLHANDLE handle);

/// One statement handle of a connection.
class OdbcStatement {
 public:
  explicit OdbcStatement(const OdbcConnection& connection);
  ~OdbcStatement();
  OdbcStatement(const OdbcStatement&) = delete;
  OdbcStatement& operator=(const OdbcStatement&) = delete;

  SQLHSTMT Handle() const { return handle_; }
  /// Sends the text. False on failure, with every diagnostic record in `errorText`.
  bool Run(const std::string& text, std::string& errorText);
  /// The server's number of what made it fail; 0 when nothing did, or not by the server's word.
  SQLINTEGER ErrorNumber() const { return ErrorNumberOf(SQL_HANDLE_STMT, handle_); }

 private:
  SQLHDBC connection_;
  SQLHSTMT handle_ = SQL_NULL_HSTMT;
};

/// A number in the place of a pointer, which is how ODBC takes the values of attributes.
inline SQLPOINTER AttributeValue(SQLULEN number) {
  return reinterpret_cast<SQLPOINTER>(number);  // NOLINT(performance-no-int-to-ptr): see above
}

/// Whether a call on a handle succeeded. If not, `errorText` has the reason and is never empty.
bool Succeeded(SQLRETURN result, SQLSMALLINT handleType, SQLHANDLE handle, std::string& errorText);

}  // namespace store
