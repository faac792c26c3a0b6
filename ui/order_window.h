#pragma once

#include "ui/form_window.h"

class QHBoxLayout;
class QLayout;

namespace store {

class GridView;
class HistoryChartView;
class OrderForm;

/// The window of every order form: date, depot and supplier on top, the item box below them, the
/// order's lines on the left, what can be ordered on the right, totals and the two ways to save at
/// the bottom.
class OrderWindow : public FormWindow {
 public:
  explicit OrderWindow(OrderForm& form);

 private:
  QWidget* Header();
  void AddSupplier(QHBoxLayout& row);
  void AddDateAndDepot(QHBoxLayout& row);
  void AddWindowButtons(QHBoxLayout& row);
  QWidget* ItemBox();
  QWidget* Lines();
  QWidget* PickList();
  QLayout* Transfers();
  QWidget* History();
  QWidget* Foot();
  void FollowHistory();
  ContextActions LineActions();
  ContextActions ItemActions();

  OrderForm& order_;
  GridView* lines_ = nullptr;
  GridView* items_ = nullptr;
  HistoryChartView* history_ = nullptr;
  std::string historyOf_;  // the item last drawn
};

}  // namespace store
