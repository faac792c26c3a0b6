#include "forms/form.h"

#include <gtest/gtest.h>

#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

class Sheet : public Form {
 public:
  Sheet() : Form("Sheet") { TabOrder = {&First, &Second, &Third}; }
  ~Sheet() override { ++Destroyed; }
  void Load() override { ++Loads; }
  bool QueryUnload() override { return MayClose; }
  void Unload() override { ++Unloads; }

  bool KeyDown(Key key) override {
    Seen.push_back(key);
    return key == UsesUp;
  }

  TextBox First, Second, Third;
  std::vector<Key> Seen;
  Key UsesUp = Key::None;
  bool MayClose = true;
  int Loads = 0;
  int Unloads = 0;
  static inline int Destroyed = 0;
};

class FormTest : public testing::Test {
 protected:
  FormTest() {
    Sheet::Destroyed = 0;
    RegisterForm("Sheet", [] { return std::make_unique<Sheet>(); });
    Host.CloseWindow = [this](Form&) { ++closedWindows; };
  }
  ~FormTest() override {
    Host = EmptyHost();
    DropAllForms();
  }
  static Sheet& Open() { return *dynamic_cast<Sheet*>(TheForm("Sheet")); }
  int closedWindows = 0;
};

TEST_F(FormTest, TabSkipsWhatCannotTakeTheFocusAndGoesRound) {
  Sheet& sheet = Open();
  sheet.SetFocus(sheet.First);
  sheet.Second.Enabled = false;
  sheet.FocusNext();
  EXPECT_EQ(sheet.ActiveControl, &sheet.Third);
  sheet.FocusNext();
  EXPECT_EQ(sheet.ActiveControl, &sheet.First);
  sheet.Third.Visible = false;
  const unsigned before = sheet.FocusRevision();
  sheet.FocusNext();
  EXPECT_EQ(sheet.ActiveControl, &sheet.First);
  EXPECT_NE(sheet.FocusRevision(), before);
}

TEST_F(FormTest, WalksBackwardsToo) {
  Sheet& sheet = Open();
  sheet.FocusPrevious();
  EXPECT_EQ(sheet.ActiveControl, &sheet.Third);
  sheet.Second.Enabled = false;
  sheet.FocusPrevious();
  EXPECT_EQ(sheet.ActiveControl, &sheet.First);
  sheet.FocusPrevious();
  EXPECT_EQ(sheet.ActiveControl, &sheet.Third);
}

TEST_F(FormTest, TheControlThatLosesTheKeyboardIsToldBeforeTheOneThatGetsIt) {
  Sheet& sheet = Open();
  std::string told;
  sheet.First.GotFocus = [&] { told += "first got,"; };
  sheet.First.LostFocus = [&] { told += "first lost,"; };
  sheet.Second.GotFocus = [&] { told += "second got,"; };
  sheet.TakeFocus(sheet.First, true);
  sheet.TakeFocus(sheet.First, false);  // back from a box
  sheet.SetFocus(sheet.Second);         // the window follows later
  EXPECT_EQ(told, "first got,");
  sheet.TakeFocus(sheet.Second, false);  // from the box behind which the form asked for it
  EXPECT_EQ(told, "first got,first lost,second got,");
}

TEST_F(FormTest, AKeyGoesToTheFormAndThenToItsControlUnlessTheFormHasUsedItUp) {
  Sheet& sheet = Open();
  std::vector<Key> seen;
  sheet.SetFocus(sheet.First);
  sheet.First.KeyDown = [&](Key key) { seen.push_back(key); };
  sheet.First.OwnKeys = {Key::F1};
  sheet.UsesUp = Key::Escape;
  EXPECT_TRUE(sheet.Press(Key::Escape));
  EXPECT_TRUE(sheet.Press(Key::F1)) << "form and control have both seen it";
  EXPECT_FALSE(sheet.Press(Key::F9));
  EXPECT_EQ(seen, (std::vector<Key>{Key::F1, Key::F9}));
  EXPECT_EQ(sheet.Seen, (std::vector<Key>{Key::Escape, Key::F1, Key::F9}));
  sheet.First.Enabled = false;
  EXPECT_FALSE(sheet.Press(Key::F1)) << "a disabled control has no keys";
}

TEST_F(FormTest, StaysOpenWhenItObjects) {
  Sheet& sheet = Open();
  sheet.MayClose = false;
  EXPECT_FALSE(sheet.Close());
  EXPECT_EQ(OpenForm("Sheet"), &sheet);
  EXPECT_EQ(sheet.Unloads, 0);
  EXPECT_EQ(closedWindows, 0);
}

TEST_F(FormTest, AClosedFormLivesUntilItsEventIsOverAndTheNextOneIsFresh) {
  Sheet& sheet = Open();
  sheet.EnsureLoaded();
  sheet.EnsureLoaded();
  EXPECT_EQ(sheet.Loads, 1);
  EXPECT_TRUE(sheet.Close());
  EXPECT_TRUE(sheet.Close());
  EXPECT_EQ(sheet.Unloads, 1);
  EXPECT_EQ(closedWindows, 1);
  EXPECT_EQ(OpenForm("Sheet"), nullptr);
  EXPECT_EQ(Sheet::Destroyed, 0);
  EXPECT_NE(&Open(), &sheet);
  ReleaseDroppedForms();
  EXPECT_EQ(Sheet::Destroyed, 1);
}

TEST_F(FormTest, AFormOnTheStackClosesLikeAnyOther) {
  Sheet sheet;
  EXPECT_TRUE(sheet.Close());
  ReleaseDroppedForms();
  EXPECT_TRUE(sheet.IsClosed());
  EXPECT_EQ(TheForm("nobody registered this"), nullptr);
}

}  // namespace
}  // namespace store
