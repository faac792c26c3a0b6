#include "ui/bindings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QToolButton>

#include "ui/desk.h"
#include "ui/form_window.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/qt_text.h"

namespace store {
namespace {

void BindCaption(FormWindow& window, const QString& name, Control& control,
                 const std::string& caption, KeyButton& button, std::function<void()> click) {
  window.Bind(name, control, button, [&caption, &button] {
    const QString text = ToQt(caption);
    if (!text.isEmpty() && button.text() != text) button.setText(text);
  });
  QObject::connect(&button, &QPushButton::clicked, &window,
                   [&window, click = std::move(click)] { window.Act(click); });
  // A key does no more than the button would: nothing while it is disabled.
  if (!button.Keys().isEmpty()) window.OnShortcut(button.Keys(), [&button] { button.click(); });
}

}  // namespace

void BindLabel(FormWindow& window, const QString& name, Label& label, QLabel& shown) {
  shown.setTextFormat(Qt::PlainText);
  window.Bind(name, label, shown, [&label, &shown] {
    const QString text = ShownLines(label.Caption);
    if (shown.text() != text) shown.setText(text);
  });
}

void BindPress(FormWindow& window, const QString& name, Label& label, KeyButton& button,
               std::function<void()> click) {
  BindCaption(window, name, label, label.Caption, button, std::move(click));
}

void BindPress(FormWindow& window, const QString& name, Button& button, KeyButton& shown,
               std::function<void()> click) {
  BindCaption(window, name, button, button.Caption, shown, std::move(click));
}

void BindTabs(FormWindow& window, const QString& name, TabStrip& strip, QWidget& row,
              std::function<void(int tab)> click) {
  auto* places = new QHBoxLayout(&row);
  places->setContentsMargins(0, 0, 0, 0);
  places->setSpacing(2);
  std::vector<QToolButton*> tabs;
  for (const std::string& caption : strip.Captions) {
    auto* tab = new QToolButton;
    tab->setText(ToQt(caption));
    tab->setCheckable(true);
    tab->setFocusPolicy(Qt::NoFocus);
    tab->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    places->addWidget(tab);
    const int index = static_cast<int>(tabs.size());
    QObject::connect(tab, &QToolButton::clicked, &window,
                     [&window, click, index] { window.Act([&] { click(index); }); });
    tabs.push_back(tab);
  }
  window.Bind(name, strip, row, [&strip, tabs] {
    for (size_t i = 0; i < tabs.size(); ++i) {
      tabs[i]->setChecked(static_cast<int>(i) == strip.CurrTab);
    }
  });
}

void BindGrid(FormWindow& window, const QString& name, Grid& grid, GridView& view) {
  window.Bind(name, grid, view, [&view] { view.Follow(); });
  window.HoldsGrid(view);
}

void BindProgress(FormWindow& window, const QString& name, ProgressBar& progress,
                  QProgressBar& bar) {
  window.Bind(name, progress, bar, [&progress, &bar] {
    bar.setMaximum(progress.Max);
    bar.setValue(progress.Value);
  });
}

void BindTimer(FormWindow& window, const Timer& timer, std::function<void()> fire) {
  auto* clock = new QTimer(&window);
  QObject::connect(clock, &QTimer::timeout, &window, [fire = std::move(fire)] { Dispatch(fire); });
  window.AlsoSync([&timer, clock] {
    const bool runs = timer.Enabled && timer.Interval > 0;
    if (!runs) {
      clock->stop();
    } else if (!clock->isActive() || clock->interval() != timer.Interval) {
      clock->start(timer.Interval);
    }
  });
}

}  // namespace store
