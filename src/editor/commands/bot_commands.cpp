#include "editor/commands/bot_commands.h"

#include <algorithm>
#include <memory>
#include <system_error>
#include <utility>

#include "checks/bot_location.h"
#include "editor/dialogs/changes_dialog.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/shown_path.h"
#include "install/program/game_folder.h"
#include "session/bot_sources.h"
#include "session/presets.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr const char* kLoadQuestion =
    "The current bot has changed. Do want to load a new bot and lose unsaved "
    "work on this one?";

/// What a load by the dialog reads.
LoadedPart PartOf(OpenKind kind) {
  switch (kind) {
    case OpenKind::kCharacteristics:
      return BotFile::kCharacteristics;
    case OpenKind::kChat:
      return BotFile::kChat;
    case OpenKind::kItemWeights:
      return BotFile::kItemWeights;
    case OpenKind::kWeaponWeights:
      return BotFile::kWeaponWeights;
    case OpenKind::kLoadBot:
    case OpenKind::kSave:
    case OpenKind::kGameFolder:
    case OpenKind::kUnzipFolder:
    case OpenKind::kWorkFolder:
      break;
  }
  return WholeBot{};
}

std::string ModelOf(const Bot& bot) {
  return Localized("'%1'", {Utf8FromGameText(bot.Text(kModelField)) + "/" +
                            Utf8FromGameText(bot.Text(kSkinField))});
}

