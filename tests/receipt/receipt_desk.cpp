#include "tests/receipt/receipt_desk.h"

#include "basics/dates.h"
#include "basics/text.h"

namespace store {
namespace {

class StandInBoard : public MainWindow {
 public:
  StandInBoard() : MainWindow("frm_Start") {}
};

}  // namespace

ReceiptDesk::ReceiptDesk() {
  RegisterReceiptForms();
  RegisterForm("frm_Start", [] { return std::make_unique<StandInBoard>(); });
  Board = dynamic_cast<MainWindow*>(TheForm("frm_Start"));
  Board->Combo1.AddItem(ListEntry("매장", "100101"));
  Board->Combo1.AddItem(ListEntry("창고", "100102"));
  ParseDateText(Value("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')"), host.Clock);
  OpenRecordset(SlotC, "SELECT PR_CODE,PR_NAME,PR_STD,PR_UNT,PR_TAX2 FROM PR WHERE PR_END = '0'");
}

frm_PE_UNIT& ReceiptDesk::Open(const std::string& orderId) {
  auto* form = dynamic_cast<frm_PE_UNIT*>(TheForm("frm_PE_UNIT"));
  form->SlipId = orderId;
  form->SlipTable = "PEM23";
  Host.Show(*form);
  return *form;
}

void ReceiptDesk::Receive(int row, const std::string& quantity) {
  Receipt().FLEX1.SetRow(row);
  Receipt().inBox.SetText(quantity);
  Receipt().inBox_KeyPress(Key::Enter);
}

}  // namespace store
