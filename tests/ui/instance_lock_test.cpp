#include "ui/instance_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

namespace store {
namespace {

constexpr uid_t kNobody = 65534;

class InstanceLockTest : public testing::Test {
 protected:
  InstanceLockTest() {
    for (const std::string& program : {program_, elsewhere_}) std::ofstream(program) << "program";
  }
  ~InstanceLockTest() override {
    for (const std::string& program : {program_, elsewhere_}) std::filesystem::remove(program);
  }
  /// Whether another process, of another user where this one may become it, gets the lock. It ends
  /// without giving it back.
  bool AnotherHolds() const {
    const pid_t child = fork();
    if (child == 0) {
      if (geteuid() == 0 && setuid(kNobody) != 0) _exit(2);
      auto* lock = new InstanceLock(program_);
      _exit(lock->Holds() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
  }

  const std::string program_ =
      std::filesystem::temp_directory_path() / ("program_" + std::to_string(getpid()));
  const std::string elsewhere_ = program_ + "_elsewhere";
};

TEST_F(InstanceLockTest, OneRunAProgramFileWhoeverIsLoggedIn) {
  InstanceLock first(program_);
  EXPECT_TRUE(first.Holds());
  EXPECT_TRUE(first.Holds()) << "asking again is no second instance";
  EXPECT_FALSE(AnotherHolds());
  InstanceLock elsewhere(elsewhere_);
  EXPECT_TRUE(elsewhere.Holds()) << "another program file may run beside it";
}

TEST_F(InstanceLockTest, FreeAfterACrash) {
  ASSERT_TRUE(AnotherHolds());
  InstanceLock successor(program_);
  EXPECT_TRUE(successor.Holds());
}

}  // namespace
}  // namespace store