/// Tells when the user let the window give the bot another model.
void NoteOtherModel(const Bot& loaded, const Bot& shown, Notes& notes) {
  if (ModelOf(loaded) == ModelOf(shown)) return;
  notes.Add({.file = "model",
             .line = 0,
             .text = Localized("%1 is not in the list; the bot has %2 instead.",
                               {ModelOf(loaded), ModelOf(shown)})});
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
      loader_(state, window),
      saver_(current, state) {}

bool BotCommands::MayLoseChanges(const std::string& question) {
  return !current_.is_changed() ||
         state_.prompts.Confirm(std::string(kProgramTitle), question);
}

bool BotCommands::ShowNewBot(Bot bot, const QString& name) {
  if (!MayLoseChanges("The current bot has changed. Do you want to create a "
                      "new bot and lose unsaved work on this one?")) {
    return false;
  }
  current_.Replace(std::move(bot), false, name);
  emit Made();
  return true;
}

void BotCommands::CreateZeroBot() {
  ShowNewBot(fragsmith::CreateZeroBot(), tr("New bot, all zeros"));
}

void BotCommands::CreateAverageBot() {
  ShowNewBot(fragsmith::CreateAverageBot(state_.random),
             tr("New bot, average"));
}

void BotCommands::CreateBotOfKind(BotKind kind, const GameData* game) {
  const BotKindText& text = TextOf(kind);
  const auto seed = static_cast<std::uint32_t>(state_.random() * kSeedCount);
  const bool has_words = game != nullptr && !game->words.empty();
  Bot bot = fragsmith::CreateBotOfKind(kind, seed,
                                       has_words ? &game->words : nullptr);
  const auto caption = QString::fromStdString(Localized(text.caption));
  if (!ShowNewBot(std::move(bot), tr("New bot, %1").arg(caption))) {
    return;
  }
  emit StatusText(kind == BotKind::kSurprise
                      ? tr("%1: drawn with the seed %2.")
                            .arg(caption, QString::number(seed))
                      : caption + QStringLiteral(": ") +
                            QString::fromStdString(Localized(text.about)));
}

std::optional<OpenChoice> BotCommands::AskForFiles(OpenKind kind,
                                                   const BotList& bots) {
  if (last_folder_.empty()) {
    last_folder_ = state_.FirstFolder(state_.folder_state.CurrentFolder);
  }
  const BotSaver::Extras offer =
      kind == OpenKind::kSave ? saver_.Offer() : BotSaver::Extras();
  frmOpen dialog({.kind = kind,
                  .folder = last_folder_,
                  .options = options_,
                  .places = Places(),
                  .bots = &bots,
                  .bot_name = ToQString(current_.bot().Name()),
                  .offers_files = offer.keeps_files,
                  .offers_macros = offer.game_macros},
                 state_.prompts, &window_);
  const bool is_accepted = dialog.exec() == QDialog::Accepted;
  OpenChoice choice = dialog.Choice();
  last_folder_ = choice.folder;
  options_ = choice.options;
  if (!is_accepted) return std::nullopt;
  return choice;
}

FolderPlaces BotCommands::Places() const {
  return {.game = PathFromBytes(state_.settings.Q3Baseq3),
          .working = state_.FirstFolder(state_.folder_state.CurrentFolder),
          .recent = recent_.Folders()};
}

bool BotCommands::TakeDraft(const Draft& draft) {
  if (!MayLoseChanges(kLoadQuestion)) return false;
  current_.Replace(draft.bot, true, tr("Restore it"), draft.origin);
  return true;
}

void BotCommands::ShowOpenSaveForm(OpenKind kind) {
  if (kind == OpenKind::kLoadBot && !MayLoseChanges(kLoadQuestion)) return;
  const std::optional<OpenChoice> choice = AskForFiles(kind, state_.lists.bots);
  if (!choice) return;
  if (kind == OpenKind::kSave) {
    Tell(saver_.SaveTo(
        {.folder = choice->folder,
         .options = {.uses_layout = choice->options.saves_with_layout,
                     .makes_package = choice->options.makes_package}},
        // Where there is nothing of it, nothing comes of the tick.
        {.keeps_files = choice->options.keeps_files,
         .game_macros = choice->options.writes_game_macros}));
  } else {
    frmOpenBot_GiveBot(PartOf(kind), *choice);
  }
}

std::optional<LoadedBot> BotCommands::Load(const LoadedPart& part,
                                           const OpenChoice& choice) {
  if (choice.bot_of_list) {
    const BotListEntry entry = state_.lists.bots.entries()[*choice.bot_of_list];
    std::optional<LoadedBot> loaded =
        loader_.FromList(part, entry, choice.options, current_.bot());
    if (!loaded &&
        !FindPackage(PathFromBytes(state_.settings.Q3Baseq3), entry.PK3File)) {
      emit PackageMissing();
    }
    return loaded;
  }
  const fs::path file = choice.file.value_or("");
  std::optional<LoadedBot> loaded =
      loader_.FromFile(part, file, choice.options, current_.bot());
  if (!loaded) {
    // Other reasons were told in a box.
    const std::string_view fault = FaultOfName(
        std::holds_alternative<BotFile>(part) ? std::get<BotFile>(part)
                                              : BotFile::kCharacteristics,
        file);
    const QString name = ShownPath(file.filename());
    emit StatusText(fault.empty() ? tr("%1 was not loaded.").arg(name)
                                  : tr("%1 was not loaded: %2.")
                                        .arg(name, QString::fromStdString(
                                                       Localized(fault))));
  }
  return loaded;
}

void BotCommands::frmOpenBot_GiveBot(const LoadedPart& part,
                                     const OpenChoice& choice) {
  RecentBot source = {choice.file.value_or(""), {}};
  if (choice.bot_of_list) {
    const BotListEntry& entry =
        state_.lists.bots.entries()[*choice.bot_of_list];
    source = {PackageFolder(PathFromBytes(state_.settings.Q3Baseq3)) /
                  PathFromGameText(entry.PK3File),
              entry.Name};
  }
  Take(part, Load(part, choice), source);
}

std::optional<std::pair<Bot, QString>> BotCommands::LoadToCompare() {
  const std::optional<OpenChoice> choice =
      AskForFiles(OpenKind::kLoadBot, state_.lists.bots);
  if (!choice) return std::nullopt;
  std::optional<LoadedBot> loaded = Load(WholeBot{}, *choice);
  if (!loaded || loaded->files.empty()) return std::nullopt;
  QString title = ToQString(loaded->bot.Name());
  return std::pair(std::move(loaded->bot), std::move(title));
}

void BotCommands::Take(const LoadedPart& part, std::optional<LoadedBot> loaded,
                       const std::optional<RecentBot>& source) {
  if (!loaded) return;
  const bool is_whole = std::holds_alternative<WholeBot>(part);
  BotOrigin origin;
  if (is_whole) {
    origin.home->files = loaded->files;
    origin.home->load_options = loaded->options;
    origin.home->saved = std::make_shared<const Bot>(loaded->bot);
  } else {
    // The bot's own files are where they were.
    origin.home = current_.origin().home;
  }
  // One file more makes a bot that no file holds.
  current_.Replace(loaded->bot, !is_whole,
                   is_whole ? tr("Load %1").arg(ToQString(loaded->bot.Name()))
                            : tr("Load a file"),
                   origin);
  LoadReport report = ReportOf(*loaded, current_.bot());
  NoteOtherModel(loaded->bot, current_.bot(), report.notes);
  current_.SetReport(std::move(report));
  if (is_whole && !loaded->files.empty()) recent_.Add(*source);
  emit Loaded();
}

void BotCommands::OpenPath(const fs::path& path) {
  const fs::path whole = WholePath(path);
  if (IsFolder(whole)) return OpenFolder(whole);
  std::error_code reason;
  if (!fs::exists(whole, reason) && !reason) {
    emit StatusText(tr("%1 does not exist.").arg(ShownPath(whole)));
    return;
  }
  const bool is_package =
      EndsWithIgnoringCase(BytesFromPath(whole.filename()), kPackageEnd);
  if (!IsFile(whole) || !(is_package || BotNameOfFile(whole))) {
    emit StatusText(tr("%1 is no bot: give a folder, a *_c.c file "
                       "or a *.pk3 package.")
                        .arg(ShownPath(whole)));
    return;
  }
  if (is_package) return OpenPackage(whole, {});
  if (!MayLoseChanges(kLoadQuestion)) return;
  OpenChoice choice;
  choice.file = whole;
  choice.options.loads_with_layout = IsInLayout(whole);
  frmOpenBot_GiveBot(WholeBot{}, choice);
}

void BotCommands::OpenOfList(std::size_t bot) {
  if (!MayLoseChanges(kLoadQuestion)) return;
  OpenChoice choice;
  choice.bot_of_list = bot;
  frmOpenBot_GiveBot(WholeBot{}, choice);
}

void BotCommands::OpenFolder(const fs::path& folder) {
  for (const fs::path& inner : {folder, folder / kBotFilesFolder}) {
    const std::vector<fs::path> files =
        ListFiles(inner, FileSuffix(BotFile::kCharacteristics));
    if (files.empty()) continue;
    last_folder_ = inner;
    if (files.size() == 1) return OpenPath(inner / files.front());
    return ShowOpenSaveForm(OpenKind::kLoadBot);
  }
  TellNoBot(folder);
}

/// In a box where there is something to do about it.
void BotCommands::TellNoBot(const fs::path& path) {
  const QString text = tr("There is no bot in %1.").arg(ShownPath(path));
  const std::string why = WhyNoBots(path);
  if (why.empty()) {
    emit StatusText(text);
    return;
  }
  state_.prompts.Show({.title = std::string(kProgramTitle),
                       .text = text.toStdString() + ' ' + why,
                       .icon = MessageIcon::kExclamation});
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
    TellNoBot(package);
    return;
  }
  if (!MayLoseChanges(kLoadQuestion)) return;
  std::size_t index = bots->Find(wanted).value_or(0);
  OpenOptions options;
  if (wanted.empty() && bots->entries().size() > 1) {
    const std::optional<OpenChoice> choice =
        AskForFiles(OpenKind::kLoadBot, *bots);
    if (!choice) return;
    if (!choice->bot_of_list) return frmOpenBot_GiveBot(WholeBot{}, *choice);
    index = *choice->bot_of_list;
    options = choice->options;
  }
  const BotListEntry& entry = bots->entries()[index];
  Take(WholeBot{},
       loader_.FromPackage(WholeBot{}, entry, package, options, current_.bot()),
       RecentBot{package, entry.Name});
}

