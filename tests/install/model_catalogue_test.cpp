#include "install/program/model_catalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "install/program/model_commands.h"
#include "tests/support/scripted_prompts.h"

namespace fragsmith {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> ModelNames(const ModelCatalogue& catalogue) {
  std::vector<std::string> names;
  for (const ModelEntry& model : catalogue.models())
    names.push_back(model.Name);
  return names;
}

std::vector<std::string> SkinNames(const ModelEntry& model) {
  std::vector<std::string> names;
  for (const SkinEntry& skin : model.Skins) names.push_back(skin.Name);
  return names;
}

TEST(NameCase, RaisesAFirstLetterThatStandsAlone) {
  const struct {
    const char* text;
    const char* name;
  } cases[] = {
      {"anarki", "Anarki"},     {"tankJr", "tankJr"}, {"ANARKI", "ANARKI"},
      {"mcLeod", "mcLeod"},     {"x", "X"},           {"", ""},
      {"\xE4rger", "\xC4rger"}, {"a\xC4", "A\xC4"},   {"9lives", "9lives"},
      {"Sarge", "Sarge"}};
  for (const auto& one : cases) EXPECT_EQ(NameCase(one.text), one.name);
}

TEST(ModelCatalogue, KnowsTheGamesModels) {
  const ModelCatalogue catalogue = ModelCatalogue::Standard();
  EXPECT_EQ(catalogue.models().size(), 23U);
  EXPECT_EQ(catalogue.CountSkins(), 89U);
  const ModelEntry& razor = catalogue.models().at(15);
  EXPECT_THAT(SkinNames(razor),
              ElementsAre("Default", "Red", "Blue", "Patriot", "Id"));
  const SkinEntry& daemia = catalogue.models().at(11).Skins.at(3);
  EXPECT_EQ(daemia.IconFile, "models\\players\\major\\icon_daemia.tga");
  EXPECT_EQ(daemia.PK3File, "pak0.pk3");
  EXPECT_TRUE(daemia.IsOriginal);
}

TEST(ModelCatalogue, AddsSkinsToTheModelOfTheName) {
  ModelCatalogue catalogue = ModelCatalogue::Standard();
  catalogue.AddModelSkin("sARGE", "tiger", "mod.pk3", "a\\icon_tiger.tga");
  catalogue.AddModelSkin("sarge", "tiger", "UserDef", "");
  catalogue.AddModelSkin("newModel", "x", "mod.pk3", "i");
  EXPECT_EQ(catalogue.models().size(), 24U);
  EXPECT_THAT(SkinNames(catalogue.models()[16]),
              ElementsAre("Default", "Red", "Blue", "Krusade", "Roderic",
                          "Tiger", "Tiger"));
  const ModelEntry& added = catalogue.models().back();
  EXPECT_EQ(added.Name, "newModel");
  EXPECT_EQ(added.PK3File, "mod.pk3");
  EXPECT_FALSE(added.IsOriginal);
  EXPECT_THAT(SkinNames(added), ElementsAre("X"));

  const auto model = catalogue.FindModel("NEWMODEL");
  ASSERT_EQ(model, 23U);
  EXPECT_EQ(catalogue.FindSkin(*model, "x"), 0U);
  EXPECT_FALSE(catalogue.FindSkin(*model, "y"));
  EXPECT_FALSE(catalogue.FindModel("new"));
}

TEST(ModelCatalogue, LooksUpRightlyAfterEveryChange) {
  ModelCatalogue catalogue;
  for (const char* name : {"zeta", "Beta", "alpha", "beta"}) {
    catalogue.AppendModel(MakeModelEntry(name, false, false, "UserDef"));
  }
  EXPECT_EQ(catalogue.FindModel("BETA"), 1U);
  catalogue.RemoveModelAt(1);
  EXPECT_EQ(catalogue.FindModel("BETA"), 2U);
  catalogue.SortCatalogue();
  EXPECT_THAT(ModelNames(catalogue), ElementsAre("alpha", "beta", "zeta"));
  EXPECT_EQ(catalogue.FindModel("Zeta"), 2U);
  catalogue.AddModelSkin("gamma", "x", "mod.pk3", "");
  catalogue.RemoveModelAt(0);
  catalogue.PurgeScannedModels();
  EXPECT_EQ(catalogue.FindModel("zeta"), 1U);
  EXPECT_FALSE(catalogue.FindModel("gamma"));
}

TEST(ModelCatalogue, SortsByBytesWithTheCommonSkinsFirst) {
  ModelCatalogue catalogue;
  for (const char* skin : {"id", "BLUE", "Zed", "Default", "Acid", "red"}) {
    catalogue.AddModelSkin("b", skin, "UserDef", "");
  }
  catalogue.AddModelSkin("aB", "default", "UserDef", "1");
  catalogue.AddModelSkin("aB", "Blue", "UserDef", "");
  catalogue.AddModelSkin("aB", "DEFAULT", "UserDef", "2");
  catalogue.AddModelSkin("\xE9t\xE9", "x", "UserDef", "");

  // What is selected stays selected.
  CatalogueSelection selection = {.modelIndex = 0, .skinIndex = 2};
  catalogue.SortCatalogue(&selection);
  EXPECT_THAT(ModelNames(catalogue), ElementsAre("B", "aB", "\xC9t\xE9"));
  EXPECT_THAT(SkinNames(catalogue.models()[0]),
              ElementsAre("Default", "Red", "BLUE", "Acid", "Id", "Zed"));
  EXPECT_THAT(SkinNames(catalogue.models()[1]),
              ElementsAre("Default", "Blue", "DEFAULT"));
  EXPECT_EQ(selection, (CatalogueSelection{0, 5}));
  selection = {.modelIndex = 99, .skinIndex = 99};
  catalogue.SortCatalogue(&selection);
  EXPECT_EQ(selection.modelIndex, 0U);
}

TEST(ModelCatalogue, PurgesWhatAScanFound) {
  const auto make = [] {
    ModelCatalogue catalogue = ModelCatalogue::Standard();
    catalogue.AddModelSkin("sarge", "one", "mod.pk3", "");
    catalogue.AddModelSkin("sarge", "two", "UserDef", "");
    catalogue.AddModelSkin("found", "x", "mod.pk3", "");
    catalogue.AddModelSkin("mixed", "x", "mod.pk3", "");
    catalogue.AddModelSkin("mixed", "y", "UserDef", "");
    return catalogue;
  };
  const struct {
    CatalogueSelection before;
    CatalogueSelection after;
  } cases[] = {{{16, 6}, {16, 5}}, {{16, 5}, {0, 0}}, {{23, 0}, {0, 0}},
               {{24, 1}, {23, 0}}, {{24, 0}, {0, 0}}, {{99, 99}, {0, 0}}};
  for (const auto& one : cases) {
    ModelCatalogue catalogue = make();
    CatalogueSelection selection = one.before;
    catalogue.PurgeScannedModels(&selection);
    EXPECT_EQ(selection, one.after)
        << one.before.modelIndex << ' ' << one.before.skinIndex;
    EXPECT_EQ(catalogue.models().size(), 24U);
    EXPECT_EQ(catalogue.models()[16].Skins.back().Name, "Two");
    EXPECT_THAT(SkinNames(catalogue.models()[23]), ElementsAre("Y"));
  }
}

// By the square of their number this would take hours.
TEST(ModelCatalogue, HoldsAHundredThousandSkins) {
  ModelCatalogue many_models;
  ModelCatalogue one_model;
  for (int number = 100'000; number > 0; --number) {
    const std::string name = std::to_string(number * 7919 % 100'003);
    many_models.AddModelSkin("model" + name, "skin", "mod.pk3", "");
    one_model.AddModelSkin("model", "skin" + name, "mod.pk3", "");
  }
  many_models.SortCatalogue();
  one_model.SortCatalogue();
  many_models.PurgeScannedModels();
  EXPECT_TRUE(many_models.models().empty());
  EXPECT_EQ(one_model.models()[0].Skins[1].Name, "Skin10");
}

class ModelCommands : public ::testing::Test {
 protected:
  ModelCatalogue catalogue_ = ModelCatalogue::Standard();
  ScriptedPrompts prompts_;
};

TEST_F(ModelCommands, AddModelRefusesTheExactSpellingAlone) {
  EXPECT_FALSE(AcceptsModelName("", prompts_));
  EXPECT_FALSE(AddModel(catalogue_, "Sarge", true, prompts_));
  EXPECT_FALSE(AddModel(catalogue_, "a\"b", true, prompts_));
  EXPECT_THAT(
      prompts_.log,
      ElementsAre("Error: No name is bad name",
                  "Model not added: Model 'Sarge' already exists!",
                  "Fragsmith: A name can't have a double quote in it."));
  EXPECT_EQ(catalogue_.models().size(), 23U);

  EXPECT_TRUE(AddModel(catalogue_, "sarge", true, prompts_));
  EXPECT_TRUE(AddModel(catalogue_, "m", false, prompts_));
  const ModelEntry& sarge = catalogue_.models().at(23);
  EXPECT_EQ(sarge.Name, "sarge");
  EXPECT_THAT(SkinNames(sarge), ElementsAre("Default", "Red", "Blue"));
  EXPECT_EQ(sarge.Skins[0].IconFile, "");
  EXPECT_EQ(sarge.Skins[0].PK3File, "UserDef");
  EXPECT_THAT(SkinNames(catalogue_.models().at(24)), ElementsAre("Default"));
}

TEST_F(ModelCommands, RemoveModelAsksAndSparesTheGames) {
  AddModel(catalogue_, "J\xF6rg", false, prompts_);
  EXPECT_FALSE(RemoveModel(catalogue_, 16, prompts_));
  EXPECT_FALSE(RemoveModel(catalogue_, 23, prompts_));
  prompts_.confirmations = {true};
  EXPECT_TRUE(RemoveModel(catalogue_, 23, prompts_));
  const std::string question =
      "Remove skin?: Do you want to remove model J\xC3\xB6rg and all it's "
      "skins?";
  EXPECT_THAT(prompts_.log,
              ElementsAre("Denied!: Model Sarge is an original Q3A model and "
                          "it can't be removed from the list",
                          question, question));
  EXPECT_EQ(catalogue_.models().size(), 23U);
}

TEST_F(ModelCommands, SkinsAreAddedByTheirModelsName) {
  AddModel(catalogue_, "sarge", false, prompts_);
  prompts_.answers = {std::nullopt, "", "\xE2\x88\x9A", "a\"b", "na\xC3\xAFve"};
  for (int attempt = 0; attempt < 4; ++attempt) {
    EXPECT_FALSE(AddSkin(catalogue_, 23, prompts_));
  }
  EXPECT_TRUE(AddSkin(catalogue_, 23, prompts_));
  EXPECT_EQ(prompts_.log.front(), "Add skin: Add new skin for model sarge");
  EXPECT_EQ(prompts_.messages.size(), 2U);
  // The first model of the name gets it.
  const SkinEntry& skin = catalogue_.models().at(16).Skins.back();
  EXPECT_EQ(skin.Name, "Na\xEFve");
  EXPECT_EQ(skin.PK3File, "UserDef");
  EXPECT_EQ(catalogue_.models().at(23).Skins.size(), 1U);
}

TEST_F(ModelCommands, RemoveSkinChecksInOrder) {
  AddModel(catalogue_, "New", false, prompts_);
  catalogue_.AddModelSkin("Sarge", "tiger", "UserDef", "");
  EXPECT_FALSE(RemoveSkin(catalogue_, 23, 0, prompts_));
  EXPECT_FALSE(RemoveSkin(catalogue_, 16, 1, prompts_));
  EXPECT_FALSE(RemoveSkin(catalogue_, 16, 5, prompts_));
  EXPECT_EQ(catalogue_.models()[16].Skins.size(), 6U);
  prompts_.confirmations = {true};
  EXPECT_TRUE(RemoveSkin(catalogue_, 16, 5, prompts_));
  EXPECT_EQ(catalogue_.models()[16].Skins.size(), 5U);
  const std::string question =
      "Remove skin?: Do you want to remove skin Tiger for model Sarge?";
  EXPECT_THAT(prompts_.log,
              ElementsAre("Denied!: Skin Default is the only skin for model "
                          "New so it can't be removed from the list",
                          "Denied!: Skin Red for model Sarge is an original "
                          "Q3A skin and it can't be removed from the list",
                          question, question));
}

}  // namespace
}  // namespace fragsmith
