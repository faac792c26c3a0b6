#include "gateway/direct_batch.h"

#include <algorithm>
#include <array>

#include "gateway/byte_search.h"

namespace store {
namespace {

constexpr size_t kLargestBlock = 8 << 20;  // well under the packet limit that servers start with

std::string_view FirstWord(const std::string& statement) {
  const size_t begin = statement.find_first_not_of(" \t\r\n");
  if (begin == std::string::npos) return {};
  const size_t end = statement.find_first_of(" \t\r\n(", begin);
  return std::string_view(statement).substr(begin, end - begin);
}

/// Position behind the quoted text that begins at `at`, or npos when it is not closed.
size_t BehindQuoted(const std::string& statement, size_t at) {
  const char quote = statement[at];
  for (size_t i = at + 1; i < statement.size(); ++i) {
    if (statement[i] == '\\' && quote != '`') {
      ++i;
    } else if (statement[i] == quote) {
      return i + 1;
    }
  }
  return std::string::npos;
}

std::string ComposeBlock(const std::vector<std::string>& statements) {
  std::string block =
      "BEGIN NOT ATOMIC "
      "DECLARE EXIT HANDLER FOR SQLEXCEPTION BEGIN ROLLBACK; RESIGNAL; END; "
      "START TRANSACTION;\n";
  for (const std::string& statement : statements) block += statement + ";\n";
  return block + "COMMIT; END";
}

bool SwitchAutocommit(const OdbcConnection& connection, SQLULEN mode) {
  return SQL_SUCCEEDED(
      SQLSetConnectAttr(connection.Handle(), SQL_ATTR_AUTOCOMMIT, AttributeValue(mode), 0));
}

bool RunOneByOne(OdbcConnection& connection, const std::vector<std::string>& statements,
                 std::string& errorText) {
  if (!SwitchAutocommit(connection, SQL_AUTOCOMMIT_OFF)) {
    errorText = Diagnostics(SQL_HANDLE_DBC, connection.Handle());
    return false;
  }
  bool done = std::all_of(statements.begin(), statements.end(), [&](const std::string& statement) {
    return OdbcStatement(connection).Run(statement, errorText);
  });
  if (done && !SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection.Handle(), SQL_COMMIT))) {
    errorText = Diagnostics(SQL_HANDLE_DBC, connection.Handle());
    done = false;
  }
  if (!done) SQLEndTran(SQL_HANDLE_DBC, connection.Handle(), SQL_ROLLBACK);
  // A connection left inside a transaction must not serve the next call.
  if (!SwitchAutocommit(connection, SQL_AUTOCOMMIT_ON)) connection.Disconnect();
  return done;
}

}  // namespace

bool StandsInBlock(const std::string& statement) {
  static constexpr std::array<std::string_view, 4> words = {"INSERT", "UPDATE", "DELETE",
                                                            "REPLACE"};
  const std::string_view first = FirstWord(statement);
  if (std::none_of(words.begin(), words.end(),
                   [&](std::string_view word) { return SameFolded(word, first); })) {
    return false;
  }
  for (size_t i = 0; i < statement.size();) {
    const char c = statement[i];
    if (c == '\'' || c == '"' || c == '`') {
      i = BehindQuoted(statement, i);
      if (i == std::string::npos) return false;
      continue;
    }
    const std::string_view two = std::string_view(statement).substr(i, 2);
    if (c == ';' || c == '#' || c == '\0' || c == '\\' || two == "--" || two == "/*") return false;
    ++i;
  }
  return true;
}

bool RunAsOneTransaction(OdbcConnection& connection, const std::vector<std::string>& statements,
                         std::string& errorText) {
  const std::string block = ComposeBlock(statements);
  if (connection.RunsCompoundBlocks() && block.size() <= kLargestBlock &&
      std::all_of(statements.begin(), statements.end(), StandsInBlock)) {
    return OdbcStatement(connection).Run(block, errorText);
  }
  return RunOneByOne(connection, statements, errorText);
}

}  // namespace store