void BotCommands::FillRecentBots(QMenu& menu,
                                 const std::function<bool()>& store_typing) {
  menu.clear();
  for (const RecentBot& bot : recent_.Present()) {
    connect(menu.addAction(MenuText(bot)), &QAction::triggered, this,
            [this, store_typing, bot] {
              if (store_typing()) OpenRecent(bot);
            });
  }
  if (menu.isEmpty()) {
    menu.addAction(tr("(none)"))->setEnabled(false);
  }
}

void BotCommands::OpenRecent(const RecentBot& bot) {
  if (bot.name.empty()) {
    OpenPath(bot.path);
  } else {
    OpenPackage(bot.path, bot.name);
  }
}

void BotCommands::Open(const BotSource& source) {
  if (const auto* const bot = std::get_if<std::size_t>(&source)) {
    OpenOfList(*bot);
  } else {
    OpenRecent(std::get<RecentBot>(source));
  }
}

void BotCommands::Duplicate(const BotSource& source) {
  if (!MayLoseChanges(kLoadQuestion)) return;
  std::optional<Bot> bot = LoadAside(source);
  if (!bot) return;
  const QString name = ToQString(bot->Name());
  // Two of one name would be one to the game. An odd name stays to be mended.
  static_cast<void>(bot->SetParameter(kNameField, bot->Name() + "2"));
  current_.Replace(std::move(*bot), true, tr("Duplicate %1").arg(name));
  emit Made();
}

