#include "tests/soak/clerk_host.h"

#include <chrono>
#include <ctime>
#include <thread>

#include "basics/dates.h"
#include "forms/host.h"
#include "forms/open_forms.h"

namespace store {
namespace {

constexpr long kDay = 24L * 60 * 60;

ClockTime NowAhead(int days) {
  const std::time_t now = std::time(nullptr) + days * kDay;
  std::tm parts{};
  localtime_r(&now, &parts);
  ClockTime clock;
  clock.Year = parts.tm_year + 1900;
  clock.Month = parts.tm_mon + 1;
  clock.Day = parts.tm_mday;
  clock.Hour = parts.tm_hour;
  clock.Minute = parts.tm_min;
  clock.Second = parts.tm_sec;
  return clock;
}

}  // namespace

ClerkHost::ClerkHost(const std::string& folder) {
  Host = EmptyHost();
  Host.MsgBox = [this](const std::string& text, int style, const std::string& title) {
    return Answer(text, style, title);
  };
  Host.ShowModal = [this](Form& form) { ShowModal(form); };
  Host.Show = [](Form& form) {
    form.EnsureLoaded();
    if (!form.IsClosed()) form.Activate();
  };
  Host.Now = [this] { return NowAhead(DaysAhead); };
  Host.Sleep = [](int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
  };
  Host.ProgramFolder = folder;
  Host.ProgramTitle = "STORE";
  Host.Version = {1, 0, 1};
}

ClerkHost::~ClerkHost() {
  DropAllForms();
  Host = EmptyHost();
}

int ClerkHost::Answer(const std::string& text, int style, const std::string& title) {
  Boxes.push_back(text);
  if ((style & box::YesNo) == 0) return box::Ok;
  if (title == "계속발주") return GoesOnOrdering ? box::Yes : box::No;
  return box::Yes;
}

void ClerkHost::ShowModal(Form& form) {
  form.EnsureLoaded();
  if (!form.IsClosed()) form.Activate();
  const auto found = InForm.find(form.Name);
  if (found != InForm.end() && !form.IsClosed()) found->second(form);
  if (!form.IsClosed()) form.Close();
}

}  // namespace store
