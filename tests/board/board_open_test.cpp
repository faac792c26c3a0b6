// From the board into the order and receipt forms.
#include <map>

#include "basics/records.h"
#include "forms/host.h"
#include "slips/handheld_runs.h"
#include "tests/board/board_test.h"

namespace store {
namespace {

using Texts = std::vector<std::string>;

class BoardOpens : public BoardTest {
 protected:
  BoardOpens() {
    ShowMay();
    host.FormsShown.clear();
  }
  /// The receipt form comes up modally for that slip.
  void ExpectReceipt(const std::string& slipId) {
    host.OnModal("frm_PE_UNIT", [this, slipId](Form& form) {
      EXPECT_EQ(board.SelectedSlipId, slipId);
      EXPECT_EQ(dynamic_cast<SlipForm&>(form).SlipId, slipId);
      EXPECT_EQ(dynamic_cast<SlipForm&>(form).SlipTable, "PEM23");
    });
  }
};

TEST_F(BoardOpens, NothingOnAClickBesideTheConfirmColumn) {
  Click(kConfirmed);
  EXPECT_EQ(board.SelectedSlipId, kConfirmed);
  EXPECT_EQ(board.SelectedSlipState, "발주확정");
  Click(kShipped, board::Total);
  EXPECT_EQ(board.SelectedSlipId, kShipped);
  EXPECT_EQ(board.SelectedSlipState, "물류출고");
  EXPECT_EQ(host.FormsShown, Texts{});
  board.Image1_Click(3);
  EXPECT_EQ(board.SelectedSlipId, kShipped);
}

TEST_F(BoardOpens, AnOrderInTheFormOfTheOrderType) {
  const struct {
    int type;
    const char* form;
  } cases[] = {{0, "frm_Order"}, {1, "frm_Order02"}, {2, "frm_Order01"}, {3, "frm_Order03"}};
  for (const auto& c : cases) {
    for (const std::string& slip : {kEditing, kConfirmed}) {
      SCOPED_TRACE(testing::Message() << c.form << ", " << slip);
      AppOptions.OrderType = static_cast<std::int16_t>(c.type);
      host.FormsShown.clear();
      Click(slip, board::Confirm);
      EXPECT_EQ(host.FormsShown, (Texts{c.form}));
      EXPECT_EQ(Opened(c.form).SlipId, slip);
      EXPECT_EQ(Opened(c.form).SlipTable, "PEM22");
      EXPECT_EQ(Opened(c.form).NoPriceMode, 0);
    }
  }
  // A double click and Enter open it from any column.
  PointAt(kEditing, 2);
  board.FLEX1_DblClick();
  EXPECT_EQ(Opened("frm_Order03").SlipId, kEditing);
  PointAt(kConfirmed, 2);
  board.FLEX1_KeyDown(Key::Enter);
  EXPECT_EQ(Opened("frm_Order03").SlipId, kConfirmed);
}

TEST_F(BoardOpens, ASlipThatHeadOfficeHasMovedAsAReceiptAndRefreshes) {
  for (const std::string& slip : {kApproved, kShipped}) {
    ExpectReceipt(slip);
    Sql("DELETE FROM PEM22 WHERE PE_ID='" + slip + "'");  // as if it were received
    Click(slip, board::Confirm);
    EXPECT_EQ(Slips().size(), slip == kApproved ? 3u : 2u);
  }
  EXPECT_EQ(OpenForm("frm_Order"), nullptr);
}

TEST_F(BoardOpens, NothingFromTheHeaderAndNothingForAnUnknownOrderType) {
  board.FLEX1.Select(0, board::Confirm);
  board.FLEX1_Click();
  board.FLEX1_DblClick();
  EXPECT_EQ(board.SelectedSlipId, "");
  AppOptions.OrderType = 4;
  Click(kEditing, board::Confirm);
  board.Image1_Click(0);
  AppOptions.OrderType = -1;
  board.Image1_Click(1);
  EXPECT_EQ(host.FormsShown, Texts{});
}

TEST_F(BoardOpens, ANewOrderWithOrWithoutPrices) {
  for (const int button : {0, 1}) {
    AppOptions.OrderType = static_cast<std::int16_t>(button + 2);
    const char* form = button == 0 ? "frm_Order01" : "frm_Order03";
    Click(kEditing);
    board.Image1_Click(button);
    EXPECT_EQ(Opened(form).NoPriceMode, button);
    EXPECT_EQ(Opened(form).SlipTable, "PEM22");
    EXPECT_EQ(Opened(form).SlipId, "") << "a selected slip has no part in a new order";
  }
}

TEST_F(BoardOpens, AFreshFormUnlessThereIsWorkInIt) {
  Click(kEditing, board::Confirm);
  board.Image1_Click(1);  // nothing was entered: the form is used anew
  EXPECT_EQ(Opened("frm_Order").SlipId, "");
  EXPECT_EQ(Opened("frm_Order").NoPriceMode, 1);

  StandInForm& form = Opened("frm_Order");
  form.Work = true;
  host.FormsShown.clear();
  Click(kConfirmed, board::Confirm);
  board.Image1_Click(0);
  EXPECT_EQ(&Opened("frm_Order"), &form);
  EXPECT_EQ(form.SlipId, "");
  EXPECT_EQ(form.NoPriceMode, 1);
  EXPECT_EQ(host.FormsShown, (Texts{"frm_Order", "frm_Order"})) << "it comes forward instead";
}

TEST_F(BoardOpens, AnySlipByItsNumberAsAReceipt) {
  // The neighbour's slip and one in editing among them: the receipt form has the last word.
  for (const std::string& slip :
       {kShipped, kEditing, kReceived, std::string("202405171002u09220001")}) {
    ExpectReceipt(slip);
    board.Text2.SetText(" " + slip + " ");
    board.Text2_KeyPress(Key::Enter);
    EXPECT_EQ(board.Text2.Text(), "");
    // Afterwards it is selected if the board shows it: nothing that is not marked can be deleted.
    const bool listed = board.FLEX1.Row() > 0;
    EXPECT_EQ(board.SelectedSlipId, listed ? slip : "");
    EXPECT_EQ(listed, slip == kShipped || slip == kEditing);
  }
  board.Text2.SetText(kShipped);
  board.Text2_KeyPress(Key::Tab);
  EXPECT_EQ(board.Text2.Text(), kShipped);
}

TEST_F(BoardOpens, NoSlipForANumberThatIsNone) {
  for (const char* text : {"", "99", "202405151001u0222000", "x'"}) {
    SCOPED_TRACE(text);
    Click(kEditing);
    host.ExpectBox(
        "해당전표는 [본부승인] 또는 [물류출고]완료되지 않은 전표이거나 \r\r 전표를 찾을 수 "
        "없습니다.");
    board.Text2.SetText(text);
    board.Text2_KeyPress(Key::Enter);
    EXPECT_EQ(host.Boxes.back().Title, "전표확인");
    EXPECT_EQ(host.Boxes.back().Style, box::Critical);
    EXPECT_EQ(board.Text2.Text(), "");
    EXPECT_EQ(board.SelectedSlipId, "");
  }
  EXPECT_EQ(host.FormsShown, Texts{});
}

// Each entry of the menu tells its form what it runs for.
TEST_F(BoardTest, TheTerminalsFormsOpenForTheirRun) {
  struct Seen : HandheldForm {
    using HandheldForm::HandheldForm;
  };
  for (const char* name : {"DT9RECEV", "FRM_DT900_01", "FRM_CRDIMP"}) {
    RegisterForm(name, [name] { return std::make_unique<Seen>(name); });
  }
  const std::map<std::string, std::string> runs = {
      {"매입 수신", "DT9RECEV 매    입/23/"},
      {"매입반품 수신", "DT9RECEV 매입반품 (반품)/23/R"},
      {"매출 수신", "DT9RECEV 매    출/13/"},
      {"매출반품 수신", "DT9RECEV 매출반품 (반품)/13/R"},
      {"가맹점출고 수신", "DT9RECEV 매    출/14/"},
      {"재고조사 수신", "DT9RECEV 재고조사/82/"},
      {"상품관리 수신", "DT9RECEV 상품관리/66/"},
      {"매입 처리", "FRM_DT900_01 /23/"},
      {"매입반품 처리", "FRM_DT900_01 /23/R"},
      {"매출 처리", "FRM_DT900_01 /13/"},
      {"매출반품 처리", "FRM_DT900_01 /13/R"},
      {"가맹점출고 처리", "FRM_DT900_01 /14/"},
      {"재고조사 처리", "FRM_DT900_01 /82/"},
      {"상품관리 처리", "FRM_DT900_01 /66/"},
      {"크래들 IMPORT", "FRM_CRDIMP //"},
  };
  ShowBoard();
  std::map<std::string, std::string> seen;
  for (size_t entry = 0; entry < board.HandheldMenu.Entries.size(); ++entry) {
    const std::string& text = board.HandheldMenu.Entries[entry];
    const auto note = [&](Form& shown) {
      const auto& form = dynamic_cast<const HandheldForm&>(shown);
      seen[text] =
          form.Name + " " + form.KindCaption + "/" + form.ModuleCode + "/" + form.ReturnMark;
    };
    host.OnModal(HandheldRuns()[entry].FormName, note);
    board.HandheldMenu.Click(static_cast<int>(entry));
    ReleaseDroppedForms();
  }
  EXPECT_EQ(seen, runs);
}

}  // namespace
}  // namespace store
