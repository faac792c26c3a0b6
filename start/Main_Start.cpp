#include "start/Main_Start.h"

#include <algorithm>
#include <string_view>

#include "basics/formats.h"
#include "forms/host.h"
#include "forms/open_forms.h"
#include "gateway/gateway.h"
#include "start/frmLogin.h"
#include "start/frmOptions.h"
#include "start/frmSplash.h"
#include "start/options.h"
#include "start/start_data.h"

namespace store {
namespace {

// The text up to the next comma, taken off the front of `rest` with the comma.
std::string TakeItem(std::string_view& rest) {
  const std::string_view item = rest.substr(0, rest.find(','));
  rest.remove_prefix(std::min(item.size() + 1, rest.size()));
  return std::string(item);
}

// Without a window there is nobody to try again, so a failure leaves the entry routine.
bool LogInFrom(std::string_view commandLine) {
  const std::string user = TakeItem(commandLine);
  const std::string password = TakeItem(commandLine);
  ReadUser(user, password);
  if (!SlotA) {
    Host.MsgBox("서버에접근할 수 없습니다.           ", box::Critical, "접근오류");
    EndProgram();
    return false;
  }
  if (AtEof(SlotA)) {
    TellUnknownUser();
    return false;
  }
  TakeUser();
  SlotA.reset();
  return true;
}

bool LogInByWindow() {
  Host.ShowModal(*TheForm("frmLogin"));
  return !ProgramEnding();
}

}  // namespace

void RegisterStartForms() {
  RegisterForm("frmLogin", [] { return std::make_unique<frmLogin>(); });
  RegisterForm("frmOptions", [] { return std::make_unique<frmOptions>(); });
  RegisterForm("frmSplash", [] { return std::make_unique<frmSplash>(); });
}

bool Main_Start(const std::string& commandLine) {
  if (Host.PreviousInstance()) {
    EndProgram();
    return false;
  }
  LoadOptions();
  if (!(commandLine.empty() ? LogInByWindow() : LogInFrom(commandLine))) return false;
  Host.ShowModal(*TheForm("frmSplash"));
  FormatSetup();
  LoadZ1Settings();
  Host.Show(*TheForm("frm_Start"));
  return true;
}

}  // namespace store
