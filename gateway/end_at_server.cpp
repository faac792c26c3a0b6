#include "gateway/end_at_server.h"

#include <system_error>
#include <thread>

#include "gateway/direct_reader.h"
#include "gateway/odbc_connection.h"
#include "gateway/splice.h"

namespace store {
namespace {

std::string RunningStatement(const std::string& connectionId) {
  return Splice("SELECT INFO FROM information_schema.PROCESSLIST WHERE ID = {id}",
                "id"_a = connectionId);
}

std::string EndStatement(const std::string& connectionId) {
  return Splice("KILL QUERY {id}", "id"_a = connectionId);
}

bool Runs(const OdbcConnection& connection, const std::string& connectionId,
          const std::string& statement) {
  std::string ignored;
  OdbcStatement asked(connection);
  if (!asked.Run(RunningStatement(connectionId), ignored)) return false;
  const auto rows = ReadAllRows(asked, ignored);
  return rows != nullptr && !rows->Eof() && rows->Text(0) == statement;
}

void End(const std::string& connectString, const std::string& connectionId,
         const std::string& statement) {
  OdbcConnection connection;
  std::string ignored;
  if (!connection.Connect(connectString, ignored)) return;
  if (!Runs(connection, connectionId, statement)) return;
  OdbcStatement(connection).Run(EndStatement(connectionId), ignored);
}

}  // namespace

void EndAtServer(const std::string& connectString, const std::string& connectionId,
                 const std::string& statement) {
  try {
    std::thread(End, connectString, connectionId, statement).detach();
  } catch (const std::system_error&) {
    // A machine without a thread to spare: the statement runs to its end.
    return;
  }
}

}  // namespace store
