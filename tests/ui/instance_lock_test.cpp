#include "ui/instance_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace store {
namespace {

const char* const kProgram = "/opt/store/ui_test_program";

TEST(InstanceLock, OneRunAProgramFile) {
  InstanceLock first(kProgram);
  EXPECT_TRUE(first.Holds());
  EXPECT_TRUE(first.Holds()) << "asking again is no second instance";
  InstanceLock second(kProgram);
  EXPECT_FALSE(second.Holds());
  InstanceLock elsewhere("/opt/other/ui_test_program");
  EXPECT_TRUE(elsewhere.Holds()) << "another program file may run beside it";
}

TEST(InstanceLock, FreeAfterACrash) {
  const pid_t child = fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    auto* lock = new InstanceLock(kProgram);  // never given back
    _exit(lock->Holds() ? 0 : 1);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_EQ(status, 0) << "the run that crashes must have held the lock";
  InstanceLock successor(kProgram);
  EXPECT_TRUE(successor.Holds());
}

}  // namespace
}  // namespace store
