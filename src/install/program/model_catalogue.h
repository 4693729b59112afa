#ifndef FRAGSMITH_INSTALL_PROGRAM_MODEL_CATALOGUE_H_
#define FRAGSMITH_INSTALL_PROGRAM_MODEL_CATALOGUE_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace fragsmith {

// All names are game text.

struct SkinEntry {
  std::string Name;
  bool IsOriginal = false;  ///< One of the game's own, never removed.
  /// The package with the skin's icon, or kUserDefinedPackage.
  std::string PK3File;
  /// The icon's path in the package, with backslashes; empty for a skin that
  /// was entered by hand.
  std::string IconFile;

  bool operator==(const SkinEntry&) const = default;
};

struct ModelEntry {
  std::string Name;
  std::string PK3File;
  bool IsOriginal = false;
  std::vector<SkinEntry> Skins;  ///< Never empty.
};

/// Places in the catalogue that stay with their entries when these move.
struct CatalogueSelection {
  std::size_t modelIndex = 0;
  std::size_t skinIndex = 0;

  bool operator==(const CatalogueSelection&) const = default;
};

/// A name as the lists show it: with a capital in front, unless a capital A
/// to Z behind the first letter tells that its spelling is meant.
std::string NameCase(std::string_view text);

/// A model with the skin Default and, when asked for, Red and Blue.
ModelEntry MakeModelEntry(std::string_view name, bool is_original,
                          bool create_red_blue, std::string_view pk3File);

/// The models with their skins that a bot may wear, in display order.
class ModelCatalogue {
 public:
  /// Without any model.
  ModelCatalogue() = default;

  /// The game's own models in their order, as yet unsorted.
  static ModelCatalogue Standard();

  const std::vector<ModelEntry>& models() const { return models_; }
  std::size_t CountSkins() const;

  /// Look-ups ignore case; the first of several wins.
  std::optional<std::size_t> FindModel(std::string_view name) const;
  std::optional<std::size_t> FindSkin(std::size_t modelIndex,
                                      std::string_view name) const;

  /// Adds a skin to the model of that name, or a model with this one skin
  /// where there is none, both spelt by NameCase. A second skin of the same
  /// name is a skin like any other.
  void AddModelSkin(std::string_view model, std::string_view skin,
                    std::string_view pk3File, std::string_view iconFile);

  /// Adds the model as it is.
  void AppendModel(ModelEntry model);

  void RemoveModelAt(std::size_t index);
  /// Not for the only skin of a model.
  void RemoveSkinAt(std::size_t modelIndex, std::size_t index);

  /// Removes every skin that a scan found, and the models without one that
  /// remain. The selection follows; it goes to the first model and skin when
  /// what it stood on is gone.
  void PurgeScannedModels(CatalogueSelection* selection = nullptr);
  /// The same with what a scan found in these packages.
  void PurgeModelsOf(const std::set<std::string>& packages);

  /// Sorts the models by name, capitals before small letters, and each
  /// model's skins likewise behind Default, Red and Blue.
  void SortCatalogue(CatalogueSelection* selection = nullptr);

 private:
  void Purge(const std::function<bool(const SkinEntry&)>& is_purged,
             CatalogueSelection* selection);
  void IndexModels();

  std::vector<ModelEntry> models_;
  /// Index of the first model of each name in lower case.
  std::unordered_map<std::string, std::size_t> indices_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_INSTALL_PROGRAM_MODEL_CATALOGUE_H_
