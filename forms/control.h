#pragma once

#include <functional>
#include <string>
#include <vector>

namespace store {

/// The keys that forms ask for by name. Every other key arrives as text.
enum class Key {
  None,
  Enter,
  Escape,
  Tab,
  Up,
  Down,
  Delete,
  F1,
  F3,
  F4,
  F5,
  F6,
  F9,
  F10,
  F12,
};

/// What every element of a form has: whether it answers, whether it is seen, its tool tip and its
/// keys. A control is a plain value that carries its events; the window that shows it is brought
/// into line after each of them.
class Control {
 public:
  virtual ~Control() = default;
  bool Enabled = true;
  bool Visible = true;
  std::string ToolTipText;

  /// A named key while the control has the keyboard. The form has seen it before.
  std::function<void(Key)> KeyDown;
  /// The keys that go no further once the control has had them.
  std::vector<Key> OwnKeys;
  /// The keyboard came to the control from another one of its form.
  std::function<void()> GotFocus;
  /// The keyboard has gone on to another control of the form. Not raised while another window or a
  /// box has it.
  std::function<void()> LostFocus;

  bool Owns(Key key) const;
};

/// A text that the form writes and the user only reads, or clicks.
class Label : public Control {
 public:
  Label() = default;
  explicit Label(std::string caption) : Caption(std::move(caption)) {}
  std::string Caption;
  std::function<void()> Click;
};

/// A button with a fixed caption.
class Button : public Control {
 public:
  Button() = default;
  explicit Button(std::string caption) : Caption(std::move(caption)) {}
  std::string Caption;
  std::function<void()> Click;
};

/// One line (or, with MultiLine, several) of text that the user edits. `Tag` is a hidden companion
/// value: a code that belongs to the name shown.
class TextBox : public Control {
 public:
  /// Raised whenever the text becomes another one, from the keyboard or from code.
  std::function<void()> Change;
  std::string Tag;
  int MaxLength = 0;  ///< In characters; 0 means no limit.
  bool Masked = false;
  bool MultiLine = false;
  bool Scanned = false;  ///< A scanner writes into it, whatever stands in front of its form.
  /// A code that came into the box, with an Enter behind it, as quickly as only a scanner types.
  /// Without this event it is entered like anything else.
  std::function<void(const std::string& code)> Scan;
  int BackColor = -1;  ///< 0xRRGGBB; -1 means the window's own.

  const std::string& Text() const { return text_; }
  void SetText(const std::string& text);

  /// Selects the whole text, or puts the caret behind it. The window follows at the next sync.
  void SelectAll() { Select(Selection::All); }
  void CaretToEnd() { Select(Selection::End); }

  enum class Selection { None, All, End };
  Selection WantedSelection() const { return selection_; }
  unsigned SelectionRevision() const { return selectionRevision_; }

 private:
  void Select(Selection selection);
  std::string text_;
  Selection selection_ = Selection::None;
  unsigned selectionRevision_ = 0;
};

/// A drop-down list. Entries that carry a code hold it behind the name and 30 blanks, out of view.
class ComboBox : public Control {
 public:
  /// Raised when the chosen entry becomes another one.
  std::function<void()> Click;

  const std::vector<std::string>& List() const { return list_; }
  void AddItem(const std::string& entry);
  /// Empties the list; nothing is chosen afterwards.
  void Clear();
  /// 0-based; -1 means no choice. An index outside the list is passed over.
  void SetListIndex(int index);
  int ListIndex() const { return index_; }
  /// The chosen entry, or an empty text.
  std::string Text() const;
  /// Chooses the first entry of exactly this text; with no such entry the choice stays.
  void SetText(const std::string& entry);
  unsigned Revision() const { return revision_; }

 private:
  std::vector<std::string> list_;
  int index_ = -1;
  unsigned revision_ = 0;
};

/// A box to tick: 0 or 1.
class CheckBox : public Control {
 public:
  CheckBox() = default;
  explicit CheckBox(std::string caption) : Caption(std::move(caption)) {}
  std::string Caption;
  int Value = 0;
  /// The user has ticked it or taken the tick away; `Value` is the new one.
  std::function<void()> Click;
};

/// One of a group of choices of which one holds; the form keeps the group.
class OptionButton : public Control {
 public:
  OptionButton() = default;
  explicit OptionButton(std::string caption) : Caption(std::move(caption)) {}
  std::string Caption;
  bool Value = false;
  /// The user wants this one.
  std::function<void()> Click;
};

/// A calendar date, "YYYY-MM-DD".
class DatePicker : public Control {
 public:
  /// Raised whenever the date becomes another one, by the user or from code.
  std::function<void()> Change;
  const std::string& Value() const { return value_; }
  void SetValue(const std::string& date);

 private:
  std::string value_;
};

/// A row of tabs; -1 means that none was pressed yet.
class TabStrip : public Control {
 public:
  std::vector<std::string> Captions;
  int CurrTab = -1;
  /// The user has pressed a tab, counted from 0. Which one is current is for the form to say.
  std::function<void(int tab)> Click;
};

/// A button that opens a list of things to do.
class Menu : public Control {
 public:
  Menu() = default;
  explicit Menu(std::string caption) : Caption(std::move(caption)) {}
  std::string Caption;
  std::vector<std::string> Entries;  ///< An empty one parts those before it from those behind it.
  /// The user has chosen an entry, counted from 0 with the empty ones.
  std::function<void(int entry)> Click;

  /// Opens the list, as a press on the button does. The window follows.
  void Open() { ++openings_; }
  unsigned Openings() const { return openings_; }

 private:
  unsigned openings_ = 0;
};

/// Fires every `Interval` milliseconds while it is enabled and the interval is not 0.
class Timer : public Control {
 public:
  Timer() { Enabled = false; }
  int Interval = 0;
  std::function<void()> Tick;

  /// Begins to count anew, also when it is running.
  void Restart();
  unsigned Restarts() const { return restarts_; }

 private:
  unsigned restarts_ = 0;
};

/// How far a long step has come.
class ProgressBar : public Control {
 public:
  int Max = 100;
  int Value = 0;
};

/// A pane that holds others; only its visibility matters to a form.
class Panel : public Control {};

}  // namespace store
