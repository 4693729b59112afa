#ifndef FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_
#define FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "checks/bot_on_disk.h"
#include "checks/file_checks.h"
#include "game/given_files.h"
#include "install/packages/package_writer.h"
#include "support/text.h"

namespace fragsmith {

/// A line of engine_cases.tsv, which explains the columns.
struct EngineCase {
  std::string verdicts;
  std::string part;
  std::string fallback;
  std::string title;
  std::string find;
  std::string put;
  /// What the game says first, with the file by its part.
  std::string message = {};
  /// Part, find and put of further changes.
  std::vector<std::array<std::string, 3>> more = {};

  /// The default character in force, without what stands behind it.
  std::string Fallback() const {
    return fallback.substr(0, fallback.find(','));
  }
  bool Is(std::string_view word) const {
    return Contains(fallback, "," + std::string(word));
  }
};

inline constexpr std::array<double, 4> kEngineSkills = {1, 2, 4, 5};

inline std::string WithoutEscapes(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::string_view rest = text.substr(at);
    if (rest.starts_with("\\x")) {
      plain += static_cast<char>(
          std::stoi(std::string(rest.substr(2, 2)), nullptr, 16));
      at += 3;
    } else if (rest[0] == '\\') {
      constexpr std::string_view kLetters = "nrt\\";
      plain += "\n\r\t\\"[kLetters.find(rest.at(1))];
      ++at;
    } else if (const std::size_t end = rest.find('%', 1);
               rest[0] == '%' && end != std::string_view::npos) {
      plain.append(std::stoul(std::string(rest.substr(1, end - 1))), 'a');
      at += end;
    } else {
      plain += rest[0];
    }
  }
  return plain;
}

inline std::vector<EngineCase> ReadEngineCases(
    const std::filesystem::path& path) {
  std::vector<EngineCase> cases;
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('#')) continue;
    std::istringstream columns(line);
    EngineCase one;
    for (std::string* const column :
         {&one.verdicts, &one.part, &one.fallback, &one.title, &one.find,
          &one.put, &one.message}) {
      std::getline(columns, *column, '\t');
    }
    for (std::array<std::string, 3> change;
         std::getline(columns, change[0], '\t');) {
      std::getline(columns, change[1], '\t');
      std::getline(columns, change[2], '\t');
      one.more.push_back(change);
    }
    cases.push_back(one);
  }
  return cases;
}

inline std::string ReplaceAll(std::string text, std::string_view old,
                              std::string_view now) {
  for (std::size_t at = text.find(old); at != std::string::npos;
       at = text.find(old, at + now.size())) {
    text.replace(at, old.size(), now);
  }
  return text;
}

