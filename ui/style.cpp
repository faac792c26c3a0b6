#include "ui/style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QPointer>
#include <QStyleFactory>
#include <QWidget>
#include <utility>
#include <vector>

namespace store {
namespace {

constexpr double kWorkSize = 10;
constexpr double kTotalSize = 15;
constexpr double kBoxSize = 13;
constexpr double kDetailSize = 9;
constexpr int kRowPadding = 8;

/// A colour is written "@name".
constexpr const char* kRules = R"(
QLineEdit, QPlainTextEdit { border: 1px solid @Edge; border-radius: 3px; background: @Paper;
  padding: 2px 5px; selection-background-color: @Accent; }
QLineEdit { lineedit-password-character: 42; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid @Bright; padding: 1px 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: @Idle; color: @Disabled; }
QTableView { border: 1px solid @Edge; margin: 1px; background: @Paper; }
QTableView:focus { border: 2px solid @Bright; margin: 0; }
QCalendarWidget QTableView, QCalendarWidget QTableView:focus { border: 0; margin: 0; }
QHeaderView::section { background: @Header; color: @Ink; border: 0;
  border-right: 1px solid @Line;
  border-bottom: 1px solid @Edge; padding: 4px 3px; }
QLabel[role="caption"] { color: @Muted; }
QLabel[role="heading"] { color: @Heading; font-weight: bold; }
QLabel[role="warning"] { color: @Warning; font-weight: bold; }
QLabel[role="value"] { background: @Paper; border: 1px solid @Line; border-radius: 2px;
  padding: 1px 5px; }
QFrame[role="card"] { background: @Card; border: 1px solid @Line; border-radius: 4px; }
QFrame[role="popup"] { background: @Paper; border: 2px solid @Heading; border-radius: 4px; }
QFrame[role="totals"] { background: @Paper; border: 1px solid @Line; border-radius: 4px; }
QFrame[role="band"] { background: @Band; }
QFrame[role="band"] QLabel { color: @Inverse; }
QToolTip { background: @Tip; color: @Ink; border: 1px solid @TipEdge; padding: 3px; }
)";

/// The widget style draws the edges of these darker than their ground, which is lost in the dark.
constexpr const char* kDarkRules = R"(
QRadioButton::indicator, QCheckBox::indicator { width: 12px; height: 12px;
  border: 1px solid @Muted; background: @Paper; }
QRadioButton::indicator { border-radius: 7px; }
QCheckBox::indicator { border-radius: 2px; }
QRadioButton::indicator:checked, QCheckBox::indicator:checked { background: @Bright;
  border: 1px solid @Bright; }
QRadioButton::indicator:disabled, QCheckBox::indicator:disabled { border-color: @Edge; }
)";

struct Follower {
  QPointer<QObject> Owner;
  std::function<void()> Dress;
};

std::vector<Follower>& Followers() {
  static std::vector<Follower> followers;
  return followers;
}

int type_size_now = 100;

double Points(double size) { return size * type_size_now / 100; }

QFont WithSize(double size) {
  QFont font = QApplication::font();
  font.setPointSizeF(Points(size));
  return font;
}

QString Rules() {
  QString rules = QString::fromUtf8(kRules);
  if (CurrentTheme() == Theme::Dark) rules += kDarkRules;
  // A name that another one begins with comes behind it.
  const std::pair<const char*, QColor> colours[] = {
      {"@Ink", look::Ink},         {"@Muted", look::Muted},     {"@Disabled", look::Disabled},
      {"@Line", look::Line},       {"@Edge", look::Edge},       {"@Paper", look::Paper},
      {"@Card", look::Card},       {"@Header", look::Header},   {"@Heading", look::Heading},
      {"@Idle", look::Idle},       {"@TipEdge", look::TipEdge}, {"@Tip", look::Tip},
      {"@Band", look::Band},       {"@Accent", look::Accent},   {"@Bright", look::Bright},
      {"@Inverse", look::Inverse}, {"@Warning", look::Warning}};
  for (const auto& [name, colour] : colours) rules.replace(name, colour.name());
  return rules;
}

}  // namespace

int TypeSize() { return type_size_now; }

int Scaled(int pixels) { return pixels * type_size_now / 100; }

QSize Scaled(const QSize& pixels) { return {Scaled(pixels.width()), Scaled(pixels.height())}; }

QMargins Scaled(const QMargins& pixels) {
  return {Scaled(pixels.left()), Scaled(pixels.top()), Scaled(pixels.right()),
          Scaled(pixels.bottom())};
}

int RowHeight(int lines) {
  return QFontMetrics(QApplication::font()).lineSpacing() * lines + Scaled(kRowPadding);
}

QFont BoldFont() {
  QFont font = WithSize(kWorkSize);
  font.setBold(true);
  return font;
}

QFont TotalFont() {
  QFont font = WithSize(kTotalSize);
  font.setBold(true);
  return font;
}

QFont BoxFont() { return WithSize(kBoxSize); }

QFont DetailFont() { return WithSize(kDetailSize); }

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QFont font;
  font.setFamilies({"NanumGothic", "Malgun Gothic", "Noto Sans CJK KR", "sans-serif"});
  font.setPointSizeF(Points(kWorkSize));
  QApplication::setFont(font);

  QPalette palette{QColor(look::Header), QColor(look::Window)};
  palette.setColor(QPalette::Base, QColor(look::Paper));
  palette.setColor(QPalette::Highlight, QColor(look::Accent));
  palette.setColor(QPalette::HighlightedText, QColor(look::Inverse));
  palette.setColor(QPalette::PlaceholderText, QColor(look::Muted));
  palette.setColor(QPalette::Link, QColor(look::Bright));
  palette.setColor(QPalette::LinkVisited, QColor(look::Bright));
  palette.setColor(QPalette::AlternateBase, QColor(look::Card));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::All, role, QColor(look::Ink));
    palette.setColor(QPalette::Disabled, role, QColor(look::Disabled));
  }
  QApplication::setPalette(palette);
  application.setStyleSheet(Rules());
}

void ChangeLook(int typeSize, Theme theme) {
  const int size = kTypeSizes.contains(typeSize) ? typeSize : kTypeSizes.constFirst();
  if (size == type_size_now && theme == CurrentTheme()) return;
  type_size_now = size;
  SetTheme(theme);
  ApplyStyle(*qApp);
  const std::vector<Follower> followers = Followers();
  for (const Follower& follower : followers) {
    if (follower.Owner != nullptr) follower.Dress();
  }
  for (QWidget* widget : QApplication::allWidgets()) widget->update();
}

void FollowLook(QObject& owner, std::function<void()> dress) {
  dress();
  std::vector<Follower>& followers = Followers();
  std::erase_if(followers, [](const Follower& follower) { return follower.Owner == nullptr; });
  followers.push_back({&owner, std::move(dress)});
}

void FollowFont(QWidget& widget, QFont (*font)()) {
  FollowLook(widget, [&widget, font] { widget.setFont(font()); });
}

}  // namespace store
