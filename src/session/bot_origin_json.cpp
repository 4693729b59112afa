#include "session/bot_origin_json.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/characteristic_catalogue.h"
#include "session/bot_difference.h"
#include "session/bot_document_json.h"
#include "support/code_page.h"
#include "support/files.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

struct FileKey {
  BotFile file;
  const char* key;
};

constexpr std::array<FileKey, 5> kFileKeys = {{
    {BotFile::kCharacteristics, "characteristics"},
    {BotFile::kWeaponWeights, "weaponWeights"},
    {BotFile::kItemWeights, "itemWeights"},
    {BotFile::kChat, "chat"},
    {BotFile::kDescription, "description"},
}};

/// The kind of a note that is shown apart from the others.
constexpr const char* kAlsoInFile = "alsoInFile";

/// The bytes of a path are of any code; each stands as a character of the
/// game's code page, so that all come back.
std::string TextOfPath(const std::filesystem::path& path) {
  return Utf8FromGameText(BytesFromPath(path));
}

std::filesystem::path PathOf(const Json& text) {
  return PathFromBytes(
      GameTextFromUtf8(text.get<std::string>()).value_or(std::string()));
}

OrderedJson FileToJson(const OriginFile& file) {
  OrderedJson json = {{"path", TextOfPath(file.path)}};
  if (!file.is_on_disk()) json["entry"] = Utf8FromGameText(file.entry);
  json["fingerprint"] = file.fingerprint;
  for (const auto& [line, statement] : file.spellings) {
    json["spellings"][Utf8FromGameText(line)] = Utf8FromGameText(statement);
  }
  return json;
}

std::string GameText(const std::string& text) {
  return GameTextFromUtf8(text).value_or(std::string());
}

OriginFile FileFromJson(const Json& json, const std::string& path,
                        const UnknownKeys& unknown) {
  OriginFile file = {
      .path = PathOf(json.at("path")),
      .entry = GameText(json.value("entry", std::string())),
      .fingerprint = json.at("fingerprint").get<std::uint64_t>()};
  unknown.MeetOthers(json, {"path", "entry", "fingerprint", "spellings"}, path);
  const auto spellings = json.find("spellings");
  if (spellings == json.end()) return file;
  for (const auto& [line, statement] : spellings->items()) {
    file.spellings[GameText(line)] = GameText(statement.get<std::string>());
  }
  return file;
}

OrderedJson HomeToJson(const BotHome& home) {
  OrderedJson json = OrderedJson::object();
  OrderedJson files = OrderedJson::object();
  for (const auto& [file, key] : kFileKeys) {
    const auto found = home.files.find(file);
    if (found != home.files.end()) files[key] = FileToJson(found->second);
  }
  json["files"] = std::move(files);
  json["usesLayout"] = home.load_options.uses_layout;
  json["loadsDescription"] = home.load_options.loads_description;
  if (home.target) {
    json["place"] = {{"folder", TextOfPath(home.target->folder)},
                     {"usesLayout", home.target->options.uses_layout},
                     {"makesPackage", home.target->options.makes_package}};
  }
  if (home.package) json["package"] = FileToJson(*home.package);
  if (home.left_package) json["leftPackage"] = TextOfPath(*home.left_package);
  if (home.loaded) json["loaded"] = BotDocumentToJson(*home.loaded);
  if (home.saved) json["saved"] = BotDocumentToJson(*home.saved);
  return json;
}

void ReadFiles(const Json& json, const UnknownKeys& unknown,
               OriginFiles& files) {
  const std::string all = "origin.home.files";
  std::vector<std::string_view> known;
  for (const auto& [file, key] : kFileKeys) {
    known.emplace_back(key);
    const auto found = json.find(key);
    if (found == json.end()) continue;
    files.emplace(file, FileFromJson(*found, all + "." + key, unknown));
  }
  unknown.MeetOthers(json, known, all);
}

void ReadHome(const Json& json, const UnknownKeys& unknown, BotHome& home) {
  ReadFiles(json.at("files"), unknown, home.files);
  home.load_options.uses_layout = json.at("usesLayout").get<bool>();
  home.load_options.loads_description = json.at("loadsDescription").get<bool>();
  if (const auto place = json.find("place"); place != json.end()) {
    home.target = SaveTarget{
        .folder = PathOf(place->at("folder")),
        .options = {.uses_layout = place->at("usesLayout").get<bool>(),
                    .makes_package = place->at("makesPackage").get<bool>()}};
    unknown.MeetOthers(*place, {"folder", "usesLayout", "makesPackage"},
                       "origin.home.place");
  }
  if (const auto package = json.find("package"); package != json.end()) {
    home.package = FileFromJson(*package, "origin.home.package", unknown);
  }
  if (const auto left = json.find("leftPackage"); left != json.end()) {
    home.left_package = PathOf(*left);
  }
  const auto read_bot = [&](const char* key) -> std::shared_ptr<const Bot> {
    const auto bot = json.find(key);
    if (bot == json.end()) return nullptr;
    return std::make_shared<const Bot>(
        UncheckedBot(BotDocumentFromJson(*bot, unknown)));
  };
  home.loaded = read_bot("loaded");
  home.saved = read_bot("saved");
  unknown.MeetOthers(json,
                     {"files", "usesLayout", "loadsDescription", "place",
                      "package", "leftPackage", "loaded", "saved"},
                     "origin.home");
}

