#include "ui/layout_pieces.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
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
constexpr QMargins kWindowFrame(4, 36, 4, 4);  // as desktops draw it, the title on top

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
    return widget()->minimumSizeHint().boundedTo(RoomForWindow(*this).size());
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    // What the form writes makes the content grow, and the window with it.
    if (watched == widget() && event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }
};

/// Two groups side by side or, where that is too wide for the window, one below the other.
class FoldingLayout : public QBoxLayout {
 public:
  FoldingLayout(QLayout* first, QLayout* second, int takesRoom) : QBoxLayout(LeftToRight) {
    setSpacing(kSpacing);
    addLayout(first);
    addLayout(second);
    setStretch(takesRoom, 1);
  }
  QSize minimumSize() const override {
    const QSize first = itemAt(0)->minimumSize();
    const QSize second = itemAt(1)->minimumSize();
    const bool folded = direction() == TopToBottom;
    const QMargins margins = contentsMargins();
    const QSize inner(std::max(first.width(), second.width()),
                      folded ? first.height() + kSpacing + second.height()
                             : std::max(first.height(), second.height()));
    return inner.grownBy(margins);
  }
  void setGeometry(const QRect& room) override {
    const int sideBySide = itemAt(0)->minimumSize().width() + kSpacing +
                           itemAt(1)->minimumSize().width() + contentsMargins().left() +
                           contentsMargins().right();
    const Direction wanted = sideBySide <= room.width() ? LeftToRight : TopToBottom;
    if (direction() != wanted) setDirection(wanted);
    QBoxLayout::setGeometry(room);
  }
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

QLineEdit* AtLeast(int pixels, QLineEdit* line) {
  FollowLook(*line, [line, pixels] { line->setMinimumWidth(Scaled(pixels)); });
  return line;
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

QLayout* Folding(QLayout* first, QLayout* second, int takesRoom) {
  return new FoldingLayout(first, second, takesRoom);
}

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

QRect RoomForWindow(const QWidget& widget) {
  return widget.screen()->availableGeometry().marginsRemoved(kWindowFrame);
}

void FitContent(QWidget& window, const QSize& least) {
  FollowLook(window, [&window, least] {
    const QSize room = RoomForWindow(window).size();
    window.resize(window.sizeHint().expandedTo(Scaled(least)).boundedTo(room));
  });
}

}  // namespace store
