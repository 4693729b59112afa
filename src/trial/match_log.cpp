#include "trial/match_log.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>
#include <utility>

#include "game/weapon_order.h"

namespace fragsmith {
namespace {

/// No line of the game is as long; what never ends is not kept.
constexpr std::size_t kMaxLineBytes = 4096;

struct NamedMeans {
  std::string_view means;
  std::string_view weapon;
  /// The weight of fighting with it; nothing where a bot has none, or where
  /// another row has it already.
  std::optional<ParameterId> usage = {};
};

constexpr std::array kMeans = {
    NamedMeans{"MOD_GAUNTLET", "gauntlet", kGauntletUsage},
    NamedMeans{"MOD_MACHINEGUN", "machinegun", kMachinegunUsage},
    NamedMeans{"MOD_SHOTGUN", "shotgun", kShotgunUsage},
    NamedMeans{"MOD_GRENADE", "grenade launcher", kGrenadeLauncherUsage},
    NamedMeans{"MOD_GRENADE_SPLASH", "grenade launcher"},
    NamedMeans{"MOD_ROCKET", "rocket launcher", kRocketLauncherUsage},
    NamedMeans{"MOD_ROCKET_SPLASH", "rocket launcher"},
    NamedMeans{"MOD_PLASMA", "plasma gun", kPlasmaUsage},
    NamedMeans{"MOD_PLASMA_SPLASH", "plasma gun"},
    NamedMeans{"MOD_RAILGUN", "railgun", kRailgunUsage},
    NamedMeans{"MOD_LIGHTNING", "lightning gun", kLightningUsage},
    NamedMeans{"MOD_BFG", "BFG", kBfgUsage},
    NamedMeans{"MOD_BFG_SPLASH", "BFG"},
    NamedMeans{"MOD_NAIL", "nailgun"},
    NamedMeans{"MOD_CHAINGUN", "chaingun"},
    NamedMeans{"MOD_PROXIMITY_MINE", "proximity launcher"},
    NamedMeans{"MOD_GRAPPLE", "grapple", kGrappleUsage},
    NamedMeans{"MOD_TELEFRAG", "telefrag"},
};

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

/// Takes a number, and the blanks before it, off the text.
std::optional<int> TakeNumber(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  int number = 0;
  const auto [end, error] =
      std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc()) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

/// Takes "m:ss " off the line.
std::optional<int> TakeTime(std::string_view& line) {
  constexpr int kMaxMinutes = 100'000;
  const std::optional<int> minutes = TakeNumber(line);
  if (!minutes || *minutes < 0 || *minutes > kMaxMinutes) return std::nullopt;
  if (!TakePrefix(line, ":")) return std::nullopt;
  const std::optional<int> seconds = TakeNumber(line);
  if (!seconds || *seconds < 0 || *seconds > 59) return std::nullopt;
  if (!TakePrefix(line, " ")) return std::nullopt;
  return *minutes * 60 + *seconds;
}

}  // namespace

int Sum(const Counts& counts) {
  int sum = 0;
  for (const auto& [name, count] : counts) sum += count;
  return sum;
}

std::string WeaponOfMeans(std::string_view means) {
  const auto* const found = std::find_if(
      kMeans.begin(), kMeans.end(),
      [means](const NamedMeans& named) { return named.means == means; });
  return std::string(found == kMeans.end() ? means : found->weapon);
}

std::string_view WeaponOfUsage(ParameterId usage) {
  const auto* const found = std::find_if(
      kMeans.begin(), kMeans.end(),
      [usage](const NamedMeans& named) { return named.usage == usage; });
  return found == kMeans.end() ? std::string_view() : found->weapon;
}

void MatchRecord::Add(LogEvent event) {
  if (Count(event)) events.push_back(std::move(event));
}

bool MatchRecord::Count(const LogEvent& event) {
  if (event.kind == LogEventKind::kKill) return CountKill(event);
  if (event.kind == LogEventKind::kExit) {
    has_exit = true;
    seconds = event.seconds;
    return true;
  }
  const auto found = players.find(event.client);
  if (found == players.end()) return false;
  PlayerRecord& player = found->second;
  switch (event.kind) {
    case LogEventKind::kItem:
      ++player.items[event.text];
      break;
    case LogEventKind::kSay:
      player.said.push_back(event.text);
      break;
    case LogEventKind::kAward:
      ++player.awards[event.text];
      break;
    case LogEventKind::kScore:
      player.score = event.number;
      ++scores;
      break;
    case LogEventKind::kKill:
    case LogEventKind::kExit:
      break;
  }
  return true;
}

bool MatchRecord::CountKill(const LogEvent& event) {
  const auto hit = players.find(event.victim);
  if (hit == players.end()) return false;
  PlayerRecord& player = hit->second;
  const auto other = players.find(event.client);
  if (event.client == event.victim) {
    ++player.suicides;
  } else if (other != players.end()) {
    const std::string weapon = WeaponOfMeans(event.text);
    ++other->second.kills[weapon];
    ++player.deaths[weapon];
    ++player.killed_by[event.client];
  } else if (event.client == kWorldClient) {
    ++player.falls;
  } else {
    return false;
  }
  return true;
}

void MatchLogReader::Read(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    const std::size_t room = kMaxLineBytes - rest_.size();
    rest_ += bytes.substr(0, std::min(end, room));
    if (end < bytes.size()) {
      if (rest_.ends_with('\r')) rest_.pop_back();
      TakeLine(std::exchange(rest_, {}));
    }
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
  }
}

