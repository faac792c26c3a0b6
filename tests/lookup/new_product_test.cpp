#include "basics/records.h"
#include "basics/text.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "lookup/HELP_BPR.h"
#include "lookup/NEW_PR.h"
#include "lookup/party_lookups.h"
#include "slips/item_list.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

class NewProduct : public SmallStoreTest {
 protected:
  NewProduct() {
    Sql("INSERT INTO BAS (BAS_CODE, BAS_NAME1) VALUES ('C301','EA'), ('C300','BOX단위표'),"
        "('C10A','과세'), ('C10B','면세'), ('C400','재고'), ('C401','비재고'), ('C602','선입'),"
        "('C601','평균'), ('C700','매장')");
    RegisterLookupForms();
    BaseSettings.CodeLengthA = 5;
    CodesAre("수동");
  }
  static void CodesAre(const char* mode) {
    BaseSettings.ProductCodeMode = mode;
    BaseSettings.ProductCodeLength = 5;
  }

  /// What the caller gets back after `work` was done in the form.
  std::string Register(const std::function<void(NEW_PR&)>& work, const std::string& name = "",
                       const std::string& barcode = "") {
    auto* product = dynamic_cast<NEW_PR*>(TheForm("NEW_PR"));
    product->SuggestedName = name;
    product->SuggestedBarcode = barcode;
    host.OnModal("NEW_PR", [&](Form&) { work(*product); });
    Host.ShowModal(*product);
    std::string result = product->SuggestedName;
    ReleaseDroppedForms();
    return result;
  }
  static void Fill(NEW_PR& form, const char* code, const char* name, const char* barcode) {
    if (form.txBox[0].Enabled) form.txBox[0].SetText(code);
    form.txBox[1].SetText(name);
    form.txBox[4].SetText(barcode);
    form.Combo1[5].SetText(ListEntry("식품", "100000000000000"));
  }
  static std::string Stored(const std::string& columns, const std::string& name) {
    return Value(Splice("SELECT CONCAT_WS('|',{columns}) FROM PR WHERE PR_NAME='{name}'",
                        "columns"_a = columns, "name"_a = name));
  }
};

TEST_F(NewProduct, EveryFieldGoesToItsColumn) {
  EXPECT_EQ(Register([](NEW_PR& form) {
              Fill(form, "20001", "옥수수차", " 8809999 ");
              const char* texts[] = {"500ml", "S77",  "1,234.5",  "C0001 한빛상사",
                                     "1,000", "2500", "2000.125", "12.5"};
              int at = 0;
              for (const size_t box : {2, 3, 5, 6, 7, 8, 9, 10}) {
                form.txBox[box].SetText(texts[at++]);
              }
              form.Combo1[1].SetListIndex(1);
              form.Combo1[2].SetListIndex(1);
              EXPECT_TRUE(form.KeyDown(Key::F9));
              EXPECT_EQ(form.LBL_MSG.Caption, "저장이 완료되었습니다.");
            }),
            "옥수수차");
  EXPECT_EQ(SqlBatch.at(1),
            " INSERT INTO PR (PR_CODE,PR_NAME,KD_ID,PR_GU,PR_PTNO,PR_DATE,PR_BCODE,PR_STD,PR_UNT,"
            "PR_MIN,PR_END,PR_TAX,PR_VM,PR_BCTCODE,PR_OP0,PR_OP1,PR_OP2,PR_MARGIN) VALUES  ( "
            "'20001','옥수수차','100000000000000','1','S77','2024-05-17','8809999','500ml','BOX단위"
            "',1234.5,'0','B','1','C0001',1000,2000.125,2500,12.5 ) ");
  EXPECT_EQ(Stored("PR_CODE,PR_BCODE,PR_UNT,PR_MIN,PR_TAX,PR_OP1,PR_END", "옥수수차"),
            "20001|8809999|BOX단위|1234.5000|B|2000.1250|0");
}

