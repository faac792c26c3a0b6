#pragma once

#include <QWidget>

namespace store {

/// A small lamp that says how the data server stands: connected, waiting, lost. By colour, by shape
/// and by a word.
class ServerLamp : public QWidget {
 public:
  ServerLamp();
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  /// The word that it shows now.
  static QString Word();

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
};

}  // namespace store
