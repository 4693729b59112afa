#include <algorithm>
#include <array>
#include <cstddef>
#include <nlohmann/json.hpp>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "session/json_format.h"
#include "support/code_page.h"
#include "trial/ladder.h"
#include "trial/match_report.h"

namespace fragsmith {
namespace {

using Json = nlohmann::ordered_json;

struct NamedKind {
  LogEventKind kind;
  const char* name;
};

constexpr std::array kKinds = {
    NamedKind{LogEventKind::kKill, "kill"},
    NamedKind{LogEventKind::kItem, "item"},
    NamedKind{LogEventKind::kSay, "say"},
    NamedKind{LogEventKind::kAward, "award"},
    NamedKind{LogEventKind::kExit, "exit"},
    NamedKind{LogEventKind::kScore, "score"},
};

constexpr std::array<const char*, 4> kSettledNames = {"open", "better", "worse",
                                                      "near"};

Json InJson(const Estimate& estimate) {
  Json json = {{"value", estimate.value}, {"low", nullptr}, {"high", nullptr}};
  if (estimate.interval) {
    json["low"] = estimate.interval->low;
    json["high"] = estimate.interval->high;
  }
  return json;
}

Json InJson(const Counts& counts) {
  Json json = Json::object();
  for (const auto& [name, count] : counts) json[Utf8FromGameText(name)] = count;
  return json;
}

Json InJson(const LogEvent& event) {
  Json json = {{"seconds", event.seconds}};
  for (const NamedKind& named : kKinds) {
    if (named.kind == event.kind) json["event"] = named.name;
  }
  // The world is nobody.
  if (event.client >= 0 && event.client != kWorldClient) {
    json["bot"] = event.client;
  }
  if (event.victim >= 0) json["victim"] = event.victim;
  if (event.kind == LogEventKind::kScore) {
    json["score"] = event.number;
  } else {
    json["text"] = Utf8FromGameText(event.text);
  }
  return json;
}

Json BotInJson(const MatchReport& report, std::size_t bot,
               const BotFigures& figures) {
  const BotSums sums = SumsOf(report, bot);
  Json seconds_per_item = Json::object();
  for (const auto& [item, seconds] : SecondsPerItem(report, bot)) {
    seconds_per_item[Utf8FromGameText(item)] = seconds;
  }
  return {{"name", ShownNames(report.plan.bots)[bot]},
          {"source", report.sources[bot]},
          {"skill", report.plan.bots[bot].skill},
          {"score", sums.score},
          {"share", InJson(figures.share)},
          {"fragsPerMinute", InJson(figures.frags_a_minute)},
          {"deathsPerMinute", InJson(figures.deaths_a_minute)},
          {"kills", InJson(sums.kills)},
          {"deaths", InJson(sums.deaths)},
          {"killedBy", InJson(sums.killed_by)},
          {"suicides", sums.suicides},
          {"falls", sums.falls},
          {"items", InJson(sums.items)},
          {"secondsPerItem", std::move(seconds_per_item)},
          {"awards", InJson(sums.awards)},
          {"said", InJson(sums.said)}};
}

Json ComparisonsInJson(const MatchReport& report,
                       const std::vector<MatchTally>& tallies) {
  const std::vector<std::string> names = ShownNames(report.plan.bots);
  const std::vector<Pairing> pairings = PairingsOf(names.size());
  Json comparisons = Json::array();
  for (std::size_t at = 0; at < pairings.size(); ++at) {
    const auto& [bot, other] = pairings[at];
    const Comparison comparison =
        Compare(tallies, bot, other, static_cast<int>(pairings.size()));
    Json json = {{"bot", names[bot]},
                 {"other", names[other]},
                 {"share", InJson(comparison.share)}};
    if (report.tests.empty()) {
      const char* difference = "none";
      if (comparison.difference == Difference::kBetter) difference = "better";
      if (comparison.difference == Difference::kWorse) difference = "worse";
      json["difference"] = difference;
    } else {
      // Who looks after each match must not believe the other comparison.
      const SequentialTest& test = report.tests[at];
      json["settled"] =
          kSettledNames.at(static_cast<std::size_t>(test.settled()));
      json["settledAfter"] = test.matches();
    }
    comparisons.push_back(std::move(json));
  }
  return comparisons;
}

/// The steps from one version to the next. The first wrote no version.
constexpr std::array kMigrations = {
    Migration{0, [](nlohmann::json& /*report*/) {}},
};
static_assert(HasNoGap(kMigrations));

/// Reads one object.
class ReportReader {
 public:
  ReportReader(const std::string& file, Notes& notes)
      : file_(file), notes_(notes) {}

