#ifndef FRAGSMITH_CLI_COMMAND_H_
#define FRAGSMITH_CLI_COMMAND_H_

#include <CLI/CLI.hpp>
#include <functional>
#include <istream>
#include <ostream>
#include <string>

#include "cli/console_prompts.h"
#include "install/program/base_scan.h"
#include "install/program/program_folder.h"
#include "install/program/settings_file.h"
#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {

/// What the program answers its caller with.
enum ExitStatus { kDone = 0, kFailed = 1, kWrongUsage = 2, kWarned = 3 };

/// What all commands share. Paths are in the form in which they were given.
struct CommandContext {
  CommandContext(std::istream& in_stream, std::ostream& out_stream,
                 std::ostream& err_stream)
      : in(in_stream), out(out_stream), err(err_stream), prompts(err_stream) {}

  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  ConsolePrompts prompts;

  /// --program-folder; empty when it was not given.
  std::string given_folder;
  /// Found before a command runs.
  ProgramFolders folders;

  /// Set by the command that was chosen.
  std::function<ExitStatus()> run;
};

// Each command adds itself to the command line and, when chosen, puts what it
// does into the context. One file each.
void AddNewCommand(CLI::App& app, CommandContext& context);
void AddMakeCommand(CLI::App& app, CommandContext& context);
void AddLoadCommand(CLI::App& app, CommandContext& context);
void AddCheckCommand(CLI::App& app, CommandContext& context);
void AddDiffCommand(CLI::App& app, CommandContext& context);
void AddEditCommand(CLI::App& app, CommandContext& context);
void AddTryCommand(CLI::App& app, CommandContext& context);
void AddMatchCommand(CLI::App& app, CommandContext& context);
void AddTuneCommand(CLI::App& app, CommandContext& context);
void AddScanCommand(CLI::App& app, CommandContext& context);
void AddSettingsCommand(CLI::App& app, CommandContext& context);

/// A command with the options that all have.
CLI::App& AddCommand(CLI::App& app, const std::string& name,
                     const std::string& description, CommandContext& context);

/// The settings as the program has them after its start.
ProgramSettings LoadSettingsFor(CommandContext& context);

/// The lists of models and bots as the program has them after its start.
BaseLists LoadListsFor(CommandContext& context);

/// Tells an error and gives the exit status for it.
ExitStatus Fail(CommandContext& context, const Error& error);

void PrintNotes(CommandContext& context, const Notes& notes);

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_COMMAND_H_
