#include "ui/binding.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>

#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/qt_text.h"
#include "ui/tile_wall.h"

namespace store {
namespace {

class LabelBinding : public Binding {
 public:
  LabelBinding(Label& label, QLabel& shown) : Binding(label, shown), label_(label), shown_(shown) {
    shown.setTextFormat(Qt::PlainText);
  }

 private:
  void FollowValue() override {
    if (seen_.Differs(label_.Caption)) shown_.setText(ShownLines(label_.Caption));
  }
  const Label& label_;
  QLabel& shown_;
  SeenText seen_;
};

/// A label or button of the form that a person presses. Its text is the widget's own when the
/// control has no caption.
template <class Pressed>
class PressBinding : public Binding {
 public:
  PressBinding(FormWindow& window, Pressed& control, KeyButton& button)
      : Binding(control, button), control_(control), button_(button) {
    window.OnPress(button, [&control] {
      if (control.Click) control.Click();
    });
  }

 private:
  void FollowValue() override {
    if (!control_.Click) button_.setEnabled(false);  // it does nothing, and looks it
    if (seen_.Differs(control_.Caption) && !control_.Caption.empty()) {
      button_.setText(ToQt(control_.Caption));
    }
  }
  const Pressed& control_;
  KeyButton& button_;
  SeenText seen_;
};

/// A button below which the entries open. Each has a number or letter that chooses it.
class MenuBinding : public Binding {
 public:
  MenuBinding(FormWindow& window, Menu& menu, KeyButton& button)
      : Binding(menu, button), window_(window), menu_(menu), button_(button) {
    button.setText(ToQt(menu.Caption));
    window.OnPress(button, [&menu] { menu.Open(); });
  }

 private:
  void FollowValue() override {
    if (std::exchange(openings_, menu_.Openings()) == menu_.Openings()) return;
    Fill();
    list_.popup(button_.mapToGlobal(button_.rect().bottomLeft()));
    if (!list_.isEmpty()) list_.setActiveAction(list_.actions().constFirst());
  }
  void Fill() {
    list_.clear();
    for (int entry = 0; entry < static_cast<int>(menu_.Entries.size()); ++entry) {
      const std::string& text = menu_.Entries[static_cast<size_t>(entry)];
      if (text.empty()) {
        list_.addSeparator();
        continue;
      }
      const QAction* action = list_.addAction(NumberedEntry(entry, ToQt(text)));
      QObject::connect(action, &QAction::triggered, &window_,
                       [this, entry] { window_.Act([&] { menu_.Click(entry); }); });
    }
  }
  FormWindow& window_;
  Menu& menu_;
  KeyButton& button_;
  QMenu& list_ = *new QMenu(&button_);
  unsigned openings_ = 0;
};

/// A button for each tab in a row; none is down before the first press.
class TabBinding : public Binding {
 public:
  TabBinding(FormWindow& window, TabStrip& strip, QWidget& row)
      : Binding(strip, row), strip_(strip) {
    auto* places = new QHBoxLayout(&row);
    places->setContentsMargins(0, 0, 0, 0);
    places->setSpacing(2);
    for (const std::string& caption : strip.Captions) {
      auto* tab = new QToolButton;
      tab->setText(ToQt(caption));
      tab->setCheckable(true);
      tab->setFocusPolicy(Qt::NoFocus);
      tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
      places->addWidget(tab);
      const int index = static_cast<int>(tabs_.size());
      QObject::connect(tab, &QToolButton::clicked, &window,
                       [&window, &strip, index] { window.Act([&] { strip.Click(index); }); });
      tabs_.push_back(tab);
    }
  }

 private:
  void FollowValue() override {
    for (size_t i = 0; i < tabs_.size(); ++i) {
      tabs_[i]->setChecked(static_cast<int>(i) == strip_.CurrTab);
    }
  }
  const TabStrip& strip_;
  std::vector<QToolButton*> tabs_;
};

class GridBinding : public Binding {
 public:
  GridBinding(FormWindow& window, Grid& grid, GridView& view) : Binding(grid, view), view_(view) {
    window.KeepOpenCellsOf(view);
  }

