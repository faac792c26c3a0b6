#include "forms/form.h"

#include <algorithm>

#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {

void Form::EnsureLoaded() {
  if (loaded_) return;
  loaded_ = true;
  Load();
}

bool Form::Close() {
  if (closed_) return true;
  if (!QueryUnload()) return false;
  closed_ = true;
  Unload();
  Host.CloseWindow(*this);
  DropForm(*this);
  return true;
}

bool Form::Press(Key key, Control* at) {
  if (KeyDown(key) || closed_) return true;
  if (at == nullptr || !at->Enabled) return false;
  if (at->KeyDown) at->KeyDown(key);
  return at->Owns(key);
}

void Form::TakeFocus(Control& control, bool fromThisForm) {
  const bool back = !fromThisForm && ActiveControl == &control;
  ActiveControl = &control;
  if (!back && control.GotFocus) control.GotFocus();
}

void Form::SetFocus(Control& control) {
  ActiveControl = &control;
  ++focusRevision_;
}

void Form::FocusNext() {
  if (TabOrder.empty()) return;
  const auto current = std::find(TabOrder.begin(), TabOrder.end(), ActiveControl);
  const size_t start =
      current == TabOrder.end() ? 0 : static_cast<size_t>(current - TabOrder.begin()) + 1;
  for (size_t i = 0; i < TabOrder.size(); ++i) {
    Control& next = *TabOrder[(start + i) % TabOrder.size()];
    if (next.Enabled && next.Visible) {
      SetFocus(next);
      return;
    }
  }
}

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
