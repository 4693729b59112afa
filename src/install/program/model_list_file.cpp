#include "install/program/model_list_file.h"

#include <optional>

#include "install/program/damaged_file.h"
#include "support/field_reader.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

constexpr std::string_view kHeader =
    "[Fragsmith additional models & skins list]";

bool IsWhole(std::string_view bytes) {
  return !ParseModelList(bytes).has_error;
}

void AppendRecord(const ModelEntry& model, const SkinEntry& skin,
                  std::string& text) {
  AppendQuotedField(model.Name, text);
  for (const std::string* field : {&skin.Name, &skin.PK3File, &skin.IconFile}) {
    text += ',';
    AppendQuotedField(*field, text);
  }
  text += kLineEnd;
}

}  // namespace

ParsedModelList ParseModelList(std::string_view bytes) {
  ParsedModelList parsed;
  FieldReader reader(bytes);
  parsed.has_error = !reader.Next() || reader.is_cut();
  while (!parsed.has_error && !reader.AtEnd()) {
    const auto fields = reader.NextRecord(4);
    if (fields && parsed.skins.size() < kMaxListRecords) {
      parsed.skins.push_back({.model = std::string((*fields)[0]),
                              .skin = std::string((*fields)[1]),
                              .PK3File = std::string((*fields)[2]),
                              .IconFile = std::string((*fields)[3])});
    } else {
      parsed.has_error = true;
    }
  }
  return parsed;
}

std::string FormatModelList(const ModelCatalogue& catalogue) {
  std::string records;
  for (const ModelEntry& model : catalogue.models()) {
    for (const SkinEntry& skin : model.Skins) {
      if (!skin.IsOriginal) AppendRecord(model, skin, records);
    }
  }
  if (records.empty()) return records;
  return std::string(kHeader) + std::string(kLineEnd) + records;
}

void LoadUserModels(const std::filesystem::path& program_folder,
                    ModelCatalogue& catalogue, Prompts& prompts) {
  const auto path = FindFile(program_folder, kModelListFile);
  if (!path) return;
  const Result<std::string> bytes = ReadFile(*path);
  const ParsedModelList parsed =
      bytes ? ParseModelList(*bytes) : ParsedModelList{{}, true};
  for (const UserSkin& skin : parsed.skins) {
    catalogue.AddModelSkin(skin.model, skin.skin, skin.PK3File, skin.IconFile);
  }
  catalogue.SortCatalogue();
  if (parsed.has_error) {
    prompts.Show({.title = "Load error",
                  .text = "Errors occured when trying to load model file. "
                          "Please use Tools/CheckBaseq3.",
                  .icon = MessageIcon::kExclamation});
  }
}

Result<void> SaveUserModels(const std::filesystem::path& program_folder,
                            const ModelCatalogue& catalogue, EmptyList empty) {
  std::string bytes = FormatModelList(catalogue);
  if (bytes.empty()) {
    const bool is_kept = empty == EmptyList::kKeepsOldFile ||
                         !FindFile(program_folder, kModelListFile);
    if (is_kept) return {};
    bytes = std::string(kHeader) + std::string(kLineEnd);
  }
  return SaveKeepingDamaged(program_folder / kModelListFile, bytes, IsWhole);
}

ModelCatalogue BuildStandardCatalogue(
    const std::filesystem::path& program_folder, Prompts& prompts) {
  ModelCatalogue catalogue = ModelCatalogue::Standard();
  LoadUserModels(program_folder, catalogue, prompts);
  return catalogue;
}

}  // namespace fragsmith