 private:
  void FollowValue() override { view_.Follow(); }
  GridView& view_;
};

class WallBinding : public Binding {
 public:
  WallBinding(Grid& tiles, TileWall& wall) : Binding(tiles, wall), wall_(wall) {}

 private:
  void FollowValue() override { wall_.Follow(); }
  TileWall& wall_;
};

class ProgressBinding : public Binding {
 public:
  ProgressBinding(ProgressBar& progress, QProgressBar& bar)
      : Binding(progress, bar), progress_(progress), bar_(bar) {}

 private:
  void FollowValue() override {
    bar_.setMaximum(progress_.Max);
    bar_.setValue(progress_.Value);
  }
  const ProgressBar& progress_;
  QProgressBar& bar_;
};

}  // namespace

void Binding::Follow() {
  if (widget_ == nullptr) return;
  if (fresh_ || enabled_ != control_.Enabled) widget_->setEnabled(control_.Enabled);
  if (fresh_ || visible_ != control_.Visible) widget_->setVisible(control_.Visible);
  if (fresh_ || tip_ != control_.ToolTipText) widget_->setToolTip(ToQt(control_.ToolTipText));
  fresh_ = false;
  enabled_ = control_.Enabled;
  visible_ = control_.Visible;
  tip_ = control_.ToolTipText;
  FollowValue();
}

std::unique_ptr<Binding> Bind(FormWindow& window, Control& control, QWidget& widget) {
  auto* label = dynamic_cast<Label*>(&control);
  auto* button = dynamic_cast<Button*>(&control);
  auto* pressed = dynamic_cast<KeyButton*>(&widget);
  if (label != nullptr && pressed != nullptr) {
    return std::make_unique<PressBinding<Label>>(window, *label, *pressed);
  }
  if (button != nullptr && pressed != nullptr) {
    return std::make_unique<PressBinding<Button>>(window, *button, *pressed);
  }
  if (auto* menu = dynamic_cast<Menu*>(&control); menu != nullptr && pressed != nullptr) {
    return std::make_unique<MenuBinding>(window, *menu, *pressed);
  }
  if (auto* text = qobject_cast<QLabel*>(&widget); label != nullptr && text != nullptr) {
    return std::make_unique<LabelBinding>(*label, *text);
  }
  if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
    return std::make_unique<TabBinding>(window, *strip, widget);
  }
  auto* grid = dynamic_cast<Grid*>(&control);
  if (auto* view = dynamic_cast<GridView*>(&widget); grid != nullptr && view != nullptr) {
    return std::make_unique<GridBinding>(window, *grid, *view);
  }
  if (auto* wall = dynamic_cast<TileWall*>(&widget); grid != nullptr && wall != nullptr) {
    return std::make_unique<WallBinding>(*grid, *wall);
  }
  auto* progress = dynamic_cast<ProgressBar*>(&control);
  if (auto* bar = qobject_cast<QProgressBar*>(&widget); progress != nullptr && bar != nullptr) {
    return std::make_unique<ProgressBinding>(*progress, *bar);
  }
  if (std::unique_ptr<Binding> input = BindInput(window, control, widget)) return input;
  return std::make_unique<Binding>(control, widget);
}

QString NumberedEntry(int entry, const QString& text) {
  return QString("&%1  %2").arg(QString::number(entry + 1, 36).toUpper(),
                                QString(text).replace("&", "&&"));
}

void BindTimer(FormWindow& window, Timer& timer) {
  auto* clock = new QTimer(&window);
  QObject::connect(clock, &QTimer::timeout, &window, [&timer] {
    if (TheDesk().InsideCall()) return;  // it comes again
    Dispatch([&timer] {
      if (timer.Tick) timer.Tick();
    });
  });
  window.AlsoSync([&timer, clock, restarts = timer.Restarts()]() mutable {
    const bool runs = timer.Enabled && timer.Interval > 0;
    const bool anew = std::exchange(restarts, timer.Restarts()) != timer.Restarts();
    if (!runs) {
      clock->stop();
    } else if (anew || !clock->isActive() || clock->interval() != timer.Interval) {
      clock->start(timer.Interval);
    }
  });
}

}  // namespace store
