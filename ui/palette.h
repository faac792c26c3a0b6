#pragma once

#include <QColor>
#include <QString>
#include <vector>

namespace store {

enum class Theme { Light, Dark };

/// The theme in which everything is drawn from now on. What is on the screen is drawn anew by
/// whoever changes it.
Theme CurrentTheme();
void SetTheme(Theme theme);

/// A colour by its use. Which one that is, the theme says at the moment it is drawn with.
class Hue {
 public:
  constexpr Hue(QRgb light, QRgb dark) : light_(light), dark_(dark) {}
  QColor In(Theme theme) const { return {theme == Theme::Dark ? dark_ : light_}; }
  operator QColor() const { return In(CurrentTheme()); }  // NOLINT(*-explicit-*)

 private:
  QRgb light_;
  QRgb dark_;
};

/// Every colour of the program stands here. A text is told from its ground at a contrast of at
/// least 4.5 to 1, whatever the ground and the theme: `TextPairs` lists them, and a test holds them
/// to it.
namespace look {
inline constexpr Hue Ink{0xFF1F2933, 0xFFE3E7EB};
inline constexpr Hue Muted{0xFF4F5B67, 0xFFB0BAC4};  ///< Captions, and a barcode above its name.
inline constexpr Hue Disabled{0xFF59656F, 0xFFA3ADB7};
inline constexpr Hue Heading{0xFF23394D, 0xFFA9CDEB};
inline constexpr Hue Inverse{0xFFFFFFFF, 0xFFFFFFFF};  ///< On `Band` and `Accent`.
inline constexpr Hue Line{0xFFD3DAE1, 0xFF39434D};
inline constexpr Hue Edge{0xFFAAB6C2, 0xFF5D6974};  ///< Around what can be typed into or pressed.
inline constexpr Hue Paper{0xFFFFFFFF, 0xFF181D22};
inline constexpr Hue Window{0xFFEEF1F4, 0xFF22282E};
inline constexpr Hue Card{0xFFF7F9FA, 0xFF272E35};
inline constexpr Hue Header{0xFFE3E8ED, 0xFF2F3841};
inline constexpr Hue Idle{0xFFE9EDF0, 0xFF2A3138};  ///< A field that takes nothing now.
inline constexpr Hue Tip{0xFFFFFBE6, 0xFF3A3620};
inline constexpr Hue TipEdge{0xFFB9B08A, 0xFF7A7150};
inline constexpr Hue OpenCell{0xFFFFFFC8, 0xFF4A4716};
inline constexpr Hue Band{0xFF23394D, 0xFF16293A};        ///< The strip with the store's name.
inline constexpr Hue Accent{0xFF1B6CA8, 0xFF2470B0};      ///< The ground of what is chosen.
inline constexpr Hue Bright{0xFF1B6CA8, 0xFF6FB8F0};      ///< The same as a line or a text.
inline constexpr Hue CurrentRow{0xFFCFE3F4, 0xFF23486A};  ///< While the grid has the keyboard.
inline constexpr Hue RestingRow{0xFFE4EBF1, 0xFF2C3742};  ///< While it has not.
inline constexpr Hue Warning{0xFFB3261E, 0xFFFF8F85};
inline constexpr Hue Waiting{0xFFB7791F, 0xFFE0A94A};    ///< For an answer.
inline constexpr Hue Connected{0xFF2E7D32, 0xFF69B86D};  ///< With the server.
}  // namespace look

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

/// All pairs that the windows draw in the current theme, but for the grounds that forms ask for.
std::vector<TextPair> TextPairs();

/// How far two colours can be told apart: 1 for the same, 21 for black and white.
double Contrast(const QColor& one, const QColor& other);

}  // namespace store
