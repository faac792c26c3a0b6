// The bindings of what a person types and chooses.
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QSignalBlocker>
#include <memory>

#include "ui/bindings.h"
#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/qt_text.h"

namespace store {
namespace {

const QString kDateForm = QStringLiteral("yyyy-MM-dd");

void FollowText(const TextBox& box, QLineEdit& edit) {
  const QString text = ToQt(box.Text());
  // Setting the text drops what an input method is putting together, so only when it differs.
  if (edit.text() != text) edit.setText(text);
}

void FollowSelection(const TextBox& box, QLineEdit& edit) {
  if (box.WantedSelection() == TextBox::Selection::All) edit.selectAll();
  if (box.WantedSelection() == TextBox::Selection::End) edit.end(false);
}

}  // namespace

void BindTextBox(FormWindow& window, const QString& name, TextBox& box, QLineEdit& edit) {
  if (box.MaxLength > 0) edit.setMaxLength(box.MaxLength);
  if (box.Masked) edit.setEchoMode(QLineEdit::Password);
  auto seen = std::make_shared<unsigned>(box.SelectionRevision());
  window.Bind(name, box, edit, [&box, &edit, seen] {
    FollowText(box, edit);
    if (*seen == box.SelectionRevision()) return;
    *seen = box.SelectionRevision();
    FollowSelection(box, edit);
  });
  QObject::connect(&edit, &QLineEdit::textEdited, &window,
                   [&box](const QString& text) { Dispatch([&] { box.SetText(FromQt(text)); }); });
}

void BindReadText(FormWindow& window, const QString& name, TextBox& box, QPlainTextEdit& edit) {
  edit.setReadOnly(true);
  window.Bind(name, box, edit, [&box, &edit] {
    const QString text = ShownLines(box.Text());
    if (edit.toPlainText() != text) edit.setPlainText(text);
  });
}

void BindComboBox(FormWindow& window, const QString& name, ComboBox& combo, QComboBox& list) {
  auto seen = std::make_shared<unsigned>(0);
  window.Bind(name, combo, list, [&combo, &list, seen] {
    if (*seen == combo.Revision()) return;
    *seen = combo.Revision();
    list.clear();
    for (const std::string& entry : combo.List()) list.addItem(ShownEntry(entry));
    list.setCurrentIndex(combo.ListIndex());
  });
  QObject::connect(&list, &QComboBox::activated, &window,
                   [&combo](int index) { Dispatch([&] { combo.SetListIndex(index); }); });
}

void BindDatePicker(FormWindow& window, const QString& name, DatePicker& picker, QDateEdit& edit) {
  edit.setDisplayFormat(kDateForm);
  edit.setCalendarPopup(true);
  // The earliest date stands for a text that is no date, and shows as a blank.
  edit.setSpecialValueText(QStringLiteral(" "));
  window.Bind(name, picker, edit, [&picker, &edit] {
    const QDate date = QDate::fromString(ToQt(picker.Value()), kDateForm);
    const QDate shown = date.isValid() ? date : edit.minimumDate();
    if (edit.date() == shown) return;
    const QSignalBlocker quiet(edit);
    edit.setDate(shown);
  });
  QObject::connect(&edit, &QDateEdit::dateChanged, &window, [&picker](const QDate& date) {
    Dispatch([&] { picker.SetValue(FromQt(date.toString(kDateForm))); });
  });
}

void BindCheckBox(FormWindow& window, const QString& name, CheckBox& check, QCheckBox& box) {
  window.Bind(name, check, box, [&check, &box] {
    const QString caption = ToQt(check.Caption);
    if (box.text() != caption) box.setText(caption);
    if (box.isChecked() != (check.Value != 0)) box.setChecked(check.Value != 0);
  });
  QObject::connect(&box, &QCheckBox::clicked, &window,
                   [&check](bool ticked) { Dispatch([&] { check.Value = ticked ? 1 : 0; }); });
}

void BindOption(FormWindow& window, const QString& name, OptionButton& option, QRadioButton& radio,
                std::function<void()> click, const QString& letter) {
  const QString mark = letter.isEmpty() ? QString() : " (&" + letter + ")";
  window.Bind(name, option, radio, [&option, &radio, mark] {
    const QString text = ToQt(option.Caption) + mark;
    if (radio.text() != text) radio.setText(text);
    if (radio.isChecked() == option.Value) return;
    // In a group nothing can be switched off by itself; here the form keeps the group.
    radio.setAutoExclusive(false);
    radio.setChecked(option.Value);
    radio.setAutoExclusive(true);
  });
  QObject::connect(&radio, &QRadioButton::clicked, &window,
                   [&window, click = std::move(click)] { window.Act(click); });
}

}  // namespace store
