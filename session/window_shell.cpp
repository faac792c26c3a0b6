#include "session/window_shell.h"

#include "forms/host.h"

namespace store {

void ShapeWindow(Form& window, std::int16_t placementCode, bool rounded) {
  WindowPlace& place = window.Place;
  place.State = placementCode == placement::Minimized   ? WindowState::Minimized
                : placementCode == placement::Maximized ? WindowState::Maximized
                                                        : WindowState::Normal;
  if (placementCode == placement::Centered) {
    int width = 0;
    int height = 0;
    Host.ScreenSize(width, height);
    place.Left = (width - place.Width) / 2;
    place.Top = (height - place.Height) / 2;
    place.Positioned = true;
  } else if (placementCode == placement::TopLeft) {
    place.Left = place.Top = 0;
    place.Positioned = true;
  }
  place.Rounded = rounded;
}

}  // namespace store
