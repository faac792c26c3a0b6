#include "ui/accessible_names.h"

#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>

#include "ui/history_chart_view.h"
#include "ui/server_lamp.h"
#include "ui/tile_wall.h"

namespace store {
namespace {

constexpr const char* kInnerOfSpinBox = "qt_spinbox_lineedit";
constexpr const char* kCaptionRole = "caption";

/// Without the letter's mark, the keys in brackets and the blanks that space a caption out.
QString Spoken(QString text) {
  text = text.section(" (", 0, 0).remove('&').simplified();
  const bool isSpacedOut = text.size() > 2 && text.split(' ').size() > text.size() / 2;
  if (isSpacedOut) text.remove(' ');
  while (text.endsWith(':') || text.endsWith('~')) text.chop(1);
  return text.trimmed();
}

/// What a person can work with, but for buttons and choices, which carry their text.
bool NeedsName(const QWidget& widget) {
  if (!widget.accessibleName().isEmpty() || widget.objectName() == kInnerOfSpinBox) return false;
  if (qobject_cast<const QComboBox*>(widget.parentWidget()) != nullptr) return false;
  return qobject_cast<const QLineEdit*>(&widget) != nullptr ||
         qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QDateEdit*>(&widget) != nullptr ||
         qobject_cast<const QAbstractScrollArea*>(&widget) != nullptr ||
         qobject_cast<const QProgressBar*>(&widget) != nullptr;
}

QString TextOf(const QLayoutItem* item) {
  auto* label = item == nullptr ? nullptr : qobject_cast<QLabel*>(item->widget());
  if (label == nullptr) return {};
  const bool isCaption = label->property("role") == kCaptionRole || label->buddy() != nullptr;
  return isCaption ? Spoken(label->text()) : QString();
}

/// The caption in front of the item at `index`, as near as there is one.
QString CaptionBefore(const QLayout& layout, int index) {
  if (const auto* grid = qobject_cast<const QGridLayout*>(&layout)) {
    int row = 0;
    int column = 0;
    int span = 0;
    grid->getItemPosition(index, &row, &column, &span, &span);
    return column == 0 ? QString() : TextOf(grid->itemAtPosition(row, column - 1));
  }
  for (int before = index - 1; before >= 0; --before) {
    if (const QString text = TextOf(layout.itemAt(before)); !text.isEmpty()) return text;
  }
  return {};
}

bool Holds(const QLayout& layout, const QWidget& widget) {
  for (int at = 0; at < layout.count(); ++at) {
    const QLayoutItem* item = layout.itemAt(at);
    if (item->widget() == &widget) return true;
    if (QLayout* inner = layout.itemAt(at)->layout(); inner != nullptr && Holds(*inner, widget)) {
      return true;
    }
  }
  return false;
}

QString CaptionIn(const QLayout& layout, const QWidget& widget) {
  for (int at = 0; at < layout.count(); ++at) {
    if (layout.itemAt(at)->widget() == &widget) return CaptionBefore(layout, at);
    const QLayout* inner = layout.itemAt(at)->layout();
    if (inner == nullptr || !Holds(*inner, widget)) continue;
    const QString name = CaptionIn(*inner, widget);
    // A field and its button share the caption that stands before both.
    return name.isEmpty() ? CaptionBefore(layout, at) : name;
  }
  return {};
}

/// Of the part of the window that it stands in.
QString HeadingAbove(const QWidget& widget) {
  for (const QWidget* part = widget.parentWidget(); part != nullptr; part = part->parentWidget()) {
    for (const QLabel* label : part->findChildren<QLabel*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (label->property("role") == "heading" && !label->text().isEmpty()) {
        return Spoken(label->text());
      }
    }
    if (part->isWindow()) break;
  }
  return {};
}

QString PlaceholderOf(const QWidget& widget) {
  const auto* line = qobject_cast<const QLineEdit*>(&widget);
  return line == nullptr ? QString() : line->placeholderText().simplified();
}

QString NameOf(const QWidget& widget) {
  const QLayout* layout = widget.parentWidget()->layout();
  QString name = layout == nullptr ? QString() : CaptionIn(*layout, widget);
  if (name.isEmpty()) name = PlaceholderOf(widget);
  if (name.isEmpty()) name = HeadingAbove(widget);
  return name.isEmpty() ? widget.window()->windowTitle() : name;
}

class Part : public QAccessibleWidget {
 public:
  Part(QWidget& widget, QAccessible::Role role) : QAccessibleWidget(&widget, role) {}
};

QAccessibleInterface* MakePart(const QString& /*className*/, QObject* object) {
  if (auto* wall = dynamic_cast<TileWall*>(object)) return new Part(*wall, QAccessible::List);
  if (auto* chart = dynamic_cast<HistoryChartView*>(object)) {
    return new Part(*chart, QAccessible::Chart);
  }
  if (auto* lamp = dynamic_cast<ServerLamp*>(object)) {
    return new Part(*lamp, QAccessible::StaticText);
  }
  return nullptr;
}

}  // namespace

void NameControls(QWidget& window) {
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    if (NeedsName(*widget)) widget->setAccessibleName(NameOf(*widget));
  }
}

void TellKindsOfParts() { QAccessible::installFactory(MakePart); }

}  // namespace store
