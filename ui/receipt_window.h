#pragma once

#include "ui/form_window.h"

class QHBoxLayout;

namespace store {

class frm_PE_UNIT;

/// The window of `frm_PE_UNIT`: the order on top, its lines with the quantities received, totals
/// and the confirmation at the bottom.
class ReceiptWindow : public FormWindow {
 public:
  explicit ReceiptWindow(frm_PE_UNIT& form);

 private:
  static QWidget* Header();
  QWidget* QuantityBox();
  QWidget* Foot();
  ContextActions LineActions();
  void ExportLines();

  frm_PE_UNIT& receipt_;
};

}  // namespace store
