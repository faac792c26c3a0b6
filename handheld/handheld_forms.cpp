#include "handheld/handheld_forms.h"

#include <memory>

#include "forms/open_forms.h"
#include "handheld/FRM_CRDIMP.h"

namespace store {

void RegisterHandheldForms() {
  RegisterForm("FRM_CRDIMP", [] { return std::make_unique<FRM_CRDIMP>(); });
}

}  // namespace store
