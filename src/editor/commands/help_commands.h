#ifndef FRAGSMITH_EDITOR_COMMANDS_HELP_COMMANDS_H_
#define FRAGSMITH_EDITOR_COMMANDS_HELP_COMMANDS_H_

#include <QObject>

#include "editor/dialogs/manual_window.h"

namespace fragsmith {

/// The commands of the menu Help.
class HelpCommands : public QObject {
  Q_OBJECT

 public:
  explicit HelpCommands(QWidget& window) : QObject(&window), window_(window) {}

  /// Opens the manual at a chapter.
  void ShowManual(const QString& chapter);

  /// Puts the versions into the clipboard and tells what to do with them.
  void ReportFault();

 signals:
  void StatusText(const QString& text);

 private:
  QWidget& window_;
  ManualWindow* manual_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_COMMANDS_HELP_COMMANDS_H_
