#include "handheld/handheld_forms.h"

#include <memory>

#include "forms/open_forms.h"
#include "handheld/FRM_CRDIMP.h"
#include "handheld/FRM_DT900_01.h"

namespace store {

void RegisterHandheldForms() {
  RegisterForm("FRM_CRDIMP", [] { return std::make_unique<FRM_CRDIMP>(); });
  RegisterForm("FRM_DT900_01", [] { return std::make_unique<FRM_DT900_01>(); });
}

}  // namespace store
