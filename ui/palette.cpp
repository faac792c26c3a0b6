#include "ui/palette.h"

#include <QHash>
#include <cmath>

#include "slips/slip.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr int kHoverLighter = 108;  // percent
constexpr int kPressedDarker = 112;

constexpr int kAskedInDark = 27;  // percent of a colour that a form asked for; the rest is paper

Theme theme_now = Theme::Light;

const QHash<QString, Hue>& StateTints() {
  static const QHash<QString, Hue> tints = {{ToQt(kWordEditing), Hue(0xFFDCE9F7, 0xFF1F3C5A)},
                                            {ToQt(kWordConfirmed), Hue(0xFFFCE8C8, 0xFF5A431A)},
                                            {ToQt(kWordApproved), Hue(0xFFD9EFD9, 0xFF234A2A)},
                                            {ToQt(kWordShipped), Hue(0xFFE6DDF3, 0xFF45365F)},
                                            {ToQt(kWordReceived), Hue(0xFFE3E6E9, 0xFF3B4248)}};
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

Theme CurrentTheme() { return theme_now; }

void SetTheme(Theme theme) { theme_now = theme; }

QColor Softened(int rgb) {
  const QColor asked = QColor::fromRgb(static_cast<QRgb>(rgb));
  const QColor paper(look::Paper);
  // On white half of the colour is left; in the dark a bright ground would drown the bright
  // letters.
  const int share = theme_now == Theme::Dark ? kAskedInDark : 50;
  const auto mixed = [share](int part, int ground) {
    return (part * share + ground * (100 - share)) / 100;
  };
  return QColor(mixed(asked.red(), paper.red()), mixed(asked.green(), paper.green()),
                mixed(asked.blue(), paper.blue()));
}

QColor StateTint(const QString& word) {
  const auto tint = StateTints().find(word);
  return tint == StateTints().end() ? QColor() : QColor(*tint);
}

QColor Hovered(bool main) {
  return main ? QColor(look::Accent).lighter(kHoverLighter) : QColor(look::RestingRow);
}

QColor Pressed(bool main) {
  return QColor(main ? look::Accent : look::Paper).darker(kPressedDarker);
}

std::vector<TextPair> TextPairs() {
  using namespace look;
  std::vector<TextPair> pairs = {
      {"heading on a card", Heading, Card},
      {"heading in a popup", Heading, Paper},
      {"heading in a window", Heading, Window},
      {"warning in a window", Warning, Window},
      {"warning on a card", Warning, Card},
      {"Sunday in the calendar", Warning, Paper},
      {"Saturday in the calendar", Bright, Paper},
      {"link", Bright, Window},
      {"link on paper", Bright, Paper},
      {"text on the band", Inverse, Band},
      {"text where the band ends", Inverse, Accent},
      {"main button", Inverse, Accent},
      {"main button under the pointer", Inverse, Hovered(true)},
      {"main button, pressed", Inverse, Pressed(true)},
      {"chosen text", Inverse, Accent},
      {"sign of a box", Paper, Bright},
      {"sign of a warning box", Paper, Warning},
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
  for (const Hue ground : {Paper, Card, Window, CurrentRow, RestingRow}) {
    pairs.push_back({"text", Ink, ground});
    pairs.push_back({"caption or code", Muted, ground});
  }
  for (const Hue& tint : StateTints()) pairs.push_back({"state", Ink, tint});
  return pairs;
}

double Contrast(const QColor& one, const QColor& other) {
  const double first = Luminance(one) + 0.05;
  const double second = Luminance(other) + 0.05;
  return std::max(first, second) / std::min(first, second);
}

}  // namespace store
