#include "install/program/model_catalogue.h"

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <span>
#include <utility>

#include "install/program/game_folder.h"
#include "support/text.h"

namespace fragsmith {
namespace {

struct StandardModel {
  std::string_view name;
  std::array<std::string_view, 4> more_skins;
};

constexpr std::array<StandardModel, 23> kStandardModels = {
    {{"Anarki", {}},
     {"Biker", {"Cadavre", "Hossman", "Slammer", "Stroggo"}},
     {"Bitterman", {}},
     {"Bones", {"Bones"}},
     {"Crash", {}},
     {"Doom", {"Phobos"}},
     {"Grunt", {"Stripe"}},
     {"Hunter", {"Harpy"}},
     {"Keel", {}},
     {"Klesk", {"Flisk"}},
     {"Lucy", {"Angel"}},
     {"Major", {"Daemia"}},
     {"Mynx", {}},
     {"Orbb", {}},
     {"Ranger", {"Wrack"}},
     {"Razor", {"Patriot", "Id"}},
     {"Sarge", {"Krusade", "Roderic"}},
     {"Slash", {"Grrl", "Yuriko"}},
     {"Sorlag", {}},
     {"TankJr", {}},
     {"Uriel", {"Zael"}},
     {"Visor", {"Gorre"}},
     {"Xaero", {}}}};

/// The skins that each of the game's models has.
constexpr std::array<std::string_view, 3> kCommonSkins = {"Default", "Red",
                                                          "Blue"};

void AppendSkin(std::string_view name, ModelEntry& model) {
  std::string iconFile;
  if (model.PK3File != kUserDefinedPackage) {
    iconFile = "models\\players\\" + ToLower(model.Name) + "\\icon_" +
               ToLower(name) + ".tga";
  }
  model.Skins.push_back({.Name = std::string(name),
                         .IsOriginal = model.IsOriginal,
                         .PK3File = model.PK3File,
                         .IconFile = std::move(iconFile)});
}

/// The index of each skin among the common ones; all others come behind
/// these, and so do second skins of a common name.
std::vector<std::size_t> Ranks(const std::vector<SkinEntry>& skins) {
  std::array<bool, kCommonSkins.size()> taken{};
  std::vector<std::size_t> ranks;
  for (const SkinEntry& skin : skins) {
    std::size_t rank = 0;
    while (rank < kCommonSkins.size() &&
           (taken.at(rank) ||
            !EqualIgnoringCase(skin.Name, kCommonSkins.at(rank)))) {
      ++rank;
    }
    if (rank < kCommonSkins.size()) taken.at(rank) = true;
    ranks.push_back(rank);
  }
  return ranks;
}

/// Puts the entries into the given order of their old indices; the followed
/// index moves with its entry.
template <typename Entry>
void Reorder(std::vector<Entry>& entries, std::span<const std::size_t> order,
             std::size_t* followed) {
  std::vector<Entry> sorted;
  sorted.reserve(entries.size());
  for (const std::size_t from : order) {
    sorted.push_back(std::move(entries[from]));
  }
  entries = std::move(sorted);
  if (followed == nullptr) return;
  const auto found = std::find(order.begin(), order.end(), *followed);
  *followed = found == order.end()
                  ? 0
                  : static_cast<std::size_t>(found - order.begin());
}

std::vector<std::size_t> Places(std::size_t count) {
  std::vector<std::size_t> order(count);
  std::iota(order.begin(), order.end(), std::size_t{0});
  return order;
}

void SortSkins(std::vector<SkinEntry>& skins, std::size_t* followed) {
  const std::vector<std::size_t> ranks = Ranks(skins);
  std::vector<std::size_t> order = Places(skins.size());
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t left, std::size_t right) {
                     if (ranks[left] != ranks[right]) {
                       return ranks[left] < ranks[right];
                     }
                     return skins[left].Name < skins[right].Name;
                   });
  Reorder(skins, order, followed);
}

bool IsScanned(const SkinEntry& skin) {
  return !skin.IsOriginal && skin.PK3File != kUserDefinedPackage;
}

/// Removes skins and tells where the followed one is now.
std::optional<std::size_t> PurgeSkins(
    std::vector<SkinEntry>& skins, std::size_t followed,
    const std::function<bool(const SkinEntry&)>& is_purged) {
  std::optional<std::size_t> index;
  if (followed < skins.size() && !is_purged(skins[followed])) {
    const auto end = skins.begin() + static_cast<std::ptrdiff_t>(followed);
    index = static_cast<std::size_t>(
        std::count_if(skins.begin(), end, std::not_fn(is_purged)));
  }
  std::erase_if(skins, is_purged);
  return index;
}

}  // namespace

std::string NameCase(std::string_view text) {
  std::string name(text);
  if (name.empty()) return name;
  const bool has_capital =
      std::any_of(name.begin() + 1, name.end(),
                  [](char letter) { return letter >= 'A' && letter <= 'Z'; });
  if (!has_capital) name.front() = ToUpper(name.front());
  return name;
}

