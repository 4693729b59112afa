#include "cli/command_line.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/command.h"
#include "cli/terminal.h"
#include "install/program/bot_list_file.h"
#include "install/program/model_list_file.h"
#include "support/files.h"

namespace fragsmith {

CLI::App& AddCommand(CLI::App& app, const std::string& name,
                     const std::string& description, CommandContext& context) {
  CLI::App* const command = app.add_subcommand(name, description);
  command
      ->add_option("--program-folder", context.given_folder,
                   "Folder with fgs.ini and the program's lists")
      ->type_name("DIR");
  return *command;
}

ProgramSettings LoadSettingsFor(CommandContext& context) {
  ProgramSettings settings;
  LoadSettings(context.folders.program, settings, context.prompts,
               context.folders.unzip_tool);
  return settings;
}

BaseLists LoadListsFor(CommandContext& context) {
  const std::filesystem::path& folder = context.folders.program;
  return {BuildStandardCatalogue(folder, context.prompts),
          BuildStandardBotList(folder, context.prompts)};
}

ExitStatus Fail(CommandContext& context, const Error& error) {
  context.err << "fragsmith-cli: " << Printable(Describe(error)) << '\n';
  return kFailed;
}

void PrintNotes(CommandContext& context, const Notes& notes) {
  for (const Note& note : notes.list()) {
    context.err << Printable(Describe(note)) << '\n';
  }
  if (notes.left_out() > 0) {
    context.err << "... and " << notes.left_out() << " notes more.\n";
  }
}

int RunCommandLine(std::vector<std::string> arguments, std::istream& in,
                   std::ostream& out, std::ostream& err) {
  CommandContext context(in, out, err);
  CLI::App app("Makes, loads and packs bots for Quake III Arena.",
               "fragsmith-cli");
  app.require_subcommand(1);
  AddNewCommand(app, context);
  AddMakeCommand(app, context);
  AddLoadCommand(app, context);
  AddCheckCommand(app, context);
  AddDiffCommand(app, context);
  AddEditCommand(app, context);
  AddTryCommand(app, context);
  AddMatchCommand(app, context);
  AddTuneCommand(app, context);
  AddScanCommand(app, context);
  AddSettingsCommand(app, context);
  try {
    // The library takes them from the last to the first.
    std::reverse(arguments.begin(), arguments.end());
    app.parse(std::move(arguments));
  } catch (const CLI::ParseError& fault) {
    return app.exit(fault, out, err) == 0 ? kDone : kWrongUsage;
  }
  std::optional<std::filesystem::path> given;
  if (!context.given_folder.empty()) {
    given = PathFromBytes(context.given_folder);
  }
  const Result<ProgramFolders> folders =
      FindProgramFolders(given, FindProgramLocation());
  if (!folders) return Fail(context, folders.error());
  context.folders = *folders;
  // One who names the folder knows what is written.
  const std::string_view warning = given ? "" : SuperUserWarning();
  if (!warning.empty()) err << "fragsmith-cli: " << warning << '\n';
  const ExitStatus status = context.run();
  out.flush();
  if (out) return status;
  err << "fragsmith-cli: The output could not be written.\n";
  return kFailed;
}

}  // namespace fragsmith
