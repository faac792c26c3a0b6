#include "gateway/direct_batch.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <random>
#include <thread>
#include <utility>

#include "gateway/byte_search.h"
#include "gateway/guard.h"

namespace store {
namespace {

/// The driver looks through all that follows at each quoted text, so that a block of a megabyte
/// costs it more time than the server. Up to the first size the one round trip is worth it.
constexpr size_t kLargestBlock = 256 << 10;
constexpr size_t kLargestPart = 32 << 10;

/// What the server says when it has undone a transaction because another one stood against it.
constexpr SQLINTEGER kDeadlock = 1213;
constexpr SQLINTEGER kLockWaitOver = 1205;
constexpr int kAttempts = 4;

/// What it says when the storing itself went wrong, as a node does that is leaving its cluster.
constexpr SQLINTEGER kCommitFailed = 1180;

/// The server's number for the first statement when that is a guard that found nothing; the others
/// count on. The server itself has none so high.
constexpr SQLINTEGER kFirstGuard = 30000;

std::string_view FirstWord(const std::string& statement) {
  const size_t begin = statement.find_first_not_of(" \t\r\n");
  if (begin == std::string::npos) return {};
  const size_t end = statement.find_first_of(" \t\r\n(", begin);
  return std::string_view(statement).substr(begin, end - begin);
}

/// Position behind the quoted text that begins at `at`, or npos when it is not closed.
size_t BehindQuoted(std::string_view statement, size_t at) {
  const size_t end = statement.find(statement[at], at + 1);
  return end == std::string_view::npos ? end : end + 1;
}

bool ReachesNoFurther(std::string_view statement) {
  for (size_t i = 0; i < statement.size();) {
    const char c = statement[i];
    if (c == '\'' || c == '"' || c == '`') {
      i = BehindQuoted(statement, i);
      if (i == std::string_view::npos) return false;
      continue;
    }
    const std::string_view two = statement.substr(i, 2);
    if (c == ';' || c == '#' || c == '\0' || c == '\\' || two == "--" || two == "/*") return false;
    ++i;
  }
  return true;
}

/// A statement as it stands in a block; `number` is its place in the batch.
std::string InBlock(const std::string& statement, size_t number) {
  if (!IsGuard(statement)) return statement + ";\n";
  return "IF NOT EXISTS (" + std::string(GuardSelect(statement)) +
         ") THEN SIGNAL SQLSTATE '45000' SET MYSQL_ERRNO = " +
         std::to_string(kFirstGuard + static_cast<SQLINTEGER>(number)) +
         ", MESSAGE_TEXT = 'guard'; END IF;\n";
}

std::string ComposeBlock(const std::vector<std::string>& statements) {
  std::string block =
      "BEGIN NOT ATOMIC "
      "DECLARE EXIT HANDLER FOR SQLEXCEPTION BEGIN ROLLBACK; RESIGNAL; END; "
      "START TRANSACTION;\n";
  for (size_t i = 0; i < statements.size(); ++i) block += InBlock(statements[i], i);
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
  for (size_t i = 0; i < statements.size(); ++i) {
    if (open.size() + statements[i].size() > kLargestPart) close();
    if (StandsInBlock(statements[i])) {
      open += InBlock(statements[i], i);
    } else {
      close();
      parts.push_back(statements[i]);
    }
  }
  close();
  return parts;
}

bool SwitchAutocommit(const OdbcConnection& connection, SQLULEN mode, BatchFailure& failure) {
  return Succeeded(
      Odbc.SetConnectAttr(connection.Handle(), SQL_ATTR_AUTOCOMMIT, AttributeValue(mode), 0),
      SQL_HANDLE_DBC, connection.Handle(), failure.Text);
}

void SayInDoubt(BatchFailure& failure) {
  failure.InDoubt = true;
  failure.Text += kInDoubtText;
}

bool EndTransaction(const OdbcConnection& connection, SQLSMALLINT how, BatchFailure& failure) {
  return Succeeded(Odbc.EndTran(SQL_HANDLE_DBC, connection.Handle(), how), SQL_HANDLE_DBC,
                   connection.Handle(), failure.Text);
}

bool Commit(const OdbcConnection& connection, BatchFailure& failure) {
  if (connection.GivenUp()) return false;
  if (EndTransaction(connection, SQL_COMMIT, failure)) return true;
  failure.Number = ErrorNumberOf(SQL_HANDLE_DBC, connection.Handle());
  if (failure.Number != kDeadlock) SayInDoubt(failure);
  return false;
}

bool Run(const OdbcConnection& connection, const std::string& text, BatchFailure& failure) {
  OdbcStatement statement(connection);
  if (statement.Run(text, failure.Text)) return true;
  failure.Number = statement.ErrorNumber();
  return false;
}

bool FindsARow(const OdbcConnection& connection, const std::string& guard, BatchFailure& failure) {
  OdbcStatement statement(connection);
  if (!statement.Run(std::string(GuardSelect(guard)), failure.Text)) {
    failure.Number = statement.ErrorNumber();
    return false;
  }
  const SQLRETURN fetched = Odbc.Fetch(statement.Handle());
  if (fetched == SQL_NO_DATA) {
    failure.Text = GuardRefusal(guard);
    return false;
  }
  return Succeeded(fetched, SQL_HANDLE_STMT, statement.Handle(), failure.Text);
}

bool RunOneByOne(OdbcConnection& connection, const std::vector<std::string>& statements,
                 BatchFailure& failure) {
  BatchFailure ignored;
  if (!SwitchAutocommit(connection, SQL_AUTOCOMMIT_OFF, failure)) {
    connection.Close();
    return false;
  }
  const bool done = std::all_of(statements.begin(), statements.end(),
                                [&](const std::string& statement) {
                                  return IsGuard(statement)
                                             ? FindsARow(connection, statement, failure)
                                             : Run(connection, statement, failure);
                                }) &&
                    Commit(connection, failure);
  // A connection left inside a transaction must not serve the next call.
  const bool left = (done || EndTransaction(connection, SQL_ROLLBACK, ignored)) &&
                    SwitchAutocommit(connection, SQL_AUTOCOMMIT_ON, ignored);
  if (!left) connection.Close();
  return done;
}

/// Sends what is a transaction by itself. When the connection breaks meanwhile, or the storing at
/// its end, the server may have come through all the same.
bool RunInOneTrip(const OdbcConnection& connection, const std::string& text,
                  BatchFailure& failure) {
  if (Run(connection, text, failure)) return true;
  if (!connection.Alive() || failure.Number == kCommitFailed) SayInDoubt(failure);
  return false;
}

bool RunOnce(OdbcConnection& connection, const std::vector<std::string>& statements,
             BatchFailure& failure) {
  if (!connection.RunsCompoundBlocks()) return RunOneByOne(connection, statements, failure);
  if (std::all_of(statements.begin(), statements.end(), StandsInBlock)) {
    const std::string block = ComposeBlock(statements);
    if (block.size() <= kLargestBlock) return RunInOneTrip(connection, block, failure);
  }
  return RunOneByOne(connection, PartsOf(statements), failure);
}

/// A guard tells itself by its place in the batch.
void TakeGuardsWords(const std::vector<std::string>& statements, BatchFailure& failure) {
  const auto place = static_cast<size_t>(failure.Number - kFirstGuard);
  if (failure.Number < kFirstGuard || place >= statements.size()) return;
  failure.Text = GuardRefusal(statements[place]);
  failure.Number = 0;
}

bool StoodAgainstAnother(const BatchFailure& failure) {
  return failure.Number == kDeadlock || failure.Number == kLockWaitOver;
}

/// Two that stood against each other must not come back at the same moment.
void PauseAWhile() {
  thread_local std::minstd_rand random(std::random_device{}());
  std::this_thread::sleep_for(
      std::chrono::milliseconds(std::uniform_int_distribution<>(20, 100)(random)));
}

}  // namespace

bool StandsInBlock(const std::string& statement) {
  static constexpr std::array<std::string_view, 4> words = {"INSERT", "UPDATE", "DELETE",
                                                            "REPLACE"};
  if (IsGuard(statement)) return ReachesNoFurther(GuardSelect(statement));
  const std::string_view first = FirstWord(statement);
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return SameFolded(word, first); }) &&
         ReachesNoFurther(statement);
}

bool RunAsOneTransaction(OdbcConnection& connection, const std::vector<std::string>& statements,
                         BatchFailure& failure) {
  if (statements.empty()) return true;
  for (int attempt = 1;; ++attempt) {
    failure = {};
    if (RunOnce(connection, statements, failure)) return true;
    TakeGuardsWords(statements, failure);
    if (!StoodAgainstAnother(failure) || attempt == kAttempts || connection.GivenUp() ||
        !connection.Alive()) {
      return false;
    }
    PauseAWhile();
  }
}

}  // namespace store
