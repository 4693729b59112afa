#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <algorithm>
#include <exception>
#include <iostream>
#include <optional>

#include "editor/frm_main.h"
#include "editor/program_state.h"
#include "editor/qt_prompts.h"
#include "editor/readable_palette.h"
#include "install/program_folder.h"
#include "install/time_zone.h"
#include "support/files.h"

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
  QCoreApplication::setApplicationVersion(QStringLiteral("0.97b BETA"));
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
  }
  const QApplication application(count, words);
  const Arguments arguments = ReadArguments();
  QApplication::setWindowIcon(ProgramIcon());
  QApplication::setDesktopFileName(QStringLiteral("fragsmith"));
  fragsmith::MakePaletteReadable();
  const auto folders = fragsmith::FindProgramFolders(
      arguments.program_folder, fragsmith::FindProgramPlace());
  if (!folders) return Fail(fragsmith::Describe(folders.error()));
  fragsmith::QtPrompts prompts;
  fragsmith::ProgramState state(*folders, prompts,
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
  return QApplication::exec();
} catch (const std::exception& failure) {
  return Fail(failure.what());
}
