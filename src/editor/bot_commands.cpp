#include "editor/bot_commands.h"

#include <QCoreApplication>
#include <QProgressDialog>
#include <utility>

#include "editor/game_text_conversion.h"
#include "install/game_folder.h"
#include "session/load_from_package.h"
#include "session/presets.h"
#include "session/save_bot.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr int kWholeBotKind = 0;
constexpr int kSaveKind = 5;

/// The name of the bot whose characteristic file this is.
std::optional<std::string> BotNameOfFile(const std::filesystem::path& path) {
  const std::string_view suffix = FileSuffix(BotFile::kCharacteristics);
  std::optional<std::string> name = GameTextFromPath(path.filename());
  if (!name || !EndsWithIgnoringCase(*name, suffix)) return std::nullopt;
  name->resize(name->size() - suffix.size());
  return name;
}

/// Disables the window for the time of its life, so that nothing is edited
/// while events are let through.
class Busy {
 public:
  explicit Busy(QWidget& window) : window_(window) {
    window_.setEnabled(false);
  }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
  ~Busy() { window_.setEnabled(true); }

 private:
  QWidget& window_;
};

}  // namespace

BotCommands::BotCommands(CurrentBot& current, ProgramState& state,
                         QWidget& window)
    : QObject(&window), current_(current), state_(state), window_(window) {}

bool BotCommands::MayLoseChanges(const std::string& question) {
  return !current_.is_changed() ||
         state_.prompts.Confirm(std::string(kProgramTitle), question);
}

void BotCommands::ShowNewBot(Bot bot) {
  if (!MayLoseChanges("The current bot has changed. Do you want to create a "
                      "new bot and lose unsaved work on this one?")) {
    return;
  }
  last_load_ = {};
  current_.Replace(std::move(bot), false);
  emit Loaded({}, false);
}

void BotCommands::CreateZeroBot() { ShowNewBot(fragsmith::CreateZeroBot()); }

void BotCommands::CreateAverageBot() {
  ShowNewBot(fragsmith::CreateAverageBot(state_.random));
}

std::optional<OpenChoice> BotCommands::AskForFiles(int kind) {
  if (last_folder_.empty()) last_folder_ = state_.folder_state.CurrentFolder;
  frmOpen dialog({.kind = static_cast<OpenKind>(kind),
                  .folder = last_folder_,
                  .options = options_,
                  .bots = &state_.lists.bots,
                  .bot_name = ToQString(current_.bot().Name())},
                 state_.prompts, &window_);
  const bool is_accepted = dialog.exec() == QDialog::Accepted;
  OpenChoice choice = dialog.Choice();
  last_folder_ = choice.folder;
  options_ = choice.options;
  if (!is_accepted) return std::nullopt;
  return choice;
}

void BotCommands::ShowOpenSaveForm(int kind) {
  if (kind == kWholeBotKind &&
      !MayLoseChanges("The current bot has changed. Do want to load a new bot "
                      "and lose unsaved work on this one?")) {
    return;
  }
  const std::optional<OpenChoice> choice = AskForFiles(kind);
  if (!choice) return;
  if (kind == kSaveKind) {
    Save(*choice);
  } else {
    frmOpenBot_GiveBot(kind, *choice);
  }
}

void BotCommands::frmOpenBot_GiveBot(int kind, const OpenChoice& choice) {
  std::optional<LoadedBot> loaded = choice.bot_of_list
                                        ? LoadListed(kind, choice)
                                        : LoadChosenFile(kind, choice);
  if (!loaded) return;
  last_load_ = std::move(*loaded);
  // One file more makes a bot that no file holds.
  current_.Replace(last_load_.bot, kind != kWholeBotKind);
  emit Loaded(last_load_.notes, !last_load_.plain_values.empty());
}

void BotCommands::OpenFile(const std::filesystem::path& path) {
  OpenChoice choice;
  choice.file = std::filesystem::absolute(path).lexically_normal();
  choice.options.loads_with_layout =
      Contains(BytesFromPath(*choice.file), kBotFilesFolder);
  frmOpenBot_GiveBot(kWholeBotKind, choice);
}

