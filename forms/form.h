#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "forms/control.h"

namespace store {

enum class WindowState { Normal, Minimized, Maximized };

/// Where and how a window stands. Sizes and positions are pixels; the window fills in its own size
/// before `Load`, and follows what the form sets.
struct WindowPlace {
  WindowState State = WindowState::Normal;
  int Left = 0;
  int Top = 0;
  int Width = 0;
  int Height = 0;
  bool Rounded = false;
  bool Positioned = false;  ///< The form chose Left and Top.
};

/// A window without its toolkit: its members are its controls, its methods are its events. A form
/// is opened through `Host` and lives until it is closed.
class Form {
 public:
  explicit Form(std::string name) : Name(std::move(name)) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string Name;  ///< "frm_Order"; it also picks the window that shows the form.
  std::string Caption;
  WindowPlace Place;

  /// Once, before the window is first shown.
  virtual void Load() {}
  /// Each time the window becomes the active one.
  virtual void Activate() {}
  /// Before a close, from wherever it comes. False keeps the form open.
  virtual bool QueryUnload() { return true; }
  /// Once, when the form closes.
  virtual void Unload() {}
  /// The form sees named keys before its controls. True means that the key is used up.
  virtual bool KeyDown(Key) { return false; }

  void EnsureLoaded();
  /// Closes the form and its window unless `QueryUnload` objects. True when it is closed.
  bool Close();
  bool IsClosed() const { return closed_; }

  /// The control that has the keyboard. The window reports it here and follows what the form asks.
  Control* ActiveControl = nullptr;
  void SetFocus(Control& control);
  /// What the Tab key does: to the next control of `TabOrder` that can take the focus.
  void FocusNext();
  std::vector<Control*> TabOrder;
  unsigned FocusRevision() const { return focusRevision_; }

 private:
  bool loaded_ = false;
  bool closed_ = false;
  unsigned focusRevision_ = 0;
};

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
