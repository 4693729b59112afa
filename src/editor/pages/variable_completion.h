#ifndef FRAGSMITH_EDITOR_PAGES_VARIABLE_COMPLETION_H_
#define FRAGSMITH_EDITOR_PAGES_VARIABLE_COMPLETION_H_

#include <QCompleter>
#include <QLineEdit>
#include <QStandardItemModel>
#include <vector>

#include "editor/pages/chat_help.h"

namespace fragsmith {

/// Offers the variables when a "{" is typed in a line box. Enter and Tab take
/// one, Escape goes on without.
class VariableCompletion : public QObject {
  Q_OBJECT

 public:
  explicit VariableCompletion(QLineEdit& box);

  void Offer(const std::vector<ChatVariable>& variables);

 signals:
  /// The variable takes the place of what was typed of it, from there to the
  /// cursor.
  void Taken(int from, const QString& variable);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Follow();
  void Take(const QModelIndex& index);

  QLineEdit& box_;
  QStandardItemModel* variables_;
  QCompleter* completer_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_VARIABLE_COMPLETION_H_
