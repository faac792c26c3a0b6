#include "ui/palette.h"

#include <QHash>
#include <cmath>

#include "slips/slip.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr int kHoverLighter = 108;  // percent
constexpr int kPressedDarker = 112;

const QHash<QString, QColor>& StateTints() {
  static const QHash<QString, QColor> tints = {{ToQt(kWordEditing), QColor(0xDCE9F7)},
                                               {ToQt(kWordConfirmed), QColor(0xFCE8C8)},
                                               {ToQt(kWordApproved), QColor(0xD9EFD9)},
                                               {ToQt(kWordShipped), QColor(0xE6DDF3)},
                                               {ToQt(kWordReceived), QColor(0xE3E6E9)}};
  return tints;
}

/// How bright a colour looks, from 0 to 1, by the weights of the eye.
double Luminance(const QColor& color) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

QColor Softened(int rgb) {
  const QColor asked = QColor::fromRgb(static_cast<QRgb>(rgb));
  const auto halfWhite = [](int part) { return (part + 255) / 2; };
  return QColor(halfWhite(asked.red()), halfWhite(asked.green()), halfWhite(asked.blue()));
}

QColor StateTint(const QString& word) { return StateTints().value(word); }

QColor Hovered(bool main) {
  return main ? QColor(look::Accent).lighter(kHoverLighter) : QColor(look::RestingRow);
}

QColor Pressed(bool main) {
  return QColor(main ? look::Accent : look::Paper).darker(kPressedDarker);
}

std::vector<TextPair> TextPairs() {
  using namespace look;
  std::vector<TextPair> pairs = {
      {"heading on a card", Band, Card},
      {"heading in a popup", Band, Paper},
      {"heading in a window", Band, Window},
      {"warning in a window", Warning, Window},
      {"warning on a card", Warning, Card},
      {"Sunday in the calendar", Warning, Paper},
      {"Saturday in the calendar", Accent, Paper},
      {"link", Accent, Window},
      {"text on the band", Inverse, Band},
      {"text where the band ends", Inverse, Accent},
      {"main button", Inverse, Accent},
      {"main button under the pointer", Inverse, Hovered(true)},
      {"main button, pressed", Inverse, Pressed(true)},
      {"chosen text", Inverse, Accent},
      {"sign of a warning box", Inverse, Warning},
      {"column header", Ink, Header},
      {"button", Ink, Paper},
      {"button under the pointer", Ink, Hovered(false)},
      {"button, pressed", Ink, Pressed(false)},
      {"disabled button", Disabled, Header},
      {"disabled field", Disabled, Idle},
      {"disabled choice in a window", Disabled, Window},
      {"disabled choice on a card", Disabled, Card},
      {"day of another month", Disabled, Paper},
      {"row in a disabled grid", Muted, Paper},
      {"placeholder", Muted, Paper},
      {"tool tip", Ink, Tip},
      {"open cell", Ink, OpenCell},
  };
  // Texts, and the codes above them, on whatever ground they come to stand.
  for (const QRgb ground : {Paper, Card, Window, CurrentRow, RestingRow}) {
    pairs.push_back({"text", Ink, ground});
    pairs.push_back({"caption or code", Muted, ground});
  }
  for (const QColor& tint : StateTints()) pairs.push_back({"state", Ink, tint});
  return pairs;
}

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

}  // namespace store
