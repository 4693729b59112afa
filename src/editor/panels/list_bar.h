#ifndef FRAGSMITH_EDITOR_PANELS_LIST_BAR_H_
#define FRAGSMITH_EDITOR_PANELS_LIST_BAR_H_

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "support/notes.h"

namespace fragsmith {

/// A quiet bar above the pages: a sentence, buttons, and a list of notes that
/// one of them opens. It never keeps the user from working on.
class ListBar : public QFrame {
  Q_OBJECT

 public:
  /// What the bar is called, as in "Notes": it and its parts have their names
  /// after it.
  ListBar(const QString& name, QWidget* parent);

 protected:
  QPushButton* AddButton(const QString& text, const QString& name);

  /// Shows the bar with its list closed.
  void Say(const QString& text, const Notes& notes);

 private:
  void Fill(const Notes& notes);

  QHBoxLayout* row_;
  QLabel* text_;
  QPushButton* list_button_;
  QListWidget* list_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_LIST_BAR_H_