  MatchReport Read(nlohmann::json json) {
    UnknownKeys unknown = {.are_slips = false, .file = file_, .notes = notes_};
    BringUpToDate(json, kMigrations, unknown);
    MatchReport report;
    MeetOthers(json, {"maps", "minutes", "bots", "comparisons", "matches"}, "");
    report.plan.minutes = json.at("minutes").get<int>();
    std::vector<std::string> names;
    for (const nlohmann::json& bot : json.at("bots")) {
      MeetOthers(bot,
                 {"name", "source", "skill", "score", "share", "fragsPerMinute",
                  "deathsPerMinute", "kills", "deaths", "killedBy", "suicides",
                  "falls", "items", "secondsPerItem", "awards", "said"},
                 "bots");
      names.push_back(bot.at("name").get<std::string>());
      report.sources.push_back(bot.at("source").get<std::string>());
      report.plan.bots.push_back(
          {.name = names.back(), .skill = bot.at("skill").get<double>()});
    }
    if (names.size() < 2) RefuseField("bots", "there are fewer than two.");
    for (const nlohmann::json& match : json.at("matches")) {
      report.played.push_back(PlayedOf(match, names));
      report.plan.maps.push_back(report.played.back().map);
    }
    if (report.played.empty()) RefuseField("matches", "there is none.");
    std::vector<std::string>& maps = report.plan.maps;
    std::sort(maps.begin(), maps.end());
    maps.erase(std::unique(maps.begin(), maps.end()), maps.end());
    return report;
  }

 private:
  /// Each bot, match and event has the same keys: one is told once.
  void MeetOthers(const nlohmann::json& json,
                  const std::vector<std::string_view>& known,
                  const std::string& path) {
    Notes met;
    const UnknownKeys unknown = {
        .are_slips = false, .file = file_, .notes = met};
    unknown.MeetOthers(json, known, path);
    for (const Note& note : met.list()) {
      if (told_.insert(note.text).second) notes_.Add(note);
    }
  }

  LogEvent EventOf(const nlohmann::json& json) {
    MeetOthers(json, {"seconds", "event", "bot", "victim", "score", "text"},
               "matches.events");
    LogEvent event;
    const std::string name = json.at("event").get<std::string>();
    bool is_known = false;
    for (const NamedKind& named : kKinds) {
      if (name != named.name) continue;
      event.kind = named.kind;
      is_known = true;
    }
    if (!is_known) RefuseField("event", "there is no event " + name + ".");
    event.seconds = json.at("seconds").get<int>();
    event.victim = json.value("victim", -1);
    const bool is_of_world = event.kind == LogEventKind::kKill;
    event.client = json.value("bot", is_of_world ? kWorldClient : -1);
    event.number = json.value("score", 0);
    event.text =
        GameTextFromUtf8(json.value("text", std::string())).value_or("?");
    return event;
  }

  PlayedMatch PlayedOf(const nlohmann::json& json,
                       const std::vector<std::string>& names) {
    MeetOthers(json, {"map", "seconds", "scores", "events"}, "matches");
    PlayedMatch played;
    const std::string map = json.at("map").get<std::string>();
    played.map = GameTextFromUtf8(map).value_or(map);
    for (const std::string& name : names) {
      const int number = static_cast<int>(played.record.players.size());
      played.record.players[number].name = name;
    }
    if (!json.contains("events")) {
      RefuseField("matches", "the events are missing.",
                  "Let \"match\" print them with --json --events.");
    }
    for (const nlohmann::json& event : json.at("events")) {
      played.record.Add(EventOf(event));
    }
    if (!played.record.IsWhole()) {
      RefuseField("matches", "a match has no end or lacks scores.");
    }
    return played;
  }

