#include "ui/filter_line.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>

#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr int kMargin = 3;

}  // namespace

FilterLine::FilterLine(QWidget* parent)
    : QWidget(parent), edit_(new QLineEdit), count_(CaptionLabel({})) {
  auto* close = new QToolButton;
  close->setText("✕");
  close->setAutoRaise(true);
  close->setFocusPolicy(Qt::NoFocus);
  close->setToolTip("모두 보이기 (Esc)");
  close->setAccessibleName("모두 보이기");
  edit_->setObjectName("filter");
  count_->setObjectName("filterCount");
  edit_->setPlaceholderText("찾을 말, 초성   Enter 표로   Esc 모두 보이기");
  edit_->setAccessibleName("줄 찾기");
  edit_->installEventFilter(this);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  row->addWidget(edit_, 1);
  row->addWidget(count_);
  row->addWidget(close);
  setAutoFillBackground(true);
  hide();
  connect(edit_, &QLineEdit::textChanged, this, [this](const QString& text) { Typed(text); });
  connect(close, &QToolButton::clicked, this, [this] { Closed(); });
}

QString FilterLine::Text() const { return edit_->text(); }

void FilterLine::Clear() {
  const QSignalBlocker quiet(edit_);
  edit_->clear();
}

void FilterLine::TakeKeyboard() {
  edit_->setFocus(Qt::ShortcutFocusReason);
  edit_->selectAll();
}

bool FilterLine::HasKeyboard() const { return edit_->hasFocus(); }

void FilterLine::Tell(int shown, int rows, const QString& remark) {
  QString text = QString("%1 / %2").arg(shown).arg(rows);
  if (shown < rows) text += QString("   %1줄 가려짐").arg(rows - shown);
  if (!remark.isEmpty()) text += "   " + remark;
  if (count_->text() != text) count_->setText(text);
}

bool FilterLine::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const QString code = scan_.Take(key);
  if (!code.isEmpty() && Scanned(code)) return true;
  switch (key.key()) {
    case Qt::Key_Escape:
      Closed();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
    case Qt::Key_Up:
      GoneOn();
      return true;
    case Qt::Key_F:
      if (key.modifiers() == Qt::ControlModifier) edit_->selectAll();
      return key.modifiers() == Qt::ControlModifier;
    default:
      return QWidget::eventFilter(watched, event);
  }
}

}  // namespace store
