#ifndef FRAGSMITH_EDITOR_DIALOGS_MANUAL_WINDOW_H_
#define FRAGSMITH_EDITOR_DIALOGS_MANUAL_WINDOW_H_

#include <QDialog>
#include <QListWidget>
#include <QTextBrowser>

namespace fragsmith {

/// The manual beside the main window, which stays usable: its chapters at the
/// left, the text at the right.
class ManualWindow : public QDialog {
  Q_OBJECT

 public:
  explicit ManualWindow(QWidget* parent = nullptr);

  /// Opens it at a chapter; at the beginning when there is none of that name.
  void ShowChapter(const QString& heading);

 private:
  void FollowLink(const QUrl& link);

  QListWidget* chapters_;
  QTextBrowser* text_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_MANUAL_WINDOW_H_
