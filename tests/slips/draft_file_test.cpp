// The file of drafts: what a crash leaves, what is set aside, who may read it, who works in it.
#include "slips/draft_file.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <fstream>
#include <functional>
#include <random>
#include <sstream>
#include <thread>

#include "basics/records.h"
#include "slips/drafts.h"
#include "slips/process_state.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::minutes kForAsLongAsItTakes(5);

class DraftFiles : public testing::Test {
 protected:
  DraftFiles() {
    ResetProcessState();
    LogIn();
  }
  static void LogIn(const std::string& user = "u01") {
    Session.DatabaseName = "chain";
    Session.StoreCode = "1001";
    Session.UserCode = user;
  }
  fs::path Folder() const { return host.Folder / "data" / "drafts"; }
  fs::path File() const { return Folder() / "chain-1001-u01.db"; }

  /// An order of `lines` lines, all of which bear the number.
  static Draft Sample(int lines, const std::string& id = NewDraftId()) {
    Draft draft{.Id = id, .FormName = "frm_Order", .SlipTable = "PEM22", .PartnerName = "한빛"};
    draft.Date = std::to_string(lines);
    for (int i = 1; i <= lines; ++i) {
      draft.Lines.push_back({"P" + std::to_string(i), "콩나물", std::to_string(lines), i % 2 == 0});
    }
    return draft;
  }
  /// A process of the same user that keeps drafts until it is killed.
  static pid_t Fork(const std::function<void()>& work) {
    const pid_t child = fork();
    if (child != 0) return child;
    work();
    for (;;) pause();
  }
  static void Kill(pid_t child) {
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
  }

  ScriptedHost host;
};

TEST_F(DraftFiles, AKeptDraftComesBackAsItWasLastWritten) {
  Draft draft = Sample(3);
  draft.SlipId = "202405171001u01220001";
  draft.Stamp = "0|2024-05-17 09:00:00|1000| ";
  draft.NoPriceMode = 1;
  draft.PartnerCode = "C'0001";
  draft.Depot = "매장    100101";
  KeepDraft(draft);
  FlushDrafts(kForAsLongAsItTakes);
  draft.Lines.erase(draft.Lines.begin());  // every later line moves up
  draft.Lines.push_back({"P9", "탭\t과 줄\r끝", "1.5", false});
  draft.Lines.pop_back();
  KeepDraft(draft);
  FlushDrafts(kForAsLongAsItTakes);
  draft.Lines[0].Quantity = "77";
  draft.Lines.push_back({"P10", "콩나물", "10", false});
  std::rotate(draft.Lines.begin(), draft.Lines.begin() + 1, draft.Lines.end());
  draft.Lines.insert(draft.Lines.begin() + 1, {"P11", "콩나물", "11", true});
  draft.TriedId = draft.SlipId;
  KeepDraft(draft);
  EXPECT_TRUE(KeptDrafts().empty()) << "it is still being written";
  ResetDrafts();

  const auto kept = KeptDrafts();
  ASSERT_EQ(kept.size(), 1u);
  EXPECT_TRUE(SameEntries(kept[0], draft));
  EXPECT_EQ(kept[0].SlipId + kept[0].Stamp + kept[0].TriedId + kept[0].FormName,
            draft.SlipId + draft.Stamp + draft.TriedId + draft.FormName);
  EXPECT_EQ(kept[0].NoPriceMode, 1);
  EXPECT_EQ(kept[0].ChangedAt, "2024-05-17 10:20:30");
}

TEST_F(DraftFiles, ThoseOfAMonthAreKeptTheNewestFirst) {
  for (const int month : {4, 5, 3}) {
    host.Clock.Month = month;
    KeepDraft(Sample(month));
  }
  ResetDrafts();
  host.Clock.Month = 5;
  const auto kept = KeptDrafts();
  ASSERT_EQ(kept.size(), 2u);
  EXPECT_EQ(kept[0].Date + kept[1].Date, "54");
}

TEST_F(DraftFiles, EachUserHasAFileOfTheirOwn) {
  KeepDraft(Sample(1));
  ResetDrafts();
  for (const char* other : {"u02", "../u01", "u 1", "한"}) {
    LogIn(other);
    EXPECT_TRUE(KeptDrafts().empty()) << other;
    EXPECT_TRUE(DraftsWork()) << other;
    ResetDrafts();
  }
  for (const auto& entry : fs::directory_iterator(Folder().parent_path())) {
    EXPECT_EQ(entry.path(), Folder());
  }
}

