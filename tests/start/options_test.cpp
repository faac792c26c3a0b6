#include "start/options.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <fstream>
#include <iostream>
#include <sstream>

#include "basics/deployment.h"
#include "basics/profile_file.h"
#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/program_places.h"
#include "gateway/gateway.h"
#include "slips/process_state.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

class Options : public testing::Test {
 protected:
  Options() {
    ResetGateway();
    ResetProcessState();
  }
  std::filesystem::path Path() const { return host.Folder / "OPT.ini"; }
  void Put(const std::string& text) const {
    std::ofstream(Path(), std::ios::binary) << ToCodePage949(text);
  }
  std::string Bytes() const {
    std::ostringstream bytes;
    bytes << std::ifstream(Path(), std::ios::binary).rdbuf();
    return bytes.str();
  }
  std::string File() const { return FromCodePage949(Bytes()); }

  ScriptedHost host;
};

/// What the options came to, texts first.
std::string Loaded() {
  const AppOptionsRecord& o = AppOptions;
  std::string loaded = o.DataServer + "|" + o.BusinessServer + "|" + o.CompanyId + "|" + o.DbUser +
                       "|" + o.BulkOrderPrice;
  for (const int number : {o.OrderZeroPrice, o.OrderInfoPartnersOnly, o.SkipZeroReceipt,
                           o.OrderType, o.ShowMidCategory})
    loaded += "|" + std::to_string(number);
  return loaded;
}

TEST_F(Options, AreReadFromTheFileAndEmptyWithoutOne) {
  LoadOptions();
  EXPECT_EQ(Loaded(), "|||kt||0|0|0|0|0");
  EXPECT_EQ(ConnectString,
            "DRIVER={MySQL ODBC 3.51 Driver};SERVER=;DATABASE=;UID=kt;PWD=qz4471;OPTION=16386");
  Put("[other]\r\n데이터서버=wrong\r\n"
      "[tarnwick]\r\n"
      "; 데이터서버=remark\r\n"
      "데이터서버 = db.example \r\n업무서버=\r\n회사아이디=\"chain1\"\r\n일괄발주단가=3\r\n"
      "단가[0]발주=1\r\n발주정보거래처=1개\r\n입고량0제외=yes\r\n발주타입=2.5\r\n"
      "타입A중분류표기=99999\r\n데이터서버=second\r\n");
  AppOptions.ShowMidCategory = 5;
  LoadOptions();
  EXPECT_EQ(Loaded(), "db.example||chain1|kt|3|1|1|0|2|0");
  EXPECT_EQ(ConnectString,
            "DRIVER={MySQL ODBC 3.51 Driver};SERVER=db.example;DATABASE=chain1;UID=kt;PWD=qz4471;"
            "OPTION=16386");
  EXPECT_EQ(Session.DatabaseName, "chain1");
  EXPECT_EQ(host.Pointers.back(), PointerNormal);
}

TEST_F(Options, ValuesEndAtTheirLimitOrAtANul) {
  const std::string longest(254, 'x');
  Put("[TARNWICK]\r\nlong=" + longest + "yz\r\nkorean=a" + std::string(300, ' ') + "\r\nnul=ab" +
      std::string(1, '\0') + "cd\r\nend=last");
  EXPECT_EQ(ReadOption("TARNWICK", "long"), longest);
  EXPECT_EQ(ReadOption("TARNWICK", "nul"), "ab");
  EXPECT_EQ(ReadOption("TARNWICK", "END"), "last");
  std::string letters;
  for (int i = 0; i < 130; ++i) letters += "가";
  WriteOption("TARNWICK", "letters", letters);
  EXPECT_EQ(ByteLen(ReadOption("TARNWICK", "letters")), 254);
  EXPECT_EQ(ReadOption("TARNWICK", "end"), "last");
}

