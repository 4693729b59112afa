#include "install/program/model_commands.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "install/program/game_folder.h"
#include "support/code_page.h"
#include "support/localization.h"
#include "support/text.h"

namespace fragsmith {
namespace {

void Refuse(std::string_view title, std::string text, Prompts& prompts) {
  prompts.Show({.title = std::string(title),
                .text = std::move(text),
                .icon = MessageIcon::kExclamation});
}

/// The lists hold their texts in double quotes and cannot hold one.
bool IsStorable(std::string_view name, Prompts& prompts) {
  if (!Contains(name, "\"")) return true;
  Refuse(kProgramTitle, Localized("A name can't have a double quote in it."),
         prompts);
  return false;
}

}  // namespace

bool AcceptsModelName(std::string_view name, Prompts& prompts) {
  if (name.empty()) {
    Refuse("Error", "No name is bad name", prompts);
    return false;
  }
  return IsStorable(name, prompts);
}

bool AddModel(ModelCatalogue& catalogue, std::string_view name,
              bool create_red_blue, Prompts& prompts) {
  if (!IsStorable(name, prompts)) return false;
  const bool exists = std::any_of(
      catalogue.models().begin(), catalogue.models().end(),
      [name](const ModelEntry& model) { return model.Name == name; });
  if (exists) {
    Refuse("Model not added",
           "Model '" + Utf8FromGameText(name) + "' already exists!", prompts);
    return false;
  }
  catalogue.AppendModel(
      MakeModelEntry(name, false, create_red_blue, kUserDefinedPackage));
  return true;
}

bool RemoveModel(ModelCatalogue& catalogue, std::size_t modelIndex,
                 Prompts& prompts) {
  const ModelEntry& model = catalogue.models().at(modelIndex);
  const std::string name = Utf8FromGameText(model.Name);
  if (model.IsOriginal) {
    Refuse("Denied!",
           "Model " + name +
               " is an original Q3A model and it can't be removed from the "
               "list",
           prompts);
    return false;
  }
  if (!prompts.Confirm("Remove skin?", "Do you want to remove model " + name +
                                           " and all it's skins?")) {
    return false;
  }
  catalogue.RemoveModelAt(modelIndex);
  return true;
}

bool AddSkin(ModelCatalogue& catalogue, std::size_t modelIndex,
             Prompts& prompts) {
  const std::string model = catalogue.models().at(modelIndex).Name;
  const std::optional<std::string> answer = prompts.AskText(
      "Add skin", "Add new skin for model " + Utf8FromGameText(model));
  if (!answer || answer->empty()) return false;
  const std::optional<std::string> name = GameTextFromUtf8(*answer);
  if (!name) {
    Refuse(kProgramTitle,
           Localized("The game can't show all of the characters in '%1'.",
                     {*answer}),
           prompts);
    return false;
  }
  if (!IsStorable(*name, prompts)) return false;
  catalogue.AddModelSkin(model, *name, kUserDefinedPackage, "");
  return true;
}

bool RemoveSkin(ModelCatalogue& catalogue, std::size_t modelIndex,
                std::size_t skinIndex, Prompts& prompts) {
  const ModelEntry& model = catalogue.models().at(modelIndex);
  const SkinEntry& skin = model.Skins.at(skinIndex);
  const std::string model_name = Utf8FromGameText(model.Name);
  const std::string skin_name = Utf8FromGameText(skin.Name);
  if (model.Skins.size() == 1) {
    Refuse("Denied!",
           "Skin " + skin_name + " is the only skin for model " + model_name +
               " so it can't be removed from the list",
           prompts);
    return false;
  }
  if (skin.IsOriginal) {
    Refuse("Denied!",
           "Skin " + skin_name + " for model " + model_name +
               " is an original Q3A skin and it can't be removed from the list",
           prompts);
    return false;
  }
  if (!prompts.Confirm("Remove skin?", "Do you want to remove skin " +
                                           skin_name + " for model " +
                                           model_name + "?")) {
    return false;
  }
  catalogue.RemoveSkinAt(modelIndex, skinIndex);
  return true;
}

}  // namespace fragsmith
