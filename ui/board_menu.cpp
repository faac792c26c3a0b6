#include "ui/board_menu.h"

#include <QMenu>
#include <QMenuBar>

#include "board/frm_Start.h"
#include "ui/about.h"
#include "ui/binding.h"
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

bool Always() { return true; }

MenuLine Border() { return {}; }

/// The same as a button of the window, under its text and key or a name of its own.
MenuLine OfButton(FormWindow& window, const char* name, QString text = {}) {
  auto* button = window.findChild<KeyButton*>(name);
  if (text.isEmpty()) text = button->text();
  const QString key = button->Keys().toString(QKeySequence::NativeText);
  return {text + "\t" + key, [button] { button->click(); },
          [button] { return button->isVisible() && button->isEnabled(); }};
}

bool IsDark() { return CurrentTheme() == Theme::Dark; }

MenuLine OfTypeSize(int percent) {
  return {QString("글자 크기 %1 %").arg(percent), [percent] { ChooseTypeSize(percent); }, Always,
          [percent] { return TypeSize() == percent; }};
}

MenuLines FileLines(FormWindow& window, frm_Start& board) {
  return {OfButton(window, "Image1_0"),
          OfButton(window, "Image1_1"),
          {"전표 열기\tEnter", [&] { window.Act([&] { board.FLEX1_DblClick(); }); },
           [&] { return !board.SelectedSlipId.empty(); }},
          OfButton(window, "LaAgain"),
          OfButton(window, "LaDraft", "쓰던 전표"),
          Border(),
          {"선택전표 인쇄\tCtrl+P", [&] { window.Act([&] { board.PrintSelected(); }); },
           [&] { return !board.SelectedSlipId.empty(); }},
          {"방금 입고한 전표 인쇄\tCtrl+Shift+P",
           [&] { window.Act([&] { board.PrintLastReceipt(); }); }},
          Border(),
          OfButton(window, "Label5_1"),
          OfButton(window, "Label5_0")};
}

MenuLines EditLines(FormWindow& window, frm_Start& board) {
  return {{ToQt(board.Label7.Caption) + "\tAlt+F",
           [&] { window.Act([&] { board.SetFocus(board.Text2); }); }},
          {"줄 찾기\tCtrl+F", [&] { window.FilterRows(); }},
          Border(),
          OfButton(window, "Image1_4"),
          OfButton(window, "LaDeleted", "삭제한 전표 되살리기")};
}

MenuLines ViewLines(FormWindow& window, frm_Start& /*board*/) {
  return {
      OfButton(window, "Image1_3"),
      OfButton(window, "Image5"),
      Border(),
      OfTypeSize(100),
      OfTypeSize(125),
      OfTypeSize(150),
      {"글자 크게\tCtrl++", [] { StepTypeSize(1); },
       [] { return TypeSize() != kTypeSizes.constLast(); }},
      {"글자 작게\tCtrl+-", [] { StepTypeSize(-1); },
       [] { return TypeSize() != kTypeSizes.constFirst(); }},
      Border(),
      {"어두운 화면", [] { ChooseTheme(IsDark() ? Theme::Light : Theme::Dark); }, Always, IsDark},
      {"소리", [] { ChooseSounds(!SoundsOn()); }, Always, SoundsOn},
      Border(),
      {kFirstLayoutText, [] { ForgetLayouts(); }}};
}

MenuLines HandheldLines(FormWindow& window, frm_Start& board) {
  MenuLines lines;
  for (size_t entry = 0; entry < board.HandheldMenu.Entries.size(); ++entry) {
    const std::string& text = board.HandheldMenu.Entries[entry];
    if (text.empty()) {
      lines.push_back(Border());
      continue;
    }
    lines.push_back({NumberedEntry(static_cast<int>(entry), ToQt(text)), [&window, &board, entry] {
                       window.Act([&] { board.HandheldMenu.Click(static_cast<int>(entry)); });
                     }});
  }
  return lines;
}

MenuLines HelpLines(FormWindow& window, frm_Start& /*board*/) {
  const auto page = [&window](const char* file) {
    return [&window, file] { OpenGuide(file, &window); };
  };
  return {{"사용 설명서\tF1", page("board.md")},
          {"단축키 표", page("keys.md")},
          {"메시지와 뜻", page("messages.md")},
          Border(),
          OfButton(window, "Label4"),
          {kSaveSupportText, [&window] { window.Act(SaveSupportFile); }},
          {"프로그램 정보", [&window] { ShowAbout(&window); }}};
}

void Fill(QMenu& menu, const MenuLines& lines) {
  menu.clear();
  for (const MenuLine& line : lines) {
    if (!line.Act) {
      menu.addSeparator();
      continue;
    }
    QAction* action = menu.addAction(line.Text);
    action->setEnabled(line.CanAct());
    if (line.IsOn) {
      action->setCheckable(true);
      action->setChecked(line.IsOn());
    }
    QObject::connect(action, &QAction::triggered, &menu, line.Act);
  }
}

}  // namespace

QMenuBar* BoardMenu(FormWindow& window, frm_Start& board) {
  auto* bar = new QMenuBar;
  const auto add = [&](const char* title, MenuLines (*linesOf)(FormWindow&, frm_Start&)) {
    QMenu* menu = bar->addMenu(title);
    // Which of them can act, and what is switched on, is asked each time.
    QObject::connect(menu, &QMenu::aboutToShow, &window,
                     [&window, &board, menu, linesOf] { Fill(*menu, linesOf(window, board)); });
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
