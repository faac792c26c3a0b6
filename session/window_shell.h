#pragma once

#include <cstdint>

#include "forms/form.h"

namespace store {

/// How `ShapeWindow` places a window.
namespace placement {
inline constexpr std::int16_t Normal = 0;
inline constexpr std::int16_t Minimized = 1;
inline constexpr std::int16_t Maximized = 2;
inline constexpr std::int16_t Centered = 3;
inline constexpr std::int16_t TopLeft = 8;
}  // namespace placement

/// Sets where a window stands, from its size and the screen's in pixels: `Form::Place`, which the
/// window follows. A window larger than the screen gets a negative left or top when centred. Called
/// at load; `rounded` is for the windows without a frame.
void ShapeWindow(Form& window, std::int16_t placementCode, bool rounded);

}  // namespace store
