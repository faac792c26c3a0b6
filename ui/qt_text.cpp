#include "ui/qt_text.h"

#include "basics/text.h"

namespace store {
QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string FromQt(const QString& text) { return text.toStdString(); }

QString ShownLines(std::string_view text) {
  QString shown = ToQt(text);
  shown.replace("\r\n", "\n").replace('\r', '\n');
  return shown;
}

QString ShownEntry(std::string_view entry) { return ToQt(NameOfEntry(entry)); }

}  // namespace store
