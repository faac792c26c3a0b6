// The bindings of what a person types and chooses.
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <utility>

#include "ui/binding.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/qt_text.h"
#include "ui/scan_catcher.h"
#include "ui/style.h"

namespace store {
namespace {

const QString kDateForm = QStringLiteral("yyyy-MM-dd");

/// The wheel must not give a choice the keyboard on its way over it: with that it would change it.
void LeaveFocusToClicks(QWidget& choice) { choice.setFocusPolicy(Qt::StrongFocus); }

/// The form is told every committed text; what an input method is still putting together is not
/// part of the text yet.
class TextBinding : public Binding {
 public:
  TextBinding(FormWindow& window, TextBox& box, QLineEdit& edit)
      : Binding(box, edit), box_(box), edit_(edit), selectionSeen_(box.SelectionRevision()) {
    if (box.MaxLength > 0) edit.setMaxLength(box.MaxLength);
    edit.setProperty(kScannedProperty, box.Scanned);
    if (box.Masked) edit.setEchoMode(QLineEdit::Password);
    FollowLook(edit, [this] { ShowGround(); });
    QObject::connect(&edit, &QLineEdit::textEdited, &window, [this](const QString& text) {
      const std::string typed = FromQt(text);
      seen_.Differs(typed);
      Dispatch([&] { box_.SetText(typed); });
    });
  }

 private:
  void FollowValue() override {
    // Setting the text drops what an input method is putting together, so only when it differs.
    if (seen_.Differs(box_.Text())) edit_.setText(ToQt(box_.Text()));
    if (groundSeen_ != box_.BackColor) ShowGround();
    if (selectionSeen_ == box_.SelectionRevision()) return;
    selectionSeen_ = box_.SelectionRevision();
    if (box_.WantedSelection() == TextBox::Selection::All) edit_.selectAll();
    if (box_.WantedSelection() == TextBox::Selection::End) edit_.end(false);
  }
  void ShowGround() {
    groundSeen_ = box_.BackColor;
    if (groundSeen_ < 0 && edit_.styleSheet().isEmpty()) return;
    edit_.setStyleSheet(
        box_.BackColor < 0
            ? QString()
            : QStringLiteral("QLineEdit { background: %1; }").arg(Softened(box_.BackColor).name()));
  }
  TextBox& box_;
  QLineEdit& edit_;
  SeenText seen_;
  int groundSeen_ = -1;
  unsigned selectionSeen_;
};

/// A text of several lines that the form writes and the person reads.
class ReadTextBinding : public Binding {
 public:
  ReadTextBinding(TextBox& box, QPlainTextEdit& edit) : Binding(box, edit), box_(box), edit_(edit) {
    edit.setReadOnly(true);
  }

 private:
  void FollowValue() override {
    if (seen_.Differs(box_.Text())) edit_.setPlainText(ShownLines(box_.Text()));
  }
  const TextBox& box_;
  QPlainTextEdit& edit_;
  SeenText seen_;
};

class ComboBinding : public Binding {
 public:
  ComboBinding(FormWindow& window, ComboBox& combo, QComboBox& list)
      : Binding(combo, list), combo_(combo), list_(list) {
    LeaveFocusToClicks(list);
    QObject::connect(&list, &QComboBox::activated, &window,
                     [&combo](int index) { Dispatch([&] { combo.SetListIndex(index); }); });
  }

 private:
  void FollowValue() override {
    if (seen_ == combo_.Revision()) return;
    seen_ = combo_.Revision();
    list_.clear();
    for (const std::string& entry : combo_.List()) list_.addItem(ShownEntry(entry));
    list_.setCurrentIndex(combo_.ListIndex());
  }
  const ComboBox& combo_;
  QComboBox& list_;
  unsigned seen_ = 0;
};

void ColourDaysOff(QCalendarWidget& calendar) {
  QTextCharFormat ink;
  ink.setForeground(QColor(look::Warning));
  calendar.setWeekdayTextFormat(Qt::Sunday, ink);
  ink.setForeground(QColor(look::Bright));
  calendar.setWeekdayTextFormat(Qt::Saturday, ink);
}

/// The calendar of a date is made when a hand first comes to the date: it is the heaviest part of a
/// window, and hardly ever opened.
class CalendarOnDemand : public QObject {
 public:
  explicit CalendarOnDemand(QDateEdit& edit) : QObject(&edit), edit_(edit) {
    edit.installEventFilter(this);
    FollowLook(*this, [this] { Colour(); });
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    const bool isHand =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::KeyPress;
    if (isHand && !std::exchange(made_, true)) Colour();
    return QObject::eventFilter(watched, event);
  }

