#include <filesystem>
#include <fstream>
#include <sstream>

#include "basics/text.h"
#include "forms/open_forms.h"
#include "forms/program_places.h"
#include "handheld/FRM_CRDIMP.h"
#include "handheld/handheld_forms.h"
#include "handheld/wire/master_line.h"
#include "tests/support/small_store_test.h"

namespace store {
namespace {

TEST(MasterLine, IsOfFixedWidthWhateverTheProduct) {
  const struct {
    const char* what;
    MasterProduct product;
    const char* line;
  } cases[] = {
      {"plain",
       {"8801000", "맑은생수", "480", "700", "12", "10"},
       "8801000        맑은생수                480    700   12   10"},
      {"a price of eight digits, a stock of six, and ten letters of twelve",
       {"123456789012345678", "abcdefghijkl", "12345678", "9999999", "123456", "-9999"},
       "123456789012345abcdefghij                09999999    0-9999"},
      {"twelve Korean letters",
       {"1", "가나다라마바사아자차카타", "1", "2", "3", "4"},
       "1              가나다라마바사아자차      1      2    3    4"},
      {"a barcode of Korean letters is cut between two",
       {"바코드바코드바코드", "x", "0", "0", "0", "0"},
       "바코드바코드바 x                         0      0    0    0"},
  };
  for (const auto& c : cases) {
    const std::string line = MasterLine(c.product);
    EXPECT_EQ(line.size(), 61U) << c.what;
    EXPECT_EQ(FromCodePage949(line), std::string(c.line) + "\r\n") << c.what;
  }
}

class MasterExport : public SmallStoreTest {
 protected:
  MasterExport() { RegisterHandheldForms(); }
  FRM_CRDIMP& Open() {
    auto& form = dynamic_cast<FRM_CRDIMP&>(*TheForm("FRM_CRDIMP"));
    Host.Show(form);
    return form;
  }
  std::filesystem::path File() const { return host.Folder / "MASTER" / "MASTER.txt"; }
  std::string Written() const {
    std::ostringstream text;
    text << std::ifstream(File(), std::ios::binary).rdbuf();
    return FromCodePage949(text.str());
  }
  /// The line of a barcode without its name.
  std::string LineOf(const std::string& barcode) const {
    const std::string text = Written();
    const size_t at = text.find(barcode + " ");
    return at == std::string::npos ? "" : text.substr(at, text.find("\r\n", at) - at);
  }
};

TEST_F(MasterExport, WritesEveryProductThatIsSoldAndStartsTheTool) {
  Sql("UPDATE IV SET BSQTY=1.5 WHERE PR_CODE='P0008'; UPDATE PR SET PR_BCODE='8801000' WHERE "
      "PR_CODE='P0009'");
  host.ExpectBox("DT900의 [8.수신]을 선택후 [확인:ENT]");
  FRM_CRDIMP& form = Open();
  std::string told;
  host.DuringEvents = [&] {
    if (told.empty()) told = form.Label2[3].Caption + form.Label2[1].Caption;
  };
  form.Command1_Click(0);
  EXPECT_EQ(told, "총 [" + std::to_string(form.PBar1.Max) + "] 건중 1");
  EXPECT_NE(LineOf("8801000").find("    480    700   24   10"), std::string::npos)
      << "one line for a barcode on two products, the stock of each setting";
  EXPECT_NE(LineOf("88010003").find("   250    300    0    8"), std::string::npos)
      << "never stocked";
  EXPECT_NE(LineOf("88010008").find("  8000      0  2.5    0"), std::string::npos);
  EXPECT_EQ(LineOf("88010006"), "") << "not sold any more";
  EXPECT_EQ(form.PBar1.Value, form.PBar1.Max);
  EXPECT_GT(host.EventRounds, 1);
  ASSERT_EQ(host.Programs.size(), 1U);
  EXPECT_EQ(host.Programs[0].Path, Host.ProgramFolder + "/MULTIDROP/multi32e.exe");
  EXPECT_EQ(host.Programs[0].State, WindowState::Maximized);
  EXPECT_EQ(OpenForm("FRM_CRDIMP"), nullptr);
}

TEST_F(MasterExport, TakesTheChosenPriceLevel) {
  Sql("UPDATE UP SET DP10=777 WHERE RCT_CODE='1001'; INSERT INTO UP (RCT_CODE,PR_CODE,DP_GUBUN,"
      "DP1,DP2,DP10) VALUES ('1001','P0003','R',1,2,3)");
  const struct {
    int option;
    size_t combo;
    int level;
    const char* barcode;
    const char* price;
  } cases[] = {{1, 0, 9, "8801000", "    777"},
               {2, 1, 1, "88010003", "      2"},
               {2, 1, 0, "88010004", "      0"}};
  for (const auto& c : cases) {
    host.ExpectBox("DT900의 [8.수신]");
    FRM_CRDIMP& form = Open();
    form.Option1_Click(c.option);
    form.Combo1[c.combo].SetListIndex(c.level);
    form.Command1_Click(0);
    EXPECT_NE(LineOf(c.barcode).find(c.price), std::string::npos) << c.option << LineOf(c.barcode);
  }
}

TEST_F(MasterExport, LeavesAFolderOfTheSystemAlone) {
  Places.WorkFolder = (host.Folder / "data").string();
  host.ExpectBox("DT900의 [8.수신]");
  Open().Command1_Click(0);
  Places = {};
  EXPECT_FALSE(std::filesystem::exists(File()));
  EXPECT_GT(std::filesystem::file_size(host.Folder / "data/MASTER/MASTER.txt"), 0U);
}

TEST_F(MasterExport, TellsWhatStandsInItsWayAndKeepsTheOldFile) {
  std::filesystem::create_directories(File().parent_path());
  std::ofstream(File()) << "old";
  std::filesystem::create_directory(File().string() + ".new");  // where the fresh one would be made
  host.ExpectBox("MASTER 파일을 만들지 못했습니다.");
  int pointerAtBox = PointerHourglass;
  Host.MsgBox = [&, show = Host.MsgBox](const auto& text, int style, const auto& title) {
    pointerAtBox = host.Pointers.back();
    return show(text, style, title);
  };
  Open().Command1_Click(0);
  EXPECT_EQ(pointerAtBox, PointerNormal);
  EXPECT_EQ(Written(), "old");
  std::filesystem::remove(File().string() + ".new");

  host.ProgramRefusal = "No such file or directory";
  host.ExpectBox("DT900의 [8.수신]");
  host.ExpectBox("No such file or directory");
  Open().Command1_Click(0);
  EXPECT_NE(Written(), "old");

  const std::string before = Written();
  Sql("UPDATE PR SET PR_END='1'");
  Open().Command1_Click(0);  // closes without a word
  EXPECT_EQ(Written(), before) << "nothing to sell does not empty the terminal";
  EXPECT_EQ(host.Programs.size(), 1U);

  Disconnect();
  Open().Command1_Click(0);
  EXPECT_EQ(OpenForm("FRM_CRDIMP"), nullptr);
  Reconnect();
}

}  // namespace
}  // namespace store
