#include "slips/handheld_runs.h"

#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

constexpr const char* kReceive = "DT9RECEV";
constexpr const char* kProcess = "FRM_DT900_01";

}  // namespace

// A shipment to another store reaches the terminal as a sale whose partner is that store.
const std::vector<HandheldRun>& HandheldRuns() {
  static const std::vector<HandheldRun> runs = {
      {"매입 수신", kReceive, "매    입", "23", ""},
      {"매입반품 수신", kReceive, "매입반품 (반품)", "23", "R"},
      {"매출 수신", kReceive, "매    출", "13", ""},
      {"매출반품 수신", kReceive, "매출반품 (반품)", "13", "R"},
      {"가맹점출고 수신", kReceive, "매    출", "14", ""},
      {"재고조사 수신", kReceive, "재고조사", "82", ""},
      {"상품관리 수신", kReceive, "상품관리", "66", ""},
      {"매입 처리", kProcess, "", "23", ""},
      {"매입반품 처리", kProcess, "", "23", "R"},
      {"매출 처리", kProcess, "", "13", ""},
      {"매출반품 처리", kProcess, "", "13", "R"},
      {"가맹점출고 처리", kProcess, "", "14", ""},
      {"재고조사 처리", kProcess, "", "82", ""},
      {"상품관리 처리", kProcess, "", "66", ""},
      {"크래들 IMPORT", "FRM_CRDIMP", "", "", ""},
  };
  return runs;
}

void OpenHandheldRun(const HandheldRun& run) {
  auto* form = dynamic_cast<HandheldForm*>(TheForm(run.FormName));
  if (form == nullptr) return;
  form->KindCaption = run.KindCaption;
  form->ModuleCode = run.ModuleCode;
  form->ReturnMark = run.ReturnMark;
  Host.ShowModal(*form);
}

}  // namespace store
