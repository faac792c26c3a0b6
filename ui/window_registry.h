#pragma once

#include <functional>
#include <string>

#include "forms/form.h"

namespace store {

class FormWindow;

/// Makes the window of a form, or nothing when it is not a form that this window can show.
using WindowMaker = std::function<FormWindow*(Form&)>;

/// Says which window shows the forms of that name.
void RegisterWindow(const std::string& formName, WindowMaker maker);

/// Makes the window that shows a form, by the form's name. Nothing for a form without a window.
FormWindow* MakeWindow(Form& form);

/// A maker of `Window`, a window class over the form class `ShownForm`.
template <class Window, class ShownForm>
WindowMaker MakerOf() {
  return [](Form& form) -> FormWindow* {
    auto* shown = dynamic_cast<ShownForm*>(&form);
    return shown == nullptr ? nullptr : new Window(*shown);
  };
}

}  // namespace store
