#pragma once

#include <memory>

#include "basics/dates.h"
#include "basics/text.h"
#include "forms/open_forms.h"
#include "slips/slip_form.h"
#include "tests/support/small_store_test.h"

namespace store {

/// A clerk of the small store before a form that writes slips: the board lists the depots, and the
/// clock stands at the database's today.
class SlipDesk : public SmallStoreTest {
 protected:
  SlipDesk() { SetUpDesk(); }

  void SetUpDesk() {
    RegisterForm("frm_Start", [] { return std::make_unique<MainWindow>("frm_Start"); });
    Board = dynamic_cast<MainWindow*>(TheForm("frm_Start"));
    Board->Combo1.AddItem(ListEntry("매장", "100101"));
    Board->Combo1.AddItem(ListEntry("창고", "100102"));
    ParseDateText(Value("SELECT DATE_FORMAT(NOW(),'%Y-%m-%d')"), host.Clock);
  }

  MainWindow* Board = nullptr;
};

}  // namespace store
