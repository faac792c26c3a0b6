#pragma once

#include <gtest/gtest.h>

#include <string>

#include "gateway/gateway.h"
#include "tests/support/private_server.h"

namespace store {

/// The gateway on a database "gate" with one table T (N number key, A text, D decimal).
class Gate : public testing::Test {
 protected:
  Gate();
  ~Gate() override;
  static void Sql(const std::string& statements) { TestServer().Sql("gate", statements); }
  /// The numbers in T, in order.
  static std::string Numbers();
  /// A QueryRows of one statement.
  void Query(const std::string& statement);

  StringTable table;
  std::int32_t rows = -1;
  std::int32_t highestColumn = -1;
};

/// " INSERT INTO T ..." of number `n`.
std::string InsertNumber(int n);

}  // namespace store
