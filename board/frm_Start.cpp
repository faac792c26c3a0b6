#include "board/frm_Start.h"

#include <memory>

#include "basics/dates.h"
#include "basics/deployment.h"
#include "basics/formats.h"
#include "basics/records.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "slips/handheld_runs.h"

namespace store {
namespace {

constexpr const char* kDeleteTip = "[발주편집]은 삭제,[발주확정]은 [발주편집]상태로 전환함";

}  // namespace

frm_Start::frm_Start() : MainWindow("frm_Start") {
  Caption = "Tarnwick발주시스템";
  Option1[0].Caption = "기간검색";
  Option1[0].Value = true;
  Option1[1].Caption = "발주편집";
  Option1[2].Caption = "발주확정";
  Option1[3].Caption = "입고예정(본부승인 및 물류출고)";
  Image1[0].Caption = "신규발주하기";
  Image1[1].Caption = "신규발주(단가없음)";
  Image1[1].ToolTipText = kDeleteTip;
  Image1[3].Caption = "새로고침";
  Image1[3].ToolTipText = "새로고침";
  Image1[4].Caption = "삭제/편집전환";
  Image1[4].ToolTipText = kDeleteTip;
  Frame1.Visible = false;
  Text1[1].MultiLine = true;
  SetUpGrids();
  PublishControls();
  ConnectEvents();
  TabOrder = {&Text2,          &Option1[0],     &Option1[1], &Option1[2], &Option1[3],
              &DTOrderDate[0], &DTOrderDate[1], &FLEX1,      &FLEX0};
}

void frm_Start::PublishControls() {
  Publish("FLEX0", FLEX0);
  Publish("Frame1", Frame1);
  Publish("Text1", Text1);
  Publish("Label2", Label2);
  Publish("Option1", Option1);
  Publish("DTOrderDate", DTOrderDate);
  Publish("Text2", Text2);
  Publish("FLEX1", FLEX1);
  Publish("Label6", Label6);
  Publish("LaRead", LaRead);
  Publish("LaCaption", LaCaption);
  for (const size_t index : {0, 1, 3, 4}) {  // 2 has no picture
    Publish("Image1_" + std::to_string(index), Image1[index]);
  }
  Publish("Image3", Image3);
  Publish("Label4", Label4);
  Publish("Label5", Label5);
  Publish("HandheldMenu", HandheldMenu);
  Publish("LaDraft", LaDraft);
  Publish("LaDeleted", LaDeleted);
  Publish("LaAgain", LaAgain);
  Publish("Image5", Image5);
  Publish("LaCT", LaCT);
  Publish("LaPM", LaPM);
}

void frm_Start::ConnectEvents() {
  FLEX0.RowColChange = [this] { FLEX0_RowColChange(); };
  FLEX0.DblClick = [this] { FLEX0_DblClick(); };
  FLEX0.KeyDown = [this](Key key) {
    if (key == Key::Enter) FLEX0_DblClick();
  };
  FLEX0.OwnKeys = {Key::Enter};
  for (int i = 0; i < static_cast<int>(Option1.size()); ++i) {
    Option1[static_cast<size_t>(i)].Click = [this, i] { Option1_Click(i); };
  }
  for (DatePicker& date : DTOrderDate) {
    date.KeyDown = [this](Key key) {
      if (key == Key::Enter) Image1_Click(3);
    };
    date.OwnKeys = {Key::Enter};
  }
  Text2.KeyDown = [this](Key key) { Text2_KeyPress(key); };
  Text2.OwnKeys = {Key::Enter};
  FLEX1.Click = [this] { FLEX1_Click(); };
  FLEX1.DblClick = [this] { FLEX1_DblClick(); };
  FLEX1.RowColChange = [this] { FLEX1_RowColChange(); };
  FLEX1.KeyDown = [this](Key key) { FLEX1_KeyDown(key); };
  FLEX1.OwnKeys = {Key::F4, Key::Enter};
  for (int i = 0; i < static_cast<int>(Image1.size()); ++i) {
    Image1[static_cast<size_t>(i)].Click = [this, i] { Image1_Click(i); };
  }
  Image3.Click = [this] { Image3_Click(); };
  LaDraft.Click = [this] { LaDraft_Click(); };
  LaDeleted.Click = [this] { LaDeleted_Click(); };
  LaAgain.Click = [this] { LaAgain_Click(); };
  Image5.Click = [this] { Image5_Click(); };
  Label4.Click = [this] { Label4_Click(); };
  Label5[0].Click = [this] { Label5_Click(0); };
  Label5[1].Click = [this] { Label5_Click(1); };
  for (const HandheldRun& run : HandheldRuns()) HandheldMenu.Entries.emplace_back(run.MenuText);
  HandheldMenu.Click = [this](int entry) { HandheldMenu_Click(entry); };
}

void frm_Start::HandheldMenu_Click(int entry) {
  OpenHandheldRun(HandheldRuns().at(static_cast<size_t>(entry)));
}

void frm_Start::SetUpGrids() {
  FLEX0.SetColumns({{.Header = "No.", .Width = 435, .Alignment = Align::Center},
                    {.Header = "제목", .Width = 3795, .Alignment = Align::Left},
                    {.Header = "일자", .Width = 1005, .Alignment = Align::Center},
                    {.Width = 900, .Hidden = true}});
  FLEX1.SetColumns({
      {.Header = "No.", .Width = 360, .Alignment = Align::Center},
      {.Header = "일자", .Width = 1005, .Alignment = Align::Center},
      {.Header = "발주처", .Width = 2055, .Alignment = Align::Left},
      {.Header = "상태", .Width = 885, .Alignment = Align::Center},
      {.Header = "건수", .Width = 510, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Header = "공급가액", .Width = 900, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Header = "부가세액", .Width = 900, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Header = "합계금액", .Width = 945, .Alignment = Align::Right, .Format = kMaskWhole},
      {.Width = 900, .Hidden = true},
      {.Header = "확인", .Width = 420, .Alignment = Align::Center},
      {.Header = "거래처코드", .Width = 900, .Hidden = true},
  });
}

void frm_Start::Load() {
  LaCaption.Caption = Session.StoreCode + "   " + Session.StoreName;
  const std::string today = FormatDateValue(Today(), "yyyy-mm-dd");
  for (DatePicker& date : DTOrderDate) date.SetValue(today);
  for (Label& label : LaPM) label.Caption.clear();
  for (Label& label : LaCT) label.Caption.clear();
  if (Session.DatabaseName == kShippedOnlyCustomer) Option1[3].Caption = "입고예정(물류출고)";
}

void frm_Start::Activate() {
  if (activated_) {
    CountDrafts();
    CountDeleted();
    return;
  }
  activated_ = true;
  RefreshBoard();
  TellFileNotices();
}

bool frm_Start::KeyDown(Key key) {
  if (key != Key::F12) return false;
  Close();
  return true;
}

bool frm_Start::QueryUnload() {
  return Host.MsgBox(" 프로그램을 종료하시겠습니까?               ", box::Question + box::YesNo,
                     "종료") == box::Yes;
}

void frm_Start::Unload() {
  Host.SetPointer(PointerHourglass);
  CloseRecordset(SlotC);
  EndProgram();
}

void frm_Start::Option1_Click(int index) {
  for (size_t i = 0; i < Option1.size(); ++i) Option1[i].Value = static_cast<int>(i) == index;
  RefreshBoard();
}

void frm_Start::Image1_Click(int index) {
  switch (index) {
    case 0:
    case 1:
      NewOrder(index);
      break;
    case 3:
      RefreshBoard();
      break;
    case 4:
      DeleteOrRevert();
      break;
    default:
      break;
  }
}

void frm_Start::Label4_Click() { Host.OpenAddress(WebHost() + "index2.php"); }

void frm_Start::Label5_Click(int index) {
  if (index == 0) Close();
  if (index == 1) Host.Minimize(*this);
}

void frm_Start::FLEX0_RowColChange() {
  const int row = FLEX0.Row();
  Text1[0].SetText(FLEX0.TextMatrix(row, 1));
  Text1[1].SetText(FLEX0.TextMatrix(row, 3));
  Label2.Caption = FLEX0.TextMatrix(row, 2);
}

void frm_Start::FLEX0_DblClick() { Frame1.Visible = true; }

void frm_Start::Image3_Click() { Frame1.Visible = false; }

void RegisterBoardForms() {
  RegisterForm("frm_Start", [] { return std::make_unique<frm_Start>(); });
}

}  // namespace store
