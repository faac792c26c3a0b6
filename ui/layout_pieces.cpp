#include "ui/layout_pieces.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QSplitter>
#include <QVBoxLayout>

#include "basics/records.h"
#include "ui/elided_label.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kMargin = 8;
constexpr int kSpacing = 6;

QLabel* WithRole(QLabel* label, const char* role) {
  label->setProperty("role", role);
  return label;
}

}  // namespace

QLabel* CaptionLabel(const QString& text) { return WithRole(new QLabel(text), "caption"); }

QLabel* HeadingLabel(const QString& text) { return WithRole(new QLabel(text), "heading"); }

QLabel* ValueLabel() { return WithRole(new ElidedLabel, "value"); }

QLabel* TotalLabel() {
  auto* label = new QLabel;
  label->setFont(TotalFont());
  label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

void AddTotals(QHBoxLayout& row, const std::array<const char*, 4>& captions) {
  constexpr size_t kTotal = 1;
  constexpr int kGap = 12;
  for (const size_t index : {size_t{0}, size_t{2}, size_t{3}, kTotal}) {
    QLabel* amount = index == kTotal ? TotalLabel() : new QLabel;
    amount->setObjectName(QString("LaAmt_%1").arg(index));
    row.addWidget(CaptionLabel(captions[index]));
    row.addWidget(amount);
    row.addSpacing(kGap);
  }
}

std::string StoreAnd(const TextBox& partner) {
  // Without a code the text is only what somebody searches for.
  if (partner.Tag.empty() || partner.Text().empty()) return Session.StoreName;
  return Session.StoreName + " - " + partner.Text();
}

QFrame* Group(const QString& role, QLayout* content) {
  auto* frame = new QFrame;
  frame->setProperty("role", role);
  frame->setLayout(content);
  content->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
  return frame;
}

QWidget* Titled(QWidget* heading, QWidget* content) {
  auto* column = Column();
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addWidget(heading);
  column->addWidget(content, 1);
  auto* titled = new QWidget;
  titled->setLayout(column);
  return titled;
}

QWidget* ListAndDetails(QWidget* list, QWidget* details) {
  auto* halves = new QSplitter(Qt::Vertical);
  halves->addWidget(list);
  halves->addWidget(details);
  halves->setSizes({220, 260});
  halves->setChildrenCollapsible(false);
  return halves;
}

QHBoxLayout* Row() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  return row;
}

QVBoxLayout* Column() {
  auto* column = new QVBoxLayout;
  column->setSpacing(kSpacing);
  return column;
}

void FillWindow(QWidget& window, QVBoxLayout* content) {
  content->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  window.setLayout(content);
}

}  // namespace store
