// Taking back a slip that was deleted on the board.
#include <sys/stat.h>

#include <filesystem>

#include "board/frmDeleted.h"
#include "slips/deleted_slips.h"
#include "tests/board/board_test.h"
#include "tests/support/cutting_proxy.h"

namespace store {
namespace {

using Cut = CuttingProxy::Cut;
using Table = std::vector<std::vector<std::string>>;

class BoardRestores : public BoardTest {
 protected:
  BoardRestores() { ShowMay(); }

  void Delete(const std::string& slip, const char* told = "삭제되었습니다.") {
    Click(slip);
    host.ExpectBox(told);
    board.Image1_Click(4);
  }
  /// Takes back the slip in a row of the list.
  void Restore(const char* told, int row = 1) {
    host.OnModal("frmDeleted", [row](Form& form) {
      auto& list = dynamic_cast<frmDeleted&>(form);
      list.FLEX1.SetRow(row);
      list.Command1.Click();
    });
    host.ExpectBox(told);
    board.LaDeleted.Click();
  }
  /// Every column of a slip and its lines, to the byte.
  static Table Whole(const std::string& slip) {
    Table all = Rows("SELECT * FROM PEM22 WHERE PE_ID='" + slip + "'");
    for (auto& line : Rows("SELECT * FROM PSM22 WHERE PE_ID='" + slip + "' ORDER BY PS_NO"))
      all.push_back(std::move(line));
    return all;
  }
  std::string Offer() const { return board.LaDeleted.Visible ? board.LaDeleted.Caption : ""; }
  /// The program is gone without a word, and started again.
  void Crash() {
    ResetDeletedSlips();
    board.Image1_Click(3);
  }
};

TEST_F(BoardRestores, EveryColumnAsItWasAfterARestartToo) {
  // Columns that only the customer's own programs know, NULL, quotes, a backslash, letters of four
  // bytes, and blanks at an end, which no comparison would miss.
  Sql("ALTER TABLE PEM22 ADD COLUMN OWN_MARK VARCHAR(20);"
      "ALTER TABLE PSM22 ADD COLUMN OWN_NOTE VARCHAR(40) DEFAULT 'x';"
      "UPDATE PEM22 SET PE_TCTNAME='O''Neil''s \\\\ 상사 😀',PE_MEMO1='끝 ',PE_COND='a''' WHERE "
      "PE_ID='" +
      kEditing +
      "';"
      "UPDATE PSM22 SET OWN_NOTE=NULL,PS_UP=700.1250 WHERE PE_ID='" +
      kEditing +
      "' AND PS_NO=1;"
      "UPDATE PSM22 SET OWN_NOTE='{a} -- ; #' WHERE PE_ID='" +
      kEditing + "' AND PS_NO=2");
  const Table before = Whole(kEditing);
  ASSERT_EQ(before.size(), 3u);
  EXPECT_EQ(Offer(), "");
  Delete(kEditing);
  EXPECT_EQ(Whole(kEditing), Table{});
  EXPECT_EQ(Offer(), "삭제한 전표 1건");
  Crash();
  EXPECT_EQ(Offer(), "삭제한 전표 1건");
  Restore("전표를 되살렸습니다.");
  EXPECT_EQ(Whole(kEditing), before);
  EXPECT_EQ(Offer(), "");
  EXPECT_EQ(board.SelectedSlipId, kEditing) << "the board shows it, marked";
  EXPECT_EQ(board.FLEX1.TextMatrix(board.FLEX1.Row(), board::SlipId), kEditing);
  Sql("ALTER TABLE PEM22 DROP COLUMN OWN_MARK; ALTER TABLE PSM22 DROP COLUMN OWN_NOTE");
}

TEST_F(BoardRestores, TheListShowsWhatItHoldsAndEndsWithTheDay) {
  Delete(kEditing);
  Sql("UPDATE PEM22 SET PE_CK='0' WHERE PE_ID='" + kConfirmed + "'");
  board.Image1_Click(3);
  host.Clock.Minute = 31;
  Delete(kConfirmed);
  EXPECT_EQ(Offer(), "삭제한 전표 2건");
  host.OnModal("frmDeleted", [](Form& form) {
    auto& list = dynamic_cast<frmDeleted&>(form);
    EXPECT_EQ(RowText(list.FLEX1, 1), "1|10:31|2024.05.17|한빛식품|1|11000|" + kConfirmed + "|");
    EXPECT_EQ(RowText(list.FLEX1, 2), "2|10:20|2024.05.17|한빛상사|2|12700|" + kEditing + "|");
    list.FLEX1.SetRow(2);
    EXPECT_EQ(RowText(list.FLEX2, 1), "1|P0001|맑은생수|2L*6|10|700|7000");
    EXPECT_EQ(list.FLEX2.Rows(), 3);
    EXPECT_TRUE(list.KeyDown(Key::Escape));
  });
  board.LaDeleted.Click();
  EXPECT_EQ(StateOf(kEditing), "gone") << "nothing was chosen";
  host.Clock.Day = 18;
  board.Image1_Click(3);
  EXPECT_EQ(Offer(), "");
}

TEST_F(BoardRestores, OnlyTheirOwnerMayReadThem) {
  Delete(kEditing);
  const auto folder = host.Folder / "data" / "deleted";
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    struct stat state {};
    ASSERT_EQ(stat(entry.path().c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 077, 0u) << entry.path();
    ++files;
  }
  EXPECT_GT(files, 0);
  ResetDeletedSlips();
  Session.UserCode = "u02";
  EXPECT_TRUE(DeletedToday().empty()) << "each user has a file of their own";
}

TEST_F(BoardRestores, WithoutAPlaceForItTheSlipIsDeletedAndTheBoardSaysSo) {
  setenv("STORE_DATA_FOLDER", "/proc/nowhere", 1);
  ResetDeletedSlips();
  Delete(kEditing);
  EXPECT_EQ(StateOf(kEditing), "gone");
  EXPECT_EQ(Offer(), "삭제한 전표를 남기지 못함");
  EXPECT_FALSE(board.LaDeleted.Enabled);
}

TEST_F(BoardRestores, NeverOverAnotherSlipOfItsKeyAndNeverTwice) {
  Delete(kEditing);
  const auto store = [](const std::string& total) {
    Sql("INSERT INTO PEM22 (PE_ID,PE_CK,PE_PDATE,PE_SDATE,PE_FCTCODE,PE_TCTCODE,PE_TOT) VALUES ('" +
        kEditing + "','0','2024-05-17','2024-05-17 09:01:00','1001','C0001'," + total + ")");
  };
  store("12700");  // the next new order has got the number; it even has the same head
  const Table other = Whole(kEditing);
  Restore("같은 번호의 다른 전표가 있어 되살리지 않았습니다.");
  EXPECT_EQ(Whole(kEditing), other);
  EXPECT_EQ(Offer(), "삭제한 전표 1건") << "it can still be looked at";
  Sql("DELETE FROM PEM22 WHERE PE_ID='" + kEditing + "'");
  Restore("전표를 되살렸습니다.");
  EXPECT_EQ(Offer(), "");
}

TEST_F(BoardRestores, WhatWasReadIsWhatIsDeleted) {
  const struct {
    const char* change;  // by somebody else, after the slip was read
  } cases[] = {{"UPDATE PEM22 SET PE_SDATE='2024-05-17 10:00:00' WHERE PE_ID="},
               {"UPDATE PSM22 SET PS_SQTY=11 WHERE PS_NO=1 AND PE_ID="},
               {"DELETE FROM PSM22 WHERE PS_NO=2 AND PE_ID="},
               {"INSERT INTO PSM22 (PS_NO,PS_DATE,PR_CODE,PE_ID) SELECT 3,'2024-05-17','P0003',"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.change);
    const std::optional<DeletedSlip> read = ReadWholeSlip(kEditing);
    ASSERT_TRUE(read);
    Sql(c.change + ("'" + kEditing + "'"));
    StartBatch();
    AddToBatch(StillAsReadGuard(*read));
    AddToBatch("DELETE FROM PEM22 WHERE PE_ID='" + kEditing + "'");
    EXPECT_EQ(ExecuteBatch(SqlBatch), 0);
    EXPECT_EQ(LastErrorText, kSlipChanged);
    EXPECT_EQ(StateOf(kEditing), "0");
  }
  EXPECT_EQ(Offer(), "");
}

TEST_F(BoardRestores, ALostReplyIsLookedForAndToldTruly) {
  const struct {
    Cut cut;
    bool staysAway;
    const char* told;
    bool stands;  // in the end
  } cases[] = {
      {Cut::After, false, "전표를 되살렸습니다.", true},
      {Cut::After, true, "되살렸는지 알 수 없습니다.", true},
      {Cut::Before, true, "되살렸는지 알 수 없습니다.", false},
      {Cut::Before, false, "되살렸는지 확인되지 않았습니다.", false},
  };
  CuttingProxy line(TestServer().Port());
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  const Table before = Whole(kEditing);
  for (const auto& c : cases) {
    SCOPED_TRACE(c.told);
    Delete(kEditing);
    line.CutNextBatch(c.cut, c.staysAway);
    Restore(c.told);
    line.Return();
    EXPECT_EQ(Whole(kEditing), c.stands ? before : Table{});
    // Tried again it comes once.
    if (board.LaDeleted.Visible) {
      Restore(c.stands ? "전표가 그대로 있습니다." : "전표를 되살렸습니다.");
    }
    EXPECT_EQ(Whole(kEditing), before);
    EXPECT_EQ(Offer(), "");
  }
  ResetGateway();
}

TEST_F(BoardRestores, ADeletionInDoubtIsKeptWithAWordAndOneThatFailedIsNot) {
  CuttingProxy line(TestServer().Port());
  BuildConnectString(PrivateDbServer::ServerOption(line.Port()), "kt", "small");
  for (const bool arrives : {false, true}) {
    SCOPED_TRACE(arrives);
    line.CutNextBatch(arrives ? Cut::After : Cut::Before, true);
    Delete(kEditing, "저장되었는지 알 수 없습니다.");
    line.Return();
    EXPECT_EQ(Offer(), "삭제한 전표 1건") << "also after the same deletion was tried before";
    EXPECT_FALSE(DeletedToday().at(0).Sure);
    if (arrives) break;
    Restore("전표가 그대로 있습니다.");
    EXPECT_EQ(Offer(), "");
  }
  Restore("전표를 되살렸습니다.");
  Sql("UPDATE PEM22 SET PE_CK='2' WHERE PE_ID='" + kEditing + "'");
  Delete(kEditing, "삭제하지 않았습니다.");
  EXPECT_EQ(Offer(), "");
  ResetGateway();
}

TEST_F(BoardRestores, NothingWithoutADatabaseAndSaysSo) {
  Delete(kEditing);
  Disconnect();
  Restore("되살리지 못했습니다.");
  Reconnect();
  EXPECT_EQ(StateOf(kEditing), "gone");
  Restore("전표를 되살렸습니다.");
}

}  // namespace
}  // namespace store
