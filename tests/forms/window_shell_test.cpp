#include <gtest/gtest.h>

#include "forms/form.h"
#include "forms/open_forms.h"
#include "slips/slip_form.h"
#include "tests/support/scripted_host.h"

namespace store {
namespace {

TEST(WindowShell, PlacesAWindow) {
  struct Case {
    std::int16_t code;
    int width;
    WindowState state;
    bool positioned;
    int left;
    int top;
  };
  const Case cases[] = {
      {placement::Normal, 400, WindowState::Normal, false, 7, 9},
      {placement::Minimized, 400, WindowState::Minimized, false, 7, 9},
      {placement::Maximized, 400, WindowState::Maximized, false, 7, 9},
      {placement::Centered, 400, WindowState::Normal, true, 312, 284},
      {placement::Centered, 2024, WindowState::Normal, true, -500, 284},
      {placement::TopLeft, 400, WindowState::Normal, true, 0, 0},
  };
  ScriptedHost host;
  for (const Case& c : cases) {
    Form form("any");
    form.Place = {WindowState::Maximized, 7, 9, c.width, 200, false, false};
    ShapeWindow(form, c.code, true);
    EXPECT_EQ(form.Place.State, c.state) << c.code;
    EXPECT_EQ(form.Place.Positioned, c.positioned) << c.code;
    EXPECT_EQ(form.Place.Left, c.left) << c.code;
    EXPECT_EQ(form.Place.Top, c.top) << c.code;
    EXPECT_TRUE(form.Place.Rounded);
  }
}

TEST(WindowShell, TheMainWindowIsFoundWhileItIsOpen) {
  ScriptedHost host;
  RegisterForm("frm_Start", [] { return std::make_unique<MainWindow>("frm_Start"); });
  EXPECT_EQ(TheMainWindow(), nullptr);
  Form* form = TheForm("frm_Start");
  EXPECT_EQ(TheMainWindow(), form);
  form->Close();
  EXPECT_EQ(TheMainWindow(), nullptr);
  ReleaseDroppedForms();
}

}  // namespace
}  // namespace store
