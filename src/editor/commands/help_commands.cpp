#include "editor/commands/help_commands.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSysInfo>

#include "support/program_version.h"

namespace fragsmith {

void HelpCommands::ShowManual(const QString& chapter) {
  if (manual_ == nullptr) manual_ = new ManualWindow(&window_);
  manual_->ShowChapter(chapter);
}

void HelpCommands::ReportFault() {
  QGuiApplication::clipboard()->setText(
      QStringLiteral("Fragsmith %1, Qt %2, %3, %4")
          .arg(QString::fromUtf8(kProgramVersion), QLatin1String(qVersion()),
               QSysInfo::prettyProductName(), QGuiApplication::platformName()));
  ShowManual(QStringLiteral("Report a fault"));
  emit StatusText(
      tr("The versions of the program and the system are in the "
         "clipboard."));
}

}  // namespace fragsmith