TEST_F(Options, WritingKeepsEveryOtherLineInItsPlace) {
  struct Case {
    const char* before;
    const char* key;
    const char* value;
    const char* after;
  };
  const Case cases[] = {
      {"", "키", "값", "[TARNWICK]\r\n키=값\r\n"},
      {"[TARNWICK]\r\nKey=1\r\n; note\r\nother=2\r\n", "KEY", "9",
       "[TARNWICK]\r\nKey=9\r\n; note\r\nother=2\r\n"},
      {"[A]\nx=1\n\n[TARNWICK]\ny=2\n\n[B]\nz=3", "new", "4",
       "[A]\nx=1\n\n[TARNWICK]\ny=2\nnew=4\r\n\n[B]\nz=3\r\n"},
      {"[A]\r\nkey=1", "key", "2", "[A]\r\nkey=1\r\n[TARNWICK]\r\nkey=2\r\n"},
      {"stray\r\n[TARNWICK]\r\nkey=old", "key", "new", "stray\r\n[TARNWICK]\r\nkey=new"},
      {"[TARNWICK]\r\nkey=1\r\nkey=2\r\n", "key", "", "[TARNWICK]\r\nkey=\r\nkey=2\r\n"},
      {"[TARNWICK]\r\n", "key", "a\r\n[B]\r\nx=1", "[TARNWICK]\r\nkey=a\r\n"},
  };
  for (const Case& c : cases) {
    Put(c.before);
    WriteOption("TARNWICK", c.key, c.value);
    EXPECT_EQ(File(), c.after) << c.before;
  }
}

TEST_F(Options, BytesThatAreNoTextSurviveAWrite) {
  const std::string junk = "\xFF\x80junk=\xB0\r\n";
  std::ofstream(Path(), std::ios::binary) << junk << "[TARNWICK]\r\nkey=1\r\n" << junk;
  WriteOption("TARNWICK", "key", "2");
  EXPECT_EQ(Bytes(), junk + "[TARNWICK]\r\nkey=2\r\n" + junk);
}

