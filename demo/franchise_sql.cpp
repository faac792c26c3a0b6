#include "demo/franchise_sql.h"

#include "demo/sql_writer.h"

namespace store::demo {
namespace {

// Checks off and one commit a table: the data is whole by construction, and the server need not
// prove it row by row.
constexpr const char* kBegin =
    "SET NAMES utf8mb4;\n"
    "SET autocommit = 0;\n"
    "SET unique_checks = 0;\n"
    "SET foreign_key_checks = 0;\n";
constexpr const char* kEnd =
    "SET foreign_key_checks = 1;\n"
    "SET unique_checks = 1;\n"
    "SET autocommit = 1;\n";

void Use(std::ostream& out, const std::string& database) {
  out << "CREATE DATABASE IF NOT EXISTS " << database
      << " CHARACTER SET utf8mb4 COLLATE utf8mb4_general_ci;\nUSE " << database << ";\n";
}

}  // namespace

void WriteFranchise(std::ostream& out, const Franchise& franchise, const std::string& database) {
  out << kBegin;
  Use(out, database);
  WriteMasters(out, franchise);
  WriteTrade(out, franchise);
  WriteStaged(out, franchise);
  Use(out, "master");
  out << "DELETE FROM COMPANY WHERE COM_ID = " << Quoted(database) << ";\n";
  TableWriter(out, "COMPANY", "COM_ID,DB_HostnameIP,DB_Database,DB_User")
      .Row(database, "127.0.0.1", database, "kt");
  out << kEnd;
}

}  // namespace store::demo