OrderedJson ReportToJson(const LoadReport& report) {
  OrderedJson json = OrderedJson::object();
  json["notes"] = OrderedJson::array();
  for (const Note& note : report.notes.list()) {
    OrderedJson one = {
        {"file", note.file}, {"line", note.line}, {"text", note.text}};
    if (note.kind == NoteKind::kAlsoInFile) one["kind"] = kAlsoInFile;
    json["notes"].push_back(std::move(one));
  }
  json["oddValues"] = OrderedJson::array();
  for (const auto& [parameter, value] : report.odd_values) {
    json["oddValues"].push_back({{"parameter", parameter.number()},
                                 {"read", ValueToJson(value.read)},
                                 {"plain", ValueToJson(value.plain)}});
  }
  return json;
}

/// Nothing for a number that names no parameter that can be set.
std::optional<ParameterId> ParameterOfNumber(int number) {
  const ParameterId id = ParameterId::OfNumber(number);
  const bool is_set =
      id.level()
          ? kPerLevelRange.Contains(id.index())
          : std::ranges::count(kIdentityFields, id) > 0 ||
                IndexRange{kChatRange.first, kItemWeightRange.last}.Contains(
                    number);
  return is_set ? std::optional(id) : std::nullopt;
}

/// The same of the entries of a list.
void MeetOthersInEach(const Json& list,
                      const std::vector<std::string_view>& known,
                      const std::string& path, const UnknownKeys& unknown) {
  std::size_t number = 0;
  for (const Json& one : list) {
    unknown.MeetOthers(one, known, path + "[" + std::to_string(number++) + "]");
  }
}

void ReadReport(const Json& json, const UnknownKeys& unknown,
                LoadReport& report) {
  const std::string path = "origin.report";
  for (const Json& note : json.at("notes")) {
    const auto kind = note.value("kind", std::string());
    const bool is_also = kind == kAlsoInFile;
    if (!is_also && !kind.empty()) {
      unknown.Meet(path + ".notes.kind", Localized("there is no such kind."));
    }
    report.notes.Add(
        {.file = note.at("file").get<std::string>(),
         .line = note.at("line").get<std::size_t>(),
         .text = note.at("text").get<std::string>(),
         .kind = is_also ? NoteKind::kAlsoInFile : NoteKind::kOther});
  }
  for (const Json& odd : json.at("oddValues")) {
    const auto parameter = ParameterOfNumber(odd.at("parameter").get<int>());
    if (!parameter) {
      RefuseField("oddValues", Localized("there is no such parameter."));
    }
    report.odd_values.emplace(
        *parameter, OddValue{.read = ValueFromJson(odd.at("read"), "read"),
                             .plain = ValueFromJson(odd.at("plain"), "plain")});
  }
  MeetOthersInEach(json.at("notes"), {"file", "line", "text", "kind"},
                   path + ".notes", unknown);
  MeetOthersInEach(json.at("oddValues"), {"parameter", "read", "plain"},
                   path + ".oddValues", unknown);
  unknown.MeetOthers(json, {"notes", "oddValues"}, path);
}

}  // namespace

BotOrigin BotOriginFromJson(const Json& json, const UnknownKeys& unknown) {
  BotOrigin origin;
  try {
    ReadHome(json.at("home"), unknown, *origin.home);
    ReadReport(json.at("report"), unknown, *origin.report);
    unknown.MeetOthers(json, {"home", "report"}, "origin");
  } catch (const JsonFault& fault) {
    unknown.Meet("origin", fault.error.what);
    return {};
  } catch (const Json::exception& exception) {
    unknown.Meet("origin", ErrorOf(exception).what);
    return {};
  }
  return origin;
}

OrderedJson BotOriginToJson(const BotOrigin& origin) {
  OrderedJson json = OrderedJson::object();
  json["home"] = HomeToJson(*origin.home);
  json["report"] = ReportToJson(*origin.report);
  return json;
}

}  // namespace fragsmith
