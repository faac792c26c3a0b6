#pragma once

#include <QString>
#include <utility>
#include <vector>

class QWidget;

namespace store {

/// What the program is made of and what serves it: names and versions, as far as each can be asked.
std::vector<std::pair<QString, QString>> ProgramVersions();

/// The same as text, a line each.
QString VersionsText();

/// The name of the program's property of `qApp` that says which build it is.
inline constexpr const char* kBuildProperty = "build";

/// Shows them in a box of the window, from which they can be copied.
void ShowAbout(QWidget* window);

}  // namespace store
