#include "ui/layout_pieces.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QScreen>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

#include "basics/records.h"
#include "ui/elided_label.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr int kMargin = 8;
constexpr int kSpacing = 6;
constexpr double kLeastShare = 0.9;  // of the screen, for a window whose content is larger

/// As large as its content as long as the screen has room for it.
class ScrolledPart : public QScrollArea {
 public:
  ScrolledPart() {
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
      const bool isOutOfView =
          now != nullptr && isAncestorOf(now) && now->visibleRegion().isEmpty();
      if (isOutOfView) ensureWidgetVisible(now);
    });
  }
  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override {
    return widget()->minimumSizeHint().boundedTo(screen()->availableSize() * kLeastShare);
  }
};

/// Two groups side by side or, where that is too wide for the window, one below the other.
class FoldingPart : public QWidget {
 public:
  FoldingPart(QLayout* first, QLayout* second) : halves_(new QBoxLayout(QBoxLayout::LeftToRight)) {
    halves_->setContentsMargins(0, 0, 0, 0);
    halves_->setSpacing(kSpacing);
    for (QLayout* half : {first, second}) {
      half->setContentsMargins(0, 0, 0, 0);
      halves_->addLayout(half, half == first ? 1 : 0);
    }
    setLayout(halves_);
    // The layout would hold the part to the width of both.
    halves_->setSizeConstraint(QLayout::SetNoConstraint);
  }
  QSize minimumSizeHint() const override {
    const QSize first = halves_->itemAt(0)->minimumSize();
    const QSize second = halves_->itemAt(1)->minimumSize();
    const bool folded = halves_->direction() == QBoxLayout::TopToBottom;
    return {std::max(first.width(), second.width()),
            folded ? first.height() + kSpacing + second.height()
                   : std::max(first.height(), second.height())};
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    Fold();
  }
  bool event(QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) Fold();
    return QWidget::event(event);
  }

 private:
  void Fold() {
    const int both = halves_->itemAt(0)->minimumSize().width() + kSpacing +
                     halves_->itemAt(1)->minimumSize().width();
    const auto direction = both <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
    if (halves_->direction() == direction) return;
    halves_->setDirection(direction);
    updateGeometry();
  }

  QBoxLayout* halves_;
};

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
  FollowFont(*label, TotalFont);
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

QWidget* Titled(QWidget* heading, QWidget* content) { return Titled(Alone(heading), content); }

QWidget* Titled(QLayout* heading, QWidget* content) {
  auto* column = Column();
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addLayout(heading);
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
  auto* whole = new QVBoxLayout(&window);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(Scrolled(content));
}

QLayout* Alone(QWidget* widget) {
  QHBoxLayout* row = Row();
  row->addWidget(widget);
  return row;
}

QWidget* Folding(QLayout* first, QLayout* second) { return new FoldingPart(first, second); }

QWidget* Scrolled(QLayout* content) {
  auto* inner = new QWidget;
  inner->setLayout(content);
  auto* area = new ScrolledPart;
  area->setWidget(inner);
  // The ground is the window's: it must be seen painting, or it never begins to work.
  inner->setAutoFillBackground(false);
  area->viewport()->setAutoFillBackground(false);
  return area;
}

void FitContent(QWidget& window, const QSize& least) {
  FollowLook(window, [&window, least] {
    const QSize room = window.screen()->availableSize();
    window.resize(window.sizeHint().expandedTo(Scaled(least)).boundedTo(room));
  });
}

}  // namespace store
