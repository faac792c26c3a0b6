#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace store {

/// The forms hold UTF-8, the windows UTF-16.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

/// A text of a form as a person reads it: its carriage returns are line breaks.
QString ShownLines(std::string_view text);

/// An entry without its code: what stands before the 30 blanks that keep the code out of view.
QString ShownEntry(std::string_view entry);

}  // namespace store
