#include <string>
#include <vector>

#include "fuzz/oracle.h"
#include "install/program/game_folder.h"
#include "install/program/model_list_file.h"
#include "support/text.h"

namespace fragsmith {
namespace {

ModelCatalogue CatalogueOf(const std::vector<UserSkin>& skins) {
  ModelCatalogue catalogue = ModelCatalogue::Standard();
  for (const UserSkin& skin : skins) {
    catalogue.AddModelSkin(skin.model, skin.skin, skin.PK3File, skin.IconFile);
  }
  return catalogue;
}

/// The file has no way to hold a double quote.
std::string WithoutQuotes(std::string text) {
  std::erase(text, '"');
  return text;
}

std::vector<UserSkin> SkinsOf(const ModelCatalogue& catalogue) {
  std::vector<UserSkin> skins;
  for (const ModelEntry& model : catalogue.models()) {
    for (const SkinEntry& skin : model.Skins) {
      if (skin.IsOriginal) continue;
      skins.push_back({WithoutQuotes(model.Name), WithoutQuotes(skin.Name),
                       WithoutQuotes(skin.PK3File),
                       WithoutQuotes(skin.IconFile)});
    }
  }
  return skins;
}

void ExpectPurged(ModelCatalogue catalogue, std::size_t standard_skins) {
  catalogue.PurgeScannedModels();
  Expect(catalogue.CountSkins() >= standard_skins, "no original is removed");
  for (const ModelEntry& model : catalogue.models()) {
    Expect(!model.Skins.empty(), "no model is left without a skin");
    for (const SkinEntry& skin : model.Skins) {
      Expect(skin.IsOriginal || skin.PK3File == kUserDefinedPackage,
             "no scanned skin is left");
    }
  }
}

}  // namespace

void FuzzOne(std::string_view bytes) {
  ModelCatalogue catalogue = CatalogueOf(ParseModelList(bytes).skins);
  const std::string written = FormatModelList(catalogue);
  const ParsedModelList again = ParseModelList(written);
  Expect(again.has_error == written.empty(), "our own file has no error");
  Expect(again.skins == SkinsOf(catalogue), "all skins are kept");
  if (!Contains(bytes, "\"")) {
    ExpectEqual(written, FormatModelList(CatalogueOf(again.skins)),
                "the file is stable");
  }

  ExpectPurged(catalogue, ModelCatalogue::Standard().CountSkins());
  CatalogueSelection selection = {catalogue.models().size() - 1,
                                  catalogue.models().back().Skins.size() - 1};
  const ModelEntry model = catalogue.models()[selection.modelIndex];
  catalogue.SortCatalogue(&selection);
  const ModelEntry& moved = catalogue.models().at(selection.modelIndex);
  ExpectEqual(model.Name, moved.Name, "the selection follows its model");
  ExpectEqual(model.Skins.back().Name, moved.Skins.at(selection.skinIndex).Name,
              "the selection follows its skin");
}

}  // namespace fragsmith
