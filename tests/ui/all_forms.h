#pragma once

#include <memory>
#include <vector>

#include "forms/form.h"

namespace store {

/// One form for each window of the program, not yet loaded.
std::vector<std::unique_ptr<Form>> AllForms();

}  // namespace store
