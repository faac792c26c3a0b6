#include "ui/lookup_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "lookup/lookup_form.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"

namespace store {
namespace {

constexpr QSize kSize(680, 460);

QWidget* Line(QHBoxLayout* row) {
  auto* line = new QWidget;
  row->setContentsMargins(0, 0, 0, 0);
  line->setLayout(row);
  return line;
}

}  // namespace

LookupWindow::LookupWindow(LookupForm& form) : FormWindow(form), lookup_(form) {
  auto* content = Column();
  content->addWidget(SearchLine());
  content->addWidget(Tabs());
  auto* matches = Named("FLEX1", new GridView(form.FLEX1));
  matches->ExportBy([this] { Act([this] { lookup_.Press(Key::F12, &lookup_.FLEX1); }); }, "F12");
  content->addWidget(matches, 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  BindControls();
  OfferActions(*matches, MatchActions());
  Layout().OpenAs(kSize, 0.7);
}

// What the right button offers on a match.
ContextActions LookupWindow::MatchActions() {
  return {KeyLine("선택", Key::Enter, lookup_.FLEX1),
          {},
          ButtonLine("Command2"),
          ButtonLine("Command3"),
          ButtonLine("Command4")};
}

QWidget* LookupWindow::SearchLine() {
  auto* find = Named("Command1", new KeyButton);
  find->WriteKey("Enter");
  auto* row = Row();
  row->addWidget(Named("Label1", CaptionLabel({})));
  row->addWidget(Named("Text1", new QLineEdit), 1);
  row->addWidget(find);
  row->addWidget(Named("Label2", CaptionLabel({})));
  return Line(row);
}

QWidget* LookupWindow::Tabs() {
  auto* row = Row();
  row->addWidget(Named("TabOne1", new QWidget), 1);
  QLabel* keys = CaptionLabel("Alt+← →");
  row->addWidget(keys);
  keys->setVisible(lookup_.TabOne1.Visible);
  OnShortcut(QKeySequence(Qt::ALT | Qt::Key_Left),
             [this] { Act([this] { lookup_.WalkTabs(-1); }); });
  OnShortcut(QKeySequence(Qt::ALT | Qt::Key_Right),
             [this] { Act([this] { lookup_.WalkTabs(1); }); });
  return Line(row);
}

QWidget* LookupWindow::Foot() {
  auto* row = Row();
  // What is entered on head office's side stands without an action, and so without a key.
  const QKeySequence entry = lookup_.Command2.Click ? Qt::Key_F2 : QKeySequence();
  row->addWidget(Named("Command2", new KeyButton({}, entry)));
  for (const char* further : {"Command3", "Command4"}) {
    row->addWidget(Named(further, new KeyButton));
  }
  row->addWidget(Named("LaSheet", new ElidedLabel), 1);
  const auto add = [&](const QString& text, Qt::Key key, Key means) {
    auto* button = new KeyButton(text, key);
    row->addWidget(button);
    OnPress(*button, [this, means] { lookup_.Press(means, &lookup_.FLEX1); });
    return button;
  };
  add("엑셀", Qt::Key_F12, Key::F12);
  add("선택", Qt::Key_Enter, Key::Enter)->MarkMain();
  add("닫기", Qt::Key_Escape, Key::Escape);
  return Line(row);
}

}  // namespace store
