#pragma once

#include <QString>

class QKeyEvent;

namespace store {

/// Tells a scanner from a person by how quickly the characters of a text follow one another.
class ScanRun {
 public:
  /// Takes the next key. At an Enter it gives the code before it, when both have come as quickly as
  /// nobody types and it is long enough to be one; otherwise, and at any other key, an empty text.
  QString Take(const QKeyEvent& key);

  /// What has come of a code, or of anything else, before its Enter.
  const QString& Coming() const { return coming_; }

  static bool IsEnter(const QKeyEvent& key);
  /// A key that puts text into a box.
  static bool IsText(const QKeyEvent& key);

 private:
  QString coming_;
  quint64 last_ = 0;
};

}  // namespace store