void MatchLogReader::TakeLine(std::string_view line) {
  if (record_.is_over) return;
  const std::optional<int> time = TakeTime(line);
  if (!time) return;
  if (!record_.has_exit) record_.seconds = *time;
  if (TakePrefix(line, "InitGame:")) {
    // One that was broken off, as a warm-up is, does not count.
    if (record_.has_exit) {
      record_.is_over = true;
    } else {
      record_ = {};
    }
  } else if (TakePrefix(line, "ShutdownGame:")) {
    record_.is_over = record_.has_exit;
  } else if (TakePrefix(line, "ClientUserinfoChanged: ")) {
    TakeUserinfo(line);
  } else if (TakePrefix(line, "say: ") || TakePrefix(line, "sayteam: ")) {
    TakeSaid(line, *time);
  } else if (TakePrefix(line, "Award: ")) {
    TakeOfClient(LogEventKind::kAward, line, *time);
  } else if (TakePrefix(line, "score: ")) {
    TakeScore(line, *time);
  } else if (record_.has_exit) {
    return;  // Nothing that is done behind the end counts.
  } else if (TakePrefix(line, "Kill: ")) {
    TakeKill(line, *time);
  } else if (TakePrefix(line, "Item: ")) {
    TakeOfClient(LogEventKind::kItem, line, *time);
  } else if (TakePrefix(line, "Exit: ")) {
    record_.Add({.kind = LogEventKind::kExit,
                 .seconds = *time,
                 .text = std::string(line)});
  }
}

void MatchLogReader::TakeUserinfo(std::string_view rest) {
  const std::optional<int> client = TakeNumber(rest);
  if (!client || !TakePrefix(rest, " n\\")) return;
  record_.players[*client].name = rest.substr(0, rest.find('\\'));
}

void MatchLogReader::TakeKill(std::string_view rest, int seconds) {
  const std::optional<int> killer = TakeNumber(rest);
  const std::optional<int> victim = TakeNumber(rest);
  // Names may hold the words between them, but the means is the last one.
  constexpr std::string_view kBy = " by ";
  const std::size_t by = rest.rfind(kBy);
  if (!killer || !victim || by == std::string_view::npos) return;
  const std::string_view means = rest.substr(by + kBy.size());
  if (means.empty()) return;
  record_.Add({.kind = LogEventKind::kKill,
               .seconds = seconds,
               .client = *killer,
               .victim = *victim,
               .text = std::string(means)});
}

void MatchLogReader::TakeSaid(std::string_view rest, int seconds) {
  // A name may begin with another one and hold a colon.
  const std::pair<const int, PlayerRecord>* speaker = nullptr;
  for (const auto& player : record_.players) {
    const std::string& name = player.second.name;
    if (rest.starts_with(name + ": ") &&
        (speaker == nullptr || name.size() > speaker->second.name.size())) {
      speaker = &player;
    }
  }
  if (speaker == nullptr) return;
  const auto& [client, player] = *speaker;
  record_.Add({.kind = LogEventKind::kSay,
               .seconds = seconds,
               .client = client,
               .text = std::string(rest.substr(player.name.size() + 2))});
}

void MatchLogReader::TakeOfClient(LogEventKind kind, std::string_view rest,
                                  int seconds) {
  const std::optional<int> client = TakeNumber(rest);
  if (kind == LogEventKind::kAward) {
    // "0 1: NAME gained the EXCELLENT award!"
    constexpr std::string_view kBefore = " gained the ";
    const std::size_t before = rest.rfind(kBefore);
    if (before == std::string_view::npos) return;
    rest.remove_prefix(before + kBefore.size());
    rest = rest.substr(0, rest.rfind(" award"));
  } else if (!TakePrefix(rest, " ")) {
    return;
  }
  if (rest.empty()) return;
  record_.Add({.kind = kind,
               .seconds = seconds,
               .client = client.value_or(-1),
               .text = std::string(rest)});
}

void MatchLogReader::TakeScore(std::string_view rest, int seconds) {
  // "8  ping: 0  client: 0 NAME"
  const std::optional<int> score = TakeNumber(rest);
  constexpr std::string_view kClient = "client: ";
  const std::size_t at = rest.find(kClient);
  if (!record_.has_exit || !score || at == std::string_view::npos) return;
  rest.remove_prefix(at + kClient.size());
  record_.Add({.kind = LogEventKind::kScore,
               .seconds = seconds,
               .client = TakeNumber(rest).value_or(-1),
               .number = *score});
}

}  // namespace fragsmith
