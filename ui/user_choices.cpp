#include "ui/user_choices.h"

#include <optional>
#include <string>

#include "basics/records.h"
#include "forms/host.h"
#include "ui/qt_text.h"
#include "ui/style.h"

namespace store {
namespace {

constexpr const char* kType = "type";
constexpr const char* kTheme = "theme";
constexpr const char* kSounds = "sounds";
constexpr const char* kDark = "dark";
constexpr const char* kLight = "light";
constexpr const char* kOff = "off";
constexpr const char* kOn = "on";
constexpr const char* kLast = "last";  // whoever has chosen on this workstation last

bool sounds_on = true;
std::optional<std::string> taken_for;  // the user whose choices stand

std::string SectionOf(const std::string& user) { return "look/" + user; }

std::string Chosen(const char* what) {
  const auto of = [what](const std::string& user) {
    return Host.GetSetting(Host.ProgramTitle, SectionOf(user), what);
  };
  const std::string own = Session.UserCode.empty() ? "" : of("user " + Session.UserCode);
  return own.empty() ? of(kLast) : own;
}

void Keep(const char* what, const std::string& value) {
  Host.SaveSetting(Host.ProgramTitle, SectionOf(kLast), what, value);
  if (Session.UserCode.empty()) return;
  Host.SaveSetting(Host.ProgramTitle, SectionOf("user " + Session.UserCode), what, value);
}

}  // namespace

void TakeUserChoices() {
  if (taken_for == Session.UserCode) return;
  taken_for = Session.UserCode;
  sounds_on = Chosen(kSounds) != kOff;
  ChangeLook(ToQt(Chosen(kType)).toInt(), Chosen(kTheme) == kDark ? Theme::Dark : Theme::Light);
}

void ChooseTypeSize(int percent) {
  Keep(kType, std::to_string(percent));
  ChangeLook(percent, CurrentTheme());
}

void StepTypeSize(int steps) {
  const qsizetype wanted = kTypeSizes.indexOf(TypeSize()) + steps;
  if (wanted >= 0 && wanted < kTypeSizes.size()) ChooseTypeSize(kTypeSizes[wanted]);
}

void ChooseTheme(Theme theme) {
  Keep(kTheme, theme == Theme::Dark ? kDark : kLight);
  ChangeLook(TypeSize(), theme);
}

bool SoundsOn() { return sounds_on; }

void ChooseSounds(bool on) {
  Keep(kSounds, on ? kOn : kOff);
  sounds_on = on;
}

}  // namespace store