TEST_F(NewProduct, OpensWithTheSuggestionsAndTheFirstOfEachList) {
  const struct {
    const char* mode;
    const char* code;
    bool typed;
    const char* information;
  } cases[] = {{"자동", "*****", false, "(5자리 코드 자동 생성)"},
               {"수동", "", true, "(5자리 코드 수동 생성)"}};
  for (const auto& c : cases) {
    CodesAre(c.mode);
    Register(
        [&](NEW_PR& form) {
          EXPECT_EQ(form.txBox[0].Text(), c.code);
          EXPECT_EQ(form.txBox[0].Enabled, c.typed);
          EXPECT_EQ(form.txBox[0].MaxLength, 5);
          EXPECT_EQ(form.LaCodeinformation.Caption, c.information);
          EXPECT_EQ(form.txBox[1].Text() + form.txBox[4].Text(), "보리차880");
          EXPECT_EQ(form.ActiveControl, &form.txBox[c.typed ? 0 : 1]);
          std::string chosen;
          for (const ComboBox& combo : form.Combo1) chosen += RightChars(combo.Text(), 4) + ",";
          EXPECT_EQ(chosen, "C300,C10A,C400,C601,C700,,") << "no category is chosen at first";
          EXPECT_EQ(form.Combo1[5].List().size(), 3U);
          EXPECT_TRUE(form.Place.Positioned && form.Place.Left == 0 && form.Place.Top == 0);
          form.Combo1[0].SetListIndex(1);
          form.Activate();
          EXPECT_EQ(form.Combo1[0].ListIndex(), 1) << "filled once";
        },
        "보리차", "880");
  }
}

TEST_F(NewProduct, AMadeCodeFollowsTheHighestOne) {
  CodesAre("자동");
  const struct {
    const char* before;
    const char* name;
    const char* stored;  ///< Code and barcode.
  } cases[] = {
      {"DELETE FROM PR", "첫째", "00001|00001"},
      {"INSERT INTO PR (PR_CODE,PR_NAME) VALUES ('10041','전')", "둘째", "10042|10042"},
      {"DELETE FROM PR WHERE PR_CODE='00001'", "셋째", "10043|10043"},
      // Codes that are no numbers give no next one.
      {"DELETE FROM PR; INSERT INTO PR (PR_CODE,PR_NAME) VALUES ('P0001','전')", "넷째",
       "00001|00001"},
  };
  for (const auto& c : cases) {
    Sql(c.before);
    EXPECT_EQ(Register([&](NEW_PR& form) {
                Fill(form, "", c.name, " ");
                form.Command1[0].Click();
              }),
              c.name);
    EXPECT_EQ(Stored("PR_CODE,PR_BCODE", c.name), c.stored);
  }
}

TEST_F(NewProduct, RefusalsComeInTheirOrderAndLeaveTheKeyboardAtTheField) {
  Register([&](NEW_PR& form) {
    // Each case mends what the one before was refused for.
    const struct {
      std::function<void()> enter;
      const char* title;
      const char* text;
      Control& at;
    } cases[] = {
        {[&] { form.txBox[0].SetText("  "); }, "코드오류",
         "품목코드는 필수입력입니다.             ", form.txBox[0]},
        {[&] { form.txBox[0].SetText("1000"); }, "길이오류",
         "품목코드의 기본자릿수가 맞지않습니다.            ", form.txBox[0]},
        {[&] { form.txBox[0].SetText("09999"); }, "품목명", "품목명은 필수입력코드입니다.         ",
         form.txBox[1]},
        {[&] {
           form.txBox[1].SetText("새것");
           form.Combo1[1].SetListIndex(-1);
         },
         "품목명", "세액구분은 필수입력코드입니다.       ", form.Combo1[1]},
        {[&] { form.Combo1[1].SetListIndex(0); }, "품목명", "품목그룹은 필수입력코드입니다.       ",
         form.Combo1[5]},
        {[&] { form.Combo1[5].SetListIndex(0); }, "거래처코드",
         "품목코드는 [10000] 보다 큰 코드로 생성되어야 합니다.  ", form.txBox[0]},
        {[&] {
           form.txBox[0].SetText("10000");  // the bound itself will do
           form.txBox[4].SetText("8801000 ");
         },
         "중복바코드", "중복된 바코드가 존재합니다.            ", form.txBox[4]},
    };
    for (const auto& c : cases) {
      SCOPED_TRACE(c.text);
      c.enter();
      form.SetFocus(form.txBox[10]);
      host.ExpectBox(c.title);
      form.Command1_Click(0);
      EXPECT_EQ(host.Boxes.back().Text, c.text);
      EXPECT_EQ(host.Boxes.back().Style, box::Critical);
      EXPECT_EQ(form.ActiveControl, &c.at);
      EXPECT_FALSE(form.IsClosed());
    }
  });
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PR"), "10");
}