/// The files of a good bot, by what their names end with.
inline std::map<std::string, std::string> GoodBot() {
  std::map<std::string, std::string> files;
  files["bot"] = "{\nname\tbotx\nmodel\tsarge\naifile\tbots/botx_c.c\n}\n";
  std::string& character = files["c"];
  character = "#include \"chars.h\"\n";
  for (const auto& [level, skill] :
       {std::pair("1", "0.5"), std::pair("4", "0.7"), std::pair("5", "0.9")}) {
    character += "skill " + std::string(level) +
                 "\n{\n"
                 "\tCHARACTERISTIC_NAME \"botx\"\n"
                 "\tCHARACTERISTIC_GENDER \"male\"\n"
                 "\tCHARACTERISTIC_ATTACK_SKILL " +
                 skill +
                 "\n\tCHARACTERISTIC_CHAT_FILE \"bots/botx_t.c\"\n"
                 "\tCHARACTERISTIC_CHAT_NAME \"botx\"\n"
                 "\tCHARACTERISTIC_WEAPONWEIGHTS \"bots/botx_w.c\"\n"
                 "\tCHARACTERISTIC_ITEMWEIGHTS \"bots/botx_i.c\"\n"
                 "\tCHARACTERISTIC_REACTIONTIME 0.5\n}\n";
  }
  files["w"] = files["i"] = "#include \"inv.h\"\n";
  const auto define = [&](const std::string& file, const std::string& name,
                          std::string_view value) {
    files[file] += "#define " + name + " " + std::string(value) + "\n";
  };
  const std::array<std::string, 8> weapons = {
      "SHOTGUN", "MACHINEGUN", "GRENADELAUNCHER", "ROCKETLAUNCHER",
      "RAILGUN", "BFG10K",     "LIGHTNING",       "PLASMAGUN"};
  define("w", "W_GAUNTLET", "10");
  define("w", "W_GRAPPLE", "1");
  define("i", "FS_HEALTH", "2.0");
  define("i", "FS_ARMOR", "2.0");
  for (const std::string& weapon : weapons) {
    define("w", "W_" + weapon, weapon == "RAILGUN" ? "60" : "40");
    define("i", "W_" + weapon, "100");
    define("i", "GWW_" + weapon, "50");
  }
  for (const char* const item :
       {"W_TELEPORTER", "W_MEDKIT", "W_QUAD", "W_ENVIRO", "W_HASTE",
        "W_INVISIBILITY", "W_REGEN", "W_FLIGHT", "FLAG_WEIGHT"}) {
    define("i", item, "100");
  }
  files["w"] += "#include \"fw_weap.c\"\n";
  files["i"] += "#include \"fw_items.c\"\n";
  files["t"] =
      "chat \"botx\"\n{\n\t#include \"teamplay.h\"\n\ttype \"game_enter\"\n"
      "\t{\n\t\t\"hello \", 0, \"!\";\n\t\tHELLO1;\n\t}\n"
      "\ttype \"death_rail\"\n\t{\n\t\t\"bye\";\n\t}\n}\n";
  return files;
}

/// Changes a file, or makes a new one. False when there is nothing to change.
inline bool ChangeFile(const std::string& part, const std::string& as_found,
                       const std::string& as_put,
                       std::map<std::string, std::string>& files) {
  const std::string find = WithoutEscapes(as_found);
  const std::string put = WithoutEscapes(as_put);
  if (as_put == "!") {
    files.erase(part);
    return true;
  }
  std::string& text = files[part];
  if (find.empty()) {
    text = put + text;
  } else if (find == "$") {
    text += put;
  } else if (find == "$$") {
    text.replace(text.rfind('}'), 1, put);
  } else if (find == "*") {
    text = put;
  } else if (find == "\n") {
    text = ReplaceAll(text, find, put);
  } else {
    const std::size_t at = text.find(find);
    if (at == std::string::npos) return false;
    text.replace(at, find.size(), put);
  }
  return true;
}

/// The good bot with the changes of a case, under a name of its own. False when
/// there is nothing to change. Parts that are paths in the game come with it.
inline bool MakeEngineCase(const EngineCase& one, const std::string& name,
                           std::map<std::string, std::string>& files) {
  files = GoodBot();
  if (!ChangeFile(one.part, one.find, one.put, files)) return false;
  for (const auto& [part, find, put] : one.more) {
    if (!ChangeFile(part, find, put, files)) return false;
  }
  std::string in_capitals = name;
  for (char& letter : in_capitals) letter = ToUpper(letter);
  const auto rename = [&](const std::string& text) {
    return ReplaceAll(ReplaceAll(text, "botx", name), "BOTX", in_capitals);
  };
  std::map<std::string, std::string> renamed;
  for (const auto& [part, bytes] : files) {
    renamed[rename(part)] = rename(bytes);
  }
  files = std::move(renamed);
  return true;
}

/// Where a part of a bot lies in the game.
inline std::string PathOfPart(const std::string& part,
                              const std::string& name) {
  if (part == "bot") return "scripts/" + name + ".bot";
  if (part.size() > 1) return part;
  return "botfiles/bots/" + name + "_" + part + ".c";
}

