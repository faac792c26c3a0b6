#pragma once

#include <QString>
#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;
class QUrl;

namespace store {

class GuideView;
class KeyButton;

/// The clerk's guide inside the program: its pages in a list, the page in hand, a way back and
/// forward, and a search within the page. It needs no network.
class GuideWindow : public QWidget {
 public:
  explicit GuideWindow(const QString& folder);
  void GoTo(const QString& page);

 private:
  QWidget* Top();
  void FillContents(const QString& folder);
  void FollowPage(const QUrl& page);
  void Find(bool backwards);
  KeyButton* Button(const QString& text, const QKeySequence& keys, void (GuideWindow::*press)());
  void Back();
  void Forward();
  void ToSearch();

  GuideView* view_;
  QListWidget* contents_;
  QLineEdit* search_ = nullptr;
  QLabel* found_ = nullptr;
};

/// Opens the guide at a page, in front of `asker`, which may be a modal window. A guide that is
/// open turns to the page. Where there is no guide it says so.
void OpenGuide(const QString& page, QWidget* asker);
/// Closes it, at the end of the program.
void CloseGuide();

}  // namespace store