ModelEntry MakeModelEntry(std::string_view name, bool is_original,
                          bool create_red_blue, std::string_view pk3File) {
  ModelEntry model = {.Name = std::string(name),
                      .PK3File = std::string(pk3File),
                      .IsOriginal = is_original,
                      .Skins = {}};
  const std::size_t count = create_red_blue ? kCommonSkins.size() : 1;
  for (std::size_t skin = 0; skin < count; ++skin) {
    AppendSkin(kCommonSkins.at(skin), model);
  }
  return model;
}

ModelCatalogue ModelCatalogue::Standard() {
  ModelCatalogue catalogue;
  for (const StandardModel& standard : kStandardModels) {
    ModelEntry model = MakeModelEntry(standard.name, true, true, kGamePackage);
    for (const std::string_view skin : standard.more_skins) {
      if (!skin.empty()) AppendSkin(skin, model);
    }
    catalogue.AppendModel(std::move(model));
  }
  return catalogue;
}

std::size_t ModelCatalogue::CountSkins() const {
  std::size_t count = 0;
  for (const ModelEntry& model : models_) count += model.Skins.size();
  return count;
}

std::optional<std::size_t> ModelCatalogue::FindModel(
    std::string_view name) const {
  const auto found = indices_.find(ToLower(name));
  if (found == indices_.end()) return std::nullopt;
  return found->second;
}

std::optional<std::size_t> ModelCatalogue::FindSkin(
    std::size_t modelIndex, std::string_view name) const {
  const std::vector<SkinEntry>& skins = models_.at(modelIndex).Skins;
  const auto found =
      std::find_if(skins.begin(), skins.end(), [name](const SkinEntry& skin) {
        return EqualIgnoringCase(skin.Name, name);
      });
  if (found == skins.end()) return std::nullopt;
  return static_cast<std::size_t>(found - skins.begin());
}

void ModelCatalogue::AddModelSkin(std::string_view model, std::string_view skin,
                                  std::string_view pk3File,
                                  std::string_view iconFile) {
  SkinEntry entry = {.Name = NameCase(skin),
                     .IsOriginal = false,
                     .PK3File = std::string(pk3File),
                     .IconFile = std::string(iconFile)};
  if (const std::optional<std::size_t> index = FindModel(model)) {
    models_[*index].Skins.push_back(std::move(entry));
  } else {
    AppendModel({.Name = NameCase(model),
                 .PK3File = std::string(pk3File),
                 .IsOriginal = false,
                 .Skins = {std::move(entry)}});
  }
}

void ModelCatalogue::AppendModel(ModelEntry model) {
  indices_.try_emplace(ToLower(model.Name), models_.size());
  models_.push_back(std::move(model));
}

void ModelCatalogue::RemoveModelAt(std::size_t index) {
  models_.erase(models_.begin() + static_cast<std::ptrdiff_t>(index));
  IndexModels();
}

void ModelCatalogue::RemoveSkinAt(std::size_t modelIndex, std::size_t index) {
  std::vector<SkinEntry>& skins = models_.at(modelIndex).Skins;
  skins.erase(skins.begin() + static_cast<std::ptrdiff_t>(index));
}

void ModelCatalogue::PurgeScannedModels(CatalogueSelection* selection) {
  Purge(IsScanned, selection);
}

void ModelCatalogue::PurgeModelsOf(const std::set<std::string>& packages) {
  Purge(
      [&packages](const SkinEntry& skin) {
        return IsScanned(skin) && packages.contains(skin.PK3File);
      },
      nullptr);
}

void ModelCatalogue::Purge(
    const std::function<bool(const SkinEntry&)>& is_purged,
    CatalogueSelection* selection) {
  CatalogueSelection moved;
  std::vector<ModelEntry> kept;
  for (std::size_t index = 0; index < models_.size(); ++index) {
    ModelEntry& model = models_[index];
    const bool is_selected =
        selection != nullptr && selection->modelIndex == index;
    const std::optional<std::size_t> skin = PurgeSkins(
        model.Skins, is_selected ? selection->skinIndex : 0, is_purged);
    if (is_selected && skin) moved = {kept.size(), *skin};
    if (!model.Skins.empty()) kept.push_back(std::move(model));
  }
  models_ = std::move(kept);
  if (selection != nullptr) *selection = moved;
  IndexModels();
}

void ModelCatalogue::SortCatalogue(CatalogueSelection* selection) {
  for (std::size_t index = 0; index < models_.size(); ++index) {
    const bool is_selected =
        selection != nullptr && selection->modelIndex == index;
    SortSkins(models_[index].Skins,
              is_selected ? &selection->skinIndex : nullptr);
  }
  std::vector<std::size_t> order = Places(models_.size());
  std::stable_sort(order.begin(), order.end(),
                   [this](std::size_t left, std::size_t right) {
                     return models_[left].Name < models_[right].Name;
                   });
  Reorder(models_, order,
          selection == nullptr ? nullptr : &selection->modelIndex);
  IndexModels();
}

void ModelCatalogue::IndexModels() {
  indices_.clear();
  for (std::size_t index = 0; index < models_.size(); ++index) {
    indices_.try_emplace(ToLower(models_[index].Name), index);
  }
}

}  // namespace fragsmith