// A process that is killed anywhere in its writing leaves a whole draft, and one no older than what
// it was told is on the disk.
TEST_F(DraftFiles, AKilledProcessLeavesOneWholeState) {
  std::mt19937 random(20240517);
  for (int round = 0; round < 25; ++round) {
    fs::remove_all(Folder());
    int told[2];
    ASSERT_EQ(pipe(told), 0);
    const pid_t child = Fork([&] {
      const std::string id = NewDraftId();
      for (int lines = 1;; lines = lines % 60 + 1) {
        KeepDraft(Sample(lines, id));
        if (lines % 7 != 0) continue;
        FlushDrafts(kForAsLongAsItTakes);
        if (write(told[1], &lines, sizeof lines) < 0) return;
      }
    });
    int first = 0;
    ASSERT_EQ(read(told[0], &first, sizeof first), static_cast<ssize_t>(sizeof first));
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20000));
    Kill(child);
    close(told[1]);
    int onDisk = first;
    while (read(told[0], &onDisk, sizeof onDisk) > 0) continue;
    close(told[0]);

    const auto kept = KeptDrafts();
    ASSERT_EQ(kept.size(), 1u) << round;
    const int lines = static_cast<int>(kept[0].Lines.size());
    EXPECT_TRUE(SameEntries(kept[0], Sample(lines))) << round;
    const int ahead = (lines - onDisk + 60) % 60;
    EXPECT_LE(ahead, 14) << lines << " after " << onDisk << ", round " << round;
    EXPECT_TRUE(TakeDraftNotice().empty());
    ResetDrafts();
  }
}

TEST_F(DraftFiles, TwoProcessesOfAUserDoNotTreadOnEachOther) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = Fork([&] {
    const std::string id = NewDraftId();
    for (int i = 1; i <= 40; ++i) KeepDraft(Sample(i, id));
    FlushDrafts(kForAsLongAsItTakes);
    if (write(ready[1], "x", 1) < 0) return;
  });
  // A third one waits to be told which draft to take.
  int wanted[2];
  ASSERT_EQ(pipe(wanted), 0);
  const pid_t taker = Fork([&] {
    std::array<char, 64> id{};
    if (read(wanted[0], id.data(), id.size() - 1) <= 0) return;
    const char taken = TakeDraft(id.data()) ? 'y' : 'n';
    if (write(ready[1], &taken, 1) < 0) return;
  });
  const std::string mine = NewDraftId();
  for (int i = 1; i <= 40; ++i) {
    KeepDraft(Sample(i, mine));
    FlushDrafts(kForAsLongAsItTakes);
  }
  char byte = 0;
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_TRUE(KeptDrafts().empty()) << "both are being written";
  EXPECT_TRUE(DraftsWork());
  Kill(child);
  const auto left = KeptDrafts();
  ASSERT_EQ(left.size(), 1u);
  EXPECT_TRUE(SameEntries(left[0], Sample(40)));

  // Of two that want it one gets it.
  const std::string& id = left[0].Id;
  ASSERT_EQ(write(wanted[1], id.data(), id.size()), static_cast<ssize_t>(id.size()));
  ASSERT_EQ(read(ready[0], &byte, 1), 1);
  EXPECT_EQ(byte, 'y');
  EXPECT_FALSE(TakeDraft(id));
  Kill(taker);
  EXPECT_TRUE(TakeDraft(id));
  PutDraftAside(id);
  PutDraftAside(mine);
  EXPECT_EQ(KeptDrafts().size(), 2u);
  RemoveDraft(mine);
  EXPECT_EQ(KeptDrafts().size(), 1u);
}

