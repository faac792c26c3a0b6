#pragma once

#include <QFont>

#include "ui/palette.h"

class QApplication;

namespace store {

/// Height of a row of `lines` lines of text.
int RowHeight(int lines = 1);

QFont TotalFont();
/// For the one box of a window that everything is typed into.
QFont BoxFont();

/// Gives the application its fonts, colours and widget style.
void ApplyStyle(QApplication& application);

}  // namespace store