TEST_F(NewProduct, AFailedSaveKeepsTheFormAndGivesTheServersWords) {
  Sql("INSERT INTO PR (PR_CODE,PR_NAME) VALUES ('20001','있는것')");
  const auto fails = [&](NEW_PR& form, const std::string& words) {
    host.ExpectBox("오류");
    form.KeyDown(Key::F9);
    EXPECT_EQ(host.Boxes.back().Text.find("저장이 실패하였습니다.\r\r MSG: "), 0U);
    EXPECT_NE(host.Boxes.back().Text.find(words), std::string::npos) << host.Boxes.back().Text;
    EXPECT_EQ(form.LBL_MSG.Caption, host.Boxes.back().Text);
    EXPECT_FALSE(form.IsClosed());
  };
  EXPECT_EQ(Register([&](NEW_PR& form) {
              Fill(form, "20001", "새것", "");
              fails(form, "Duplicate");
              form.txBox[1].SetText("아빠's");
              fails(form, "'");
              form.txBox[0].SetText("20002");
              form.txBox[1].SetText("새것");
              form.KeyDown(Key::F9);
            }),
            "새것");
  EXPECT_EQ(Stored("PR_CODE,PR_BCODE", "새것"), "20002|20002") << "not the refused code's";

  CodesAre("자동");
  EXPECT_EQ(Register([&](NEW_PR& form) {
              Fill(form, "", "또새것", "");
              Disconnect();
              fails(form, "");
              Reconnect();
              form.KeyDown(Key::F9);
            }),
            "또새것");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PR WHERE PR_CODE LIKE '*%'"), "0");
}

TEST_F(NewProduct, NothingComesBackUnlessAProductWasRegistered) {
  const std::function<void(NEW_PR&)> ways[] = {[](NEW_PR& form) { form.KeyDown(Key::Escape); },
                                               [](NEW_PR& form) { form.Command1[1].Click(); },
                                               [](NEW_PR& form) { form.Close(); }};
  for (const auto& way : ways) EXPECT_EQ(Register(way, "제안", "880"), "");
  EXPECT_EQ(Value("SELECT COUNT(*) FROM PR"), "10");
}

TEST_F(NewProduct, KeysWalkThroughTheFields) {
  Register([&](NEW_PR& form) {
    const auto press = [&](Key key) { EXPECT_TRUE(form.Press(key)); };
    host.ExpectBox("코드오류");
    press(Key::Enter);
    EXPECT_EQ(form.ActiveControl, &form.txBox[0]);
    press(Key::Down);  // looks at nothing
    EXPECT_EQ(form.ActiveControl, &form.txBox[1]);
    press(Key::Up);
    form.txBox[0].SetText("20001");
    press(Key::Enter);
    for (int i = 0; i < 4; ++i) press(Key::Enter);
    EXPECT_EQ(form.ActiveControl, &form.Combo1[5]);
    EXPECT_FALSE(form.Press(Key::Down)) << "chooses in the list";
    for (int i = 0; i < 12; ++i) press(Key::Enter);
    EXPECT_EQ(form.ActiveControl, &form.Command1[0]) << "an empty supplier is passed over";
    press(Key::Up);
    EXPECT_EQ(form.ActiveControl, &form.txBox[10]);
  });
}

