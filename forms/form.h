#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <utility>
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
  bool OnTop = false;       ///< Stays in front of the windows of all programs.
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
  /// The form sees named keys before its controls. True means that the key is used up; after false
  /// the control with the keyboard sees it too.
  virtual bool KeyDown(Key) { return false; }

  /// What a pressed key does: the form sees it, then `at`, the control that had the keyboard (or
  /// nothing). True when one of them has used it up.
  bool Press(Key key, Control* at);
  bool Press(Key key) { return Press(key, ActiveControl); }
  /// The keyboard came to a control of this form: from another one of it, or from elsewhere, which
  /// is no news to the control that had it last. The one that loses it is told first.
  void TakeFocus(Control& control, bool fromThisForm);
  /// The control that has the keyboard by what the window last said, or nothing at first.
  const Control* FocusedControl() const { return focused_; }

  void EnsureLoaded();
  /// Closes the form and its window unless `QueryUnload` objects. True when it is closed.
  bool Close();
  bool IsClosed() const { return closed_; }

  /// The control that has the keyboard. The window reports it here and follows what the form asks.
  Control* ActiveControl = nullptr;
  void SetFocus(Control& control);
  /// What the Tab key does: to the next control of `TabOrder` that can take the focus.
  void FocusNext();
  /// The same backwards.
  void FocusPrevious();
  std::vector<Control*> TabOrder;

  /// Makes a control known to the window. Called in the constructor of the form or of a
  /// pane of it, once for each that is shown.
  void Publish(const std::string& name, Control& control) {
    controls_.emplace_back(name, &control);
  }
  /// The members of an array as "Name_0", "Name_1" and so on.
  template <class Controls>
  requires(!std::derived_from<Controls, Control>) void Publish(const std::string& name,
                                                               Controls& controls) {
    int index = 0;
    for (Control& control : controls) Publish(name + "_" + std::to_string(index++), control);
  }
  /// The controls under the names by which the window finds them, in the order of publishing.
  const std::vector<std::pair<std::string, Control*>>& Controls() const { return controls_; }
  unsigned FocusRevision() const { return focusRevision_; }

 private:
  void WalkFocus(int step);

  std::vector<std::pair<std::string, Control*>> controls_;
  Control* focused_ = nullptr;  // `ActiveControl` runs ahead of it until the window has followed
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
