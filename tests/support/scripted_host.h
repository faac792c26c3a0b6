#pragma once

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "forms/host.h"
#include "tests/support/scripted_port.h"

namespace store {

/// A workstation that does as the test tells and keeps a record. It fills `Host` for its lifetime
/// and puts the empty door back at its end. A box or a modal form that the test did not announce is
/// a test failure, and so is one that was announced and never came.
class ScriptedHost {
 public:
  ScriptedHost();
  ~ScriptedHost();
  ScriptedHost(const ScriptedHost&) = delete;
  ScriptedHost& operator=(const ScriptedHost&) = delete;

  struct Box {
    std::string Text;
    int Style = 0;
    std::string Title;
  };

  /// The next box shows `fragment` somewhere in its text or title, and is answered so. Boxes come
  /// in the order in which they were announced.
  void ExpectBox(const std::string& fragment, int answer = box::Ok);

  /// The next time the form of that name is shown modally, `handler` does what its user does. The
  /// form is closed afterwards if it has neither closed nor hidden itself.
  void OnModal(
      const std::string& formName, std::function<void(Form&)> handler = [](Form&) {});

  /// Fails for what was announced and has not come. Called at the end as well.
  void ExpectAllShown();

  std::vector<Box> Boxes;               ///< Every box shown, in order.
  std::vector<std::string> FormsShown;  ///< Names, modal and not, in order.
  std::vector<std::string> FormsHidden;
  std::vector<std::string> FormsMinimized;
  std::vector<std::string> FormsClosed;
  std::vector<int> Pointers;  ///< Every pointer set, in order.
  int Beeps = 0;
  int ScansTaken = 0;
  int EventRounds = 0;  ///< How often pending events were let run.
  /// What happens while pending events run.
  std::function<void()> DuringEvents;
  bool Ended = false;
  std::vector<int> Sleeps;
  std::vector<std::string> Addresses;  ///< Opened addresses and files.
  bool OpensAddresses = true;
  struct Program {
    std::string Path;
    std::string Arguments;
    WindowState State;
  };
  std::vector<Program> Programs;  ///< Started ones, in order.
  std::string ProgramRefusal;     ///< What the platform says instead of starting one.
  bool OtherInstance = false;

  ClockTime Clock{2024, 5, 17, 10, 20, 30};  ///< Moves only when the test moves it.
  int ScreenWidth = 1024;
  int ScreenHeight = 768;
  /// The serial port that was made last. It belongs to the form that asked for it.
  ScriptedPort* Port = nullptr;
  /// The per-user settings store: application, section, key.
  std::map<std::tuple<std::string, std::string, std::string>, std::string> Settings;

  std::vector<std::string> Records;  ///< Of the log, in order, those of this thread.

  /// The program's folder: empty, and gone with this object. The user's documents lie in it.
  const std::filesystem::path Folder;

 private:
  struct Expected {
    std::string fragment;
    int answer;
  };
  void FillWindows();
  void FillWorkstation();
  int ShowBox(const std::string& text, int style, const std::string& title);
  void ShowModal(Form& form);

  const Form* hidden_ = nullptr;  // the last one that was
  std::deque<Expected> expectedBoxes_;
  std::map<std::string, std::deque<std::function<void(Form&)>>> modalHandlers_;
};

}  // namespace store
