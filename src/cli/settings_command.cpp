#include <nlohmann/json.hpp>

#include "cli/command.h"
#include "support/code_page.h"

namespace fragsmith {
namespace {

ExitStatus RunSettings(CommandContext& context) {
  const ProgramSettings settings = LoadSettingsFor(context);
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  json["Q3Baseq3"] = settings.Q3Baseq3;
  json["WorkDir"] = settings.WorkDir;
  json["WinZipDir"] = settings.WinZipDir;
  json["UserName"] = Utf8FromGameText(settings.UserName);
  json["Email"] = Utf8FromGameText(settings.Email);
  json["Http"] = Utf8FromGameText(settings.Http);
  json["Bots"] = settings.Bots;
  json["BaseQ3Check"] = settings.BaseQ3Check;
  // A path need not be UTF-8; what is not is marked.
  context.out << json.dump(2, ' ', false,
                           nlohmann::ordered_json::error_handler_t::replace)
              << '\n';
  return kDone;
}

}  // namespace

void AddSettingsCommand(CLI::App& app, CommandContext& context) {
  CLI::App& command = AddCommand(
      app, "settings",
      "Print the settings as JSON, after the check of the folders", context);
  command.callback([&context] {
    context.run = [&context] { return RunSettings(context); };
  });
}

}  // namespace fragsmith
