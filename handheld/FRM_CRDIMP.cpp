#include "handheld/FRM_CRDIMP.h"

#include <filesystem>

#include "basics/deployment.h"
#include "basics/records.h"
#include "basics/whole_file.h"
#include "forms/host.h"
#include "forms/program_places.h"
#include "gateway/gateway.h"
#include "gateway/stoppable_reads.h"
#include "handheld/wire/master_line.h"

namespace store {
namespace {

constexpr int kLevels = 20;
constexpr int kPaintings = 100;  // of the bar, from its one end to the other

std::string OwnPriceStatement() {
  return Splice(
      " SELECT PR.PR_BCODE as 바코드,PR.PR_NAME as 품명,PR_OP0 as 입고가,PR_OP1 as 출고가,"
      "SUM(IV.BSQTY+IV.INQTY-IV.OTQTY) as 현재고,SAFEIV.SAFE_QTY as 적정재고 FROM ((PR LEFT JOIN "
      "SAFEIV ON PR.PR_CODE = SAFEIV.PR_CODE  AND SAFEIV.RCT_CODE = '{store}') LEFT JOIN IV  ON "
      "PR.PR_CODE = IV.PR_CODE AND IV.RCT_CODE = '{store}')  WHERE   PR.PR_BCODE <> '' AND "
      "PR_END = '0'  GROUP BY PR.PR_BCODE ",
      "store"_a = Session.StoreCode);
}

/// By a price level of the store's row towards partners ("C") or stores ("R").
std::string LevelPriceStatement(int level, const char* side) {
  return Splice(
      " SELECT PR.PR_BCODE as 바코드,PR.PR_NAME as 품명,PR_OP0 as 입고가,DP{level} as 출고가,"
      "SUM(IV.BSQTY+IV.INQTY-IV.OTQTY) as 현재고,SAFEIV.SAFE_QTY as 적정재고 FROM (((PR LEFT JOIN "
      "SAFEIV ON PR.PR_CODE = SAFEIV.PR_CODE  AND SAFEIV.RCT_CODE = '{store}') LEFT JOIN IV  ON "
      "PR.PR_CODE = IV.PR_CODE AND IV.RCT_CODE = '{store}')  LEFT JOIN UP  ON PR.PR_CODE = "
      "UP.PR_CODE AND UP.RCT_CODE = '{store}' AND DP_GUBUN = '{side}')  WHERE   PR.PR_BCODE <> '' "
      "AND PR_END = '0'  GROUP BY PR.PR_BCODE ",
      "level"_a = std::to_string(level), "store"_a = Session.StoreCode, "side"_a = side);
}

/// Where the outside tool stands: the installation's place for it, or under the program's folder.
std::string TransferTool() {
  const std::string tool = TransferToolPath();
  return tool.empty() ? Host.ProgramFolder + "/MULTIDROP/multi32e.exe" : tool;
}

/// Empty when the file stands, else what the platform says.
std::string WriteMasterFile(const std::string& text) {
  std::error_code refusal;
  std::filesystem::create_directories(WorkFolder() + "/MASTER", refusal);
  if (refusal) return refusal.message();
  return ReplaceFile(WorkFolder() + "/MASTER/MASTER.txt", text);
}

}  // namespace

FRM_CRDIMP::FRM_CRDIMP() : HandheldForm("FRM_CRDIMP") {
  Caption = "크래들 IMPORT";
  Option1 = {OptionButton("품목매장판매가"), OptionButton("거래처출고가"),
             OptionButton("가맹점출고가")};
  Option1[0].Value = true;
  for (ComboBox& levels : Combo1) {
    for (int level = 1; level <= kLevels; ++level) levels.AddItem("도매" + std::to_string(level));
    levels.SetListIndex(0);
  }
  ChkMaster.Value = 1;
  Label2[0].Caption = "State :";
  Label2[2].Caption = "건 처리중..";
  PublishControls();
}

void FRM_CRDIMP::PublishControls() {
  Publish("Label1", Label1);
  Publish("Label3", Label3);
  Publish("Option1", Option1);
  Publish("Combo1", Combo1);
  Publish("ChkMaster", ChkMaster);
  Publish("PBar1", PBar1);
  Publish("LBLMsg", LBLMsg);
  Publish("Label2", Label2);
  Publish("Command1", Command1);
  for (int i = 0; i < static_cast<int>(Option1.size()); ++i) {
    Option1[static_cast<size_t>(i)].Click = [this, i] { Option1_Click(i); };
  }
  for (const int i : {0, 1}) {
    Command1[static_cast<size_t>(i)].Click = [this, i] { Command1_Click(i); };
  }
  TabOrder = {&Option1[0], &Option1[1], &Combo1[0],   &Option1[2],
              &Combo1[1],  &ChkMaster,  &Command1[0], &Command1[1]};
}

void FRM_CRDIMP::Load() { ShapeWindow(*this, placement::Centered, false); }

bool FRM_CRDIMP::KeyDown(Key key) {
  if (key != Key::Escape) return false;
  Close();
  return true;
}

void FRM_CRDIMP::Option1_Click(int index) {
  for (size_t i = 0; i < Option1.size(); ++i) Option1[i].Value = static_cast<int>(i) == index;
}

void FRM_CRDIMP::Command1_Click(int index) {
  if (index == 0) OnConfirm();
  if (index == 1) Close();
}

void FRM_CRDIMP::OnConfirm() {
  std::int16_t written = 0;
  BuildMasterFile(written);
  if (written == 0) {
    Close();
    return;
  }
  Host.MsgBox("DT900의 [8.수신]을 선택후 [확인:ENT]", box::Information, "IMPORT 준비사항");
  const std::string refusal = Host.StartProgram(TransferTool(), "", WindowState::Maximized);
  if (!refusal.empty()) Host.MsgBox(TransferTool() + "\r\r" + refusal, box::Warning, "");
  Close();
}

std::string FRM_CRDIMP::MasterStatement() const {
  if (Option1[1].Value) return LevelPriceStatement(Combo1[0].ListIndex() + 1, "C");
  if (Option1[2].Value) return LevelPriceStatement(Combo1[1].ListIndex() + 1, "R");
  return OwnPriceStatement();
}

void FRM_CRDIMP::BuildMasterFile(std::int16_t& written) {
  std::string refusal;
  written = WriteProducts(refusal) ? -1 : 0;
  if (refusal.empty()) return;
  Host.MsgBox("MASTER 파일을 만들지 못했습니다. 이전 파일은 그대로입니다.\r\r" + refusal,
              box::Critical, "크래들 IMPORT");
}

RecordsetSlot FRM_CRDIMP::FetchProducts() const {
  const StoppableReads mayBeStopped;
  return FetchRecordset(MasterStatement());
}

bool FRM_CRDIMP::WriteProducts(std::string& refusal) {
  const Hourglass waiting;
  const RecordsetSlot products = FetchProducts();
  // An empty file would take the terminal's products away.
  if (AtEof(products)) return false;
  const int count = products->RecordCount();
  PBar1.Max = count;
  PBar1.Value = 0;
  LBLMsg.Caption = "☞ 품목정보 생성중입니다. 잠시만 기다리세요.";
  Label2[3].Caption = "총 [" + std::to_string(count) + "] 건중 ";
  const std::string text = MasterText(products);
  Label2[1].Caption.clear();
  Label2[3].Caption =
      " 품목 MASTER DB 를 정리중입니다.    - 잠시대기 -                                 ";
  Host.DoEvents();
  refusal = WriteMasterFile(text);
  return refusal.empty();
}

std::string FRM_CRDIMP::MasterText(const RecordsetSlot& products) {
  std::string text;
  text.reserve(static_cast<size_t>(PBar1.Max) * (kMasterLineBytes + 2));
  const auto orZero = [&](int field) {
    return products->IsNull(field) ? std::string_view("0") : products->Text(field);
  };
  ForEachRow(products, [&] {
    ++PBar1.Value;
    text += MasterLine({.Barcode = products->Text(0),
                        .Name = products->Text(1),
                        .PurchasePrice = orZero(2),
                        .SalePrice = orZero(3),
                        .Stock = orZero(4),
                        .ProperStock = orZero(5)});
    if (PBar1.Value % (PBar1.Max / kPaintings + 1) != 0) return;
    Label2[1].Caption = std::to_string(PBar1.Value);
    Host.DoEvents();
  });
  return text;
}

}  // namespace store
