#include "slips/slip_form.h"

#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {

SlipForm* FreeSlipForm(const std::string& name) {
  if (auto* open = dynamic_cast<SlipForm*>(OpenForm(name))) {
    if (open->HoldsWork()) {
      Host.Show(*open);
      return nullptr;
    }
    open->Close();
  }
  return dynamic_cast<SlipForm*>(TheForm(name));
}

MainWindow* TheMainWindow() { return dynamic_cast<MainWindow*>(OpenForm("frm_Start")); }

}  // namespace store
