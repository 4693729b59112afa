#include "editor/pages/page_navigator.h"

#include <QAbstractButton>
#include <optional>

#include "editor/controls/value_control.h"
#include "editor/pages/scrolling_page.h"
#include "editor/toolkit/page_table.h"
#include "model/characteristic_catalogue.h"
#include "model/file_names.h"

namespace fragsmith {
namespace {

/// The object name of the control of an identity field.
QString FieldControl(ParameterId field) {
  switch (field.index()) {
    case kGenderField.index():
      return QStringLiteral("opGender_0");
    case kRailColorField.index():
      return QStringLiteral("cmbRail");
    case kModelField.index():
      return QStringLiteral("cmbModel");
    case kSkinField.index():
      return QStringLiteral("cmbSkin");
    case kArenaLordField.index():
      return QStringLiteral("chkArenalord");
    default:
      return QStringLiteral("txtBotPara_%1").arg(field.index());
  }
}

/// Where the window begins to show what a file of the bot holds.
BotPlace PlaceOfFile(std::optional<BotFile> kind) {
  if (!kind) return kNameField;
  switch (*kind) {
    case BotFile::kDescription:
      break;
    case BotFile::kCharacteristics:
      return kGenderField;
    case BotFile::kChat:
      return ChatPlace{.type = kAllChatTypes.front(), .line = std::nullopt};
    case BotFile::kItemWeights:
      return ParameterId(kItemWeightRange.first);
    case BotFile::kWeaponWeights:
      return ParameterId(kWeaponWeightRange.first);
  }
  return kNameField;
}

}  // namespace

QWidget* ControlOf(const QWidget& window, ParameterId parameter) {
  const int index = parameter.index();
  if (parameter.level()) {
    return window.findChild<QWidget*>(
        QStringLiteral("tsBotPara_%1").arg(index));
  }
  if (auto* const control = window.findChild<QWidget*>(
          QStringLiteral("osBotPara_%1").arg(index))) {
    return control;
  }
  return window.findChild<QWidget*>(FieldControl(parameter));
}

void PageNavigator::CompletePages() {
  for (int number = 0; number < strip_.count(); ++number) {
    qobject_cast<ScrollingPage*>(strip_.widget(number))->Complete();
  }
}

QWidget* PageNavigator::Find(const BotPlace& place) {
  CompletePages();
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    return window_.findChild<QWidget*>(chat->line
                                           ? QStringLiteral("txtChatLine")
                                           : QStringLiteral("lstChatGroups"));
  }
  if (const auto* const file = std::get_if<FilePlace>(&place)) {
    return Find(PlaceOfFile(file->kind));
  }
  const auto* const parameter = std::get_if<ParameterId>(&place);
  if (parameter == nullptr) return nullptr;
  QWidget* const control = ControlOf(window_, *parameter);
  const auto* const values = qobject_cast<ValueControl*>(control);
  return values == nullptr ? control : values->SliderOf(parameter->level());
}

void PageNavigator::Show(const BotPlace& place) {
  QWidget* const control = Find(place);
  if (control == nullptr) return;
  const auto* const parameter = std::get_if<ParameterId>(&place);
  if (parameter != nullptr && !PageOfParameter(parameter->index()) &&
      !control->isVisibleTo(&window_)) {
    window_.findChild<QAbstractButton*>(QStringLiteral("cmdMore"))
        ->setChecked(true);
  }
  for (int number = 0; number < strip_.count(); ++number) {
    auto* const page = qobject_cast<ScrollingPage*>(strip_.widget(number));
    if (!page->isAncestorOf(control)) continue;
    strip_.setCurrentIndex(number);
    page->ensureWidgetVisible(control);
  }
  if (const auto* const chat = std::get_if<ChatPlace>(&place)) {
    chat_page_.GoTo(*chat);
  }
}

void PageNavigator::GoTo(const BotPlace& place) {
  Show(place);
  if (QWidget* const control = Find(place); control != nullptr) {
    control->setFocus(Qt::ShortcutFocusReason);
  }
}

}  // namespace fragsmith
