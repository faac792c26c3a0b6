#include "gateway/direct_tier.h"

#include <algorithm>
#include <iterator>

#include "gateway/byte_search.h"
#include "gateway/direct_batch.h"
#include "gateway/direct_reader.h"
#include "gateway/odbc_connection.h"

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

bool IsSelect(const std::string& statement) {
  const size_t begin = statement.find_first_not_of(" \t\r\n(");
  return begin != std::string::npos &&
         SameFolded(std::string_view(statement).substr(begin, 6), "SELECT");
}

std::unique_ptr<Recordset> Read(OdbcConnection& connection, const std::string& statement,
                                std::string& errorText) {
  OdbcStatement run(connection);
  if (!run.Run(statement, errorText)) return nullptr;
  auto rows = ReadAllRows(run, errorText);
  if (rows) connection.NoteAnswer();
  return rows;
}

}  // namespace

std::unique_ptr<Recordset> DirectTier::GETSQL(const std::string& statement, std::string& errorText,
                                              const std::string& connectString) {
  if (!IsSelect(statement)) {
    errorText = "SELECT 문만 조회할 수 있습니다.";
    return nullptr;
  }
  if (!NamesItsSource(connectString, errorText)) return nullptr;
  // A read may be made twice: it changes nothing. So one that follows closely on another does not
  // ask first whether the connection stands, and is made again if it did not.
  for (const bool trustLately : {true, false}) {
    errorText.clear();
    OdbcConnection* connection = ConnectionTo(connectString, trustLately, errorText);
    if (connection == nullptr) return nullptr;
    if (auto rows = Read(*connection, statement, errorText)) return rows;
    if (connection->Alive()) return nullptr;
  }
  return nullptr;
}

bool DirectTier::PUTSQL(const std::vector<std::string>& statements, std::string& errorText,
                        const std::string& connectString) {
  if (!NamesItsSource(connectString, errorText)) return false;
  std::vector<std::string> toRun;
  std::copy_if(statements.begin(), statements.end(), std::back_inserter(toRun),
               [](const std::string& statement) { return !statement.empty(); });
  OdbcConnection* connection = ConnectionTo(connectString, false, errorText);
  if (connection == nullptr) return false;
  if (toRun.empty()) return true;
  if (toRun.size() == 1) return OdbcStatement(*connection).Run(toRun[0], errorText);
  return RunAsOneTransaction(*connection, toRun, errorText);
}

}  // namespace store
