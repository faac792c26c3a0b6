#pragma once

#include <QFrame>

namespace store {

/// The panel in the middle of a window that tells of something long: what it is, a bar, and a
/// remark below. It begins out of sight.
class ProgressPanel : public QFrame {
 public:
  /// The names under which the panel and its parts are found.
  struct Names {
    const char* Panel;
    const char* What;
    const char* Bar;
    const char* Remark;
  };
  ProgressPanel(QWidget& window, const Names& names, const QString& remark = {});

 protected:
  void showEvent(QShowEvent* event) override;
};

}  // namespace store
