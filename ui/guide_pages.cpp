#include "ui/guide_pages.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>
#include <QRegularExpression>

#include "ui/qt_text.h"

namespace store {

QString GuidePageOf(const std::string& formName) {
  static const QHash<QString, QString> pages = {{"frmLogin", "README.md#로그인"},
                                                {"frmOptions", "options.md"},
                                                {"frm_Start", "board.md"},
                                                {"frmDeleted", "board.md#지운-전표-되살리기-ctrlz"},
                                                {"frmDrafts", "drafts.md"},
                                                {"frm_Order", "order.md"},
                                                {"frm_Order01", "order_suggested.md"},
                                                {"frm_Order02", "order_combined.md"},
                                                {"frm_Order03", "order_units.md"},
                                                {"frm_OrderPLU", "quick_pick.md"},
                                                {"frm_PE_UNIT", "receipt.md"},
                                                {"DT9RECEV", "handheld_receive.md"},
                                                {"frmProperties", "handheld_receive.md#차례"},
                                                {"FRM_NAMECHK", "handheld_receive.md#차례"},
                                                {"FRM_DT900_01", "handheld_process.md"},
                                                {"FRM_CRDIMP", "handheld_cradle.md"},
                                                {"NEW_PR", "new_product.md"},
                                                {"HELP_CT", "find.md"},
                                                {"HELP_RCT", "find.md"},
                                                {"HELP_HCT", "find.md"},
                                                {"HELP_ST", "find.md"},
                                                {"HELP_CTM", "find.md"},
                                                {"HELP_BPR", "find.md"}};
  return pages.value(ToQt(formName), kGuideStart);
}

QString GuideFolder() {
  const QDir program(QCoreApplication::applicationDirPath());
  for (const char* place : {"guide", STORE_GUIDE_FROM_PROGRAM}) {
    // A link is followed, because the pages point to pictures outside their folder.
    const QString folder = QDir(program.filePath(place)).canonicalPath();
    if (QDir(folder).exists(kGuideStart)) return folder;
  }
  return {};
}

std::vector<GuidePage> PagesNamedIn(const QString& text) {
  std::vector<GuidePage> pages = {{"처음으로", kGuideStart}};
  static const QRegularExpression row(R"(^\| \[([^\]]+)\]\(([^)#]+\.md)\) \|)",
                                      QRegularExpression::MultilineOption);
  for (auto found = row.globalMatch(text); found.hasNext();) {
    const QRegularExpressionMatch at = found.next();
    pages.push_back({at.captured(1), at.captured(2)});
  }
  return pages;
}

QString AnchorOf(const QString& heading) {
  QString anchor;
  for (const QChar letter : heading.toLower()) {
    if (letter == ' ') anchor += '-';
    if (letter.isLetterOrNumber() || letter == '-' || letter == '_') anchor += letter;
  }
  return anchor;
}

}  // namespace store
