// A clerk's goods: receipts of orders, and what the handheld terminal has brought.
#include <algorithm>
#include <map>

#include "basics/numbers.h"
#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "gateway/gateway.h"
#include "handheld/FRM_DT900_01.h"
#include "receipt/frm_PE_UNIT.h"
#include "slips/handheld_runs.h"
#include "tests/soak/clerk.h"
#include "tests/soak/franchise.h"

namespace store {
namespace {

constexpr const char* kModules[] = {"13", "23", "14", "82", "66"};
constexpr const char* kNobody = "1000000000000000";  // the partner of rows without one

std::string Plain(const std::string& cell) { return NumberText(ParseGrouped(cell)); }

std::string StageStatement(const std::string& id, const std::string& product,
                           const std::string& quantity, const std::string& partner,
                           const std::string& module, const std::string& mark) {
  return Splice(
      "INSERT INTO DT900 VALUES ('{id}','{id}',1,'2026-01-01','','-','{product}','품명 {product}',"
      "'규격','박스',{quantity},0,700,'0',0,'','','{mark}','','','{partner}','{partner}','검품',"
      "'{module}','')",
      "id"_a = id, "product"_a = product, "quantity"_a = quantity, "mark"_a = mark,
      "partner"_a = partner, "module"_a = module);
}

/// The ticked rows of each partner: "partner=id,id;partner=id".
std::string RowsByPartner(const Grid& grid) {
  std::map<std::string, std::string> rows;
  for (int row = grid.FixedRows(); row < grid.Rows(); ++row) {
    if (grid.TextMatrix(row, staged::Tick) != "1") continue;
    std::string& ids = rows[grid.TextMatrix(row, staged::PartnerCode)];
    ids += (ids.empty() ? "" : ",") + grid.TextMatrix(row, staged::RowId);
  }
  std::string text;
  for (const auto& [partner, ids] : rows) {
    text += Splice("{joint}{partner}={ids}", "joint"_a = text.empty() ? "" : ";",
                   "partner"_a = partner, "ids"_a = ids);
  }
  return text;
}

}  // namespace

void Clerk::ReceiveGoods() {
  if (!SelectOnBoard(3)) return;
  openedAt_ = MicrosecondsNow();
  Board().FLEX1_DblClick();
}

/// On purpose: the board's search opens any order, also one whose goods have come.
void Clerk::ReceiveAgain() {
  if (received_.empty()) return;
  Board().Text2.SetText(received_[static_cast<size_t>(Below(static_cast<int>(received_.size())))]);
  openedAt_ = MicrosecondsNow();
  Board().Text2_KeyPress(Key::Enter);
}

void Clerk::WorkOnReceipt(frm_PE_UNIT& form) {
  const std::string loaded = MicrosecondsNow();
  const int ordered =
      form.FLEX1.Rows() < 2
          ? 0
          : static_cast<int>(ParseGrouped(form.FLEX1.TextMatrix(1, receipt::Ordered)));
  if (ordered < 1000) return;
  Pause();
  // What came tells this receipt from any other one of the same order, for some hundred of them.
  const int steps = ordered / kTerminals;
  const int quantity =
      (static_cast<int>(numbers_.Group) % steps) * kTerminals + place_.Terminal + 1;
  form.FLEX1.SetRow(1);
  form.inBox.SetText(std::to_string(std::min(quantity, ordered)));
  form.inBox_KeyPress(Key::Enter);
  const std::string token = form.FLEX1.TextMatrix(1, receipt::Code) + ":" +
                            Plain(form.FLEX1.TextMatrix(1, receipt::Received));
  int lines = 0;
  for (int row = 1; row < form.FLEX1.Rows(); ++row) {
    const bool none = ParseGrouped(form.FLEX1.TextMatrix(row, receipt::Received)) == 0;
    lines += none && AppOptions.SkipZeroReceipt == 1 ? 0 : 1;
  }
  Work work;
  work.Group = NextGroup();
  const std::string order = form.SlipId;
  work.NoteIntent = [&](const std::string& press) {
    log_.Line({entry::Receipt, press, work.Group, token, order, loaded, std::to_string(lines)});
  };
  work.Press = [&form] {
    if (!form.IsClosed()) form.Command1_Click(1);
  };
  work.Key = [&form] { return form.HeadValues.empty() ? std::string() : form.HeadValues[0]; };
  if (!PressUntilDone(work)) return;
  received_.push_back(order);
  if (received_.size() > 20) received_.erase(received_.begin());
}

bool Clerk::StageRows(const std::string& module) {
  const std::string group = NextGroup();
  std::string ids;
  StartBatch();
  const int count = 1 + Below(4);
  for (int i = 0; i < count; ++i) {
    const std::string id = StoreCodeOf(place_.Store) + "-" + std::to_string(place_.Terminal) + "-" +
                           group + "-" + std::to_string(i);
    const int product = Below(kProducts);
    std::string partner = PartnerCodeOf(product);
    if (module == "14") partner = StoreCodeOf((place_.Store + 1 + Below(2)) % place_.Stores);
    if (module == "82" || module == "66") partner = kNobody;
    AddToBatch(StageStatement(id, ProductCodeOf(product), std::to_string(1 + Below(50)), partner,
                              module, StoreCodeOf(place_.Store)));
    ids += (ids.empty() ? "" : ",") + id;
  }
  if (ExecuteBatch(SqlBatch) == 0) return false;
  log_.Line({entry::Staged, group, module, ids});
  return true;
}

/// Each store has its own return mark here, so that its terminals share their rows and nobody
/// else's.
void Clerk::RunPass() {
  const std::string module = kModules[Below(5)];
  if (Percent(85) && !StageRows(module)) return;
  const std::string mark = StoreCodeOf(place_.Store);
  OpenHandheldRun({"", "FRM_DT900_01", "", module.c_str(), mark.c_str()});
}

void Clerk::WorkOnPass(FRM_DT900_01& form) {
  if (form.FLEX.Rows() == form.FLEX.FixedRows()) return;
  Pause();
  Work work;
  work.Group = NextGroup();
  const std::string begin =
      "m" + std::to_string(place_.Store) + "." + std::to_string(place_.Terminal) + ".";
  // After a refusal the list has been read anew, so each press has its own rows and its own memo.
  work.NoteIntent = [&](const std::string& press) {
    form.Text1[0].SetText(begin + press);
    log_.Line(
        {entry::Pass, press, work.Group, begin + press, form.ModuleCode, RowsByPartner(form.FLEX)});
  };
  work.Press = [&form] { form.Command1_Click(3); };
  PressUntilDone(work);
}

}  // namespace store
