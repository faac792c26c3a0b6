#include "forms/form.h"

#include <algorithm>
#include <utility>

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
  Control* const had = std::exchange(focused_, &control);
  ActiveControl = &control;
  if (had == &control && !fromThisForm) return;
  if (had != nullptr && had != &control && had->LostFocus) had->LostFocus();
  if (control.GotFocus) control.GotFocus();
}

void Form::SetFocus(Control& control) {
  ActiveControl = &control;
  ++focusRevision_;
}

void Form::FocusNext() { WalkFocus(1); }

void Form::FocusPrevious() { WalkFocus(-1); }

void Form::WalkFocus(int step) {
  const int count = static_cast<int>(TabOrder.size());
  const auto current = std::find(TabOrder.begin(), TabOrder.end(), ActiveControl);
  // From outside of the order the first step leads to either end of it.
  const int outside = step > 0 ? -1 : 0;
  int at = current == TabOrder.end() ? outside : static_cast<int>(current - TabOrder.begin());
  for (int tried = 0; tried < count; ++tried) {
    at = (at + step + count) % count;
    Control& next = *TabOrder[static_cast<size_t>(at)];
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
