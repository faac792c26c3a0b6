#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "basics/dates.h"
#include "forms/form.h"
#include "forms/printed_document.h"
#include "forms/serial_port.h"

namespace store {

/// Styles and answers of a message box, as the system's texts name them.
namespace box {
inline constexpr int Plain = 0;
inline constexpr int OkCancel = 1;
inline constexpr int YesNo = 4;
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Warning = 48;
inline constexpr int Information = 64;
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
}  // namespace box

inline constexpr int PointerNormal = 0;
inline constexpr int PointerArrow = 1;
inline constexpr int PointerHourglass = 11;
inline constexpr int PointerArrowHourglass = 13;  ///< Busy, but the window answers.

/// How the data server stands, as the calls to it tell.
enum class ServerLink {
  Waiting,    ///< A call is running, and has been for longer than a moment.
  Connected,  ///< The last call was answered, be it with a refusal.
  Lost,       ///< The last call was given up, or has found no way to the server.
  Stopped,    ///< A person has stopped the read; how the server stands is as it was known before.
};

/// What has become of a document that was to be printed.
enum class PrintFate { Printed, Cancelled, Failed };

struct ProgramVersionNumbers {
  int Major = 0;
  int Minor = 0;
  int Revision = 0;
};

/// The one door to the workstation. The program fills it with the real thing, a test with a
/// scripted one. All texts are UTF-8.
struct HostDoor {
  /// Shows a box and waits. `style` is an icon plus, where asked, `box::YesNo` or
  /// `box::OkCancel`; an empty title means the program's. Answers by the button pressed; closing a
  /// box counts as its No or Cancel.
  std::function<int(const std::string& text, int style, const std::string& title)> MsgBox;

  /// Loads the form, shows its window and returns when the form is closed or hidden. One that was
  /// hidden can be shown again and stands as it was left; it is activated each time, and has to be
  /// closed before it is destroyed.
  std::function<void(Form&)> ShowModal;
  /// Loads the form and shows its window beside the others; a window that is there comes forward.
  std::function<void(Form&)> Show;
  /// Takes the window off the screen or makes it small without closing the form.
  std::function<void(Form&)> Hide;
  std::function<void(Form&)> Minimize;
  /// Takes the window of a form that has just closed away. Called by `Form::Close` only.
  std::function<void(Form&)> CloseWindow;
  /// Ends the program when the running event is over.
  std::function<void()> EndProgram;

  /// Size of the screen in pixels.
  std::function<void(int& width, int& height)> ScreenSize;
  /// One of the pointer values above.
  std::function<void(int pointer)> SetPointer;
  std::function<void()> Beep;
  /// Tells the ear that a scan was taken; `Beep` that one was not.
  std::function<void()> ScanTaken;
  /// Lets pending window events run, painting among them.
  std::function<void()> DoEvents;

  /// Told at the end of each call to the data server how it went, and every now and then while one
  /// lasts longer than a moment, so that the windows go on painting. `lasted` is the time that the
  /// call has taken so far. Nothing behind this door may call the server.
  std::function<void(ServerLink link, std::chrono::milliseconds lasted)> ShowServer;
  /// Told in its place while a read lasts that the person may stop. True once they want it stopped.
  std::function<bool(std::chrono::milliseconds lasted)> OfferStop;
  /// How far a long step has come that can be counted; `of` is 0 when it is over. The windows
  /// paint.
  std::function<void(const std::string& what, int done, int of)> ShowProgress;

  /// Asks for a printer and prints the document on it.
  std::function<PrintFate(const PrintedDocument& document)> Print;
  /// Writes the document into a file, as PDF. False when that cannot be done.
  std::function<bool(const PrintedDocument& document, const std::string& path)> WritePdf;

  std::function<ClockTime()> Now;
  std::function<void(int milliseconds)> Sleep;

  /// Opens an address or a file with the desktop's own program. False when that cannot be done.
  std::function<bool(const std::string& address)> OpenAddress;
  /// Starts a program without waiting, its window in the state asked for where the platform lets
  /// one ask. Empty when it was started, else what the platform says.
  std::function<std::string(const std::string& path, const std::string& arguments,
                            WindowState state)>
      StartProgram;

  /// The per-user settings store. A missing key reads as an empty text.
  std::function<std::string(const std::string& application, const std::string& section,
                            const std::string& key)>
      GetSetting;
  std::function<void(const std::string& application, const std::string& section,
                     const std::string& key, const std::string& value)>
      SaveSetting;

  /// Removes all settings of a section, and of those below it ("a/b" is below "a").
  std::function<void(const std::string& application, const std::string& section)> ForgetSettings;

  /// A serial port of the workstation, closed and with its first settings. Where there is no such
  /// thing it gives one that cannot be opened.
  std::function<std::unique_ptr<SerialPort>()> MakeSerialPort;

  /// True when another instance of this program file is running on the workstation.
  std::function<bool()> PreviousInstance;

  bool Ending = false;          ///< Set by `store::EndProgram`.
  std::string ProgramFolder;    ///< Without a slash at the end.
  std::string DocumentsFolder;  ///< Of the user, without a slash at the end.
  std::string ProgramTitle;
  ProgramVersionNumbers Version;
};

extern HostDoor Host;

/// Ends the program when the running event is over. From here on `ProgramEnding()` is true, so that
/// the steps behind the event know not to go on.
void EndProgram();
bool ProgramEnding();

/// Today on the workstation's clock.
CalendarDate Today();

/// A door behind which nothing happens: every box answers OK, the clock stands. What a run starts
/// from until the program or a test fills in its own.
HostDoor EmptyHost();

/// The pointer is an hourglass for as long as one of these lives. Steps within a long step do not
/// turn it back before the whole is done.
class Hourglass {
 public:
  Hourglass();
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;
};

}  // namespace store
