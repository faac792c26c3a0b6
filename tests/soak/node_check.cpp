#include "tests/soak/node_check.h"

#include <cstdlib>

#include "gateway/splice.h"
#include "tests/soak/db_client.h"

namespace store {
namespace {

/// Table and columns, each in the quotes of a name.
constexpr const char* kTables =
    "SELECT TABLE_NAME,GROUP_CONCAT('`',COLUMN_NAME,'`' ORDER BY ORDINAL_POSITION) FROM "
    "information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() GROUP BY TABLE_NAME";

/// The rows as a number, whatever their order.
std::string SumStatement(const std::string& table, const std::string& columns) {
  return Splice("SELECT COUNT(*),SUM(CRC32(CONCAT_WS('|',{columns}))) FROM {table}",
                "columns"_a = columns, "table"_a = table);
}

long Status(DbClient& node, const std::string& name) {
  return std::atol(
      node.Select(Splice("SHOW STATUS LIKE '{name}'", "name"_a = name)).at(0).at(1).c_str());
}

}  // namespace

void CheckNodesAgree(const std::vector<int>& ports, Findings& findings) {
  DbClient first({ports.front()});
  for (const auto& table : first.Select(kTables)) {
    const std::string statement = SumStatement(table[0], table[1]);
    const Rows wanted = first.Select(statement);
    for (size_t i = 1; i < ports.size(); ++i) {
      const Rows found = DbClient({ports[i]}).Select(statement);
      if (found == wanted) continue;
      findings.Add("a node that holds other rows", table[0] + " at node " + std::to_string(i + 1),
                   found[0][0] + " rows, sum " + found[0][1] + "; node 1 " + wanted[0][0] +
                       " rows, sum " + wanted[0][1]);
    }
  }
}

std::string UndoneByCluster(const std::vector<int>& ports) {
  long atCommit = 0;
  long running = 0;
  for (const int port : ports) {
    DbClient node({port});
    atCommit += Status(node, "wsrep_local_cert_failures");
    running += Status(node, "wsrep_local_bf_aborts");
  }
  return std::to_string(atCommit) + " at their commit, " + std::to_string(running) +
         " while they ran";
}

}  // namespace store
