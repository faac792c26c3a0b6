#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QApplication;

namespace store {

/// The look of all windows: quiet colours, one type size to work in and one for totals.
namespace look {
inline constexpr QRgb Ink = 0xFF1F2933;
inline constexpr QRgb Muted = 0xFF66727F;
inline constexpr QRgb Line = 0xFFD3DAE1;
inline constexpr QRgb Paper = 0xFFFFFFFF;
inline constexpr QRgb Window = 0xFFEEF1F4;
inline constexpr QRgb Header = 0xFFE3E8ED;
inline constexpr QRgb Band = 0xFF23394D;  ///< The strip with the store's name.
inline constexpr QRgb Accent = 0xFF1B6CA8;
inline constexpr QRgb CurrentRow = 0xFFCFE3F4;  ///< While the grid has the keyboard.
inline constexpr QRgb RestingRow = 0xFFE4EBF1;  ///< While it has not.
inline constexpr QRgb Warning = 0xFFB3261E;
}  // namespace look

/// Height of a row of `lines` lines of text.
int RowHeight(int lines = 1);

QFont TotalFont();
/// For the one box of a window that everything is typed into.
QFont BoxFont();

/// A colour that a form asked for, as a tint that can be looked at all day.
QColor Softened(int rgb);

/// The tint that goes with a slip's state word; invalid for any other text.
QColor StateTint(const QString& word);

/// Gives the application its fonts, colours and widget style.
void ApplyStyle(QApplication& application);

}  // namespace store
