#include "session/run_state.h"

#include "forms/host.h"
#include "session/base_settings.h"
#include "session/formats.h"
#include "session/options_record.h"
#include "session/session_record.h"

namespace store {
namespace {

bool Ending = false;

}  // namespace

void EndProgram() {
  Ending = true;
  Host.EndProgram();
}

bool ProgramEnding() { return Ending; }

void ResetSession() {
  Session = {};
  AppOptions = {};
  BaseSettings = {};
  ResetFormats();
  Ending = false;
}

}  // namespace store
