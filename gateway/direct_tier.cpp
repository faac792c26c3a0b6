#include "gateway/direct_tier.h"

#include <algorithm>
#include <iterator>

#include "basics/deployment.h"
#include "gateway/direct_batch.h"
#include "gateway/direct_reader.h"
#include "gateway/end_at_server.h"
#include "gateway/guard.h"
#include "gateway/stoppable_reads.h"

namespace store {
namespace {

/// The value of a connection string's part; the first one counts.
std::string_view PartOf(std::string_view connectString, std::string_view key) {
  while (!connectString.empty()) {
    const std::string_view part = connectString.substr(0, connectString.find(';'));
    const size_t equals = part.find('=');
    if (equals != std::string_view::npos && part.substr(0, equals) == key) {
      return part.substr(equals + 1);
    }
    connectString.remove_prefix(std::min(part.size() + 1, connectString.size()));
  }
  return {};
}

/// A driver would turn an empty server into this machine and an empty database into none. Whoever
/// has not set up the connection must not land somewhere by chance.
bool NamesItsSource(const std::string& connectString, std::string& errorText) {
  if (!PartOf(connectString, "SERVER").empty() && !PartOf(connectString, "DATABASE").empty()) {
    return true;
  }
  errorText = "데이터서버 또는 회사아이디가 설정되지 않았습니다.";
  return false;
}

/// What a job leaves behind. It belongs to job and caller both, because a job that is overdue goes
/// on without its caller.
struct Answer {
  std::unique_ptr<Recordset> rows;
  bool done = false;
  bool stale = false;    // the connection had been closed by the other side, or broke
  bool inDoubt = false;  // nobody can say whether the batch took effect
  std::string errorText;
};

void TellStale(Answer& answer) {
  answer.stale = true;
  if (answer.errorText.empty()) answer.errorText = "데이터서버와의 연결이 끊어졌습니다.";
}

/// A read that follows closely on an answer does not ask first whether the connection stands: it
/// changes nothing and can be made again.
void Read(OdbcConnection& connection, const std::string& statement, Answer& answer) {
  if (!connection.RecentlyAnswered() && !connection.Alive()) return TellStale(answer);
  if (connection.GivenUp()) return;
  OdbcStatement run(connection);
  if (run.Run(statement, answer.errorText)) answer.rows = ReadAllRows(run, answer.errorText);
  answer.done = answer.rows != nullptr;
  if (answer.done) {
    connection.NoteAnswer();
  } else if (!connection.Alive()) {
    TellStale(answer);
  }
}

/// A batch asks first, because it must never be sent twice.
void Write(OdbcConnection& connection, const std::vector<std::string>& statements, Answer& answer) {
  if (!connection.Alive()) return TellStale(answer);
  if (connection.GivenUp()) return;
  BatchFailure failure;
  answer.done = RunAsOneTransaction(connection, statements, failure);
  answer.errorText = failure.Text;
  answer.inDoubt = failure.InDoubt;
}

std::string OverdueText(std::chrono::seconds limit) {
  return "데이터서버가 " + std::to_string(limit.count()) + "초 안에 응답하지 않았습니다.";
}

}  // namespace

std::string DirectTier::GaveUp(KeptConnection::End ended, std::chrono::seconds limit) {
  kept_.reset();
  stopped_ = ended == KeptConnection::End::Stopped;
  return stopped_ ? kReadStopped : OverdueText(limit);
}

bool DirectTier::Reach(const std::string& connectString, std::string& errorText,
                       bool mayBeStopped) {
  if (kept_ && keptString_ == connectString) return true;
  kept_ = std::make_unique<KeptConnection>();
  keptString_ = connectString;
  // The driver's own time-out covers the way to the server, but not a name that nobody resolves.
  const std::chrono::seconds limit = ConnectTimeout() + std::chrono::seconds(1);
  const auto answer = std::make_shared<Answer>();
  const KeptConnection::End ended = kept_->Do(
      [answer, connectString](OdbcConnection& connection) {
        answer->done = connection.Connect(connectString, answer->errorText);
      },
      limit, mayBeStopped);
  if (ended != KeptConnection::End::Done) {
    errorText = GaveUp(ended, limit);
    return false;
  }
  if (answer->done) return true;
  errorText = answer->errorText;
  kept_.reset();
  return false;
}

std::unique_ptr<Recordset> DirectTier::GETSQL(const std::string& statement, std::string& errorText,
                                              const std::string& connectString) {
  reached_ = stopped_ = false;
  const bool mayBeStopped = StoppableReads::Allowed();
  if (!IsGuard(statement)) {
    errorText = "SELECT 문만 조회할 수 있습니다.";
    return nullptr;
  }
  if (!NamesItsSource(connectString, errorText)) return nullptr;
  // On a stale connection the read is made once more, on a fresh one.
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (!Reach(connectString, errorText, mayBeStopped)) return nullptr;
    const auto answer = std::make_shared<Answer>();
    const KeptConnection::End ended = kept_->Do(
        [answer, statement](OdbcConnection& connection) { Read(connection, statement, *answer); },
        ReadLimit(), mayBeStopped);
    if (ended != KeptConnection::End::Done) {
      const std::string serverId = kept_->ServerId();
      errorText = GaveUp(ended, ReadLimit());
      if (stopped_ && !serverId.empty()) EndAtServer(connectString, serverId, statement);
      return nullptr;
    }
    errorText = answer->done ? std::string() : answer->errorText;
    reached_ = !answer->stale;
    if (reached_) return std::move(answer->rows);
    kept_.reset();
  }
  return nullptr;
}

bool DirectTier::PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
                        const std::string& connectString) {
  inDoubt_ = reached_ = stopped_ = false;
  if (!NamesItsSource(connectString, errorText)) return false;
  std::vector<std::string> toRun;
  std::copy_if(statements.begin(), statements.end(), std::back_inserter(toRun),
               [](const std::string& statement) { return !statement.empty(); });
  // A stale connection has carried nothing of the batch, which then goes out on a fresh one.
  for (int attempt = 0; attempt < 2; ++attempt) {
    if (!Reach(connectString, errorText, false)) return false;
    const auto answer = std::make_shared<Answer>();
    if (kept_->Do(
            [answer, toRun](OdbcConnection& connection) { Write(connection, toRun, *answer); },
            BatchLimit()) != KeptConnection::End::Done) {
      kept_.reset();
      inDoubt_ = true;
      errorText = OverdueText(BatchLimit()) + kInDoubtText;
      return false;
    }
    errorText = answer->done ? std::string() : answer->errorText;
    inDoubt_ = answer->inDoubt;
    reached_ = !answer->stale && !answer->inDoubt;
    if (!answer->stale) return answer->done;
    kept_.reset();
  }
  return false;
}

}  // namespace store
