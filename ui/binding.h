#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <string>

#include "forms/control.h"

namespace store {

class FormWindow;
class KeyButton;

/// Ties one widget to one control of a form, both ways: what a person does becomes the control's
/// value and its event, and after each event the widget follows the control. It remembers what it
/// has last shown, so that bringing a window into line costs a comparison a control.
class Binding {
 public:
  Binding(Control& control, QWidget& widget) : control_(control), widget_(&widget) {}
  virtual ~Binding() = default;
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  Control& Bound() const { return control_; }
  QWidget* Shown() const { return widget_; }
  /// Brings the widget into line with the control.
  void Follow();

 protected:
  /// What the widget shows beyond being enabled and visible.
  virtual void FollowValue() {}

 private:
  Control& control_;
  QPointer<QWidget> widget_;
  bool fresh_ = true;
  bool enabled_ = true;
  bool visible_ = true;
  std::string tip_;
};

/// A text as it was last shown. `Differs` is true at its first call and whenever the form has
/// another text than the one last seen, which it takes over.
class SeenText {
 public:
  bool Differs(const std::string& text) {
    if (!fresh_ && text == seen_) return false;
    fresh_ = false;
    seen_ = text;
    return true;
  }

 private:
  bool fresh_ = true;
  std::string seen_;
};

/// The binding that fits a control and its widget: a label may be shown as a text or as a button to
/// press, a text box as a line or as a text to read, a grid as a table or as tiles; anything else
/// is at least enabled, seen and described as its control says.
std::unique_ptr<Binding> Bind(FormWindow& window, Control& control, QWidget& widget);

/// What a person types and chooses: text boxes, lists, dates, ticks and options. Nothing for any
/// other control.
std::unique_ptr<Binding> BindInput(FormWindow& window, Control& control, QWidget& widget);

/// The text of a menu's entry behind the number or letter that chooses it while the menu is open.
QString NumberedEntry(int entry, const QString& text);

/// Fires the timer's event while it is enabled and has an interval.
void BindTimer(FormWindow& window, Timer& timer);

/// The name of the property of an option's widget that holds the letter which chooses it with Alt.
inline constexpr const char* kLetterProperty = "letter";

}  // namespace store
