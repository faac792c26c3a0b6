#include "gateway/direct_batch.h"

#include <algorithm>
#include <array>
#include <utility>

#include "gateway/byte_search.h"

namespace store {
namespace {

/// The driver looks through all that follows at each quoted text, so that a block of a megabyte
/// costs it more time than the server. Up to the first size the one round trip is worth it.
constexpr size_t kLargestBlock = 256 << 10;
constexpr size_t kLargestPart = 32 << 10;

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

/// A part of a transaction that somebody else begins and ends.
std::string ComposePart(const std::string& statements) {
  return "BEGIN NOT ATOMIC\n" + statements + "END";
}

/// The statements as few parts of a transaction; one that does not stand in a block is a part by
/// itself.
std::vector<std::string> PartsOf(const std::vector<std::string>& statements) {
  std::vector<std::string> parts;
  std::string open;
  const auto close = [&] {
    if (!open.empty()) parts.push_back(ComposePart(std::exchange(open, {})));
  };
  for (const std::string& statement : statements) {
    if (open.size() + statement.size() > kLargestPart) close();
    if (StandsInBlock(statement)) {
      open += statement + ";\n";
    } else {
      close();
      parts.push_back(statement);
    }
  }
  close();
  return parts;
}

bool SwitchAutocommit(const OdbcConnection& connection, SQLULEN mode, std::string& errorText) {
  return Succeeded(
      Odbc.SetConnectAttr(connection.Handle(), SQL_ATTR_AUTOCOMMIT, AttributeValue(mode), 0),
      SQL_HANDLE_DBC, connection.Handle(), errorText);
}

bool EndTransaction(const OdbcConnection& connection, SQLSMALLINT how, std::string& errorText) {
  return Succeeded(Odbc.EndTran(SQL_HANDLE_DBC, connection.Handle(), how), SQL_HANDLE_DBC,
                   connection.Handle(), errorText);
}

bool Commit(const OdbcConnection& connection, std::string& errorText) {
  if (connection.GivenUp()) return false;
  if (EndTransaction(connection, SQL_COMMIT, errorText)) return true;
  TellOutcomeUnknown(errorText);
  return false;
}

bool RunOneByOne(OdbcConnection& connection, const std::vector<std::string>& statements,
                 std::string& errorText) {
  std::string ignored;
  if (!SwitchAutocommit(connection, SQL_AUTOCOMMIT_OFF, errorText)) {
    connection.Close();
    return false;
  }
  const bool done = std::all_of(statements.begin(), statements.end(),
                                [&](const std::string& statement) {
                                  return OdbcStatement(connection).Run(statement, errorText);
                                }) &&
                    Commit(connection, errorText);
  // A connection left inside a transaction must not serve the next call.
  const bool left = (done || EndTransaction(connection, SQL_ROLLBACK, ignored)) &&
                    SwitchAutocommit(connection, SQL_AUTOCOMMIT_ON, ignored);
  if (!left) connection.Close();
  return done;
}

/// Sends what is a transaction by itself. When the connection breaks meanwhile, the server may have
/// come to its end all the same.
bool RunInOneTrip(const OdbcConnection& connection, const std::string& text,
                  std::string& errorText) {
  if (OdbcStatement(connection).Run(text, errorText)) return true;
  if (!connection.Alive()) TellOutcomeUnknown(errorText);
  return false;
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

void TellOutcomeUnknown(std::string& errorText) { errorText += "\n저장되었는지 알 수 없습니다."; }

bool RunAsOneTransaction(OdbcConnection& connection, const std::vector<std::string>& statements,
                         std::string& errorText) {
  if (statements.empty()) return true;
  if (statements.size() == 1) return RunInOneTrip(connection, statements[0], errorText);
  const std::string block = ComposeBlock(statements);
  if (connection.RunsCompoundBlocks() && block.size() <= kLargestBlock &&
      std::all_of(statements.begin(), statements.end(), StandsInBlock)) {
    return RunInOneTrip(connection, block, errorText);
  }
  return RunOneByOne(connection, connection.RunsCompoundBlocks() ? PartsOf(statements) : statements,
                     errorText);
}

}  // namespace store
