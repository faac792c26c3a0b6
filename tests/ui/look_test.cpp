// Every window in every look: type sizes, themes, and what those who hear the screen are told.
#include <QAbstractButton>
#include <QAccessible>
#include <QFrame>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QtTest>

#include "basics/records.h"
#include "board/frm_Start.h"
#include "forms/host.h"
#include "handheld/frmProperties.h"
#include "lookup/frmPrint.h"
#include "tests/ui/all_forms.h"
#include "tests/ui/probe_form.h"
#include "ui/accessible_names.h"
#include "ui/desk.h"
#include "ui/elided_label.h"
#include "ui/grid_view.h"
#include "ui/guide_window.h"
#include "ui/key_button.h"
#include "ui/layout_pieces.h"
#include "ui/store_windows.h"
#include "ui/style.h"
#include "ui/user_choices.h"
#include "ui/window_registry.h"

namespace store {
namespace {

const QSize kSmallScreen(1024, 768);

class LookTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    RegisterStoreWindows();
    TellKindsOfParts();
  }
  void TearDown() override {
    ChangeLook(100, Theme::Light);
    ResetRecords();
    DeskTest::TearDown();
  }
  /// Its window as on the small screen, with its form's texts, for `look`.
  static void InWindow(Form& form, const std::function<void(FormWindow&)>& look) {
    const std::unique_ptr<FormWindow> window(MakeWindow(form));
    window->Sync();
    window->setAttribute(Qt::WA_DontShowOnScreen);  // or the form would begin to work
    window->show();
    if (window->minimumSize() != window->maximumSize()) window->resize(kSmallScreen);
    QCoreApplication::processEvents();
    look(*window);
  }
  static void InEachWindow(const std::function<void(FormWindow&)>& look) {
    for (const auto& form : AllForms()) InWindow(*form, look);
  }
};

// --- names

bool WantsName(const QAccessible::State& state, QAccessible::Role role) {
  static const std::vector<QAccessible::Role> controls = {
      QAccessible::EditableText, QAccessible::ComboBox, QAccessible::SpinBox, QAccessible::CheckBox,
      QAccessible::RadioButton,  QAccessible::Button,   QAccessible::Table,   QAccessible::List,
      QAccessible::ProgressBar,  QAccessible::Chart,    QAccessible::MenuItem};
  if (role == QAccessible::StaticText) return false;  // it is what it says
  return state.focusable || std::find(controls.begin(), controls.end(), role) != controls.end();
}

std::string Told(const QAccessibleInterface& part) {
  const QObject* object = part.object();
  return (object == nullptr
              ? std::string()
              : object->objectName().toStdString() + " " + object->metaObject()->className()) +
         ", role " + std::to_string(part.role());
}

int NamedParts(const QAccessibleInterface& part, const std::string& where) {
  int named = 0;
  for (int i = 0; i < part.childCount(); ++i) {
    const QAccessibleInterface* child = part.child(i);
    if (child == nullptr || child->state().invisible) continue;
    const bool wants = WantsName(child->state(), child->role());
    // What these are made of is named by them, cell by cell.
    const bool isWhole = child->role() == QAccessible::ComboBox ||
                         child->role() == QAccessible::SpinBox ||
                         child->role() == QAccessible::Table;
    if (wants) {
      EXPECT_NE(child->text(QAccessible::Name), "") << where << ": " << Told(*child);
      EXPECT_NE(child->role(), QAccessible::NoRole) << where << ": " << Told(*child);
    }
    named += (wants ? 1 : 0) + (isWhole ? 0 : NamedParts(*child, where));
  }
  return named;
}

TEST_F(LookTest, EveryControlOfEveryWindowHasANameAndARole) {
  InEachWindow([](FormWindow& window) {
    const QAccessibleInterface* top = QAccessible::queryAccessibleInterface(&window);
    ASSERT_NE(top, nullptr);
    const int named = NamedParts(*top, window.ShownForm().Name);
    EXPECT_GT(named, window.ShownForm().Name == "frmSplash" ? -1 : 1) << window.ShownForm().Name;
  });
}