TEST_F(NewProduct, FindsTheMainSupplier) {
  Register([&](NEW_PR& form) {
    TextBox& supplier = form.txBox[6];
    const auto press = [&](Key key) {
      form.SetFocus(supplier);
      form.Press(key);
      return supplier.Text();
    };
    const auto choose = [](Form& lookup) {
      auto& partners = dynamic_cast<HELP_CT&>(lookup);
      partners.Text1.SetText("나래");
      partners.Command1_Click();
      partners.FLEX1_DblClick();
    };
    supplier.SetText("한빛식품");
    EXPECT_EQ(press(Key::Enter), "C0002 한빛식품");
    EXPECT_EQ(press(Key::Enter), "C0002 한빛식품") << "is not looked for a second time";
    EXPECT_EQ(form.ActiveControl, &form.txBox[7]);
    host.OnModal("HELP_CT");
    EXPECT_EQ(press(Key::F1), "C0002 한빛식품") << "nothing chosen, nothing changed";
    host.OnModal("HELP_CT", choose);
    EXPECT_EQ(press(Key::F1), "C0003  나래유통");
    supplier.SetText("없는이름");
    host.OnModal("HELP_CT");
    EXPECT_EQ(press(Key::Enter), "");
    EXPECT_EQ(form.ActiveControl, &supplier);
  });
}

TEST_F(NewProduct, StandsInTheItemListAtOnceWhereTheStoreIsNotLimited) {
  const auto registered = [&](const char* code) {
    return Register([&](NEW_PR& form) {
      Fill(form, code, "새것", "");
      form.KeyDown(Key::F9);
    });
  };
  OpenItemList();
  registered("20001");
  EXPECT_TRUE(FindItem("20001"));
  EXPECT_TRUE(FindItem("P0001"));

  AppOptions.OrderInfoPartnersOnly = 1;
  OpenScopedItemList("C0001");
  host.ExpectBox("적정재고");
  EXPECT_EQ(registered("20002"), "새것");
  EXPECT_FALSE(FindItem("20002"));
  EXPECT_TRUE(FindItem("P0002")) << "the supplier's list stands";

  // The list cannot be read: the one that is there goes on serving.
  AppOptions.OrderInfoPartnersOnly = 0;
  Sql("ALTER TABLE PR RENAME COLUMN PR_TAX2 TO PR_TAX3");
  host.ExpectBox("다시 시작");
  EXPECT_EQ(registered("20003"), "새것");
  Sql("ALTER TABLE PR RENAME COLUMN PR_TAX3 TO PR_TAX2");
  EXPECT_TRUE(FindItem("P0002"));
}

TEST_F(NewProduct, TheItemLookupShowsIt) {
  HELP_BPR lookup;
  lookup.Text1.SetText("쌀");
  lookup.Command1_Click();
  host.OnModal("NEW_PR");
  lookup.Command2.Click();
  EXPECT_EQ(ColumnText(lookup.FLEX1, 2), "국산쌀") << "as it was when nothing was registered";

  host.OnModal("NEW_PR", [](Form& form) {
    Fill(dynamic_cast<NEW_PR&>(form), "20001", "유기농쌀", "");
    form.KeyDown(Key::F9);
  });
  lookup.Command2.Click();
  EXPECT_EQ(lookup.Text1.Text(), "유기농쌀");
  lookup.FLEX1_KeyDown(Key::Enter);
  EXPECT_EQ(lookup.Results[1] + lookup.Results[0], "유기농쌀 20001");
}

}  // namespace
}  // namespace store
