#pragma once

#include <QString>
#include <functional>

#include "forms/control.h"
#include "forms/grid.h"

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QRadioButton;
class QWidget;

namespace store {

class FormWindow;
class GridView;
class KeyButton;

/// Each of these ties one widget to one control of the window's form, both ways: what a person does
/// becomes the control's value and the form's event, and after each event the widget follows the
/// control. `name` is the control's name in the form; a member of an array is named "Text1_0".

/// The form is told every committed text; what an input method is still putting together is not
/// part of the text yet.
void BindTextBox(FormWindow& window, const QString& name, TextBox& box, QLineEdit& edit);
/// A text of several lines that the form writes and the person reads.
void BindReadText(FormWindow& window, const QString& name, TextBox& box, QPlainTextEdit& edit);

void BindComboBox(FormWindow& window, const QString& name, ComboBox& combo, QComboBox& list);
void BindDatePicker(FormWindow& window, const QString& name, DatePicker& picker, QDateEdit& edit);
void BindCheckBox(FormWindow& window, const QString& name, CheckBox& check, QCheckBox& box);
/// `click` is the form's event, which keeps the group. `letter`, when given, chooses it with Alt.
void BindOption(FormWindow& window, const QString& name, OptionButton& option, QRadioButton& radio,
                std::function<void()> click, const QString& letter = {});
/// Fills `row` with a button for each tab; none is down before the first press.
void BindTabs(FormWindow& window, const QString& name, TabStrip& strip, QWidget& row,
              std::function<void(int tab)> click);

void BindLabel(FormWindow& window, const QString& name, Label& label, QLabel& shown);
/// A label or button of the form that a person presses. Its text is the button's own when the
/// control has no caption.
void BindPress(FormWindow& window, const QString& name, Label& label, KeyButton& button,
               std::function<void()> click);
void BindPress(FormWindow& window, const QString& name, Button& button, KeyButton& shown,
               std::function<void()> click);

void BindGrid(FormWindow& window, const QString& name, Grid& grid, GridView& view);
void BindProgress(FormWindow& window, const QString& name, ProgressBar& progress,
                  QProgressBar& bar);
/// Fires the form's event while the timer is enabled and has an interval.
void BindTimer(FormWindow& window, const Timer& timer, std::function<void()> fire);

}  // namespace store
