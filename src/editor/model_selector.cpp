#include "editor/model_selector.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <utility>

#include "editor/captioned_field.h"
#include "editor/game_text_conversion.h"
#include "install/game_folder.h"
#include "support/files.h"

namespace fragsmith {
namespace {

QComboBox* MakeList(const QString& name, const QString& accessible_name,
                    QWidget* parent) {
  auto* const list = new QComboBox(parent);
  list->setObjectName(name);
  list->setAccessibleName(accessible_name);
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(14);
  list->setIconSize(QSize(0, 0));  // No room for what is not there.
  list->setMaxVisibleItems(24);
  return list;
}

QString IconDescription(IconKind kind) {
  switch (kind) {
    case IconKind::kNotInUse:
      return QStringLiteral(
          "Icons are off: set the game and WinZip folders in Program/Options");
    case IconKind::kNoPackage:
      return QStringLiteral("The package of this skin is not in the game");
    case IconKind::kNotFound:
      return QStringLiteral("The icon of this skin was not found");
    case IconKind::kUserDefined:
      return QStringLiteral("A skin that you entered yourself");
    case IconKind::kIcon:
      break;
  }
  return QStringLiteral("The icon of this skin");
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
  skin_field->AddControl(skins_);
  skin_caption_ = skin_field->caption();
  skin_caption_->setObjectName(QStringLiteral("fraSkin"));
  icon_ = new IconBox(this);
  icon_->setObjectName(QStringLiteral("picIcon"));
  icon_text_ = new QLabel(this);
  icon_text_->setObjectName(QStringLiteral("lblIcon"));
  icon_text_->setWordWrap(true);
  icon_text_->setForegroundRole(QPalette::PlaceholderText);

  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(12);
  auto* const column = new QVBoxLayout;
  column->setSpacing(8);
  column->addWidget(model_field);
  column->addWidget(skin_field);
  column->addWidget(icon_text_, 1, Qt::AlignTop);
  row->addLayout(column, 1);
  row->addWidget(icon_, 0, Qt::AlignTop);

  connect(models_, &QComboBox::activated, this, &ModelSelector::ModelChosen);
  connect(skins_, &QComboBox::activated, this, &ModelSelector::SkinChosen);
}

CatalogueSelection ModelSelector::Selection() const {
  const auto place = [](const QComboBox* list) {
    return list->currentIndex() < 0
               ? std::size_t{0}
               : static_cast<std::size_t>(list->currentIndex());
  };
  return {.modelIndex = place(models_), .skinIndex = place(skins_)};
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

void ModelSelector::RefillModelSelector(std::size_t modelIndex,
                                        std::size_t skinIndex) {
  models_->clear();
  for (const ModelEntry& model : state_.lists.models.models()) {
    models_->addItem(ToQString(model.Name));
  }
  model_caption_->setText(
      QStringLiteral("Model name (%1 models)").arg(models_->count()));
  Select(modelIndex, skinIndex);
  StoreSelection();
  ShowSelectedIcon();
}

void ModelSelector::StoreSelection() {
  for (const auto& [field, list] :
       {std::pair{kModelField, models_}, std::pair{kSkinField, skins_}}) {
    const std::optional<std::string> name = ToGameText(list->currentText());
    if (!name || list->currentIndex() < 0 ||
        current_.bot().Text(field) == *name) {
      continue;
    }
    current_.SetParameter(field, *name);
  }
}

void ModelSelector::ModelChosen(int place) {
  Select(static_cast<std::size_t>(place), 0);
  StoreSelection();
  ShowSelectedIcon();
}

void ModelSelector::SkinChosen(int /*place*/) {
  StoreSelection();
  ShowSelectedIcon();
}

bool ModelSelector::AskToAdd(const std::string& title,
                             const std::string& text) {
  if (!state_.prompts.Confirm(title, text)) return false;
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

  std::optional<std::size_t> model_place = models.FindModel(model);
  if (!model_place &&
      AskToAdd("Model not found!",
               "Model " + Utf8FromGameText(model) +
                   " doesn't exist in Fragsmith's model/skin list. Do you "
                   "want to add it there?")) {
    model_place = models.FindModel(model);
  }
  if (!model_place) {
    // The first of the list takes its place, with its first skin.
    return RefillModelSelector(0, 0);
  }
  std::optional<std::size_t> skin_place = models.FindSkin(*model_place, skin);
  if (!skin_place &&
      AskToAdd("Skin not found!",
               "Skin " + Utf8FromGameText(skin) + " for model " +
                   Utf8FromGameText(models.models()[*model_place].Name) +
                   " doesn't exist in Fragsmith's model/skin list. Do you "
                   "want to add it there?")) {
    skin_place = models.FindSkin(*model_place, skin);
  }
  RefillModelSelector(*model_place, skin_place.value_or(0));
}

void ModelSelector::ShowIcon(const IconResult& icon) {
  const QString description = IconDescription(icon.kind);
  icon_text_->setText(icon.kind == IconKind::kIcon ? QString() : description);
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

void ModelSelector::ShowSelectedIcon() {
  // Without the folders the box keeps what it shows.
  if (!state_.folder_state.Pk3Ready) return;
  const auto& models = state_.lists.models.models();
  const CatalogueSelection place = Selection();
  if (place.modelIndex >= models.size()) return;
  const auto& skins = models[place.modelIndex].Skins;
  if (place.skinIndex >= skins.size()) return;
  const SkinEntry skin = skins[place.skinIndex];
  const UnzipTool tool = state_.Tool([] {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return true;
  });
  ShowIcon(ShowSkinIcon(skin.IconFile, skin.PK3File,
                        PathFromBytes(state_.settings.Q3Baseq3), tool,
                        state_.temporary));
}

void ModelSelector::RefreshIcon() {
  if (state_.folder_state.ResetsIcon) {
    ShowIcon({.kind = IconKind::kNotInUse, .picture = {}});
  }
  ShowSelectedIcon();
}

}  // namespace fragsmith
