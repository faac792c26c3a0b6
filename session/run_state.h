#pragma once

namespace store {

/// Ends the program when the running event is over. From here on `ProgramEnding()` is true, so that
/// the steps behind the event know not to go on.
void EndProgram();
bool ProgramEnding();

/// All of the session's state as at the start of a run: user, options, settings, formats.
void ResetSession();

}  // namespace store
