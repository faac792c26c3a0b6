#pragma once

#include <string>
#include <vector>

#include "forms/open_forms.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_NAMECHK.h"
#include "handheld/handheld_forms.h"
#include "lookup/NEW_PR.h"
#include "tests/handheld/terminal_text.h"
#include "tests/support/small_store_test.h"

namespace store {

/// The receive form of the small store, with a terminal that the test plays.
class ReceiveDesk : public SmallStoreTest {
 protected:
  ReceiveDesk() {
    RegisterHandheldForms();
    RegisterLookupForms();
  }

  /// The form of a run, loaded and in front.
  DT9RECEV& Open(const std::string& kind = "매    입", const std::string& module = "23",
                 const std::string& returns = "") {
    auto& form = dynamic_cast<DT9RECEV&>(*TheForm("DT9RECEV"));
    form.KindCaption = kind;
    form.ModuleCode = module;
    form.ReturnMark = returns;
    form.EnsureLoaded();
    form.Activate();
    return form;
  }

  /// The next inspector's window is answered so; an empty code leaves it.
  void Inspector(const std::string& code) {
    host.OnModal("FRM_NAMECHK", [code](Form& form) {
      auto& check = dynamic_cast<FRM_NAMECHK&>(form);
      check.Text1.SetText(code);
      check.Press(code.empty() ? Key::Escape : Key::Enter, &check.Text1);
    });
  }

  /// A whole transfer that inspector u02 has begun.
  void Transfer(DT9RECEV& form, const std::vector<std::string>& records,
                const std::string& inspector = "u02") {
    Inspector(inspector);
    form.Press(Key::F5);
    host.Port->Arrive(kOpening);
    for (const std::string& record : records) host.Port->Arrive(FrameOf(record));
    host.Port->Arrive(kClosing);
  }

  static std::string Trade(const std::string& sequence, const std::string& partner,
                           const std::string& barcode, const std::string& quantity,
                           const std::string& price, char kind = '0') {
    return TradeRecord(kind, sequence, partner, barcode, "이름", quantity, price);
  }

  /// What stands in the staging table, in the order of the keys.
  static std::vector<std::vector<std::string>> Staged(const std::string& columns) {
    return Rows("SELECT " + columns + " FROM DT900 ORDER BY PE_ID");
  }
};

}  // namespace store
