#include "editor/bot_commands.h"

#include <algorithm>
#include <utility>

#include "editor/game_text_conversion.h"
#include "install/game_folder.h"
#include "session/bot_sources.h"
#include "session/presets.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr int kSaveKind = 5;

constexpr const char* kLoadQuestion =
    "The current bot has changed. Do want to load a new bot and lose unsaved "
    "work on this one?";

QString Shown(const fs::path& path) {
  return QString::fromStdString(Utf8FromPath(path));
}

/// True for a file in the game's layout, with the layout's own spelling.
bool IsInLayout(const fs::path& file) {
  return Contains(file.generic_string(), kBotFilesFolder);
}

}  // namespace

BotCommands::BotCommands(CurrentBot& current, ProgramState& state,
                         QWidget& window)
    : QObject(&window),
      current_(current),
      state_(state),
      window_(window),
      loader_(state, window) {}

bool BotCommands::MayLoseChanges(const std::string& question) {
  return !current_.is_changed() ||
         state_.prompts.Confirm(std::string(kProgramTitle), question);
}

void BotCommands::ShowNewBot(Bot bot, const QString& name) {
  if (!MayLoseChanges("The current bot has changed. Do you want to create a "
                      "new bot and lose unsaved work on this one?")) {
    return;
  }
  last_load_ = {};
  target_.reset();
  on_disk_.Forget();
  current_.Replace(std::move(bot), false, name);
  emit Loaded({}, false);
}

void BotCommands::CreateZeroBot() {
  ShowNewBot(fragsmith::CreateZeroBot(), QStringLiteral("New bot, all zeros"));
}

void BotCommands::CreateAverageBot() {
  ShowNewBot(fragsmith::CreateAverageBot(state_.random),
             QStringLiteral("New bot, average"));
}

std::optional<OpenChoice> BotCommands::AskForFiles(int kind,
                                                   const BotList& bots) {
  if (last_folder_.empty()) last_folder_ = state_.folder_state.CurrentFolder;
  frmOpen dialog({.kind = static_cast<OpenKind>(kind),
                  .folder = last_folder_,
                  .options = options_,
                  .bots = &bots,
                  .bot_name = ToQString(current_.bot().Name())},
                 state_.prompts, &window_);
  const bool is_accepted = dialog.exec() == QDialog::Accepted;
  OpenChoice choice = dialog.Choice();
  last_folder_ = choice.folder;
  options_ = choice.options;
  if (!is_accepted) return std::nullopt;
  return choice;
}

bool BotCommands::TakeDraft(const Bot& bot) {
  if (!MayLoseChanges(kLoadQuestion)) return false;
  last_load_ = {};
  target_.reset();
  current_.Replace(bot, true, QStringLiteral("Restore it"));
  return true;
}

void BotCommands::ShowOpenSaveForm(int kind) {
  if (kind == kWholeBotKind && !MayLoseChanges(kLoadQuestion)) return;
  const std::optional<OpenChoice> choice = AskForFiles(kind, state_.lists.bots);
  if (!choice) return;
  if (kind == kSaveKind) {
    Save({.folder = choice->folder,
          .options = {.uses_layout = choice->options.saves_with_layout,
                      .makes_package = choice->options.makes_package}});
  } else {
    frmOpenBot_GiveBot(kind, *choice);
  }
}

std::optional<LoadedBot> BotCommands::Load(int kind, const OpenChoice& choice) {
  if (choice.bot_of_list) {
    const BotListEntry entry = state_.lists.bots.entries()[*choice.bot_of_list];
    return loader_.FromList(kind, entry, choice.options, current_.bot());
  }
  const fs::path file = choice.file.value_or("");
  std::optional<LoadedBot> loaded =
      loader_.FromFile(kind, file, choice.options, current_.bot());
  if (!loaded) {
    emit StatusText(
        QStringLiteral("%1 was not loaded: its name does not end as it should.")
            .arg(Shown(file.filename())));
  }
  return loaded;
}

void BotCommands::frmOpenBot_GiveBot(int kind, const OpenChoice& choice) {
  RecentBot source = {choice.file.value_or(""), {}};
  if (choice.bot_of_list) {
    const BotListEntry& entry =
        state_.lists.bots.entries()[*choice.bot_of_list];
    source = {PackageFolder(PathFromBytes(state_.settings.Q3Baseq3)) /
                  PathFromGameText(entry.PK3File),
              entry.Name};
  }
  Take(kind, Load(kind, choice), source);
}

std::optional<std::pair<Bot, QString>> BotCommands::LoadToCompare() {
  const std::optional<OpenChoice> choice =
      AskForFiles(kWholeBotKind, state_.lists.bots);
  if (!choice) return std::nullopt;
  std::optional<LoadedBot> loaded = Load(kWholeBotKind, *choice);
  if (!loaded || loaded->files_read == 0) return std::nullopt;
  QString title = ToQString(loaded->bot.Name());
  return std::pair(std::move(loaded->bot), std::move(title));
}

