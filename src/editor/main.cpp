#include <QApplication>
#include <QCommandLineParser>
#include <QFont>
#include <QIcon>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

#include "editor/frm_main.h"
#include "editor/state/program_state.h"
#include "editor/toolkit/language.h"
#include "editor/toolkit/qt_prompts.h"
#include "editor/toolkit/readable_palette.h"
#include "install/program/program_folder.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/no_prompts.h"
#include "support/program_version.h"
#include "support/system/interruption.h"
#include "support/system/time_zone.h"

namespace {

/// What the program was started with.
struct Arguments {
  std::optional<std::filesystem::path> program_folder;
  /// Shows the window just long enough for a picture of it in this file.
  QString picture;
  /// A characteristic file, folder or package to begin with.
  QString file;
};

/// Prints help or version and ends where these are asked for.
Arguments ReadArguments() {
  QCoreApplication::setApplicationName(QStringLiteral("fragsmith"));
  QCoreApplication::setApplicationVersion(
      QString::fromUtf8(fragsmith::kProgramVersion));
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Makes and edits bots for Quake III Arena."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption folder(
      QStringLiteral("program-folder"),
      QStringLiteral("Folder with fgs.ini and the program's lists"),
      QStringLiteral("DIR"));
  const QCommandLineOption picture(
      QStringLiteral("picture"),
      QStringLiteral("Save a picture of the window and end"),
      QStringLiteral("FILE"));
  parser.addOptions({folder, picture});
  parser.addPositionalArgument(
      QStringLiteral("FILE"),
      QStringLiteral("A *_c.c file, a folder or a *.pk3 package with a bot"),
      QStringLiteral("[FILE]"));
  parser.process(QCoreApplication::arguments());
  Arguments arguments;
  if (parser.isSet(folder)) {
    arguments.program_folder =
        fragsmith::PathFromBytes(parser.value(folder).toStdString());
  }
  arguments.picture = parser.value(picture);
  arguments.file = parser.positionalArguments().value(0);
  return arguments;
}

/// Without one the toolkit gives up in a way that looks like a crash.
bool HasDisplay() {
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
  const char* const choices[] = {"DISPLAY", "WAYLAND_DISPLAY",
                                 "QT_QPA_PLATFORM"};
  return std::any_of(
      std::begin(choices), std::end(choices),
      [](const char* name) { return !qEnvironmentVariableIsEmpty(name); });
#else
  return true;
#endif
}

QIcon ProgramIcon() {
  QIcon icon;
  for (const int size : {16, 32, 48, 128}) {
    icon.addFile(QStringLiteral(":/icon/%1x%1/apps/fragsmith.png").arg(size));
  }
  return icon;
}

/// Where a Windows lacks the letters that it names, as a fresh wine does, those
/// with serifs would be taken.
void NameFontsToFallBackOn() {
#ifdef Q_OS_WIN
  QFont::insertSubstitutions(
      QApplication::font().family(),
      {QStringLiteral("Segoe UI"), QStringLiteral("Verdana"),
       QStringLiteral("Arial"), QStringLiteral("DejaVu Sans")});
#endif
}

int Fail(const std::string& reason) {
  std::cerr << "fragsmith: " << reason << '\n';
  return 1;
}

}  // namespace

int main(int count, char** words) try {
  fragsmith::PrepareTimeZone();
  if (!HasDisplay()) {
    // Help and pictures need none.
    const QCoreApplication application(count, words);
    if (ReadArguments().picture.isEmpty()) {
      return Fail("There is no display. fragsmith-cli needs none.");
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What the toolkit misses there is no matter of the user's.
    qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext&, const QString&) {});
  }
  // Whatever ends the program, it puts its things in order first.
  const fragsmith::Interruption interruption;
  const QApplication application(count, words);
  const Arguments arguments = ReadArguments();
  const fragsmith::Language language;
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setDesktopFileName(QStringLiteral("fragsmith"));
  NameFontsToFallBackOn();
  fragsmith::MakePaletteReadable();
  const auto folders = fragsmith::FindProgramFolders(
      arguments.program_folder, fragsmith::FindProgramLocation());
  if (!folders) return Fail(fragsmith::Describe(folders.error()));
  fragsmith::QtPrompts prompts;
  // Nobody is there to answer while a picture is made.
  fragsmith::NoPrompts no_prompts;
  fragsmith::Prompts& whom = arguments.picture.isEmpty()
                                 ? static_cast<fragsmith::Prompts&>(prompts)
                                 : no_prompts;
  fragsmith::ProgramState state(*folders, whom,
                                fragsmith::UnpredictableRandom());
  fragsmith::frmMain window(state);
  prompts.SetParent(&window);
  window.show();
  if (!arguments.file.isEmpty()) {
    window.OpenPath(fragsmith::PathFromBytes(arguments.file.toStdString()));
  }
  if (!arguments.picture.isEmpty()) {
    window.FinishStart();
    if (window.grab().save(arguments.picture)) return 0;
    return Fail("The picture could not be saved as " +
                arguments.picture.toStdString());
  }
  const std::string_view warning =
      arguments.program_folder ? "" : fragsmith::SuperUserWarning();
  if (!warning.empty()) {
    QTimer::singleShot(0, &window, [&prompts, warning] {
      prompts.Show({.title = "Fragsmith",
                    .text = fragsmith::Localized(warning),
                    .icon = fragsmith::MessageIcon::kExclamation});
    });
  }
  // It is no answer to any question: what was not saved is kept as a draft.
  QSocketNotifier notifier(interruption.descriptor(), QSocketNotifier::Read);
  if (interruption.descriptor() >= 0) {
    QObject::connect(&notifier, &QSocketNotifier::activated, &window,
                     [&notifier, &window] {
                       notifier.setEnabled(false);
                       window.KeepDraft();
                       QCoreApplication::exit(1);
                     });
  }
  return QApplication::exec();
} catch (const std::exception& failure) {
  return Fail(failure.what());
}
