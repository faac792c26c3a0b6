// The guide inside the program: every window has its page, every link and picture is there.
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QTextBlock>
#include <QTextBrowser>
#include <QtTest>

#include "tests/ui/all_forms.h"
#include "tests/ui/probe_form.h"
#include "ui/guide_pages.h"
#include "ui/guide_window.h"

namespace store {
namespace {

QString TextOf(const QString& file) {
  QFile page(GuideFolder() + "/" + file);
  EXPECT_TRUE(page.open(QIODevice::ReadOnly)) << file.toStdString();
  return QString::fromUtf8(page.readAll());
}

bool HasHeading(const QString& text, const QString& anchor) {
  for (const QString& line : text.split('\n')) {
    if (line.startsWith('#') && AnchorOf(line.section("# ", 1).remove('`')) == anchor) return true;
  }
  return false;
}

TEST(GuidePages, EveryLinkLeadsToAPageOrPicture) {
  const QDir folder(GuideFolder());
  const QStringList files = folder.entryList({"*.md"});
  EXPECT_GT(files.size(), 15);
  static const QRegularExpression link(R"(\]\(([^)\s]+\.(?:md|png))(?:#([^)]*))?\))");
  for (const QString& file : files) {
    const QString text = TextOf(file);
    for (auto found = link.globalMatch(text); found.hasNext();) {
      const QRegularExpressionMatch at = found.next();
      EXPECT_TRUE(folder.exists(at.captured(1)))
          << file.toStdString() << at.captured().toStdString();
      if (at.captured(2).isEmpty()) continue;
      EXPECT_TRUE(HasHeading(TextOf(at.captured(1)), at.captured(2)))
          << file.toStdString() << at.captured().toStdString();
    }
  }
  // The first page's table is the list of contents: no page is left out of it.
  EXPECT_EQ(PagesNamedIn(TextOf(kGuideStart)).size(), static_cast<size_t>(files.size()));
}

TEST(GuidePages, EveryWindowHasItsPage) {
  for (const auto& form : AllForms()) {
    const QString page = GuidePageOf(form->Name);
    const bool isStart = form->Name == "frmLogin" || form->Name == "frmSplash";
    EXPECT_EQ(page.startsWith(kGuideStart), isStart) << form->Name;
    const QString anchor = page.section('#', 1);
    const QString text = TextOf(page.section('#', 0, 0));
    EXPECT_TRUE(anchor.isEmpty() || HasHeading(text, anchor)) << form->Name;
  }
}

class GuideTest : public DeskTest {
 protected:
  void TearDown() override {
    CloseGuide();
    DeskTest::TearDown();
  }
  static GuideWindow* Guide() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* guide = dynamic_cast<GuideWindow*>(window)) return guide;
    }
    return nullptr;
  }
};

TEST_F(GuideTest, F1OpensItWhereItHasNoOtherMeaning) {
  ProbeForm form;
  FormWindow& window = Open(form);
  form.OnKeyDown = [](Key key) { return key == Key::F1; };
  QTest::keyClick(window.focusWidget(), Qt::Key_F1);
  EXPECT_EQ(Guide(), nullptr) << "the form has a use for it";
  form.OnKeyDown = nullptr;
  QTest::keyClick(window.focusWidget(), Qt::Key_F1);
  ASSERT_NE(Guide(), nullptr);
  EXPECT_TRUE(Guide()->isVisible());
}

TEST_F(GuideTest, OneReadsGoesBackAndSearches) {
  OpenGuide("board.md#공지사항", nullptr);
  GuideWindow* guide = Guide();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(guide));
  auto& view = *guide->findChild<QTextBrowser*>();
  auto& contents = *guide->findChild<QListWidget*>();
  EXPECT_EQ(view.textCursor().block().text(), "공지사항");
  EXPECT_EQ(contents.currentItem()->text(), "보드");
  OpenGuide("keys.md", nullptr);
  EXPECT_EQ(Guide(), guide) << "one guide";
  EXPECT_EQ(contents.currentItem()->text(), "단축키 표");
  QTest::keyClick(guide, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(contents.currentItem()->text(), "보드");
  QTest::keyClick(guide, Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(contents.currentItem()->text(), "단축키 표");
  auto& search = *guide->findChild<QLineEdit*>();
  search.setText("빠른선택");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(view.textCursor().selectedText(), "빠른선택");
  const int first = view.textCursor().position();
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_GT(view.textCursor().position(), first);
  search.setText("없는 말이다");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(view.textCursor().selectedText(), "빠른선택") << "the place is kept";
}

}  // namespace
}  // namespace store
