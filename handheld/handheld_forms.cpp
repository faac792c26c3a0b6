#include "handheld/handheld_forms.h"

#include <memory>

#include "forms/open_forms.h"
#include "handheld/DT9RECEV.h"
#include "handheld/FRM_CRDIMP.h"
#include "handheld/FRM_DT900_01.h"
#include "handheld/FRM_NAMECHK.h"
#include "handheld/frmProperties.h"

namespace store {

void RegisterHandheldForms() {
  RegisterForm("FRM_CRDIMP", [] { return std::make_unique<FRM_CRDIMP>(); });
  RegisterForm("FRM_DT900_01", [] { return std::make_unique<FRM_DT900_01>(); });
  RegisterForm("DT9RECEV", [] { return std::make_unique<DT9RECEV>(); });
  RegisterForm("frmProperties", [] { return std::make_unique<frmProperties>(); });
  RegisterForm("FRM_NAMECHK", [] { return std::make_unique<FRM_NAMECHK>(); });
}

}  // namespace store
