#include "ui/shots/batch_shots.h"

#include <QApplication>
#include <QMessageBox>

#include "basics/records.h"
#include "gateway/gateway.h"
#include "handheld/FRM_DT900_01.h"
#include "slips/handheld_runs.h"

namespace store {
namespace {

/// As if a terminal had sent a delivery of two partners, with an unknown barcode in it, and a count
/// of some shelves. The rows are taken away again when they have been drawn.
void StageRows() {
  StartBatch();
  AddToBatch(
      Splice("INSERT INTO DT900 (PE_ID,PS_TAXGU,PR_CODE,PR_NAME,PR_STD,PR_UNT,PS_SQTY,PS_UP,"
             "PS_rctCODE,PS_rctNAME,DT_CHECK,DT_GU) SELECT CONCAT('shot',LPAD(ROW_NUMBER() OVER "
             "(ORDER BY IV.PR_CODE),3,'0')),IF(PR_TAX='1','*',IF(PR_TAX='2','@','-')),PR.PR_CODE,"
             "PR.PR_NAME,PR.PR_STD,PR.PR_UNT,6+RIGHT(IV.PR_CODE,1)*3,PR_OP0,CT_CODE,CT_NAME,"
             "'김하나','23' FROM IV JOIN PR ON PR.PR_CODE=IV.PR_CODE JOIN CT ON "
             "CT.CT_CODE=PR.PR_BCTCODE WHERE IV.RCT_CODE='{store}' ORDER BY IV.PR_CODE LIMIT 40",
             "store"_a = Session.StoreCode));
  AddToBatch(
      "INSERT INTO DT900 (PE_ID,PS_TAXGU,PR_CODE,PS_SQTY,PS_UP,PS_rctCODE,PS_rctNAME,DT_CHECK,"
      "DT_GU) SELECT 'shot000','-',' ',4,1200,PS_rctCODE,PS_rctNAME,DT_CHECK,DT_GU FROM DT900 "
      "WHERE PE_ID='shot001'");
  AddToBatch(
      Splice("INSERT INTO DT900 (PE_ID,PS_TAXGU,PR_CODE,PR_NAME,PR_STD,PR_UNT,PS_SQTY,PS_rctCODE,"
             "PS_rctNAME,DT_CHECK,DT_GU) SELECT CONCAT('shot',LPAD(400+ROW_NUMBER() OVER (ORDER BY "
             "IV.PR_CODE),3,'0')),'-',PR.PR_CODE,PR.PR_NAME,PR.PR_STD,PR.PR_UNT,"
             "BSQTY+INQTY-OTQTY-RIGHT(IV.PR_CODE,1)%3,'1000000000000000','재고조사','이두리','82' "
             "FROM IV JOIN PR ON PR.PR_CODE=IV.PR_CODE WHERE IV.RCT_CODE='{store}' AND "
             "IV.HCT_CODE='{depot}' ORDER BY IV.PR_CODE LIMIT 40",
             "store"_a = Session.StoreCode, "depot"_a = Session.DepotCode));
  if (ExecuteBatch(SqlBatch) == 0) Director::Fail(QString::fromStdString(LastErrorText));
}

void RemoveRows() {
  StartBatch();
  AddToBatch("DELETE FROM DT900 WHERE PE_ID LIKE 'shot%'");
  ExecuteBatch(SqlBatch);
}

void OpenRun(Director& director, const std::string& module) {
  director.WhenShown("frm_Start", [module](FormWindow&) {
    for (const HandheldRun& run : HandheldRuns()) {
      if (run.FormName == std::string("FRM_DT900_01") && run.ModuleCode == module &&
          std::string(run.ReturnMark).empty()) {
        OpenHandheldRun(run);
      }
    }
  });
}

}  // namespace

void ShootBatch(Director& director) {
  director.WhenShown("frm_Start", [](FormWindow&) { StageRows(); });
  OpenRun(director, handheld_module::Purchase);
  director.WhenShown("FRM_DT900_01", [&](FormWindow& window) {
    director.Fit(window);
    GoTo(window, "FLEX", 1, 5);
    Press(window, Qt::Key_Space);
    director.Save(window, "batch_purchase");
    ClickOn(window, "Command1_3");
    Press(window, Qt::Key_Escape);
  });
  director.When(
      [] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr; },
      [&director] {
        QWidget& box = *QApplication::activeModalWidget();
        director.Save(box, "batch_question");
        Press(box, Qt::Key_Escape);
      });
  OpenRun(director, handheld_module::Survey);
  director.WhenShown("FRM_DT900_01", [&](FormWindow& window) {
    director.Fit(window);
    director.Save(window, "batch_survey");
    Press(window, Qt::Key_Escape);
  });
  director.WhenShown("frm_Start", [](FormWindow&) { RemoveRows(); });
}

}  // namespace store
