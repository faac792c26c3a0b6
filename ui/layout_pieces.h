#pragma once

#include <QRect>
#include <QSize>
#include <QString>
#include <array>
#include <string>

#include "forms/control.h"

class QFrame;
class QHBoxLayout;
class QLabel;
class QLayout;
class QLineEdit;
class QVBoxLayout;
class QWidget;

namespace store {

/// The pieces that all windows are laid out of.
QLabel* CaptionLabel(const QString& text);
QLabel* HeadingLabel(const QString& text);
/// A place for a text that the form writes; cut at its end when it does not fit.
QLabel* ValueLabel();
QLabel* TotalLabel();

/// The four totals of a slip, in a row: the captions of "LaAmt_0" to "LaAmt_3", which are count,
/// total with tax, supply amount and VAT. The total comes last and large.
void AddTotals(QHBoxLayout& row, const std::array<const char*, 4>& captions);

/// A framed group of things. `role` is "card", "totals", "popup" or "band".
QFrame* Group(const QString& role, QLayout* content);

/// For the title of a window: the store, and behind it the partner that the box of a slip holds.
std::string StoreAnd(const TextBox& partner);

/// A heading above its content.
QWidget* Titled(QWidget* heading, QWidget* content);
QWidget* Titled(QLayout* heading, QWidget* content);

/// A list above what belongs to its current row, with a border that a person can move.
QWidget* ListAndDetails(QWidget* list, QWidget* details);

/// A layout that holds one widget.
QLayout* Alone(QWidget* widget);

/// Two groups of things side by side or, where that is too wide for the window, one below the
/// other. `takesRoom` is the one, 0 or 1, that gets the room that is over.
QLayout* Folding(QLayout* first, QLayout* second, int takesRoom = 0);

/// Rows and columns with the spacing of all windows.
/// A line to type into that does not get narrower than `pixels`, which grow with the type.
QLineEdit* AtLeast(int pixels, QLineEdit* line);
QHBoxLayout* Row();
QVBoxLayout* Column();
/// Makes `content` the layout of a whole window. On a screen that is smaller than it, it can be
/// scrolled.
void FillWindow(QWidget& window, QVBoxLayout* content);
/// The part of a window that gives way in this manner.
QWidget* Scrolled(QLayout* content);
/// Where the inside of a window can lie with its frame still on the screen of `widget`.
QRect RoomForWindow(const QWidget& widget);
/// Makes a window as large as its content and at least `least`, in each size of type.
void FitContent(QWidget& window, const QSize& least);

}  // namespace store
