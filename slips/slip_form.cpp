#include "slips/slip_form.h"

#include "forms/open_forms.h"

namespace store {

MainWindow* TheMainWindow() { return dynamic_cast<MainWindow*>(OpenForm("frm_Start")); }

}  // namespace store
