#include "ui/log_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sstream>
#include <stdexcept>

#include "basics/log.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

namespace fs = std::filesystem;

class LogFile : public testing::Test {
 protected:
  ~LogFile() override { CloseLogFile(); }
  static fs::path Path() { return LogFolder() / "store-client.log"; }
  static std::string Text() {
    std::ostringstream text;
    text << std::ifstream(Path()).rdbuf();
    return text.str();
  }

  ScriptedHost host;  // with a data folder of its own
};

TEST_F(LogFile, HasARecordAtOnceForItsOwnerAlone) {
  OpenLogFile();
  const char* home = std::getenv("HOME");
  ASSERT_NE(home, nullptr);
  WriteLog(LogWeight::Failure, "read failed", std::string("쓸 수 없음\n") + home + "/발주");
  const std::string line = Text();
  EXPECT_NE(line.find(" error read failed: 쓸 수 없음 ~/발주\n"), std::string::npos) << line;
  EXPECT_EQ(std::count(line.begin(), line.end(), '\n'), 1);
  EXPECT_EQ(fs::status(LogFolder()).permissions(), fs::perms::owner_all);
  CloseLogFile();
  WriteLog(LogWeight::Note, "late", "");
  OpenLogFile();
  WriteLog(LogWeight::Note, "next run", "");
  EXPECT_EQ(Text().find("late"), std::string::npos);
  EXPECT_EQ(Text().find(line), 0U);  // a run goes on behind the one before
}

TEST_F(LogFile, NeverOutgrowsItsFiles) {
  OpenLogFile();
  const std::string text(10'000, 'x');
  for (int record = 0; record < 1'500; ++record) WriteLog(LogWeight::Note, "x", text);
  int files = 0;
  for (const auto& file : fs::directory_iterator(LogFolder())) {
    ++files;
    EXPECT_LE(file.file_size(), std::uintmax_t{2} << 20) << file.path();
  }
  EXPECT_EQ(files, 5);
}

TEST_F(LogFile, IsDoneWithoutWhereThereCanBeNone) {
  fs::create_directories(LogFolder());
  ASSERT_EQ(mkfifo(Path().c_str(), 0600), 0);  // opening it would never come back
  for (const char* hindrance : {"pipe", "folder", "file"}) {
    OpenLogFile();
    WriteLog(LogWeight::Note, "a", "b");
    CloseLogFile();
    if (std::string(hindrance) == "pipe") {
      fs::remove(Path());
      fs::create_directory(Path());
    } else if (std::string(hindrance) == "folder") {
      fs::remove_all(LogFolder());
      std::ofstream(LogFolder()) << "no folder";
    }
  }
  setenv("STORE_DATA_FOLDER", "/proc/nowhere", 1);
  OpenLogFile();
  WriteLog(LogWeight::Note, "a", "b");
}

TEST_F(LogFile, TellsWhyTheProgramEndedByAnException) {
  const pid_t child = fork();
  if (child == 0) {
    std::freopen("/dev/null", "w", stderr);
    OpenLogFile();
    const std::function<void()> work = [] { throw std::runtime_error("no slip"); };
    [&]() noexcept { work(); }();
  }
  int state = 0;
  waitpid(child, &state, 0);
  EXPECT_FALSE(WIFEXITED(state) && WEXITSTATUS(state) == 0);
  EXPECT_NE(Text().find("program ends: nobody took std::runtime_error: no slip"), std::string::npos)
      << Text();
}

}  // namespace
}  // namespace store
