#pragma once

#include <QKeySequence>
#include <QPushButton>

namespace store {

/// A button with the key that does the same written on it. It never takes the keyboard away from
/// what is being typed into.
class KeyButton : public QPushButton {
 public:
  explicit KeyButton(const QString& text = {}, const QKeySequence& keys = {});

  const QKeySequence& Keys() const { return keys_; }

  const QString& WrittenKey() const { return key_; }

  /// Writes a key on the button that the form or a control handles by itself.
  void WriteKey(const QString& key);
  /// The one button of a window that most work ends with.
  void MarkMain();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QKeySequence keys_;
  QString key_;  // as it is written
  bool main_ = false;
};

}  // namespace store
