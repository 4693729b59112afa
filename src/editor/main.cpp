#include <QApplication>
#include <QCommandLineParser>
#include <exception>
#include <iostream>
#include <optional>

#include "editor/frm_main.h"
#include "editor/program_state.h"
#include "editor/qt_prompts.h"
#include "install/program_folder.h"
#include "install/time_zone.h"
#include "support/files.h"

namespace {

/// What the program was started with.
struct Arguments {
  std::optional<std::filesystem::path> program_folder;
  /// Shows the window just long enough for a picture of it in this file.
  QString picture;
  /// A characteristic file to begin with.
  QString file;
};

Arguments ReadArguments(const QApplication& application) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("Makes and edits bots for Quake III Arena."));
  parser.addHelpOption();
  const QCommandLineOption folder(
      QStringLiteral("program-folder"),
      QStringLiteral("Folder with fgs.ini and the program's lists"),
      QStringLiteral("DIR"));
  const QCommandLineOption picture(
      QStringLiteral("picture"),
      QStringLiteral("Save a picture of the window and end"),
      QStringLiteral("FILE"));
  parser.addOptions({folder, picture});
  parser.addPositionalArgument(QStringLiteral("FILE"),
                               QStringLiteral("A *_c.c file to load"),
                               QStringLiteral("[FILE]"));
  parser.process(application);
  Arguments arguments;
  if (parser.isSet(folder)) {
    arguments.program_folder =
        fragsmith::PathFromBytes(parser.value(folder).toStdString());
  }
  arguments.picture = parser.value(picture);
  arguments.file = parser.positionalArguments().value(0);
  return arguments;
}

}  // namespace

int main(int count, char** words) try {
  fragsmith::PrepareTimeZone();
  QApplication application(count, words);
  QApplication::setApplicationName(QStringLiteral("fragsmith"));
  const Arguments arguments = ReadArguments(application);
  const auto folders = fragsmith::FindProgramFolders(
      arguments.program_folder, fragsmith::FindProgramPlace());
  if (!folders) {
    std::cerr << "fragsmith: " << fragsmith::Describe(folders.error()) << '\n';
    return 1;
  }
  fragsmith::QtPrompts prompts;
  fragsmith::ProgramState state(*folders, prompts,
                                fragsmith::UnpredictableRandom());
  fragsmith::frmMain window(state);
  prompts.SetParent(&window);
  window.show();
  if (!arguments.file.isEmpty()) {
    window.OpenFile(fragsmith::PathFromBytes(arguments.file.toStdString()));
  }
  if (!arguments.picture.isEmpty()) {
    return window.grab().save(arguments.picture) ? 0 : 1;
  }
  return QApplication::exec();
} catch (const std::exception& failure) {
  std::cerr << "fragsmith: " << failure.what() << '\n';
  return 1;
}
