#include "trial/match.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

#include "chat/vocabulary.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"
#include "support/numbers.h"
#include "support/temporary_folder.h"
#include "support/text.h"
#include "trial/game_trial.h"
#include "trial/trial_reader.h"
#include "trial/trial_run.h"

namespace fragsmith {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kCommandsFile = "match.cfg";
constexpr std::string_view kLogFile = "games.log";

/// No match runs slower than a game with people does, but for its start.
constexpr std::chrono::minutes kMaxStart(2);
constexpr int kMaxMinutes = 24 * 60;

/// Without quotes, which would end the quoted text that it becomes.
std::string Quoted(std::string text) {
  std::erase_if(text, [](char letter) {
    return letter == '"' || letter == '\n' || letter == '\r';
  });
  return '"' + text + '"';
}

Error Trouble(std::string what, const std::vector<std::string>& last_lines) {
  constexpr std::size_t kShownLines = 3;
  const std::size_t first =
      last_lines.size() - std::min(last_lines.size(), kShownLines);
  std::string shown;
  for (std::size_t line = first; line < last_lines.size(); ++line) {
    if (line > first) shown += " / ";
    shown += last_lines[line];
  }
  if (first < last_lines.size()) {
    what += " " + Localized("It printed last: %1", {shown});
  }
  return {.what = std::move(what),
          .file = {},
          .line = 0,
          .advice = Localized(
              "fragsmith-cli try shows what the game makes of a bot.")};
}

/// The first line that speaks of the text and has one of the words in it.
std::optional<std::string> LineAbout(const std::string& printed,
                                     const std::string& text,
                                     std::string_view word) {
  LineReader lines(printed);
  while (const std::optional<std::string_view> line = lines.Next()) {
    if (Contains(*line, text) && Contains(*line, word)) {
      return Utf8FromGameText(*line);
    }
  }
  return std::nullopt;
}

/// A log while a server writes it.
class GrowingLog {
 public:
  explicit GrowingLog(fs::path path) : path_(std::move(path)) {}

  /// Reads what is new; false when there is nothing.
  bool Read() {
    if (!file_.is_open()) file_.open(path_, std::ios::binary);
    bool has_grown = false;
    std::array<char, 65536> piece{};
    while (file_.is_open() && read_ < kMaxOutputBytes) {
      file_.clear();
      file_.read(piece.data(), piece.size());
      const auto count = static_cast<std::size_t>(file_.gcount());
      if (count == 0) break;
      reader_.Read({piece.data(), count});
      read_ += count;
      has_grown = true;
    }
    return has_grown;
  }

  bool IsEndless() const { return read_ >= kMaxOutputBytes; }
  const MatchRecord& record() const { return reader_.record(); }

 private:
  fs::path path_;
  std::ifstream file_;
  std::uintmax_t read_ = 0;
  MatchLogReader reader_;
};

/// Finds the players of the bots and looks whether the game took these as they
/// are: their numbers.
Result<std::vector<int>> Settle(const Match& match, const MatchRecord& record,
                                const std::string& printed) {
  std::vector<int> clients;
  const std::vector<std::string> names = ShownNames(match.bots);
  for (std::size_t bot = 0; bot < names.size(); ++bot) {
    const std::string folder = MatchFolder(bot) + "/";
    if (const std::optional<std::string> line =
            LineAbout(printed, folder, "default skill")) {
      return Failure(
          Trouble(Localized("%1 plays with the game's default character in "
                            "place of its own.",
                            {names[bot]}),
                  {*line}));
    }
    const auto player = std::find_if(
        record.players.begin(), record.players.end(),
        [&](const auto& one) { return one.second.name == names[bot]; });
    if (player == record.players.end()) {
      std::optional<std::string> line = LineAbout(printed, folder, "rror");
      if (!line) line = LineAbout(printed, match.bots[bot].name, "not defined");
      return Failure(
          Trouble(Localized("The game did not add %1.", {names[bot]}),
                  line ? std::vector{*line} : std::vector<std::string>()));
    }
    clients.push_back(player->first);
  }
  return clients;
}

/// The same with the indices of the bots as the numbers of the players.
MatchRecord ByPlaces(const MatchRecord& record,
                     const std::vector<int>& clients) {
  std::map<int, int> indices;
  MatchRecord by_index;
  for (const int client : clients) {
    const int index = static_cast<int>(indices.size());
    indices[client] = index;
    by_index.players[index].name = record.players.at(client).name;
  }
  const auto index_of = [&indices](int client) {
    const auto found = indices.find(client);
    // Others than the bots are nobody.
    if (found == indices.end()) return client == kWorldClient ? client : -1;
    return found->second;
  };
  for (LogEvent event : record.events) {
    event.client = index_of(event.client);
    event.victim = index_of(event.victim);
    by_index.Add(std::move(event));
  }
  return by_index;
}

}  // namespace

