#include "tests/journeys/widgets/journey.h"

#include <QApplication>
#include <QTimer>

#include "board/frm_Start.h"
#include "forms/host.h"
#include "forms/options_file.h"
#include "slips/order_types.h"
#include "slips/process_state.h"
#include "start/Main_Start.h"
#include "tests/support/private_server.h"
#include "ui/desk.h"
#include "ui/run_store.h"

namespace store {

void Journey::SetUp() {
  static const bool loaded = [] {
    TestServer().LoadDemo();
    return true;
  }();
  (void)loaded;
  Prepare();
  SetOption("데이터서버", TestServer().ServerOption());
  SetOption("회사아이디", "demo");
  SetOption("일괄발주단가", "3");
  SetOption(kOrderTypeKey, "0");
}

void Journey::Prepare() {
  ResetProcessState();
  PrepareStore(*qApp);
  Host.ProgramFolder = folder_.path().toStdString();
  qputenv("STORE_DATA_FOLDER", folder_.filePath("data").toUtf8());
}

void Journey::TearDown() {
  EXPECT_TRUE(hands.AllDone()) << "did not come: " << hands.NextAnnounced().toStdString();
  TheDesk().Clear();
  ResetProcessState();
}

void Journey::SetOption(const std::string& key, const std::string& value) {
  WriteOption(kOptionSection, key, value);
}

void Journey::Start(const std::string& commandLine) {
  hands.See("frmSplash", [](FormWindow& splash) {
    EXPECT_EQ(Hands::TextOf(splash, "lblVersion").substr(0, 8), "Version ");
  });
  bool goesOn = false;
  Dispatch([&] { goesOn = Main_Start(commandLine); });
  ASSERT_TRUE(goesOn);
  ASSERT_TRUE(Hands::Wait([this] { return !Hands::TextOf(Board(), "Label6_0").empty(); }));
}

void Journey::StartAgain(const std::string& commandLine) {
  CloseBoard();
  Restart(commandLine);
}

void Journey::Restart(const std::string& commandLine) {
  TheDesk().Clear();
  Prepare();
  Start(commandLine);
}

void Journey::CloseBoard() {
  hands.See("frm_Start", [](FormWindow& board) { Hands::Press(board, Qt::Key_F12); });
  hands.AnswerBox("프로그램을 종료하시겠습니까?", Qt::Key_Y);
  QTimer limit;
  QObject::connect(&limit, &QTimer::timeout, [] { QApplication::exit(EXIT_FAILURE); });
  limit.start(30000);
  EXPECT_EQ(QApplication::exec(), EXIT_SUCCESS) << "the program did not end";
  EXPECT_TRUE(TheDesk().Ending());
  EXPECT_EQ(TheDesk().WindowNamed("frm_Start"), nullptr);
}

FormWindow& Journey::Order() {
  FormWindow& order = Hands::Window(ChosenOrderType().FormName);
  // A person begins when the supplier box blinks.
  EXPECT_TRUE(Hands::Wait([&] { return order.ShownForm().FocusRevision() > 0; }));
  return order;
}

std::string Journey::StateOf(const std::string& slipId) {
  const int row = RowOf(slipId);
  return row < 0 ? "" : Hands::Rows(Board(), "FLEX1", {kStateColumn})[static_cast<size_t>(row)][0];
}

void Journey::WalkTo(const std::string& slipId) {
  ASSERT_EQ(Hands::KeyboardAt(Board()), "FLEX1");
  const int row = RowOf(slipId);
  ASSERT_GE(row, 0);
  const auto& board = static_cast<const frm_Start&>(Board().ShownForm());
  const int from = board.FLEX1.Row() - board.FLEX1.FixedRows();
  const int key = row < from ? Qt::Key_Up : Qt::Key_Down;
  for (int step = 0; step < std::abs(row - from); ++step) Hands::Press(Board(), key);
  EXPECT_EQ(board.SelectedSlipId, slipId);
}

void Journey::Save(Qt::KeyboardModifiers modifiers) {
  hands.AnswerBox("발주가 정상적으로 처리되었습니다. 계속해서 발주하시겠습니까?", Qt::Key_N);
  Hands::Press(Order(), Qt::Key_F9, modifiers);
  ASSERT_TRUE(
      Hands::Wait([] { return TheDesk().WindowNamed(ChosenOrderType().FormName) == nullptr; }));
}

}  // namespace store
