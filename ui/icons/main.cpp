// Writes the program's icon in all sizes into a folder, as desktops look for it:
// DIR/48x48/apps/store-client.png.
#include <QDir>
#include <cstdio>

#include "ui/program_icon.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: store_icons DIR\n");
    return 2;
  }
  for (const int size : store::kIconSizes) {
    const QString folder = QString("%1/%2x%2/apps").arg(QString::fromLocal8Bit(argv[1])).arg(size);
    const QString file = folder + "/store-client.png";
    if (!QDir().mkpath(folder) || !store::DrawProgramIcon(size).save(file)) {
      std::fprintf(stderr, "store_icons: cannot write %s\n", qPrintable(file));
      return 1;
    }
  }
  return 0;
}
