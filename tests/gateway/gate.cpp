#include "tests/gateway/gate.h"

#include "slips/process_state.h"

namespace store {

Gate::Gate() {
  PrivateServer& server = TestServer();
  ResetProcessState();
  static const bool made = [&] {
    server.MakeSchema("gate");
    return true;
  }();
  (void)made;
  BuildConnectString(server.ServerOption(), "kt", "gate");
  Sql("DROP TABLE IF EXISTS T; CREATE TABLE T (N INT PRIMARY KEY, A MEDIUMTEXT, D DECIMAL(18,4)) "
      "ENGINE=InnoDB DEFAULT CHARSET=utf8mb4");
}

Gate::~Gate() { ResetProcessState(); }

std::string Gate::Numbers() {
  std::string numbers;
  for (const auto& row : TestServer().Rows("gate", "SELECT N FROM T ORDER BY N")) {
    numbers += row[0] + " ";
  }
  return numbers;
}

void Gate::Query(const std::string& statement) { QueryRows(statement, table, rows, highestColumn); }

std::string InsertNumber(int n) {
  return Splice(" INSERT INTO T (N,A) VALUES ({n},'a{n}') ", "n"_a = std::to_string(n));
}

}  // namespace store
