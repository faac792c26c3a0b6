#include "ui/lookup_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "lookup/HELP_BPR.h"
#include "lookup/HELP_CT.h"
#include "lookup/HELP_RCT.h"
#include "lookup/lookup_form.h"
#include "ui/bindings.h"
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
  content->addWidget(Matches(), 1);
  content->addWidget(Foot());
  FillWindow(*this, content);
  ChainTabOrder();
  resize(kSize);
}

QWidget* LookupWindow::SearchLine() {
  QLabel* caption = CaptionLabel({});
  auto* text = new QLineEdit;
  auto* find = new KeyButton;
  find->WriteKey("Enter");
  auto* row = Row();
  row->addWidget(caption);
  row->addWidget(text, 1);
  row->addWidget(find);
  BindLabel(*this, "Label1", lookup_.Label1, *caption);
  BindTextBox(*this, "Text1", lookup_.Text1, *text);
  BindPress(*this, "Command1", lookup_.Command1, *find, [this] { lookup_.Command1_Click(); });
  OnKey(lookup_.Text1, [this](Key key) {
    lookup_.Text1_KeyDown(key);
    return key == Key::Enter || key == Key::Down;
  });
  if (auto* product = dynamic_cast<HELP_BPR*>(&lookup_)) {
    QLabel* note = CaptionLabel({});
    row->addWidget(note);
    BindLabel(*this, "Label2", product->Label2, *note);
  }
  return Line(row);
}

QWidget* LookupWindow::Tabs() {
  auto* tabs = new QWidget;
  BindTabs(*this, "TabOne1", lookup_.TabOne1, *tabs,
           [this](int tab) { lookup_.TabOne1_Click(tab); });
  tabs->layout()->addWidget(CaptionLabel("Alt+← →"));
  OnShortcut(QKeySequence(Qt::ALT | Qt::Key_Left), [this] { WalkTabs(-1); });
  OnShortcut(QKeySequence(Qt::ALT | Qt::Key_Right), [this] { WalkTabs(1); });
  return tabs;
}

void LookupWindow::WalkTabs(int step) {
  const TabStrip& tabs = lookup_.TabOne1;
  if (!tabs.Visible) return;
  const int count = static_cast<int>(tabs.Captions.size());
  // Before any tab was pressed the first step leads to either end of the row.
  const int from = tabs.CurrTab < 0 && step < 0 ? 0 : tabs.CurrTab;
  Act([&] { lookup_.TabOne1_Click((from + step + count) % count); });
}

QWidget* LookupWindow::Matches() {
  auto* matches = new GridView(lookup_.FLEX1);
  matches->Events.DblClick = [this] { lookup_.FLEX1_DblClick(); };
  BindGrid(*this, "FLEX1", lookup_.FLEX1, *matches);
  OnKey(lookup_.FLEX1, [this](Key key) {
    lookup_.FLEX1_KeyDown(key);
    return key == Key::Enter || key == Key::F12;
  });
  return matches;
}

QWidget* LookupWindow::Foot() {
  auto* row = Row();
  AddButtons(*row);
  row->addStretch();
  const auto add = [&](const QString& text, Qt::Key key, Key means) {
    auto* button = new KeyButton(text, key);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, means] {
      Act([&] {
        if (!lookup_.KeyDown(means)) lookup_.FLEX1_KeyDown(means);
      });
    });
    return button;
  };
  auto* sheet = add("엑셀", Qt::Key_F12, Key::F12);
  OnShortcut(sheet->Keys(), [sheet] { sheet->click(); });
  add("선택", Qt::Key_Enter, Key::Enter)->MarkMain();
  add("닫기", Qt::Key_Escape, Key::Escape);
  return Line(row);
}

void LookupWindow::AddButtons(QHBoxLayout& row) {
  // The partner card is not on a store's workstation, so most of these have nothing behind them.
  const auto nothing = [] {};
  if (auto* partner = dynamic_cast<HELP_CT*>(&lookup_)) {
    AddButton(row, "Command2", partner->Command2, nothing);
    AddButton(row, "Command3", partner->Command3, nothing);
    AddButton(row, "Command4", partner->Command4, nothing);
  } else if (auto* store = dynamic_cast<HELP_RCT*>(&lookup_)) {
    AddButton(row, "Command2", store->Command2, nothing);
  } else if (auto* product = dynamic_cast<HELP_BPR*>(&lookup_)) {
    AddButton(row, "Command2", product->Command2, [product] { product->Command2_Click(); });
  }
}

void LookupWindow::AddButton(QHBoxLayout& row, const QString& name, Button& button,
                             std::function<void()> click) {
  auto* shown = new KeyButton;
  row.addWidget(shown);
  BindPress(*this, name, button, *shown, std::move(click));
}

}  // namespace store
