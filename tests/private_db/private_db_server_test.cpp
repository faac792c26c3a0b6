#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/private_server.h"

namespace store {
namespace {

TEST(PrivateDbServer, KeepsToItsFolderAndLeavesNothingBehind) {
  std::string folder;
  {
    PrivateServer server;
    folder = server.Folder();
    server.Start();
    // In a folder that servers share, one that starts takes away the temporary tables of the
    // others.
    EXPECT_EQ(server.Rows("mysql", "SELECT @@tmpdir")[0][0], folder + "/tmp");
    server.MakeSchema("kept");
    server.Sql("kept", "INSERT INTO CT (CT_CODE, CT_NAME) VALUES ('C1', '한빛')");
    server.Stop();
    server.Start();
    EXPECT_EQ(server.Rows("kept", "SELECT CT_NAME FROM CT")[0][0], "한빛");
  }
  EXPECT_FALSE(std::filesystem::exists(folder));
}

}  // namespace
}  // namespace store