TEST_F(LookTest, NamesAreWhatAPersonReadsBesideTheControl) {
  frm_Start board;
  InWindow(board, [](FormWindow& window) {
    const auto nameOf = [&](const char* control) {
      QWidget* widget = window.findChild<QWidget*>(control);
      return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    };
    EXPECT_EQ(nameOf("Text2"), "입고전표 찾기");
    EXPECT_EQ(nameOf("DTOrderDate_1"), "조회 끝일");
    EXPECT_EQ(nameOf("FLEX0"), "공지사항");
    EXPECT_EQ(nameOf("Image1_0"), "신규발주하기");
    auto& slips = FindGrid(window, "FLEX1");
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&slips);
    ASSERT_NE(table->tableInterface(), nullptr);
    EXPECT_EQ(table->tableInterface()->columnDescription(2), "발주처");
  });
  frmProperties port;
  InWindow(port, [](FormWindow& window) {
    auto& speed = Find<QComboBox>(window, "cboSpeed");
    EXPECT_EQ(speed.accessibleName(), "최대속도");
  });
}

// --- size and theme

/// Texts that do not fit in their place. A grid scrolls, and an elided text shows itself in a tip.
QStringList CutTexts(const QWidget& window) {
  QStringList cut;
  const auto note = [&](const QWidget& widget, const QString& text) {
    const QSize needed = widget.minimumSizeHint();
    const bool fits = widget.width() >= needed.width() && widget.height() >= needed.height();
    if (widget.isVisible() && !fits) cut << widget.objectName() + " " + text;
  };
  for (const auto* button : window.findChildren<QAbstractButton*>()) {
    if (!button->text().isEmpty()) note(*button, button->text());
  }
  for (const auto* label : window.findChildren<QLabel*>()) {
    if (dynamic_cast<const ElidedLabel*>(label) == nullptr) note(*label, label->text());
  }
  for (const auto* field : window.findChildren<QLineEdit*>()) note(*field, field->text());
  for (const auto* grid : window.findChildren<GridView*>()) {
    if (grid->verticalHeader()->defaultSectionSize() < grid->fontMetrics().lineSpacing()) {
      cut << grid->objectName() + " rows";
    }
  }
  return cut;
}

TEST_F(LookTest, NothingIsCutInAnySizeOfType) {
  for (const int size : kTypeSizes) {
    ChangeLook(size, size == kTypeSizes[1] ? Theme::Dark : Theme::Light);
    InEachWindow([size](FormWindow& window) {
      // One layout after the other takes its new size.
      EXPECT_TRUE(QTest::qWaitFor([&] { return CutTexts(window).isEmpty(); }))
          << window.ShownForm().Name << " at " << size << ": "
          << CutTexts(window).join(", ").toStdString();
      if (size == 100) {
        EXPECT_LE(window.minimumSizeHint().width(), kSmallScreen.width());
        EXPECT_LE(window.minimumSizeHint().height(), kSmallScreen.height());
      }
    });
  }
}

TEST_F(LookTest, WhatGrowsTooWideGoesBelow) {
  auto* amount = new QLabel("1");
  auto* save = new KeyButton("저장");
  auto* first = Row();
  first->addWidget(amount);
  auto* second = Row();
  second->addWidget(save);
  auto* content = Column();
  auto* filler = new QLineEdit;
  filler->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  content->addWidget(filler, 1);
  content->addWidget(Group("totals", Folding(first, second)));
  QWidget window;
  FillWindow(window, content);
  window.setAttribute(Qt::WA_DontShowOnScreen);
  window.show();
  window.resize(300, 200);
  QCoreApplication::processEvents();
  const auto below = [&] {
    // What one layout asks of the one around it is an event of its own.
    for (int round = 0; round < 5; ++round) QCoreApplication::processEvents();
    EXPECT_GE(amount->height(), amount->sizeHint().height());
    EXPECT_EQ(save->height(), save->sizeHint().height());
    return save->geometry().top() > amount->geometry().bottom();
  };
  EXPECT_FALSE(below());
  amount->setText(QString(60, '8'));
  EXPECT_TRUE(below());
  amount->setText("2");
  EXPECT_FALSE(below());
}

