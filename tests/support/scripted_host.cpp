#include "tests/support/scripted_host.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <thread>

#include "basics/log.h"
#include "forms/open_forms.h"
#include "slips/deleted_slips.h"
#include "slips/drafts.h"

namespace store {
namespace {

std::filesystem::path FreshFolder() {
  std::string path = (std::filesystem::temp_directory_path() / "store_host_XXXXXX").string();
  if (mkdtemp(path.data()) == nullptr) ADD_FAILURE() << "no folder for the program: " << path;
  return path;
}

std::string Described(const std::string& text, int style, const std::string& title) {
  return "box [" + title + "] \"" + text + "\", style " + std::to_string(style);
}

}  // namespace

ScriptedHost::ScriptedHost() : Folder(FreshFolder()) {
  Host = EmptyHost();
  FillWindows();
  FillWorkstation();
  Host.ProgramFolder = Folder.string();
  Host.DocumentsFolder = (Folder / "documents").string();
  Host.ProgramTitle = "STORE";
  Host.Version = {1, 2, 35};
  Log.Write = [this, here = std::this_thread::get_id()](LogWeight, const std::string& record) {
    if (std::this_thread::get_id() == here) Records.push_back(record);
  };
  setenv("STORE_DATA_FOLDER", (Folder / "data").c_str(), 1);
}

ScriptedHost::~ScriptedHost() {
  ExpectAllShown();
  DropAllForms();
  ResetDrafts();
  ResetDeletedSlips();
  unsetenv("STORE_DATA_FOLDER");
  Host = EmptyHost();
  Log = {};
  std::error_code ignored;
  std::filesystem::remove_all(Folder, ignored);
}

void ScriptedHost::ExpectBox(const std::string& fragment, int answer) {
  expectedBoxes_.push_back({fragment, answer});
}

void ScriptedHost::OnModal(const std::string& formName, std::function<void(Form&)> handler) {
  modalHandlers_[formName].push_back(std::move(handler));
}

void ScriptedHost::ExpectAllShown() {
  for (const Expected& box : expectedBoxes_)
    ADD_FAILURE() << "a box was announced and never shown: " << box.fragment;
  expectedBoxes_.clear();
  for (const auto& [name, handlers] : modalHandlers_)
    if (!handlers.empty()) ADD_FAILURE() << "a modal form was announced and never shown: " << name;
  modalHandlers_.clear();
}

void ScriptedHost::FillWindows() {
  Host.MsgBox = [this](const std::string& text, int style, const std::string& title) {
    return ShowBox(text, style, title);
  };
  Host.ShowModal = [this](Form& form) { ShowModal(form); };
  Host.Show = [this](Form& form) {
    FormsShown.push_back(form.Name);
    form.EnsureLoaded();
    if (!form.IsClosed()) form.Activate();
  };
  Host.Hide = [this](Form& form) {
    FormsHidden.push_back(form.Name);
    hidden_ = &form;
  };
  Host.Minimize = [this](Form& form) { FormsMinimized.push_back(form.Name); };
  Host.CloseWindow = [this](Form& form) { FormsClosed.push_back(form.Name); };
  Host.EndProgram = [this] { Ended = true; };
  Host.ScreenSize = [this](int& width, int& height) {
    width = ScreenWidth;
    height = ScreenHeight;
  };
  Host.SetPointer = [this](int pointer) { Pointers.push_back(pointer); };
  Host.Beep = [this] { ++Beeps; };
  Host.ScanTaken = [this] { ++ScansTaken; };
  Host.DoEvents = [this] {
    ++EventRounds;
    if (DuringEvents) DuringEvents();
  };
}

void ScriptedHost::FillWorkstation() {
  Host.Now = [this] { return Clock; };
  Host.Sleep = [this](int milliseconds) { Sleeps.push_back(milliseconds); };
  Host.OpenAddress = [this](const std::string& address) {
    Addresses.push_back(address);
    return OpensAddresses;
  };
  Host.StartProgram = [this](const std::string& path, const std::string& arguments,
                             WindowState state) {
    Programs.push_back({path, arguments, state});
    return ProgramRefusal;
  };
  Host.GetSetting = [this](const std::string& application, const std::string& section,
                           const std::string& key) {
    const auto found = Settings.find({application, section, key});
    return found == Settings.end() ? std::string() : found->second;
  };
  Host.SaveSetting = [this](const std::string& application, const std::string& section,
                            const std::string& key, const std::string& value) {
    Settings[{application, section, key}] = value;
  };
  Host.ForgetSettings = [this](const std::string& application, const std::string& section) {
    std::erase_if(Settings, [&](const auto& setting) {
      const auto& [key, value] = setting;
      return std::get<0>(key) == application && (std::get<1>(key) + "/").starts_with(section + "/");
    });
  };
  Host.MakeSerialPort = [this] {
    auto port = std::make_unique<ScriptedPort>();
    Port = port.get();
    return port;
  };
  Host.PreviousInstance = [this] { return OtherInstance; };
}

int ScriptedHost::ShowBox(const std::string& text, int style, const std::string& title) {
  Boxes.push_back({text, style, title});
  if (expectedBoxes_.empty()) {
    ADD_FAILURE() << "not announced: " << Described(text, style, title);
    return (style & box::YesNo) != 0 ? box::No : box::Ok;
  }
  const Expected expected = expectedBoxes_.front();
  expectedBoxes_.pop_front();
  const bool shown = text.find(expected.fragment) != std::string::npos ||
                     title.find(expected.fragment) != std::string::npos;
  if (!shown)
    ADD_FAILURE() << "announced: " << expected.fragment
                  << "\n shown: " << Described(text, style, title);
  return expected.answer;
}

void ScriptedHost::ShowModal(Form& form) {
  FormsShown.push_back(form.Name);
  form.EnsureLoaded();
  if (form.IsClosed()) return;  // closed by its own load
  form.Activate();
  auto& handlers = modalHandlers_[form.Name];
  if (handlers.empty()) {
    ADD_FAILURE() << "a modal form that was not announced: " << form.Name;
  } else {
    const std::function<void(Form&)> handler = handlers.front();
    handlers.pop_front();
    hidden_ = nullptr;
    handler(form);
  }
  // A form that has hidden itself waits to be shown again; any other is done with.
  if (hidden_ != &form) form.Close();
}

}  // namespace store
