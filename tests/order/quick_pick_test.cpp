#include "basics/records.h"
#include "basics/text.h"
#include "order/frm_OrderPLU.h"
#include "slips/item_list.h"
#include "tests/order/order_desk.h"

namespace store {
namespace {

class QuickPick : public OrderDesk {
 protected:
  /// Shows the panel as an order form does; it is closed afterwards unless `use` has hidden it.
  void Show(const std::function<void(frm_OrderPLU&)>& use) {
    host.OnModal("frm_OrderPLU", [&use](Form& shown) { use(dynamic_cast<frm_OrderPLU&>(shown)); });
    Host.ShowModal(*TheForm("frm_OrderPLU"));
  }
  /// So many items, of which the last one is the name's.
  static void Items(int count, const std::string& lastName = "끝") {
    OpenRecordset(
        SlotC,
        Splice("SELECT CONCAT('P',seq) PR_CODE,IF(seq={count},'{name}',CONCAT('품목',seq)) PR_NAME,"
               "'500ml' PR_STD,'EA' PR_UNT,'0' PR_TAX2,'' PR_PTNO,' ',' ',CONCAT('880',seq) "
               "PR_BCODE,' ','100010001000000' KD_ID FROM seq_1_to_100 WHERE seq<={count}",
               "count"_a = std::to_string(count), "name"_a = lastName));
  }
  static std::string Names(const Grid& kinds) {
    std::string names;
    for (int row = 0; row < kinds.Rows(); ++row) {
      names += std::string(NameOfEntry(kinds.TextMatrix(row, 0))) + " ";
    }
    return names;
  }
  static std::string Picked() { return PickList.At(0, 0); }
};

TEST_F(QuickPick, CategoriesLeadFromLevelToLevelAndToTheTiles) {
  const struct {
    std::int16_t partnersOnly;
    const char* supplier;
    const char* top;
    const char* middle;
    const char* lowest;
  } cases[] = {{0, "", "생활 식품 ", "곡류 음료 ", "생수 "},
               {1, "#C0001", "식품 ", "곡류 음료 ", "생수 "},
               {2, "#C0002", "식품 ", "음료 ", "생수 "},  // any value but 0 limits the categories
               {1, "", "식품 ", "곡류 ", ""}};            // what is set up for no supplier
  for (const auto& c : cases) {
    AppOptions.OrderInfoPartnersOnly = c.partnersOnly;
    OrderForm& order = Open();
    if (c.supplier[0] != '\0') Supplier(c.supplier);
    Show([&](frm_OrderPLU& panel) {
      EXPECT_EQ(Names(panel.PRHELP[1]), c.top);
      EXPECT_EQ(panel.PRHELP[0].Rows(), 0) << "without a list there are no tiles yet";
      for (const int level : {1, 2}) {
        Grid& kinds = panel.PRHELP[static_cast<size_t>(level)];
        if (kinds.Rows() > 0) kinds.Select(kinds.Rows() - 1, 0);
        kinds.Click();
      }
      EXPECT_EQ(Names(panel.PRHELP[2]), c.middle);
      EXPECT_EQ(Names(panel.PRHELP[3]), c.lowest);
      panel.PRHELP[3].Click();
      const bool hasTiles = c.lowest[0] != '\0';
      EXPECT_EQ(panel.PRHELP[0].TextMatrix(0, 0),
                hasTiles ? "맑은생수\n2L*6 / 박스\n8801000\nHelpCode:P0001" : "");
    });
    order.Close();
  }
}

TEST_F(QuickPick, AnEmptyCellOfACategoryListIsNoChoice) {
  Show([](frm_OrderPLU& panel) {
    panel.PRHELP_Click(1, 0, 1);
    panel.PRHELP_Click(3, 0, 0);
    EXPECT_EQ(panel.PRHELP[2].Rows(), 0);
    EXPECT_EQ(panel.PRHELP[0].Rows(), 0);
  });
}

TEST_F(QuickPick, ACategoryWithoutItemsGivesAnEmptyWall) {
  Sql("INSERT INTO KIND (KD_ID, KD_NAME, KD_LVL) VALUES ('100010002000000', '탄산수', '3')");
  Show([](frm_OrderPLU& panel) {
    panel.PRHELP_Click(1, 1, 0);
    panel.PRHELP_Click(2, 1, 0);
    panel.PRHELP_Click(3, 0, 0);
    EXPECT_EQ(panel.PRHELP[0].Rows(), 1);
    panel.PRHELP_Click(3, 1, 0);
    EXPECT_EQ(panel.BranchOf[0], "탄산수");
    EXPECT_EQ(panel.PRHELP[0].Rows(), 0);
    panel.PRHELP_DblClick();
    EXPECT_TRUE(Picked().empty());
  });
  EXPECT_TRUE(host.FormsHidden.empty()) << "where there is no tile there is no pick";
}

TEST_F(QuickPick, KeysChooseACategoryAndGoOnToWhatItBrings) {
  Show([](frm_OrderPLU& panel) {
    EXPECT_EQ(panel.ActiveControl, &panel.PRHELP[1]);
    panel.PRHELP[1].SetRow(1);
    panel.Press(Key::Enter);
    EXPECT_EQ(panel.ActiveControl, &panel.PRHELP[2]);
    panel.PRHELP[2].KeyPress(" ");  // 곡류, below which there is nothing
    EXPECT_EQ(panel.ActiveControl, &panel.PRHELP[2]);
    panel.PRHELP[2].SetRow(1);
    panel.Press(Key::Enter);
    panel.Press(Key::Enter);
    EXPECT_EQ(panel.ActiveControl, &panel.PRHELP[0]);
    panel.Press(Key::Enter);
  });
  EXPECT_EQ(Picked(), "P0001");
  EXPECT_EQ(host.FormsHidden, std::vector<std::string>{"frm_OrderPLU"});
}

TEST_F(QuickPick, TilesFillTheirRowsFromTheLeft) {
  for (const auto& [count, rows] : {std::pair(12, 3), {10, 3}, {1, 1}, {0, 0}}) {
    Items(count);
    Show([&, count = count, rows = rows](frm_OrderPLU& panel) {
      panel.ListMode = -1;
      panel.Reload = -1;
      panel.Activate();
      const Grid& tiles = panel.PRHELP[0];
      ASSERT_EQ(tiles.Rows(), rows);
      for (int place = 0; place < rows * 5; ++place) {
        EXPECT_EQ(tiles.TextMatrix(place / 5, place % 5).empty(), place >= count) << place;
      }
      if (count == 0) return;
      const std::string& last = tiles.TextMatrix((count - 1) / 5, (count - 1) % 5);
      EXPECT_EQ(last.substr(0, last.find('\n')), "끝") << count;
    });
  }
}

TEST_F(QuickPick, ThePickIsWhatStandsBehindTheMarkerOfTheTile) {
  Items(12, "HelpCode:P9");
  TheForm("frm_OrderPLU");
  const auto pick = [&](int row, int col) {
    Show([&](frm_OrderPLU& panel) {
      panel.PRHELP_MouseMove(row, col);
      EXPECT_EQ(panel.PRHELP[0].ToolTipText, panel.PRHELP[0].TextMatrix(row, col));
      panel.PRHELP[0].Select(row, col);
      panel.PRHELP[0].DblClick();
    });
    return Picked();
  };
  dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU")).ListMode = -1;
  EXPECT_EQ(pick(1, 3), "P9");
  EXPECT_EQ(pick(2, 1), "P12") << "a name that looks like a code is none";
  EXPECT_EQ(pick(2, 2), "") << "an empty tile gives nothing";
}

TEST_F(QuickPick, ComesAgainAsItWasLeftUnlessItIsToStartOver) {
  Items(12);
  auto& panel = dynamic_cast<frm_OrderPLU&>(*TheForm("frm_OrderPLU"));
  panel.ListMode = -1;
  const auto leave = [](frm_OrderPLU& shown) { EXPECT_TRUE(shown.Press(Key::Escape)); };
  Show(leave);
  OpenItemList();  // the order form has read its list again
  SetFilter(SlotC, " PR_CODE = 'P0002'");
  SqlText.clear();
  Show(leave);
  EXPECT_EQ(panel.PRHELP[0].Rows(), 3);
  EXPECT_EQ(panel.PRHELP[0].TextMatrix(2, 1), "끝\n500ml / EA\n88012\nHelpCode:P12")
      << "a tile that was never looked at";
  EXPECT_EQ(SqlText, "") << "nothing is read again";
  EXPECT_TRUE(Picked().empty());

  panel.Reload = -1;
  Show(leave);
  EXPECT_EQ(panel.PRHELP[0].TextMatrix(0, 0), "국산쌀\n10kg / 포\n88010001\nHelpCode:P0002");
  EXPECT_EQ(panel.Reload, -1) << "it is for the opener to change";

  Show([](frm_OrderPLU& shown) { shown.Label5.Click(); });
  EXPECT_EQ(OpenForm("frm_OrderPLU"), nullptr);
  ReleaseDroppedForms();
  Show([](frm_OrderPLU& fresh) { EXPECT_EQ(fresh.PRHELP[0].Rows(), 0); });
}

TEST_F(QuickPick, PagesEndAtTheFirstAndTheLastRow) {
  Items(52);  // eleven rows, the last of two tiles
  Show([](frm_OrderPLU& panel) {
    panel.FillTiles();
    Grid& tiles = panel.PRHELP[0];
    tiles.Select(0, 3);
    std::string tops;
    const auto press = [&](int button) {
      panel.Image1[static_cast<size_t>(button)].Click();
      tops += std::to_string(tiles.TopRow()) + "/" + std::to_string(tiles.Row()) + " ";
    };
    for (const int button : {1, 0, 0, 0, 1, 1, 1}) press(button);
    EXPECT_EQ(tops, "0/0 4/4 8/8 10/9 6/5 2/1 0/0 ") << "the current tile goes along";
  });
}

}  // namespace
}  // namespace store
