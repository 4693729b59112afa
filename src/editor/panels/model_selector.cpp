#include "editor/panels/model_selector.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "editor/controls/captioned_field.h"
#include "editor/state/face_store.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/wheel_guard.h"
#include "install/program/game_folder.h"
#include "support/files.h"
#include "support/text.h"

namespace fragsmith {
namespace {

QComboBox* MakeList(const QString& name, const QString& accessible_name,
                    QWidget* parent) {
  auto* const list = new QComboBox(parent);
  IgnoreWheelWithoutFocus(*list);
  list->setObjectName(name);
  list->setAccessibleName(accessible_name);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(14);
  list->setIconSize(QSize(0, 0));  // No room for what is not there.
  list->setMaxVisibleItems(24);
  return list;
}

}  // namespace

ModelSelector::ModelSelector(CurrentBot& current, ProgramState& state,
                             QWidget* parent)
    : QWidget(parent), current_(current), state_(state) {
  models_ = MakeList(QStringLiteral("cmbModel"), QStringLiteral("Model"), this);
  skins_ = MakeList(QStringLiteral("cmbSkin"), QStringLiteral("Skin"), this);
  auto* const model_field = new CaptionedField({}, models_, this);
  model_field->AddControl(models_);
  model_caption_ = model_field->caption();
  model_caption_->setObjectName(QStringLiteral("fraModel"));
  auto* const skin_field = new CaptionedField({}, skins_, this);
  auto* const choose = new QPushButton(tr("Choose..."), this);
  choose->setObjectName(QStringLiteral("cmdChooseFace"));
  choose->setAccessibleName(tr("Choose a model and skin by its face"));
  choose->setToolTip(tr("Shows the faces of all models and skins."));
  auto* const skin_row = new QHBoxLayout;
  skin_row->addWidget(skins_, 1);
  skin_row->addWidget(choose);
  skin_field->AddControls(skin_row);
  skin_caption_ = skin_field->caption();
  skin_caption_->setObjectName(QStringLiteral("fraSkin"));
  icon_ = new IconBox(this);
  icon_->setObjectName(QStringLiteral("picIcon"));
  icon_text_ = new QLabel(this);
  icon_text_->setObjectName(QStringLiteral("lblIcon"));
  icon_text_->setWordWrap(true);
  icon_text_->setForegroundRole(QPalette::PlaceholderText);

  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(4);
  column->addWidget(model_field);
  column->addWidget(skin_field);
  column->addWidget(icon_text_, 1, Qt::AlignTop);

  connect(models_, &QComboBox::activated, this, &ModelSelector::ModelChosen);
  connect(skins_, &QComboBox::activated, this, &ModelSelector::SkinChosen);
  connect(choose, &QPushButton::clicked, this, &ModelSelector::ChooseWanted);
  connect(icon_, &IconBox::Clicked, this, &ModelSelector::ChooseWanted);
}

CatalogueSelection ModelSelector::Selection() const {
  const auto index = [](const QComboBox* list) {
    return list->currentIndex() < 0
               ? std::size_t{0}
               : static_cast<std::size_t>(list->currentIndex());
  };
  return {.modelIndex = index(models_), .skinIndex = index(skins_)};
}

void ModelSelector::FillSkinSelector(std::size_t modelIndex) {
  skins_->clear();
  const auto& models = state_.lists.models.models();
  if (modelIndex < models.size()) {
    for (const SkinEntry& skin : models[modelIndex].Skins) {
      skins_->addItem(ToQString(skin.Name));
    }
  }
  skin_caption_->setText(
      QStringLiteral("Skin name (%1 skins)").arg(skins_->count()));
}

void ModelSelector::Select(std::size_t modelIndex, std::size_t skinIndex) {
  models_->setCurrentIndex(static_cast<int>(modelIndex));
  FillSkinSelector(modelIndex);
  skins_->setCurrentIndex(static_cast<int>(skinIndex));
}

void ModelSelector::FillModelSelector() {
  models_->clear();
  for (const ModelEntry& model : state_.lists.models.models()) {
    models_->addItem(ToQString(model.Name));
  }
  model_caption_->setText(
      QStringLiteral("Model name (%1 models)").arg(models_->count()));
}

void ModelSelector::RefillModelSelector(std::size_t modelIndex,
                                        std::size_t skinIndex) {
  FillModelSelector();
  Select(modelIndex, skinIndex);
  StoreSelection();
  ShowSelectedIcon();
}

void ModelSelector::StoreSelection() {
  // A skin that comes with its model is no edit of its own.
  ParameterId leader = kSkinField;
  current_.EndStep();
  for (const auto& [field, list] :
       {std::pair{kModelField, models_}, std::pair{kSkinField, skins_}}) {
    const std::optional<std::string> name = ToGameText(list->currentText());
    // The game knows no case here: another spelling is no edit.
    if (!name || list->currentIndex() < 0 ||
        EqualIgnoringCase(current_.bot().Text(field), *name)) {
      continue;
    }
    if (field == kModelField) leader = kModelField;
    current_.SetParameter(field, *name, leader);
  }
  current_.EndStep();
}

void ModelSelector::ModelChosen(int index) {
  Choose({.modelIndex = static_cast<std::size_t>(index), .skinIndex = 0});
}

void ModelSelector::Choose(const CatalogueSelection& selection) {
  Select(selection.modelIndex, selection.skinIndex);
  StoreSelection();
  ShowChosenIcon();
}

void ModelSelector::SkinChosen(int /*index*/) {
  StoreSelection();
  ShowChosenIcon();
}

bool ModelSelector::AskToAdd(const std::string& title,
                             const std::string& text) {
  // Yes comes first: it keeps the bot as it is.
  if (state_.prompts.Choose(title, text, {"Yes", "No"}) != 0) return false;
  const Bot& bot = current_.bot();
  const std::string model = bot.Text(kModelField);
  state_.lists.models.AddModelSkin(model, bot.Text(kSkinField),
                                   kUserDefinedPackage, {});
  return true;
}

void ModelSelector::ShowBot() {
  const CurrentBot::Filling filling(current_);
  ModelCatalogue& models = state_.lists.models;
  const Bot& bot = current_.bot();
  const std::string model = bot.Text(kModelField);
  const std::string skin = bot.Text(kSkinField);

  std::optional<std::size_t> model_index = models.FindModel(model);
  if (!model_index &&
      AskToAdd("Model not found!",
               "Model " + Utf8FromGameText(model) +
                   " doesn't exist in Fragsmith's model/skin list. Do you "
                   "want to add it there?")) {
    model_index = models.FindModel(model);
  }
  if (!model_index) {
    // The first of the list takes its place, with its first skin.
    return RefillModelSelector(0, 0);
  }
  std::optional<std::size_t> skin_index = models.FindSkin(*model_index, skin);
  if (!skin_index &&
      AskToAdd("Skin not found!",
               "Skin " + Utf8FromGameText(skin) + " for model " +
                   Utf8FromGameText(models.models()[*model_index].Name) +
                   " doesn't exist in Fragsmith's model/skin list. Do you "
                   "want to add it there?")) {
    skin_index = models.FindSkin(*model_index, skin);
  }
  RefillModelSelector(*model_index, skin_index.value_or(0));
}

void ModelSelector::ShowStep() {
  const CurrentBot::Filling filling(current_);
  const ModelCatalogue& models = state_.lists.models;
  const Bot& bot = current_.bot();
  const std::optional<std::size_t> model =
      models.FindModel(bot.Text(kModelField));
  if (model) Select(*model, 0);
  const std::optional<std::size_t> skin =
      model ? models.FindSkin(*model, bot.Text(kSkinField)) : std::nullopt;
  if (!skin) return ShowMissing();
  skins_->setCurrentIndex(static_cast<int>(*skin));
  ShowSelectedIcon();
}

void ModelSelector::ShowMissing() {
  const Bot& bot = current_.bot();
  const auto text = [](const std::string& name) {
    return tr("%1 (not in the list)").arg(ToQString(name));
  };
  if (!state_.lists.models.FindModel(bot.Text(kModelField))) {
    models_->setPlaceholderText(text(bot.Text(kModelField)));
    models_->setCurrentIndex(-1);
    skins_->clear();
  }
  skins_->setPlaceholderText(text(bot.Text(kSkinField)));
  skins_->setCurrentIndex(-1);
  shown_.reset();
  if (state_.folder_state.Pk3Ready && !is_not_in_use_) {
    ShowIcon({.kind = IconKind::kNotFound, .picture = {}});
  }
}

void ModelSelector::Refill() {
  const CurrentBot::Filling filling(current_);
  FillModelSelector();
  ShowStep();
}

bool ModelSelector::IsMissing() const {
  return models_->currentIndex() < 0 || skins_->currentIndex() < 0;
}

void ModelSelector::ShowIcon(const IconResult& icon) {
  const QString description = DescribeIcon(icon.kind);
  icon_text_->setText(icon.kind == IconKind::kIcon ? QString() : description);
  icon_text_->setVisible(icon.kind != IconKind::kIcon);
  if (icon.kind == IconKind::kIcon) {
    return icon_->ShowPicture(icon.picture, description);
  }
  const Result<Picture> picture = LoadFixedPicture(
      icon.kind, {state_.folders.program, state_.folders.data});
  if (picture) {
    icon_->ShowPicture(*picture, description);
  } else {
    icon_->Clear();
  }
}

const SkinEntry* ModelSelector::SelectedSkin() const {
  const auto& models = state_.lists.models.models();
  const CatalogueSelection selected = Selection();
  if (selected.modelIndex >= models.size()) return nullptr;
  const auto& skins = models[selected.modelIndex].Skins;
  return selected.skinIndex < skins.size() ? &skins[selected.skinIndex]
                                           : nullptr;
}

void ModelSelector::ShowSelectedIcon() {
  // Without the folders the box keeps what it shows, and without the tool it
  // does so until the user wants an icon.
  if (!state_.folder_state.Pk3Ready || is_not_in_use_ || IsMissing()) return;
  const SkinEntry* const selected = SelectedSkin();
  if (selected == nullptr) return;
  const SkinEntry skin = *selected;
  IconSource source = {skin.IconFile, skin.PK3File, state_.settings.Q3Baseq3,
                       state_.settings.WinZipDir};
  if (source == shown_) return;
  const UnzipTool tool = state_.Tool([] {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return true;
  });
  const IconResult icon = ShowSkinIcon(skin.IconFile, skin.PK3File,
                                       PathFromBytes(state_.settings.Q3Baseq3),
                                       tool, state_.temporary);
  ShowIcon(icon);
  shown_ = std::move(source);
  has_icon_ = icon.kind == IconKind::kIcon;
}

void ModelSelector::ShowChosenIcon() {
  is_not_in_use_ = false;
  // What was not found may be there by now.
  if (!has_icon_) shown_.reset();
  ShowSelectedIcon();
}

void ModelSelector::RefreshIcon() {
  if (!state_.folder_state.ResetsIcon) return ShowChosenIcon();
  ShowIcon({.kind = IconKind::kNotInUse, .picture = {}});
  shown_.reset();
  is_not_in_use_ = true;
}

}  // namespace fragsmith