 private:
  void Colour() {
    if (made_) ColourDaysOff(*edit_.calendarWidget());
  }
  QDateEdit& edit_;
  bool made_ = false;
};

class DateBinding : public Binding {
 public:
  DateBinding(FormWindow& window, DatePicker& picker, QDateEdit& edit)
      : Binding(picker, edit), picker_(picker), edit_(edit) {
    LeaveFocusToClicks(edit);
    edit.setDisplayFormat(kDateForm);
    edit.setCalendarPopup(true);
    new CalendarOnDemand(edit);
    // The earliest date stands for a text that is no date, and shows as a blank.
    edit.setSpecialValueText(QStringLiteral(" "));
    QObject::connect(&edit, &QDateEdit::dateChanged, &window, [this](const QDate& date) {
      const std::string chosen = FromQt(date.toString(kDateForm));
      seen_.Differs(chosen);
      Dispatch([&] { picker_.SetValue(chosen); });
    });
  }

 private:
  void FollowValue() override {
    if (!seen_.Differs(picker_.Value())) return;
    const QDate date = QDate::fromString(ToQt(picker_.Value()), kDateForm);
    const QSignalBlocker quiet(&edit_);
    edit_.setDate(date.isValid() ? date : edit_.minimumDate());
  }
  DatePicker& picker_;
  QDateEdit& edit_;
  SeenText seen_;
};

class CheckBinding : public Binding {
 public:
  CheckBinding(FormWindow& window, CheckBox& check, QCheckBox& box)
      : Binding(check, box), check_(check), box_(box) {
    QObject::connect(&box, &QCheckBox::clicked, &window, [&window, &check](bool ticked) {
      window.Act([&check, ticked] {
        check.Value = ticked ? 1 : 0;
        if (check.Click) check.Click();
      });
    });
  }

 private:
  void FollowValue() override {
    if (seen_.Differs(check_.Caption)) box_.setText(ToQt(check_.Caption));
    if (box_.isChecked() != (check_.Value != 0)) box_.setChecked(check_.Value != 0);
  }
  const CheckBox& check_;
  QCheckBox& box_;
  SeenText seen_;
};

class OptionBinding : public Binding {
 public:
  OptionBinding(FormWindow& window, OptionButton& option, QRadioButton& radio)
      : Binding(option, radio), option_(option), radio_(radio) {
    const QString letter = radio.property(kLetterProperty).toString();
    if (!letter.isEmpty()) mark_ = " (&" + letter + ")";
    QObject::connect(&radio, &QRadioButton::clicked, &window, [&window, &option] {
      window.Act([&option] {
        if (option.Click) option.Click();
      });
    });
  }

 private:
  void FollowValue() override {
    if (seen_.Differs(option_.Caption)) radio_.setText(ToQt(option_.Caption) + mark_);
    if (radio_.isChecked() == option_.Value) return;
    // In a group nothing can be switched off by itself; here the form keeps the group.
    radio_.setAutoExclusive(false);
    radio_.setChecked(option_.Value);
    radio_.setAutoExclusive(true);
  }
  const OptionButton& option_;
  QRadioButton& radio_;
  QString mark_;
  SeenText seen_;
};

/// The binding of a control and a widget that are of these kinds; nothing when one is not.
template <class Kind, class Shown, class Made>
std::unique_ptr<Binding> BindKinds(FormWindow& window, Control& control, QWidget& widget) {
  auto* of = dynamic_cast<Kind*>(&control);
  auto* shown = qobject_cast<Shown*>(&widget);
  if (of == nullptr || shown == nullptr) return nullptr;
  return std::make_unique<Made>(window, *of, *shown);
}

}  // namespace

std::unique_ptr<Binding> BindInput(FormWindow& window, Control& control, QWidget& widget) {
  if (auto* read = qobject_cast<QPlainTextEdit*>(&widget)) {
    auto* box = dynamic_cast<TextBox*>(&control);
    return box == nullptr ? nullptr : std::make_unique<ReadTextBinding>(*box, *read);
  }
  auto bound = BindKinds<TextBox, QLineEdit, TextBinding>(window, control, widget);
  if (!bound) bound = BindKinds<ComboBox, QComboBox, ComboBinding>(window, control, widget);
  if (!bound) bound = BindKinds<DatePicker, QDateEdit, DateBinding>(window, control, widget);
  if (!bound) bound = BindKinds<CheckBox, QCheckBox, CheckBinding>(window, control, widget);
  if (!bound) bound = BindKinds<OptionButton, QRadioButton, OptionBinding>(window, control, widget);
  return bound;
}

}  // namespace store
