#include "forms/control.h"

#include <algorithm>

namespace store {

bool Control::Owns(Key key) const {
  return std::find(OwnKeys.begin(), OwnKeys.end(), key) != OwnKeys.end();
}

void TextBox::SetText(const std::string& text) {
  if (text == text_) return;
  text_ = text;
  if (Change) Change();
}

void TextBox::Select(Selection selection) {
  selection_ = selection;
  ++selectionRevision_;
}

void ComboBox::AddItem(const std::string& entry) {
  list_.push_back(entry);
  ++revision_;
}

void ComboBox::Clear() {
  list_.clear();
  index_ = -1;
  ++revision_;
}

void ComboBox::SetListIndex(int index) {
  if (index < -1 || index >= static_cast<int>(list_.size()) || index == index_) return;
  index_ = index;
  ++revision_;
  if (Click) Click();
}

std::string ComboBox::Text() const {
  return index_ < 0 ? std::string() : list_[static_cast<size_t>(index_)];
}

void ComboBox::SetText(const std::string& entry) {
  const auto found = std::find(list_.begin(), list_.end(), entry);
  if (found != list_.end()) SetListIndex(static_cast<int>(found - list_.begin()));
}

void Timer::Restart() {
  Enabled = true;
  ++restarts_;
}

void DatePicker::SetValue(const std::string& date) {
  if (date == value_) return;
  value_ = date;
  if (Change) Change();
}

}  // namespace store