std::string BytesOf(const fs::path& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

void RunSql(const fs::path& path, const char* text) {
  sqlite3* file = nullptr;
  EXPECT_EQ(sqlite3_open(path.c_str(), &file), SQLITE_OK);
  EXPECT_EQ(sqlite3_exec(file, text, nullptr, nullptr, nullptr), SQLITE_OK) << text;
  sqlite3_close(file);
}

TEST_F(DraftFiles, AFileThatCannotBeReadIsSetAsideWithAText) {
  const auto overwrite = [this](size_t from) {
    std::fstream file(File(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(from));
    file << std::string(6000, 'x');
  };
  const struct {
    const char* name;
    std::function<void()> spoil;
    const char* aside;
    const char* text;
  } cases[] = {
      {"its head", [&] { overwrite(0); }, "damaged", "손상"},
      {"a page of it", [&] { overwrite(5000); }, "damaged", "손상"},
      {"cut off", [&] { fs::resize_file(File(), 5000); }, "damaged", "손상"},
      {"something else",
       [&] {
         fs::remove(File());
         RunSql(File(), "CREATE TABLE other (x)");
       },
       "damaged", "손상"},
      {"without its tables", [&] { RunSql(File(), "DROP TABLE line"); }, "damaged", "손상"},
      {"of a later program", [&] { RunSql(File(), "PRAGMA user_version = 2"); }, "newer",
       "더 새로운"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    fs::remove_all(Folder());
    KeepDraft(Sample(40));
    ResetDrafts();
    c.spoil();
    const std::string spoiled = BytesOf(File());
    EXPECT_TRUE(KeptDrafts().empty());
    const std::string notice = TakeDraftNotice();
    const fs::path aside = File().string() + "." + c.aside + "-20240517-102030";
    EXPECT_NE(notice.find(c.text), std::string::npos) << notice;
    EXPECT_NE(notice.find(aside.string()), std::string::npos) << notice;
    EXPECT_TRUE(BytesOf(aside) == spoiled);
    EXPECT_EQ(TakeDraftNotice(), "") << "it is told once";
    KeepDraft(Sample(2));
    ResetDrafts();
    EXPECT_EQ(KeptDrafts().size(), 1u) << "the new file works";
    EXPECT_EQ(TakeDraftNotice(), "");
    ResetDrafts();
  }
}

// A disk that stands still, or is full, holds nobody up and loses nothing while the run lasts.
TEST_F(DraftFiles, WhatCannotBeWrittenNowIsListedAndWrittenLater) {
  const std::string id = NewDraftId();
  KeepDraft(Sample(2, id));
  FlushDrafts(kForAsLongAsItTakes);
  sqlite3* other = nullptr;
  ASSERT_EQ(sqlite3_open(File().c_str(), &other), SQLITE_OK);
  sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
  KeepDraft(Sample(3, id));
  PutDraftAside(id);
  EXPECT_FALSE(FlushDrafts(std::chrono::milliseconds(1)));
  ASSERT_EQ(KeptDrafts().size(), 1u);
  EXPECT_TRUE(SameEntries(KeptDrafts()[0], Sample(3)));
  sqlite3_exec(other,
               "CREATE TRIGGER full BEFORE INSERT ON draft BEGIN SELECT RAISE(ABORT,'full'); END; "
               "COMMIT",
               nullptr, nullptr, nullptr);
  sqlite3_close(other);

  FlushDrafts(kForAsLongAsItTakes);
  EXPECT_FALSE(DraftsWork());
  ASSERT_EQ(KeptDrafts().size(), 1u);
  EXPECT_TRUE(TakeDraft(id));
  EXPECT_TRUE(KeptDrafts().empty());
  KeepDraft(Sample(4, id));
  PutDraftAside(id);
  FlushDrafts(kForAsLongAsItTakes);
  RunSql(File(), "DROP TRIGGER full");
  KeepDraft(Sample(5));
  FlushDrafts(kForAsLongAsItTakes);
  EXPECT_TRUE(DraftsWork());
  ResetDrafts();
  ASSERT_EQ(KeptDrafts().size(), 2u);
  EXPECT_TRUE(SameEntries(KeptDrafts()[0], Sample(5)));
  EXPECT_TRUE(SameEntries(KeptDrafts()[1], Sample(4)));
}

TEST_F(DraftFiles, OnlyTheOwnerMayReadIt) {
  const auto rights = [](const fs::path& path) {
    struct stat found {};
    EXPECT_EQ(stat(path.c_str(), &found), 0) << path;
    return found.st_mode & 0777;
  };
  const auto expectOwnersAlone = [&] {
    EXPECT_EQ(rights(Folder()), 0700u);
    for (const auto& entry : fs::directory_iterator(Folder())) {
      EXPECT_EQ(rights(entry.path()), 0600u) << entry.path();
    }
  };
  const mode_t before = umask(0);
  KeepDraft(Sample(1));
  FlushDrafts(kForAsLongAsItTakes);
  expectOwnersAlone();
  ResetDrafts();
  chmod(File().c_str(), 0644);  // as a copy from elsewhere may be
  chmod(Folder().c_str(), 0755);
  EXPECT_EQ(KeptDrafts().size(), 1u);
  KeepDraft(Sample(2));
  FlushDrafts(kForAsLongAsItTakes);
  expectOwnersAlone();
  umask(before);
}

TEST_F(DraftFiles, WithoutAPlaceForItNothingElseFails) {
  std::ofstream(host.Folder / "data") << "a file where the folder should be";
  KeepDraft(Sample(1, "x"));
  FlushDrafts(kForAsLongAsItTakes);
  EXPECT_TRUE(KeptDrafts().empty());
  EXPECT_FALSE(DraftsWork());
  EXPECT_FALSE(TakeDraft("x"));
  EXPECT_EQ(TakeDraftNotice(), "");
  fs::remove(host.Folder / "data");
  ResetDrafts();
  Session.UserCode.clear();
  EXPECT_EQ(NewDraftId(), "") << "nobody is logged in";
  EXPECT_FALSE(fs::exists(host.Folder / "data"));
}

}  // namespace
}  // namespace store
