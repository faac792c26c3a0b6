#include "slips/slip_form.h"

#include <array>
#include <cstddef>

#include "forms/open_forms.h"

namespace store {

MainWindow* TheMainWindow() { return dynamic_cast<MainWindow*>(OpenForm("frm_Start")); }

const char* OrderFormName(int orderType) {
  static constexpr std::array<const char*, 4> names = {"frm_Order", "frm_Order02", "frm_Order01",
                                                       "frm_Order03"};
  if (orderType < 0 || orderType >= static_cast<int>(names.size())) return "";
  return names[static_cast<std::size_t>(orderType)];
}

}  // namespace store
