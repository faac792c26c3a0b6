#pragma once

#include <QFrame>

namespace store {

/// The panel of a long step, "SSPanel1", in the middle of the window that it belongs to.
class ProgressPanel : public QFrame {
 public:
  explicit ProgressPanel(QWidget& window);

 protected:
  void showEvent(QShowEvent* event) override;
};

}  // namespace store
