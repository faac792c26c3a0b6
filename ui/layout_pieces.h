#pragma once

#include <QString>

class QFrame;
class QHBoxLayout;
class QLabel;
class QLayout;
class QVBoxLayout;
class QWidget;

namespace store {

/// The pieces that all windows are laid out of.
QLabel* CaptionLabel(const QString& text);
QLabel* HeadingLabel(const QString& text);
/// A place for a text that the form writes; cut at its end when it does not fit.
QLabel* ValueLabel();
QLabel* TotalLabel();

/// A framed group of things. `role` is "card", "totals", "popup" or "band".
QFrame* Group(const QString& role, QLayout* content);

/// Rows and columns with the spacing of all windows.
QHBoxLayout* Row();
QVBoxLayout* Column();
/// Makes `content` the layout of a whole window.
void FillWindow(QWidget& window, QVBoxLayout* content);

}  // namespace store
