#ifndef FRAGSMITH_EDITOR_DIALOGS_SEARCH_PROGRESS_H_
#define FRAGSMITH_EDITOR_DIALOGS_SEARCH_PROGRESS_H_

#include <QDialog>
#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <cstddef>

namespace fragsmith {

/// Stands by while the game's packages are searched. The search runs on the
/// program's one thread and calls ShowProgress; "Cancel" and the close box
/// only ask it to end, and the window stays until the caller hides it.
class frmSearchBaseQ3 : public QDialog {
  Q_OBJECT

 public:
  explicit frmSearchBaseQ3(QWidget* parent = nullptr);

  /// Shows how far the search is and lets the program's events through.
  void ShowProgress(std::size_t done, std::size_t total);

  bool WasCancelled() const { return was_cancelled_; }

  /// Asks the search to end.
  void reject() override;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  QProgressBar* bar_;
  QLabel* count_;
  QPushButton* cancel_;
  QElapsedTimer since_shown_;
  bool was_cancelled_ = false;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_DIALOGS_SEARCH_PROGRESS_H_
