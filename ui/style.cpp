#include "ui/style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPalette>
#include <QStyleFactory>
#include <utility>

namespace store {
namespace {

constexpr double kWorkSize = 10;
constexpr double kTotalSize = 15;
constexpr double kBoxSize = 13;
constexpr int kRowPadding = 8;

/// A colour is written "@name".
constexpr const char* kRules = R"(
QLineEdit, QPlainTextEdit { border: 1px solid @Edge; border-radius: 3px; background: @Paper;
  padding: 2px 5px; selection-background-color: @Accent; }
QLineEdit { lineedit-password-character: 42; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid @Accent; padding: 1px 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: @Idle; color: @Disabled; }
QTableView { border: 1px solid @Edge; margin: 1px; background: @Paper; }
QTableView:focus { border: 2px solid @Accent; margin: 0; }
QCalendarWidget QTableView, QCalendarWidget QTableView:focus { border: 0; margin: 0; }
QHeaderView::section { background: @Header; color: @Ink; border: 0;
  border-right: 1px solid @Line;
  border-bottom: 1px solid @Edge; padding: 4px 3px; }
QLabel[role="caption"] { color: @Muted; }
QLabel[role="heading"] { color: @Band; font-weight: bold; }
QLabel[role="warning"] { color: @Warning; font-weight: bold; }
QLabel[role="value"] { background: @Paper; border: 1px solid @Line; border-radius: 2px;
  padding: 1px 5px; }
QFrame[role="card"] { background: @Card; border: 1px solid @Line; border-radius: 4px; }
QFrame[role="popup"] { background: @Paper; border: 2px solid @Band; border-radius: 4px; }
QFrame[role="totals"] { background: @Paper; border: 1px solid @Line; border-radius: 4px; }
QFrame[role="band"] { background: @Band; }
QFrame[role="band"] QLabel { color: @Inverse; }
QToolTip { background: @Tip; color: @Ink; border: 1px solid @TipEdge; padding: 3px; }
)";

QString Rules() {
  QString rules = QString::fromUtf8(kRules);
  const std::pair<const char*, QRgb> colours[] = {
      {"@Ink", look::Ink},         {"@Muted", look::Muted},     {"@Disabled", look::Disabled},
      {"@Line", look::Line},       {"@Edge", look::Edge},       {"@Paper", look::Paper},
      {"@Card", look::Card},       {"@Header", look::Header},   {"@Idle", look::Idle},
      {"@TipEdge", look::TipEdge}, {"@Tip", look::Tip},         {"@Band", look::Band},
      {"@Accent", look::Accent},   {"@Inverse", look::Inverse}, {"@Warning", look::Warning}};
  for (const auto& [name, colour] : colours) rules.replace(name, QColor(colour).name());
  return rules;
}

}  // namespace

int RowHeight(int lines) {
  return QFontMetrics(QApplication::font()).lineSpacing() * lines + kRowPadding;
}

QFont TotalFont() {
  QFont font = QApplication::font();
  font.setPointSizeF(kTotalSize);
  font.setBold(true);
  return font;
}

QFont BoxFont() {
  QFont font = QApplication::font();
  font.setPointSizeF(kBoxSize);
  return font;
}

void ApplyStyle(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QFont font;
  font.setFamilies({"NanumGothic", "Malgun Gothic", "Noto Sans CJK KR", "sans-serif"});
  font.setPointSizeF(kWorkSize);
  QApplication::setFont(font);

  QPalette palette{QColor(look::Header), QColor(look::Window)};
  palette.setColor(QPalette::Base, QColor(look::Paper));
  palette.setColor(QPalette::Highlight, QColor(look::Accent));
  palette.setColor(QPalette::HighlightedText, QColor(look::Inverse));
  palette.setColor(QPalette::PlaceholderText, QColor(look::Muted));
  palette.setColor(QPalette::Link, QColor(look::Accent));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::All, role, QColor(look::Ink));
    palette.setColor(QPalette::Disabled, role, QColor(look::Disabled));
  }
  QApplication::setPalette(palette);
  application.setStyleSheet(Rules());
}

}  // namespace store