/// The files that stand for the default character; none for the game's own.
/// They lie in botfiles/bots.
inline std::map<std::string, std::string> FallbackFiles(
    const std::string& fallback) {
  if (fallback == "game") return {};
  if (fallback == "empty") return {{"default_c.c", ""}};
  std::map<std::string, std::string> files;
  for (const auto& [part, bytes] : GoodBot()) {
    const std::string stem = part == "c" ? "default_" : "dflt_";
    if (part != "bot") {
      files[stem + part + ".c"] = ReplaceAll(bytes, "botx", "dflt");
    }
  }
  return files;
}

inline BotFileSet FileSetOf(const std::map<std::string, std::string>& files,
                            const std::string& name) {
  const auto file = [&](const std::string& part) -> std::optional<GameFile> {
    const auto found = files.find(part);
    if (found == files.end()) return std::nullopt;
    const std::string own =
        name + (part == "bot" ? "." + part : "_" + part + ".c");
    return GameFile{own, "bots/" + own, found->second};
  };
  return {file("bot"), file("c"), file("w"), file("i"), file("t")};
}

/// Where the game's own files are looked for, given the default character in
/// force.
inline IncludeLookup WithFallback(const std::string& fallback,
                                  const IncludeLookup& game) {
  return [others = FallbackFiles(fallback), game](std::string_view path) {
    constexpr std::string_view kFolder = "bots/";
    const auto found = others.find(std::string(
        path.substr(path.starts_with(kFolder) ? kFolder.size() : 0)));
    return found != others.end() ? std::optional(found->second) : game(path);
  };
}

/// Our verdicts, a letter for each skill.
inline std::string VerdictLetters(const BotFileSet& set,
                                  const IncludeLookup& game) {
  std::string letters;
  for (const double skill : kEngineSkills) {
    letters += "WODR"[static_cast<int>(VerdictAt(set, game, skill))];
  }
  return letters;
}

/// Puts the files of a case where somebody would have them: into the folder, or
/// into a package there.
inline void PutEngineCase(const EngineCase& one, const std::string& name,
                          const std::map<std::string, std::string>& files,
                          const std::filesystem::path& folder) {
  std::map<std::string, std::string> by_path;
  for (const auto& [part, bytes] : files) {
    by_path[PathOfPart(part, name)] = bytes;
  }
  std::vector<PackageEntry> entries;
  for (const auto& [path, bytes] : by_path) {
    entries.push_back({path, bytes});
    if (one.Is("pk3")) continue;
    std::filesystem::create_directories((folder / path).parent_path());
    std::ofstream(folder / path, std::ios::binary) << bytes;
  }
  if (!one.Is("pk3")) return;
  std::filesystem::create_directories(folder);
  const Result<void> written =
      WritePackage(folder / ("bot-" + name + ".pk3"), entries);
  if (!written) throw std::runtime_error(written.error().what);
}

/// What check and try look at: the files that PutEngineCase() has put there.
struct CheckedCase {
  GivenFiles given;
  BotFileSet set;
  IncludeLookup look_up;
};

inline CheckedCase OpenEngineCase(const EngineCase& one,
                                  const std::string& name,
                                  const std::filesystem::path& folder,
                                  const IncludeLookup& game,
                                  const std::string& bots_of_game) {
  CheckedCase checked;
  checked.given = one.Is("pk3")
                      ? GivenFiles::OfPackage(folder / ("bot-" + name + ".pk3"))
                            .value_or(GivenFiles())
                      : GivenFiles::OfFolder(folder / "botfiles/bots", true);
  checked.set = ReadBot(checked.given, name).files;
  AddNamesTaken(bots_of_game, "scripts/bots.txt", checked.set);
  checked.look_up = [given = checked.given,
                     others = WithFallback(one.Fallback(), game)](
                        std::string_view path) {
    std::optional<GameFile> own = given.Open("botfiles/" + std::string(path));
    return own ? std::optional(own->bytes) : others(path);
  };
  return checked;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_
