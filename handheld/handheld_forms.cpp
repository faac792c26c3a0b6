#include "handheld/handheld_forms.h"

#include "forms/open_forms.h"

namespace store {

void RegisterHandheldForms() {}

}  // namespace store
