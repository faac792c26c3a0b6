#include <QApplication>
#include <cstdio>
#include <string_view>

#include "build_id.h"
#include "ui/about.h"
#include "ui/qt_text.h"
#include "ui/run_store.h"

namespace {

constexpr const char* kHelp =
    "store-client [user,password]   open the program; with a user, without the login window\n"
    "store-client --version         say the version\n";

/// Answers that need no screen; the exit code, or -1 when the program is to be opened. A user's
/// code never begins like an option.
int AnswerOnly(int argc, char** argv) {
  const std::string_view argument = argc == 2 ? argv[1] : "";
  if (argument == "--version") return std::printf("store-client %s\n", STORE_VERSION) > 0 ? 0 : 1;
  if (argument == "--help") return std::fputs(kHelp, stdout) >= 0 ? 0 : 1;
  return -1;
}

}  // namespace

int main(int argc, char** argv) {
  if (const int code = AnswerOnly(argc, argv); code >= 0) return code;
  QApplication application(argc, argv);
  application.setProperty(store::kBuildProperty, kBuildId);
  const QStringList arguments = QApplication::arguments().mid(1);
  return store::RunStore(application, store::FromQt(arguments.join(' ')));
}
