#pragma once

#include <string>

namespace store {

/// A box in front of everything; it waits. `style` and answer are those of `box` in forms/host.h:
/// an icon (16 critical, 32 question, 64 information) plus 4 for Yes and No. Y and N answer, Enter
/// is Yes or OK, Esc is No or OK.
int ShowMessage(const std::string& text, int style, const std::string& title);

}  // namespace store