  const std::string& file_;
  Notes& notes_;
  std::set<std::string> told_;
};

/// Takes the first of several objects behind each other off the text, up to
/// its last brace.
std::string_view TakeObject(std::string_view& text) {
  int depth = 0;
  bool is_in_text = false;
  std::size_t at = 0;
  for (bool has_ended = false; at < text.size() && !has_ended; ++at) {
    const char sign = text[at];
    if (is_in_text) {
      if (sign == '\\') ++at;
      is_in_text = sign != '"';
    } else if (sign == '"') {
      is_in_text = true;
    } else if (sign == '{') {
      ++depth;
    } else if (sign == '}') {
      has_ended = --depth <= 0;
    }
  }
  const std::string_view object = text.substr(0, std::min(at, text.size()));
  text.remove_prefix(object.size());
  text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
  return object;
}

std::string TextOf(const Json& json) {
  constexpr int kIndent = 2;
  return json.dump(kIndent, ' ', false, Json::error_handler_t::replace) + '\n';
}

}  // namespace

std::string WriteMatchJson(const MatchReport& report, bool with_events) {
  const std::vector<MatchTally> tallies = TalliesOf(report);
  const std::vector<BotFigures> figures = FiguresOf(tallies);
  Json maps = Json::array();
  for (const std::string& map : report.plan.maps) {
    maps.push_back(Utf8FromGameText(map));
  }
  Json bots = Json::array();
  for (std::size_t bot = 0; bot < figures.size(); ++bot) {
    bots.push_back(BotInJson(report, bot, figures[bot]));
  }
  Json matches = Json::array();
  for (const PlayedMatch& played : report.played) {
    Json scores = Json::array();
    for (std::size_t bot = 0; bot < figures.size(); ++bot) {
      scores.push_back(played.Player(bot).score);
    }
    Json match = {{"map", Utf8FromGameText(played.map)},
                  {"seconds", played.record.seconds},
                  {"scores", std::move(scores)}};
    if (with_events) {
      Json& events = match["events"] = Json::array();
      for (const LogEvent& event : played.record.events) {
        events.push_back(InJson(event));
      }
    }
    matches.push_back(std::move(match));
  }
  return TextOf({{kFormatKey, FormatBehind(kMigrations)},
                 {"maps", std::move(maps)},
                 {"minutes", report.plan.minutes},
                 {"bots", std::move(bots)},
                 {"comparisons", ComparisonsInJson(report, tallies)},
                 {"matches", std::move(matches)}});
}

std::string WriteLadderJson(const std::vector<MatchReport>& reports) {
  Json bots = Json::array();
  for (const LadderBot& bot : LadderOf(reports)) {
    bots.push_back({{"name", bot.name},
                    {"source", bot.source},
                    {"skill", bot.skill},
                    {"rating", InJson(bot.rating)},
                    {"score", bot.points},
                    {"matches", bot.matches}});
  }
  Json pairs = Json::array();
  for (const MatchReport& report : reports) {
    Json scores = Json::array();
    for (const PlayedMatch& played : report.played) {
      scores.push_back({played.Player(0).score, played.Player(1).score});
    }
    pairs.push_back({{"bot", report.sources[0]},
                     {"other", report.sources[1]},
                     {"share", InJson(Compare(TalliesOf(report), 0, 1).share)},
                     {"scores", std::move(scores)}});
  }
  return TextOf({{kFormatKey, FormatBehind(kMigrations)},
                 {"minutes", reports.front().plan.minutes},
                 {"ladder", std::move(bots)},
                 {"pairs", std::move(pairs)}});
}

Result<std::vector<MatchReport>> ReadMatchJson(std::string_view text,
                                               const std::string& file,
                                               Notes& notes) {
  ReportReader reader(file, notes);
  std::vector<MatchReport> reports;
  do {
    Result<MatchReport> report =
        ReadJson(TakeObject(text), file, [&reader](nlohmann::json json) {
          return reader.Read(std::move(json));
        });
    if (!report) return Failure(report.error());
    reports.push_back(std::move(*report));
  } while (!text.empty());
  return reports;
}

}  // namespace fragsmith
