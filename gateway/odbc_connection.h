#pragma once

#include <sql.h>
#include <sqlext.h>

#include <chrono>
#include <string>

namespace store {

/// A connection to a data source, with the session settings that the statements rely on.
class OdbcConnection {
 public:
  OdbcConnection();
  ~OdbcConnection();
  OdbcConnection(const OdbcConnection&) = delete;
  OdbcConnection& operator=(const OdbcConnection&) = delete;

  /// Connects with the string as composed. False on failure, with the reason in `errorText`.
  bool Connect(const std::string& connectString, std::string& errorText);
  void Disconnect();
  /// Asks the server, without running anything, whether the connection still stands.
  bool Alive() const;
  /// Remembers that the server has just answered, and whether it did so within the last second.
  void NoteAnswer() { answered_ = std::chrono::steady_clock::now(); }
  bool AnsweredLately() const;

  SQLHDBC Handle() const { return handle_; }
  /// Whether the server runs a compound block sent as one statement.
  bool RunsCompoundBlocks() const;

 private:
  bool Prepare(std::string& errorText);
  void SortWholeRows();
  bool IsMariaDb() const;

  SQLHDBC handle_ = SQL_NULL_HDBC;
  bool connected_ = false;
  std::chrono::steady_clock::time_point answered_{};
};

/// The connection of this process to what `connectString` names. It is kept from call to call, as
/// logging in costs forty times as much as a small read; one that has died is noticed before
/// anything is sent over it, and a fresh one takes its place. With `trustLately` a connection on
/// which the server has just answered is not asked first. Nothing when the source cannot be
/// reached, with the reason in `errorText`.
OdbcConnection* ConnectionTo(const std::string& connectString, bool trustLately,
                             std::string& errorText);

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

 private:
  SQLHSTMT handle_ = SQL_NULL_HSTMT;
};

/// A number in the place of a pointer, which is how ODBC takes the values of attributes.
inline SQLPOINTER AttributeValue(SQLULEN number) {
  return reinterpret_cast<SQLPOINTER>(number);  // NOLINT(performance-no-int-to-ptr): see above
}

/// Every diagnostic record of a handle: the server's words without the driver's own brackets,
/// followed by SQLSTATE and the server's number.
std::string Diagnostics(SQLSMALLINT handleType, SQLHANDLE handle);

}  // namespace store
