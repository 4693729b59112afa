#include "editor/page_navigator.h"

#include "editor/pages/scrolling_page.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr int kFirstLevelIndex = 100;

}  // namespace

QString FieldControl(int field) {
  switch (field) {
    case kGenderIndex:
      return QStringLiteral("opGender_0");
    case kRailColorField:
      return QStringLiteral("cmbRail");
    case kModelField:
      return QStringLiteral("cmbModel");
    case kSkinField:
      return QStringLiteral("cmbSkin");
    case kArenaLordField:
      return QStringLiteral("chkArenalord");
    default:
      return QStringLiteral("txtBotPara_%1").arg(field);
  }
}

void PageNavigator::CompletePages() {
  for (int number = 0; number < strip_.count(); ++number) {
    qobject_cast<ScrollingPage*>(strip_.widget(number))->Complete();
  }
}

QWidget* PageNavigator::Find(const FindingPlace& place) {
  CompletePages();
  const auto named = [this](const QString& name) {
    return window_.findChild<QWidget*>(name);
  };
  if (place.chat_type >= 0) {
    const bool has_line = place.chat_line >= 0;
    return named(has_line ? QStringLiteral("txtChatLine")
                          : QStringLiteral("lstChatGroups"));
  }
  const int parameter = place.parameter;
  if (parameter == FindingPlace::kNone) return nullptr;
  if (QWidget* const field = named(FieldControl(parameter)); field != nullptr) {
    return field;
  }
  const bool has_level = parameter > kFirstLevelIndex;
  const QWidget* const control =
      has_level ? named(QStringLiteral("tsBotPara_%1")
                            .arg(parameter % kFirstLevelIndex))
                : named(QStringLiteral("osBotPara_%1").arg(parameter));
  if (control == nullptr) return nullptr;
  return control->findChild<QWidget*>(
      has_level
          ? QStringLiteral("sliValue_%1").arg(parameter / kFirstLevelIndex)
          : QStringLiteral("sliValue"));
}

void PageNavigator::Show(const FindingPlace& place) {
  QWidget* const control = Find(place);
  if (control == nullptr) return;
  for (int number = 0; number < strip_.count(); ++number) {
    auto* const page = qobject_cast<ScrollingPage*>(strip_.widget(number));
    if (!page->isAncestorOf(control)) continue;
    strip_.setCurrentIndex(number);
    page->ensureWidgetVisible(control);
  }
  if (place.chat_type >= 0) chat_page_.GoTo(place.chat_type, place.chat_line);
}

void PageNavigator::GoTo(const FindingPlace& place) {
  Show(place);
  if (QWidget* const control = Find(place); control != nullptr) {
    control->setFocus(Qt::ShortcutFocusReason);
  }
}

}  // namespace fragsmith