std::optional<LoadedBot> BotCommands::LoadListed(int kind,
                                                 const OpenChoice& choice) {
  const BotListEntry entry = state_.lists.bots.entries()[*choice.bot_of_list];
  if (state_.settings.Q3Baseq3.empty()) {
    state_.prompts.Show({.title = "Can't check folder",
                         .text = "Quake III Arena folder isn't set. Use "
                                 "'Program/Options' to set it.",
                         .icon = MessageIcon::kExclamation});
    return std::nullopt;
  }
  if (!state_.folder_state.WinZipFound) {
    state_.prompts.Show(
        {.title = "Sorry!",
         .text = "Loading bot files from Pk3-files requires WinZip and WinZip "
                 "command line support add-on. If have these then select the "
                 "WinZip directory from Program/Options",
         .icon = MessageIcon::kInformation});
    return std::nullopt;
  }
  QProgressDialog progress(
      QStringLiteral("Loading %1...").arg(ToQString(entry.Name)),
      QStringLiteral("Cancel"), 0, 0, &window_);
  progress.setMinimumDuration(400);
  const Busy busy(window_);
  const UnzipTool tool = state_.Tool([&progress] {
    QCoreApplication::processEvents();
    return !progress.wasCanceled();
  });
  const bool is_whole = kind == kWholeBotKind;
  std::optional<LoadedBot> loaded = LoadBotFromPackage(
      {.package = PackageFolder(PathFromBytes(state_.settings.Q3Baseq3)) /
                  PathFromGameText(entry.PK3File),
       .name = entry.Name,
       .LoType = is_whole ? kWholeBot : kind,
       .withScript = choice.options.loads_description && entry.HasBotScript,
       .loads_description = choice.options.loads_description},
      current_.bot(), tool, state_.temporary, state_.Environment());
  if (!loaded) {
    state_.prompts.Show(
        {.title = "Operation cancelled!",
         .text = "Bot " + Utf8FromGameText(entry.Name) + " not loaded.",
         .icon = MessageIcon::kInformation});
  }
  return loaded;
}

std::optional<LoadedBot> BotCommands::LoadChosenFile(int kind,
                                                     const OpenChoice& choice) {
  const std::filesystem::path path = choice.file.value_or("");
  if (kind == kWholeBotKind) {
    if (const std::optional<std::string> name = BotNameOfFile(path)) {
      return LoadBotFromFolder(
          *name, path.parent_path(),
          {choice.options.loads_with_layout, choice.options.loads_description},
          state_.Environment());
    }
  } else {
    LoadedBot loaded;
    loaded.bot = current_.bot();
    if (LoadSingleFile(static_cast<BotFile>(kind), path, loaded,
                       state_.prompts)) {
      return loaded;
    }
  }
  emit StatusText(
      QStringLiteral("%1 was not loaded: its name does not end as it should.")
          .arg(QString::fromStdString(Utf8FromPath(path.filename()))));
  return std::nullopt;
}

void BotCommands::Save(const OpenChoice& choice) {
  const SavedBot saved =
      SaveBot(current_.bot(), choice.folder,
              {.uses_layout = choice.options.saves_with_layout,
               .makes_package = choice.options.makes_package},
              AuthorOf(state_.settings), state_.prompts);
  if (saved.counts_package) ++state_.settings.Bots;
  constexpr std::size_t kFilesOfSet = 5;
  if (saved.written.size() >= kFilesOfSet) {
    current_.SetChanged(false);
    emit StatusText(
        QStringLiteral("The bot was written to %1.")
            .arg(QString::fromStdString(Utf8FromPath(choice.folder))));
  } else if (saved.error) {
    state_.prompts.Show({.title = std::string(kProgramTitle),
                         .text = Describe(*saved.error),
                         .icon = MessageIcon::kExclamation});
  }
}

void BotCommands::TakeValuesAsGame() {
  // What was edited since the load stays; only the odd values give way.
  last_load_.bot = current_.bot();
  fragsmith::TakeValuesAsGame(last_load_, state_.lists.models);
  current_.Replace(last_load_.bot, true);
}

}  // namespace fragsmith
