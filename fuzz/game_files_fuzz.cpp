#include <algorithm>
#include <array>
#include <string>

#include "checks/file_checks.h"
#include "fuzz/oracle.h"

namespace fragsmith {
namespace {

BotFileSet GoodFiles() {
  const auto file = [](std::string name, std::string bytes) {
    return GameFile{name, "bots/" + name, std::move(bytes)};
  };
  const std::string character = StandInGameFile("bots/default_c.c").value();
  return {file("x.bot", "{ name x aifile bots/x_c.c }\n"),
          file("x_c.c", character), file("x_w.c", "weight \"a\" return 1;\n"),
          file("x_i.c", "weight \"a\" return 1;\n"),
          file("x_t.c", "chat \"default\" { }\n")};
}

/// The game's files, of the longest one only what the good files need.
std::optional<std::string> ShortGameFile(std::string_view path) {
  static const std::string character =
      StandInGameFile("bots/default_c.c").value();
  if (path == "chars.h") {
    return "#define CHARACTERISTIC_NAME 0\n#define CHARACTERISTIC_GENDER 1\n"
           "#define CHARACTERISTIC_WEAPONWEIGHTS 3\n"
           "#define CHARACTERISTIC_CHAT_FILE 21\n"
           "#define CHARACTERISTIC_CHAT_NAME 22\n"
           "#define CHARACTERISTIC_ITEMWEIGHTS 40\n";
  }
  if (path == "bots/default_c.c") return character;
  return StandInGameFile(path);
}

}  // namespace

// The first byte chooses one of a bot's files, the others are what it holds.
void FuzzOne(std::string_view bytes) {
  if (bytes.empty()) return;
  BotFileSet set = GoodFiles();
  const std::array<GameFile*, 5> files = {&*set.description, &*set.character,
                                          &*set.weapon_weights,
                                          &*set.item_weights, &*set.chat};
  GameFile& chosen =
      *files.at(static_cast<unsigned char>(bytes.front()) % files.size());
  chosen.bytes = bytes.substr(1);
  // The character of this set has the default's files for its own.
  set.weapon_weights->game_path = "bots/default_w.c";
  set.item_weights->game_path = "bots/default_i.c";
  set.chat->game_path = "bots/default_t.c";

  const auto lines =
      1 + std::count(chosen.bytes.begin(), chosen.bytes.end(), '\n');
  bool has_error = false;
  bool has_warning = false;
  for (const Finding& finding : CheckFiles(set, ShortGameFile)) {
    const auto& place = std::get<FilePlace>(finding.place);
    ExpectShowable(finding.text);
    Expect(!finding.id.empty() && !place.file.empty(),
           "a finding says what and where");
    if (place.file == chosen.name) {
      Expect(place.line <= lines, "the line is one of the file");
    }
    has_error = has_error || finding.severity == Severity::kError;
    has_warning = has_warning || finding.severity == Severity::kWarning;
  }
  for (const double skill : {2.0, 5.0}) {
    const Verdict verdict = VerdictAt(set, ShortGameFile, skill);
    // That it plays with another bot's files may be meant so.
    const bool is_told =
        verdict == Verdict::kWithOthers ? has_warning || has_error : has_error;
    Expect(verdict == Verdict::kAsWritten || is_told,
           "a finding tells why the bot is not as written");
  }
}

}  // namespace fragsmith
