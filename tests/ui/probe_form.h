#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/form.h"
#include "forms/grid.h"
#include "ui/form_window.h"

namespace store {

class GridView;

/// A form with one control of each kind, which writes down what happens to it.
class ProbeForm : public Form {
 public:
  explicit ProbeForm(const std::string& name = "Probe");
  ~ProbeForm() override;  ///< Takes its window away, as a test ends without closing its forms.

  TextBox Text1;
  TextBox Text2;
  Button Command1{"저장"};
  Label Label1;
  ComboBox Combo1;
  DatePicker DTPicker1;
  CheckBox Check1{"확인"};
  std::array<OptionButton, 2> Option1;
  TabStrip TabOne1;
  ProgressBar ProgressBar1;
  Timer Timer1;
  Grid FLEX1;

  std::vector<std::string> Events;
  bool MayClose = true;
  std::function<void()> OnCommand1;
  std::function<bool(Key)> OnKeyDown;

  void Activate() override;
  bool QueryUnload() override;
  void Unload() override;
  bool KeyDown(Key key) override;
  bool Happened(const std::string& event) const;

 private:
  void PublishControls();
};

class ProbeWindow : public FormWindow {
 public:
  explicit ProbeWindow(ProbeForm& form);
};

/// A desk with the real host and the windows of the probe forms "Probe" and "Second".
class DeskTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  /// Shows a form beside others and waits until it has been activated.
  FormWindow& Open(ProbeForm& form);
  /// Runs `act` when a modal window or box is in front; tests go on inside its event loop.
  static void WhenModal(std::function<void(QWidget&)> act);

  template <class Widget>
  static Widget& Find(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
  }
  static GridView& FindGrid(QWidget& window, const char* name);
};

}  // namespace store
