#pragma once

#include <QString>
#include <string>
#include <vector>

namespace store {

/// The guide's first page, whose table names all others.
inline constexpr const char* kGuideStart = "README.md";

/// The page that tells of the window of a form: "board.md", or "README.md#로그인" for a part of
/// one. The first page for a window that none is about.
QString GuidePageOf(const std::string& formName);

/// Where the guide stands on this workstation: beside the program, or where it was installed. Empty
/// when it is not there.
QString GuideFolder();

struct GuidePage {
  QString Title;
  QString File;
};

/// The pages that the first one's table names, in its order, the first one itself ahead of them.
/// `text` is the first page's.
std::vector<GuidePage> PagesNamedIn(const QString& text);

/// What stands behind "#" in a link to a heading: small letters, blanks as "-", no other signs.
QString AnchorOf(const QString& heading);

}  // namespace store
