#include "ui/board_menu.h"

#include <QMenu>
#include <QMenuBar>

#include "board/frm_Start.h"
#include "ui/about.h"
#include "ui/binding.h"
#include "ui/context_action.h"
#include "ui/form_window.h"
#include "ui/guide_window.h"
#include "ui/key_button.h"
#include "ui/qt_text.h"
#include "ui/style.h"
#include "ui/support_file.h"
#include "ui/user_choices.h"
#include "ui/window_layout.h"

namespace store {
namespace {

/// The same as a button of the window, under its text or a name of its own, also while the button
/// is out of sight.
ContextAction OfButton(FormWindow& window, const char* name, const QString& text = {}) {
  auto* button = window.findChild<KeyButton*>(name);
  return {.Text = text.isEmpty() ? button->text() : text,
          .Key = button->WrittenKey(),
          .Enabled = [button] { return button->isVisible() && button->isEnabled(); },
          .Event = [button] { button->click(); }};
}

bool IsDark() { return CurrentTheme() == Theme::Dark; }

ContextAction OfTypeSize(int percent) {
  return {.Text = QString("글자 크기 %1 %").arg(percent),
          .Event = [percent] { ChooseTypeSize(percent); },
          .IsOn = [percent] { return TypeSize() == percent; }};
}

ContextActions FileLines(FormWindow& window, frm_Start& board) {
  const auto act = [&](void (frm_Start::*event)()) {
    return [&window, &board, event] { window.Act([&board, event] { (board.*event)(); }); };
  };
  const auto isSelected = [&] { return !board.SelectedSlipId.empty(); };
  return {OfButton(window, "Image1_0"),
          OfButton(window, "Image1_1"),
          {.Text = "전표 열기",
           .Key = "Enter",
           .Enabled = isSelected,
           .Event = act(&frm_Start::FLEX1_DblClick)},
          OfButton(window, "LaAgain"),
          OfButton(window, "LaDraft", "쓰던 전표"),
          {},
          {.Text = "선택전표 인쇄",
           .Key = "Ctrl+P",
           .Enabled = isSelected,
           .Event = act(&frm_Start::PrintSelected)},
          {.Text = "방금 입고한 전표 인쇄",
           .Key = "Ctrl+Shift+P",
           .Event = act(&frm_Start::PrintLastReceipt)},
          {},
          OfButton(window, "Label5_1"),
          OfButton(window, "Label5_0")};
}

ContextActions EditLines(FormWindow& window, frm_Start& board) {
  return {{.Text = ToQt(board.Label7.Caption),
           .Key = "Alt+F",
           .Event = [&] { window.Act([&] { board.SetFocus(board.Text2); }); }},
          {.Text = "줄 찾기", .Key = "Ctrl+F", .Event = [&] { window.FilterRows(); }},
          {},
          OfButton(window, "Image1_4"),
          OfButton(window, "LaDeleted", "삭제한 전표 되살리기")};
}

ContextActions ViewLines(FormWindow& window, frm_Start& /*board*/) {
  return {OfButton(window, "Image1_3"),
          OfButton(window, "Image5"),
          {},
          OfTypeSize(100),
          OfTypeSize(125),
          OfTypeSize(150),
          {.Text = "글자 크게",
           .Key = "Ctrl++",
           .Enabled = [] { return TypeSize() != kTypeSizes.constLast(); },
           .Event = [] { StepTypeSize(1); }},
          {.Text = "글자 작게",
           .Key = "Ctrl+-",
           .Enabled = [] { return TypeSize() != kTypeSizes.constFirst(); },
           .Event = [] { StepTypeSize(-1); }},
          {},
          {.Text = "어두운 화면",
           .Event = [] { ChooseTheme(IsDark() ? Theme::Light : Theme::Dark); },
           .IsOn = IsDark},
          {.Text = "소리", .Event = [] { ChooseSounds(!SoundsOn()); }, .IsOn = SoundsOn},
          {},
          {.Text = kFirstLayoutText, .Event = [] { ForgetLayouts(); }}};
}

ContextActions HandheldLines(FormWindow& window, frm_Start& board) {
  ContextActions lines;
  for (size_t entry = 0; entry < board.HandheldMenu.Entries.size(); ++entry) {
    const std::string& text = board.HandheldMenu.Entries[entry];
    const auto number = static_cast<int>(entry);
    lines.emplace_back();
    if (text.empty()) continue;
    lines.back().Text = NumberedEntry(number, ToQt(text));
    lines.back().Event = [&window, &board, number] {
      window.Act([&] { board.HandheldMenu.Click(number); });
    };
  }
  return lines;
}

ContextActions HelpLines(FormWindow& window, frm_Start& /*board*/) {
  const auto page = [&window](const char* file) {
    return [&window, file] { OpenGuide(file, &window); };
  };
  return {{.Text = "사용 설명서", .Key = "F1", .Event = page("board.md")},
          {.Text = "단축키 표", .Event = page("keys.md")},
          {.Text = "메시지와 뜻", .Event = page("messages.md")},
          {},
          OfButton(window, "Label4"),
          {.Text = kSaveSupportText, .Event = [&window] { window.Act(SaveSupportFile); }},
          {.Text = "프로그램 정보", .Event = [&window] { ShowAbout(&window); }}};
}

}  // namespace

QMenuBar* BoardMenu(FormWindow& window, frm_Start& board) {
  auto* bar = new QMenuBar;
  const auto add = [&](const char* title, ContextActions (*linesOf)(FormWindow&, frm_Start&)) {
    QMenu* menu = bar->addMenu(title);
    // Which of them can act, and what is switched on, is asked each time.
    QObject::connect(menu, &QMenu::aboutToShow, &window, [&window, &board, menu, linesOf] {
      menu->clear();
      AddActions(*menu, linesOf(window, board));
    });
  };
  add("파일", FileLines);
  add("편집", EditLines);
  add("보기", ViewLines);
  add("핸디터미널", HandheldLines);
  add("도움말", HelpLines);
  window.OnShortcut(Qt::Key_F10, [bar] { bar->setActiveAction(bar->actions().constFirst()); });
  return bar;
}

}  // namespace store
