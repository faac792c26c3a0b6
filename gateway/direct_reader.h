#pragma once

#include <memory>
#include <string>

#include "gateway/odbc_connection.h"
#include "gateway/recordset.h"

namespace store {

/// Takes all rows of a statement that has just run. Nothing on failure, with the reason in
/// `errorText`. Rows come in by bound row arrays; only results with a very wide column are read
/// value by value.
std::unique_ptr<Recordset> ReadAllRows(OdbcStatement& statement, std::string& errorText);

}  // namespace store
