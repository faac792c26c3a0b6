#pragma once

class QWidget;

namespace store {

class FormWindow;
class OrderForm;

/// What an order form has above its pick list: categories, the selection of suppliers, or the tabs
/// of the proposals, by the panes that the form is made of.
QWidget* OrderLeftSide(FormWindow& window, OrderForm& form);

}  // namespace store