/// The engine, its log and its clock.
class MatchInPlay::Game {
 public:
  static Result<std::unique_ptr<Game>> Start(Match match,
                                             const MatchServer& server) {
    auto game = std::make_unique<Game>();
    const Result<void> done = game->Open(std::move(match), server);
    if (!done) return Failure(done.error());
    return game;
  }

  bool HasEnded() {
    using std::chrono::steady_clock;
    // What it wrote before it went is read all the same.
    const bool is_running = run_->IsRunning();
    const auto now = steady_clock::now();
    if (log_->Read()) last_growth_ = now;
    Listen();
    if (run_->IsEndless() || log_->IsEndless()) {
      trouble_ = Localized("The engine prints without end.");
      return true;
    }
    if (words_.dead_end() && !record().IsWhole()) return true;
    const std::chrono::minutes minutes(match_.minutes > 0 ? match_.minutes
                                                          : kMaxMinutes);
    const bool hangs = now - last_growth_ > longest_silence_ ||
                       now - start_ > minutes + kMaxStart;
    if (is_running && !hangs && !record().is_over) return false;
    // When the scores are there, it does not matter how it ends.
    if (record().IsWhole()) return true;
    trouble_ = hangs ? Localized("The engine hangs.")
                     : Localized("The engine ended before the match was over.");
    return true;
  }

  std::variant<PlayedMatch, MatchFailure> Finish() {
    run_->End();
    Listen();
    if (words_.dead_end() && !record().IsWhole()) {
      return MatchFailure{
          .error = {.what = Localized("The engine plays nothing: %1.",
                                      {words_.dead_end()->text}),
                    .file = {},
                    .line = 0,
                    .advice = words_.dead_end()->sentence},
          .may_go_well_again = false};
    }
    if (!trouble_.empty()) {
      return MatchFailure{
          .error = Trouble(std::move(trouble_), words_.LastLines()),
          .may_go_well_again = true};
    }
    const Result<std::vector<int>> clients = Settle(match_, record(), printed_);
    if (!clients) {
      return MatchFailure{.error = clients.error(), .may_go_well_again = false};
    }
    return PlayedMatch{.map = match_.map,
                       .record = ByPlaces(record(), *clients)};
  }

  const MatchRecord& record() const { return log_->record(); }

 private:
  Result<void> Open(Match match, const MatchServer& server) {
    match_ = std::move(match);
    longest_silence_ = server.longest_silence;
    const Result<fs::path> home = temporary_.GetTempFolder();
    if (!home) return Failure(home.error());
    TrialSetup setup;
    setup.engine = server.engine;
    setup.data = server.data;
    setup.home = *home;
    setup.game = server.game;
    setup.is_dedicated = true;
    Result<void> done = MakePathsPlain(setup);
    if (!done) return done;
    const fs::path folder = setup.home / kTrialFolder;
    std::error_code reason;
    fs::create_directories(folder, reason);
    done = PutMatchBots(match_.bots, folder);
    if (done) done = SaveFile(folder / kCommandsFile, MatchCommands(match_));
    if (!done) return done;
    log_.emplace(folder / kLogFile);
    Result<TrialRun> run = TrialRun::Start(
        setup, MatchArguments(setup, std::string(kCommandsFile)));
    if (!run) return Failure(run.error());
    run_.emplace(std::move(*run));
    start_ = last_growth_ = std::chrono::steady_clock::now();
    return {};
  }

