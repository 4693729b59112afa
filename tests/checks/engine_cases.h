#ifndef FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_
#define FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_

#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "checks/file_checks.h"
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
    for (std::string* const column : {&one.verdicts, &one.part, &one.fallback,
                                      &one.title, &one.find, &one.put}) {
      std::getline(columns, *column, '\t');
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

/// The good bot with the change of a case, under a name of its own. False when
/// there is nothing to change.
inline bool MakeEngineCase(const EngineCase& one, const std::string& name,
                           std::map<std::string, std::string>& files) {
  files = GoodBot();
  std::string& text = files.at(one.part);
  const std::string find = WithoutEscapes(one.find);
  const std::string put = WithoutEscapes(one.put);
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
  if (one.put == "!") files.erase(one.part);
  std::string in_capitals = name;
  for (char& letter : in_capitals) letter = ToUpper(letter);
  for (auto& [part, bytes] : files) {
    bytes = ReplaceAll(bytes, "botx", name);
    bytes = ReplaceAll(bytes, "BOTX", in_capitals);
  }
  return true;
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

/// Our verdicts, a letter for each skill.
inline std::string VerdictLetters(const BotFileSet& set,
                                  const std::string& fallback,
                                  const IncludeLookup& game) {
  const std::map<std::string, std::string> others = FallbackFiles(fallback);
  const IncludeLookup lookup = [&](std::string_view path) {
    constexpr std::string_view kFolder = "bots/";
    const auto found = others.find(std::string(
        path.substr(path.starts_with(kFolder) ? kFolder.size() : 0)));
    return found != others.end() ? std::optional(found->second) : game(path);
  };
  std::string letters;
  for (const double skill : kEngineSkills) {
    letters += "WDR"[static_cast<int>(VerdictAt(set, lookup, skill))];
  }
  return letters;
}

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_CHECKS_ENGINE_CASES_H_
