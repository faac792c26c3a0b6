#pragma once

#include "ui/form_window.h"

class QFrame;
class QLayout;
class QLineEdit;

namespace store {

class GridView;
class frm_Start;

/// The main window: what can be done on top, the board of slips in the middle, notices and the
/// details of a slip below.
class BoardWindow : public FormWindow {
 public:
  explicit BoardWindow(frm_Start& form);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* Band();
  QWidget* Actions();
  QLayout* SlipFinder();
  QWidget* Search();
  QWidget* Slips();
  QWidget* Sums();
  QWidget* Notices();
  QWidget* PartnerPane();
  QWidget* ConditionPane();
  ContextActions SlipActions();
  void MakeNoticePane();
  void PlaceNoticePane();

  frm_Start& board_;
  GridView* slips_ = nullptr;
  GridView* notices_ = nullptr;
  QFrame* noticePane_ = nullptr;
};

}  // namespace store
