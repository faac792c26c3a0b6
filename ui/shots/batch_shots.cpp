#include "ui/shots/batch_shots.h"

#include <QApplication>
#include <QMessageBox>

#include "handheld/FRM_DT900_01.h"
#include "slips/handheld_runs.h"

namespace store {
namespace {

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
  OpenRun(director, handheld_module::Purchase);
  director.WhenShown("FRM_DT900_01", [&](FormWindow& window) {
    director.Fit(window);
    GoTo(window, "FLEX", 3, 0);
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
}

}  // namespace store