std::optional<Bot> BotCommands::LoadAside(const BotSource& source) {
  OpenChoice choice;
  std::optional<LoadedBot> loaded;
  const auto* const recent = std::get_if<RecentBot>(&source);
  if (recent == nullptr) {
    choice.bot_of_list = std::get<std::size_t>(source);
    loaded = Load(WholeBot{}, choice);
  } else if (recent->name.empty()) {
    choice.file = recent->path;
    choice.options.loads_with_layout = IsInLayout(recent->path);
    loaded = Load(WholeBot{}, choice);
  } else {
    Notes notes;
    const Result<BotList> bots = BotsInPackage(recent->path, notes);
    const auto index = bots ? bots->Find(recent->name) : std::nullopt;
    if (!index) {
      TellNoBot(recent->path);
      return std::nullopt;
    }
    loaded = loader_.FromPackage(WholeBot{}, bots->entries()[*index],
                                 recent->path, choice.options, current_.bot());
  }
  if (!loaded || loaded->files.empty()) return std::nullopt;
  return std::move(loaded->bot);
}

void BotCommands::SaveAgain() {
  if (const std::optional<BotSaver::Outcome> outcome = saver_.SaveAgain()) {
    Tell(*outcome);
  } else {
    ShowOpenSaveForm(OpenKind::kSave);
  }
}

void BotCommands::ShowChanges() {
  frmChanges(ToQString(saver_.Changes()), &window_).exec();
}

void BotCommands::Tell(const BotSaver::Outcome& outcome) {
  if (outcome.saved) recent_.Add({*outcome.saved, {}});
  emit Saved(outcome.notes);
  emit StatusText(outcome.text.isEmpty() ? tr("The bot was not saved.")
                                         : outcome.text);
}

void BotCommands::TakeValuesAsGame() {
  const LoadReport& report = *current_.origin().report;
  current_.Edit({.text = tr("Take the values as the game reads them"),
                 .place = {},
                 .merges = false},
                [this, &report](Bot& bot) {
                  fragsmith::TakeValuesAsGame(bot, report, state_.lists.models);
                });
}

}  // namespace fragsmith
