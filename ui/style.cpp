#include "ui/style.h"

#include <QApplication>
#include <QFontMetrics>
#include <QHash>
#include <QPalette>
#include <QStyleFactory>

#include "slips/slip.h"
#include "ui/qt_text.h"

namespace store {
namespace {

constexpr double kWorkSize = 10;
constexpr double kTotalSize = 15;
constexpr double kBoxSize = 13;
constexpr int kRowPadding = 8;

constexpr const char* kRules = R"(
QLineEdit, QPlainTextEdit { border: 1px solid #aab6c2; border-radius: 3px; background: white;
  padding: 2px 5px; selection-background-color: #1b6ca8; }
QLineEdit { lineedit-password-character: 42; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid #1b6ca8; padding: 1px 4px; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: #e9edf0; color: #4c5864; }
QTableView { border: 1px solid #aab6c2; margin: 1px; background: white; }
QTableView:focus { border: 2px solid #1b6ca8; margin: 0; }
QTableView:disabled { background: #f4f6f8; }
QHeaderView::section { background: #e3e8ed; color: #3c4854; border: 0;
  border-right: 1px solid #cbd3db;
  border-bottom: 1px solid #aab6c2; padding: 4px 3px; }
QLabel[role="caption"] { color: #55616d; }
QLabel[role="heading"] { color: #23394d; font-weight: bold; }
QLabel[role="warning"] { color: #b3261e; font-weight: bold; }
QLabel[role="value"] { background: white; border: 1px solid #d9dfe5; border-radius: 2px;
  padding: 1px 5px; }
QFrame[role="card"] { background: #f7f9fa; border: 1px solid #d3dae1; border-radius: 4px; }
QFrame[role="popup"] { background: white; border: 2px solid #23394d; border-radius: 4px; }
QFrame[role="totals"] { background: white; border: 1px solid #d3dae1; border-radius: 4px; }
QFrame[role="band"] { background: #23394d; }
QFrame[role="band"] QLabel { color: white; }
QToolTip { background: #fffbe6; color: #1f2933; border: 1px solid #b9b08a; padding: 3px; }
)";

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

QColor Softened(int rgb) {
  const QColor asked = QColor::fromRgb(static_cast<QRgb>(rgb));
  const auto halfWhite = [](int part) { return (part + 255) / 2; };
  return QColor(halfWhite(asked.red()), halfWhite(asked.green()), halfWhite(asked.blue()));
}

QColor StateTint(const QString& word) {
  static const QHash<QString, QColor> tints = {{ToQt(kWordEditing), QColor(0xDCE9F7)},
                                               {ToQt(kWordConfirmed), QColor(0xFCE8C8)},
                                               {ToQt(kWordApproved), QColor(0xD9EFD9)},
                                               {ToQt(kWordShipped), QColor(0xE6DDF3)},
                                               {ToQt(kWordReceived), QColor(0xE3E6E9)}};
  return tints.value(word);
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
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::PlaceholderText, QColor(0x9AA5B0));
  palette.setColor(QPalette::Link, QColor(look::Accent));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::All, role, QColor(look::Ink));
    palette.setColor(QPalette::Disabled, role, QColor(0x7C8894));
  }
  QApplication::setPalette(palette);
  application.setStyleSheet(QString::fromUtf8(kRules));
}

}  // namespace store