TEST_F(Options, AFailedWriteIsToldAndLeavesTheOldFile) {
  const std::string before = "[TARNWICK]\r\nkey=old\r\n";
  Put(before);
  for (int failure = 0; failure < 3; ++failure) host.ExpectBox("옵션정보 기록실패");
  {
    // A disk that is full after eight bytes.
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit full{8, old.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    WriteOption("TARNWICK", "key", "new");
    setrlimit(RLIMIT_FSIZE, &old);
    std::signal(SIGXFSZ, handler);
  }
  EXPECT_EQ(File(), before);
  EXPECT_FALSE(std::filesystem::exists(host.Folder / "OPT.ini.new"));

  // A file that is there and cannot be read must not be taken for an empty one.
  std::filesystem::remove(Path());
  std::filesystem::create_directory(Path());
  WriteOption("TARNWICK", "key", "new");
  EXPECT_TRUE(std::filesystem::is_directory(Path()));
  EXPECT_EQ(ReadOption("TARNWICK", "key"), "");
  std::filesystem::remove(Path());
  std::filesystem::create_symlink("OPT.ini", Path());  // leads to itself: it cannot be opened
  WriteOption("TARNWICK", "key", "new");
  EXPECT_TRUE(std::filesystem::is_symlink(Path()));
  EXPECT_EQ(host.Boxes.back().Style, box::Plain);
}

// What would hang the start, or never end, is as absent, and is not written over.
TEST_F(Options, AFileThatIsNoneIsPassedOverAndNamed) {
  const auto make = [&](const char* kind) {
    std::filesystem::remove_all(Path());
    const std::string name = kind;
    if (name == "pipe") {
      EXPECT_EQ(mkfifo(Path().c_str(), 0600), 0);
    }
    if (name == "folder") std::filesystem::create_directory(Path());
    if (name == "endless") std::filesystem::create_symlink("/dev/zero", Path());
    if (name == "large") {
      Put("[TARNWICK]\r\n데이터서버=wrong\r\n");
      std::filesystem::resize_file(Path(), (1 << 20) + 1);
    }
  };
  for (const char* kind : {"pipe", "folder", "endless", "large"}) {
    make(kind);
    std::ostringstream log;
    std::streambuf* const before = std::clog.rdbuf(log.rdbuf());
    LoadOptions();
    std::clog.rdbuf(before);
    EXPECT_EQ(Loaded(), "|||kt||0|0|0|0|0") << kind;
    EXPECT_NE(log.str().find("OPT.ini: "), std::string::npos) << kind << ": " << log.str();
    EXPECT_TRUE(host.Records.back().starts_with("options file: ")) << host.Records.back();
    const auto type = std::filesystem::symlink_status(Path()).type();
    host.ExpectBox("옵션정보 기록실패");
    WriteOption("TARNWICK", "key", "new");
    EXPECT_EQ(std::filesystem::symlink_status(Path()).type(), type) << kind;
  }
  Put("[TARNWICK]\r\n데이터서버=right\r\n");
  std::filesystem::resize_file(Path(), 1 << 20);
  LoadOptions();
  EXPECT_EQ(AppOptions.DataServer, "right");
  // What a broken write left beside it is in nobody's way.
  ASSERT_EQ(mkfifo((host.Folder / "OPT.ini.new").c_str(), 0600), 0);
  WriteOption("TARNWICK", "데이터서버", "new");
  EXPECT_EQ(ReadOption("TARNWICK", "데이터서버"), "new");
  EXPECT_FALSE(std::filesystem::exists(host.Folder / "OPT.ini.new"));
}

// A program that stands where its users cannot write has a file for the machine and one for each.
TEST_F(Options, AUsersCopyComesBeforeTheMachines) {
  const std::filesystem::path own = host.Folder / "home/store-client/OPT.ini";
  const std::filesystem::path machine = host.Folder / "etc.ini";
  Places = {.OwnOptions = own.string(), .MachineOptions = machine.string()};
  Put("[TARNWICK]\r\nkey=beside\r\n");
  EXPECT_EQ(ReadOption("TARNWICK", "key"), "beside");
  std::ofstream(machine) << "[TARNWICK]\r\nkey=machine\r\nother=kept\r\n";
  EXPECT_EQ(ReadOption("TARNWICK", "key"), "machine");
  EXPECT_FALSE(std::filesystem::exists(own));
  WriteOption("TARNWICK", "key", "own");
  EXPECT_EQ(ReadOption("TARNWICK", "key"), "own");
  EXPECT_EQ(ReadOption("TARNWICK", "other"), "kept");
  EXPECT_EQ(ReadProfileValue(machine.string(), "TARNWICK", "key"), "machine");
  EXPECT_EQ(ReadProfileValue(Path().string(), "TARNWICK", "key"), "beside");
  // The user's is the one that is named when it is no file.
  std::filesystem::remove(own);
  std::filesystem::create_directory(own);
  EXPECT_TRUE(OptionsFileFault().starts_with(own.string())) << OptionsFileFault();
  std::filesystem::remove_all(own.parent_path());
  std::ofstream(own.parent_path()) << "no folder";
  host.ExpectBox("옵션정보 기록실패");
  WriteOption("TARNWICK", "key", "new");
  Places = {};
}

TEST(Deployment, IsOverriddenByTheEnvironment) {
  setenv("STORE_WEB_HOST", "http://pages.example/", 1);
  EXPECT_EQ(WebHost(), "http://pages.example/");
  setenv("STORE_WEB_HOST", "", 1);
  const std::string built = WebHost();
  EXPECT_NE(built, "");
  unsetenv("STORE_WEB_HOST");
  EXPECT_EQ(WebHost(), built);
  setenv("STORE_DIRECTORY_SERVER", "dir.example", 1);
  EXPECT_EQ(DirectoryServer(), "dir.example");
  unsetenv("STORE_DIRECTORY_SERVER");
}

}  // namespace
}  // namespace store
