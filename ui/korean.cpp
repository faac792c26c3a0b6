#include "ui/korean.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace store {

void SpeakKorean(QApplication& application) {
  const QLocale korean(QLocale::Korean, QLocale::SouthKorea);
  QLocale::setDefault(korean);
  auto* texts = new QTranslator(&application);
  const QString beside = QCoreApplication::applicationDirPath() + "/translations";
  for (const QString& folder : {beside, QLibraryInfo::path(QLibraryInfo::TranslationsPath)}) {
    if (!texts->load("qtbase_ko", folder)) continue;
    QCoreApplication::installTranslator(texts);
    return;
  }
}

}  // namespace store
