#pragma once

#include <string>

class QApplication;

namespace store {

/// Makes every form known by its name and fills `Host` with this workstation.
void PrepareStore(QApplication& application);

/// One run of the program, from the login to the end of the main window. `commandLine` is what
/// stands behind the program's name. Gives the process's exit code.
int RunStore(QApplication& application, const std::string& commandLine);

}  // namespace store
