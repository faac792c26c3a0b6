#pragma once

#include <QFont>
#include <QList>
#include <QMargins>
#include <QSize>
#include <functional>

#include "ui/palette.h"

class QApplication;
class QObject;
class QWidget;

namespace store {

/// The sizes of type that a person may choose from, in percent.
inline const QList<int> kTypeSizes = {100, 125, 150};

int TypeSize();
/// Pixels that go with the size of type, such as the width of a field for so many letters.
int Scaled(int pixels);
QSize Scaled(const QSize& pixels);
QMargins Scaled(const QMargins& pixels);

/// Height of a row of `lines` lines of text.
int RowHeight(int lines = 1);

QFont BoldFont();
QFont TotalFont();
/// For the one box of a window that everything is typed into.
QFont BoxFont();
/// For what stands small below a name.
QFont DetailFont();

/// Gives the application its fonts, colours and widget style, which are those of the current theme
/// and type size.
void ApplyStyle(QApplication& application);

/// Changes type size and theme of everything that is on the screen and comes to it.
void ChangeLook(int typeSize, Theme theme);

/// Runs `dress` now and whenever type size or theme have changed, for as long as `owner` lives: for
/// what does not follow the application's font and colours by itself.
void FollowLook(QObject& owner, std::function<void()> dress);
void FollowFont(QWidget& widget, QFont (*font)());

}  // namespace store