  /// Takes what the server printed since; a bound keeps one that babbles from
  /// the memory.
  void Listen() {
    for (std::string_view more = run_->ReadMore();
         !more.empty() && printed_.size() < kMaxOutputBytes;
         more = run_->ReadMore()) {
      printed_ += more;
      words_.Read(more);
    }
  }

  TemporaryFolder temporary_;  ///< Goes last.
  Match match_;
  std::chrono::milliseconds longest_silence_{};
  std::optional<GrowingLog> log_;
  std::optional<TrialRun> run_;
  std::chrono::steady_clock::time_point start_;
  std::chrono::steady_clock::time_point last_growth_;
  std::string printed_;
  TrialReader words_{TrialSetup(), {}, {}};
  std::string trouble_;
};

MatchInPlay::MatchInPlay(std::unique_ptr<Game> game) : game_(std::move(game)) {}
MatchInPlay::~MatchInPlay() = default;

Result<std::unique_ptr<MatchInPlay>> MatchInPlay::Start(
    Match match, const MatchServer& server) {
  Result<std::unique_ptr<Game>> game = Game::Start(std::move(match), server);
  if (!game) return Failure(game.error());
  return std::unique_ptr<MatchInPlay>(new MatchInPlay(std::move(*game)));
}

bool MatchInPlay::HasEnded() { return game_->HasEnded(); }
const MatchRecord& MatchInPlay::record() const { return game_->record(); }
std::variant<PlayedMatch, MatchFailure> MatchInPlay::Finish() {
  return game_->Finish();
}

std::string MatchCommands(const Match& match) {
  std::string commands;
  const auto add = [&commands](const std::string& line) {
    commands += line + "\n";
  };
  const auto set = [&add](const std::string& name, const std::string& value) {
    add("set " + name + " " + value);
  };
  set("g_log", std::string(kLogFile));
  set("g_logsync", "1");
  set("g_gametype", "0");
  set("g_doWarmup", "0");
  set("bot_enable", "1");
  set("bot_minplayers", "0");
  set("timelimit", std::to_string(match.minutes));
  set("fraglimit", std::to_string(match.frag_limit));
  // Frames of a millisecond, fifty times as long, are those of a real game.
  set("sv_fps", "1000");
  add("devmap " + Quoted(match.map));
  // A map puts these back. The fixed time makes each turn of the engine one
  // frame: when a turn takes more than its millisecond, the engine would make
  // up for it by frames in which the bots do not think.
  set("timescale", "50");
  set("fixedtime", "50");
  set("nextmap", "quit");
  const std::vector<std::string> names = ShownNames(match.bots);
  for (std::size_t count = 0; count < names.size(); ++count) {
    const std::size_t bot = (match.seed + count) % names.size();
    add("addbot " + Quoted(NameToAdd(match.bots[bot], bot)) + " " +
        PlainDecimal(match.bots[bot].skill, kFloatDigits) + " free 0 " +
        Quoted(names[bot]));
  }
  return commands;
}

MatchTally TallyOf(const PlayedMatch& played) {
  constexpr double kSecondsInMinute = 60;
  MatchTally tally;
  tally.minutes = played.record.seconds / kSecondsInMinute;
  for (std::size_t bot = 0; bot < played.record.players.size(); ++bot) {
    const PlayerRecord& player = played.Player(bot);
    tally.bots.push_back({.score = player.score,
                          .frags = Sum(player.kills),
                          .deaths = player.Deaths()});
  }
  return tally;
}

}  // namespace fragsmith
