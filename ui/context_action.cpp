#include "ui/context_action.h"

#include <QMenu>
#include <QPointer>
#include <utility>

#include "ui/key_button.h"

namespace store {
namespace {

void AddButtonLine(QMenu& menu, KeyButton& button) {
  if (!button.isVisible()) return;
  const auto press = [here = QPointer(&button)] {
    if (here != nullptr) here->click();
  };
  AddLine(menu, button.text(), button.WrittenKey(), press)->setEnabled(button.isEnabled());
}

void AddAction(QMenu& menu, const ContextAction& action) {
  if (action.Button != nullptr) {
    AddButtonLine(menu, *action.Button);
  } else if (action.Text.isEmpty()) {
    menu.addSeparator();
  } else {
    QAction* line = AddLine(menu, action.Text, action.Key, action.Event);
    line->setEnabled(!action.Enabled || action.Enabled());
    line->setCheckable(static_cast<bool>(action.IsOn));
    line->setChecked(action.IsOn && action.IsOn());
  }
}

}  // namespace

void AddActions(QMenu& menu, const ContextActions& actions) {
  for (const ContextAction& action : actions) AddAction(menu, action);
}

QAction* AddLine(QMenu& menu, const QString& text, const QString& key,
                 std::function<void()> event) {
  QAction* line = menu.addAction(key.isEmpty() ? text : text + '\t' + key);
  QObject::connect(line, &QAction::triggered, &menu, [event = std::move(event)] { event(); });
  return line;
}

}  // namespace store
