#pragma once

#include <QColor>
#include <QString>
#include <vector>

namespace store {

/// Every colour of the program stands here. A text is told from its ground at a contrast of at
/// least 4.5 to 1, whatever the ground: `TextPairs` lists them, and a test holds them to it.
namespace look {
inline constexpr QRgb Ink = 0xFF1F2933;
inline constexpr QRgb Muted = 0xFF4F5B67;  ///< Captions, and a barcode above its name.
inline constexpr QRgb Disabled = 0xFF59656F;
inline constexpr QRgb Inverse = 0xFFFFFFFF;  ///< On `Band`, `Accent` and `Warning`.
inline constexpr QRgb Line = 0xFFD3DAE1;
inline constexpr QRgb Edge = 0xFFAAB6C2;  ///< Around what can be typed into or pressed.
inline constexpr QRgb Paper = 0xFFFFFFFF;
inline constexpr QRgb Window = 0xFFEEF1F4;
inline constexpr QRgb Card = 0xFFF7F9FA;
inline constexpr QRgb Header = 0xFFE3E8ED;
inline constexpr QRgb Idle = 0xFFE9EDF0;  ///< A field that takes nothing now.
inline constexpr QRgb Tip = 0xFFFFFBE6;
inline constexpr QRgb TipEdge = 0xFFB9B08A;
inline constexpr QRgb OpenCell = 0xFFFFFFC8;
inline constexpr QRgb Band = 0xFF23394D;  ///< The strip with the store's name.
inline constexpr QRgb Accent = 0xFF1B6CA8;
inline constexpr QRgb CurrentRow = 0xFFCFE3F4;  ///< While the grid has the keyboard.
inline constexpr QRgb RestingRow = 0xFFE4EBF1;  ///< While it has not.
inline constexpr QRgb Warning = 0xFFB3261E;
}  // namespace look

/// On paper, which is white whatever the windows look like.
namespace paper {
inline constexpr QRgb Ink = 0xFF000000;
inline constexpr QRgb Line = 0xFFB0B0B0;
inline constexpr QRgb Header = 0xFFECECEC;  ///< Behind the heads of a table.
}  // namespace paper

/// A colour that a form asked for, as a tint that can be looked at all day.
QColor Softened(int rgb);

/// The tint that goes with a slip's state word; invalid for any other text.
QColor StateTint(const QString& word);

/// The ground of a main button under the pointer, and of one that is pressed.
QColor Hovered(bool main);
QColor Pressed(bool main);

/// A text and what it stands on.
struct TextPair {
  const char* Where;
  QColor Ink;
  QColor Ground;
};

/// All pairs that the windows draw, but for the grounds that forms ask for.
std::vector<TextPair> TextPairs();

/// How far two colours can be told apart: 1 for the same, 21 for black and white.
double Contrast(const QColor& one, const QColor& other);

}  // namespace store
