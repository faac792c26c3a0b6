#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/support/private_server.h"
#include "tests/support/scripted_host.h"

namespace store {

/// A workstation at a chain "chain1" with store 1001, user e01 (password "pw1") and user e02
/// (password empty), and the company in the directory. The options file names the private server;
/// every process-wide record is as at the start of a run.
class SmallChain : public testing::Test {
 protected:
  SmallChain();
  ~SmallChain() override;

  void Sql(const std::string& statements) { TestServer().Sql("chain1", statements); }
  /// A fresh run of the program on the same workstation.
  void StartAgain();

  ScriptedHost host;
};

}  // namespace store
