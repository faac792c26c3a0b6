#pragma once

#include <QTextBrowser>

namespace store {

/// Shows a page of the guide as the program looks: its colours, its size of type, pictures no wider
/// than the window.
class GuideView : public QTextBrowser {
 public:
  /// `folder` holds the pages.
  explicit GuideView(QString folder);

  /// "board.md", or "board.md#표-읽기" for a heading of it.
  void GoTo(const QString& page);
  /// To the next place that holds `text`, from the top again behind the last one. False when there
  /// is none on the page.
  bool FindNext(const QString& text, bool backwards);

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  void Dress();
  void GoToHeading(const QString& anchor);

  QString folder_;
};

}  // namespace store
