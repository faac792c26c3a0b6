#include "gateway/call_log.h"

#include "basics/log.h"
#include "gateway/database_software.h"
#include "gateway/masked_text.h"

namespace store {
namespace {

// A batch may have a thousand statements. Its beginning tells what it was.
constexpr std::size_t kMostBytes = 8192;
constexpr std::string_view kNoWords = "the data tier could not be reached";

bool Reached = true;
DatabaseSoftware Logged;

void LogSoftware() {
  const DatabaseSoftware software = KnownDatabaseSoftware();
  if (software == Logged) return;
  Logged = software;
  WriteLog(LogWeight::Note, "connection",
           "to " + software.Server + " by " + software.Driver + ", driver manager " +
               software.DriverManager);
}

std::string WordsFor(std::string_view words, const std::vector<std::string>& statements) {
  return words.empty() ? std::string(kNoWords) : MaskedWords(words, statements);
}

}  // namespace

void LogFailedRead(const std::string& statement, std::string_view words) {
  WriteLog(LogWeight::Failure, "read failed",
           WordsFor(words, {statement}) + " | " + MaskedStatement(statement));
}

void LogFailedBatch(const std::vector<std::string>& statements, std::string_view words,
                    bool inDoubt) {
  std::string sent;
  std::size_t count = 0;
  for (const std::string& statement : statements) {
    if (statement.empty()) continue;
    ++count;
    if (sent.size() < kMostBytes) sent += " | " + MaskedStatement(statement);
  }
  if (sent.size() > kMostBytes) {
    sent.resize(kMostBytes);
    sent += "...";
  }
  WriteLog(inDoubt ? LogWeight::Warning : LogWeight::Failure,
           inDoubt ? "batch in doubt" : "batch failed",
           WordsFor(words, statements) + " | " + std::to_string(count) + " statements" + sent);
}

void LogLink(bool reached) {
  if (reached) LogSoftware();
  if (reached == Reached) return;
  Reached = reached;
  if (reached) {
    WriteLog(LogWeight::Note, "connection", "the data server answers again");
  } else {
    WriteLog(LogWeight::Warning, "connection", "the data server does not answer");
  }
}

void ResetLinkLog() {
  Reached = true;
  Logged = {};
}

}  // namespace store
