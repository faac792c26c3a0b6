#pragma once

#include <string>

namespace store {

/// Makes the forms of the way in known: login, options, splash.
void RegisterStartForms();

/// The program's entry: options, login, start data, main window. `commandLine` is what follows the
/// program's name, as one text: empty for the login window, "user,password" to go in without it.
/// True when the main window is shown and the program goes on; false when it is to end.
bool Main_Start(const std::string& commandLine);

}  // namespace store
