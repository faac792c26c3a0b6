// Windows stand where and as they were left.
#include "ui/window_layout.h"

#include <QHeaderView>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <QtTest>

#include "basics/records.h"
#include "forms/host.h"
#include "tests/ui/probe_form.h"
#include "ui/desk.h"
#include "ui/grid_view.h"
#include "ui/qt_text.h"
#include "ui/window_registry.h"

namespace store {
namespace {

constexpr QSize kLeast(300, 200);

/// A grid above a text box, with a border between them.
class WideWindow : public FormWindow {
 public:
  explicit WideWindow(ProbeForm& form) : FormWindow(form) {
    auto* halves = new QSplitter(Qt::Vertical);
    halves->addWidget(Named("FLEX1", new GridView(form.FLEX1)));
    halves->addWidget(Named("Text1", new QLineEdit));
    halves->setChildrenCollapsible(false);
    halves->setSizes({300, 100});
    auto* content = new QVBoxLayout(this);
    content->addWidget(halves);
    BindControls();
    Layout().OpenAs(kLeast, 1);
  }
};

class WindowLayoutTest : public DeskTest {
 protected:
  void SetUp() override {
    DeskTest::SetUp();
    RegisterWindow("Wide", MakerOf<WideWindow, ProbeForm>());
    Host.SaveSetting = [this, save = Host.SaveSetting](const auto& application, const auto& section,
                                                       const auto& key, const auto& value) {
      saved_[key] = {section, value};
      save(application, section, key, value);
    };
    Session.UserCode = "u01";
  }
  void TearDown() override {
    ResetRecords();
    DeskTest::TearDown();
  }

  FormWindow& OpenNew() {
    form_ = std::make_unique<ProbeForm>("Wide");
    form_->FLEX1.Column(1).Hidden = form_->FLEX1.Column(1).Optional = true;
    form_->FLEX1.AddItem("우유\t1");
    FormWindow& window = Open(*form_);
    QCoreApplication::processEvents();
    return window;
  }
  QRect Room() const { return QGuiApplication::primaryScreen()->availableGeometry(); }
  static QSplitter& Halves(FormWindow& window) { return *window.findChild<QSplitter*>(); }
  static GridView& Lines(FormWindow& window) { return FindGrid(window, "FLEX1"); }

  /// As a person who sets the window up to their liking.
  void Arrange(FormWindow& window) {
    window.showNormal();
    window.setGeometry(40, 60, 500, 400);
    QCoreApplication::processEvents();
    Halves(window).setSizes({180, 190});
    Lines(window).SwitchOptionalColumns();
    Lines(window).horizontalHeader()->resizeSection(0, 250);
  }

  std::map<std::string, std::pair<std::string, std::string>> saved_;
  std::unique_ptr<ProbeForm> form_;
};

TEST_F(WindowLayoutTest, OpensToUseTheScreenAndComesBackAsItWasLeft) {
  FormWindow& first = OpenNew();
  EXPECT_TRUE(first.isMaximized());
  EXPECT_FALSE(Room().isEmpty());
  EXPECT_GE(first.width() * 10, Room().width() * 9);
  EXPECT_FALSE(Lines(first).Columns().IsShown(1));
  Arrange(first);
  const QRect place = first.geometry();
  const QList<int> halves = Halves(first).sizes();
  const int width = Lines(first).columnWidth(0);
  EXPECT_EQ(width, 250);
  form_->Close();

  FormWindow& again = OpenNew();
  EXPECT_FALSE(again.isMaximized());
  EXPECT_EQ(again.geometry(), place);
  EXPECT_EQ(Halves(again).sizes(), halves);
  EXPECT_EQ(Lines(again).columnWidth(0), width);
  EXPECT_TRUE(Lines(again).Columns().IsShown(1));
  form_->Close();

  Session.UserCode = "u02";
  EXPECT_TRUE(OpenNew().isMaximized()) << "another clerk's windows are his own";
}

TEST_F(WindowLayoutTest, OneKeyPutsEverythingBack) {
  FormWindow& window = OpenNew();
  const QList<int> halves = Halves(window).sizes();
  Arrange(window);
  QTest::keyClick(window.focusWidget(), Qt::Key_0, Qt::ControlModifier);
  QCoreApplication::processEvents();
  EXPECT_TRUE(window.isMaximized());
  EXPECT_EQ(Halves(window).sizes(), halves);
  EXPECT_FALSE(Lines(window).Columns().IsShown(1));
  form_->Close();
  EXPECT_TRUE(OpenNew().isMaximized());
}

TEST_F(WindowLayoutTest, WhatCannotBeIsPassedOver) {
  QWidget elsewhere;
  elsewhere.setGeometry(50000, 50000, 1, 1);
  const std::string offScreen = elsewhere.saveGeometry().toBase64().toStdString();
  const struct {
    const char* name;
    std::string place;
    std::string halves;
    std::string columns;
  } cases[] = {
      {"garbage", "garbage", "a b", "x:y"},
      {"zero", std::string(88, 'A'), "0 0", "0:0"},
      {"cut short", offScreen.substr(0, 20), "100", "0:"},
      {"off the screen and too large", offScreen, "99999999 1", "0:99999999 7:100 +9"},
  };
  FormWindow& first = OpenNew();
  const QList<int> halves = Halves(first).sizes();
  Arrange(first);
  form_->Close();
  ASSERT_EQ(saved_.size(), 3u) << "place, border, columns";
  for (const auto& c : cases) {
    for (const auto& [key, saved] : saved_) {
      const std::string& text = key.ends_with("place")   ? c.place
                                : key.ends_with("FLEX1") ? c.columns
                                                         : c.halves;
      Host.SaveSetting(Host.ProgramTitle, saved.first, key, text);
    }
    FormWindow& window = OpenNew();
    EXPECT_TRUE(Room().contains(window.geometry().center())) << c.name;
    EXPECT_GE(window.height(), window.minimumSizeHint().height()) << c.name;
    EXPECT_GE(window.width(), window.minimumSizeHint().width()) << c.name;
    if (window.isMaximized()) {
      EXPECT_EQ(Halves(window).sizes(), halves) << c.name;
    }
    EXPECT_EQ(Lines(window).columnWidth(0), Lines(window).viewport()->width()) << c.name;
    form_->Close();
  }
}

}  // namespace
}  // namespace store