TEST_F(LookTest, OpenWindowsFollowAtOnceAndBackAgain) {
  ProbeForm form;
  form.FLEX1.AddItem("1\t바나나");
  FormWindow& window = Open(form);
  GridView& grid = FindGrid(window, "FLEX1");
  KeyButton& button = Find<KeyButton>(window, "Command1");
  const auto state = [&] {
    QTest::qWait(1);
    return std::tuple(grid.verticalHeader()->defaultSectionSize(), button.sizeHint(),
                      grid.columnWidth(1) > 0, window.grab().toImage().pixelColor(1, 1).name());
  };
  const auto before = state();
  ChooseTypeSize(150);
  ChooseTheme(Theme::Dark);
  const auto large = state();
  EXPECT_GT(std::get<0>(large), std::get<0>(before) * 13 / 10);
  EXPECT_GT(std::get<1>(large).width(), std::get<1>(before).width() * 5 / 4);
  EXPECT_EQ(std::get<3>(large), QColor(look::Window).name());
  ChooseTypeSize(100);
  ChooseTheme(Theme::Light);
  EXPECT_EQ(state(), before);
}

TEST_F(LookTest, AMenuHasAnEdgeAndBordersAndShowsWhatIsChosen) {
  QMenu menu;
  menu.addAction("하나");
  QAction* border = menu.addSeparator();
  QAction* chosen = menu.addAction("둘");
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    ChangeLook(100, theme);
    menu.setActiveAction(chosen);
    const QImage picture = menu.grab().toImage();
    const QRect line = menu.actionGeometry(chosen);
    const auto at = [&](const QPoint& point) { return picture.pixelColor(point).name(); };
    EXPECT_EQ(at(menu.rect().bottomRight()), QColor(look::Edge).name());
    EXPECT_EQ(at(menu.actionGeometry(border).center()), QColor(look::Edge).name());
    EXPECT_EQ(at({line.left() + 3, line.center().y()}), QColor(look::Accent).name());
  }
}

TEST_F(LookTest, AWindowAndItsFrameFitTheScreenInLargeType) {
  ChangeLook(150, Theme::Light);
  const auto form = std::make_unique<frmPrint>();
  const std::unique_ptr<FormWindow> window(MakeWindow(*form));
  EXPECT_EQ(window->geometry() & RoomForWindow(*window), window->geometry());
}

TEST_F(LookTest, ChoicesAreKeptForEachUserAndTheLastOneGreetsTheNext) {
  const auto logIn = [](const char* user) {
    Session.UserCode = user;
    TakeUserChoices();
    return std::tuple(TypeSize(), CurrentTheme(), SoundsOn());
  };
  logIn("u01");
  ChooseTypeSize(125);
  StepTypeSize(1);
  StepTypeSize(1);  // there is none above
  ChooseSounds(false);
  EXPECT_EQ(logIn("u02"), std::tuple(150, Theme::Light, false)) << "has chosen nothing";
  ChooseTypeSize(100);
  ChooseTheme(Theme::Dark);
  ChooseSounds(true);
  EXPECT_EQ(logIn("u01"), std::tuple(150, Theme::Dark, false)) << "the theme was never chosen";
  EXPECT_EQ(logIn("u02"), std::tuple(100, Theme::Dark, true));
  EXPECT_EQ(logIn(""), std::tuple(100, Theme::Dark, true));
  Host.ForgetSettings(Host.ProgramTitle, "look");
}

TEST_F(LookTest, KeysChangeTheSizeInEveryWindow) {
  ProbeForm form;
  FormWindow& window = Open(form);
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers with) {
    QTest::keyClick(window.focusWidget(), key, with | Qt::ControlModifier);
    return TypeSize();
  };
  EXPECT_EQ(press(Qt::Key_Plus, Qt::ShiftModifier), 125);
  EXPECT_EQ(press(Qt::Key_Plus, Qt::KeypadModifier), 150);
  EXPECT_EQ(press(Qt::Key_Minus, {}), 125);
  EXPECT_EQ(press(Qt::Key_Minus, Qt::KeypadModifier), 100);
  Host.ForgetSettings(Host.ProgramTitle, "look");
}

}  // namespace
}  // namespace store