void BotCommands::Take(int kind, std::optional<LoadedBot> loaded,
                       const std::optional<RecentBot>& source) {
  if (!loaded) return;
  const bool is_whole = kind == kWholeBotKind;
  last_load_ = *std::move(loaded);
  // One file more makes a bot that no file holds.
  current_.Replace(
      last_load_.bot, !is_whole,
      is_whole ? QStringLiteral("Load %1").arg(ToQString(last_load_.bot.Name()))
               : QStringLiteral("Load a file"));
  if (is_whole) {
    target_.reset();
    on_disk_.Forget();
    if (source->name.empty()) {
      const bool is_in_layout = IsInLayout(source->path);
      const fs::path folder = source->path.parent_path();
      target_ =
          Target{is_in_layout ? folder.parent_path().parent_path() : folder,
                 {.uses_layout = is_in_layout, .makes_package = false}};
      on_disk_.Remember(
          TargetFiles(current_.bot(), target_->folder, target_->options));
    }
    if (last_load_.files_read > 0) recent_.Add(*source);
  }
  emit Loaded(last_load_.notes, !last_load_.plain_values.empty());
}

void BotCommands::OpenPath(const fs::path& path) {
  const fs::path whole = fs::absolute(path).lexically_normal();
  if (IsFolder(whole)) return OpenFolder(whole);
  const bool is_package =
      EndsWithIgnoringCase(BytesFromPath(whole.filename()), ".pk3");
  if (!IsFile(whole) || !(is_package || BotNameOfFile(whole))) {
    emit StatusText(QStringLiteral("%1 is no bot: give a folder, a *_c.c file "
                                   "or a *.pk3 package.")
                        .arg(Shown(whole)));
    return;
  }
  if (is_package) return OpenPackage(whole, {});
  if (!MayLoseChanges(kLoadQuestion)) return;
  OpenChoice choice;
  choice.file = whole;
  choice.options.loads_with_layout = IsInLayout(whole);
  frmOpenBot_GiveBot(kWholeBotKind, choice);
}

void BotCommands::OpenFolder(const fs::path& folder) {
  for (const fs::path& place : {folder, folder / kBotFilesFolder}) {
    const std::vector<fs::path> files =
        ListFiles(place, FileSuffix(BotFile::kCharacteristics));
    if (files.empty()) continue;
    last_folder_ = place;
    if (files.size() == 1) return OpenPath(place / files.front());
    return ShowOpenSaveForm(kWholeBotKind);
  }
  emit StatusText(QStringLiteral("There is no bot in %1.").arg(Shown(folder)));
}

void BotCommands::OpenPackage(const fs::path& package,
                              const std::string& wanted) {
  Notes notes;
  const Result<BotList> bots = BotsInPackage(package, notes);
  if (!bots) {
    state_.prompts.Show({.title = std::string(kProgramTitle),
                         .text = Describe(bots.error()),
                         .icon = MessageIcon::kExclamation});
    return;
  }
  if (bots->entries().empty()) {
    emit StatusText(
        QStringLiteral("There is no bot in %1.").arg(Shown(package)));
    return;
  }
  if (!MayLoseChanges(kLoadQuestion)) return;
  std::size_t place = bots->Find(wanted).value_or(0);
  OpenOptions options;
  if (wanted.empty() && bots->entries().size() > 1) {
    const std::optional<OpenChoice> choice = AskForFiles(kWholeBotKind, *bots);
    if (!choice) return;
    if (!choice->bot_of_list) return frmOpenBot_GiveBot(kWholeBotKind, *choice);
    place = *choice->bot_of_list;
    options = choice->options;
  }
  const BotListEntry& entry = bots->entries()[place];
  Take(kWholeBotKind,
       loader_.FromPackage(kWholeBotKind, entry, package, options,
                           current_.bot()),
       RecentBot{package, entry.Name});
}

void BotCommands::OpenRecent(const RecentBot& bot) {
  if (bot.name.empty()) {
    OpenPath(bot.path);
  } else {
    OpenPackage(bot.path, bot.name);
  }
}

void BotCommands::SaveAgain() {
  if (target_) {
    Save(Target(*target_));
  } else {
    ShowOpenSaveForm(kSaveKind);
  }
}

void BotCommands::Save(const Target& target) {
  const std::vector<fs::path> files =
      TargetFiles(current_.bot(), target.folder, target.options);
  const std::optional<fs::path> changed = on_disk_.FirstChanged(files);
  if (changed && !state_.prompts.Confirm(
                     std::string(kProgramTitle),
                     Utf8FromPath(*changed) +
                         " was changed by another program since the bot was "
                         "loaded. Do you want to overwrite it?")) {
    return;
  }
  const SavedBot saved = SaveBot(current_.bot(), target.folder, target.options,
                                 AuthorOf(state_.settings), state_.prompts);
  if (saved.counts_package) ++state_.settings.Bots;
  on_disk_.Remember(files);
  if (saved.written.size() >= files.size()) {
    target_ = target;
    recent_.Add({files.front(), {}});
    current_.SetChanged(false);
    emit StatusText(
        QStringLiteral("The bot was written to %1.").arg(Shown(target.folder)));
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
  current_.Replace(last_load_.bot, true,
                   QStringLiteral("Take the values as the game reads them"));
}

}  // namespace fragsmith
