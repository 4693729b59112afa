#include "editor/finding_marks.h"

#include <QString>
#include <map>
#include <optional>

#include "editor/captioned_field.h"
#include "editor/controls/caption_mark.h"
#include "editor/controls/value_control.h"
#include "editor/page_navigator.h"

namespace fragsmith {
namespace {

constexpr int kFirstLevelIndex = 100;

CaptionedField* FieldOf(QWidget* control) {
  while (control != nullptr) {
    if (auto* const field = dynamic_cast<CaptionedField*>(control)) {
      return field;
    }
    control = control->parentWidget();
  }
  return nullptr;
}

}  // namespace

void MarkControls(QWidget& window, const std::vector<Finding>& findings) {
  std::map<CaptionMark*, MarkText> wanted;
  for (ValueControl* const control : window.findChildren<ValueControl*>()) {
    if (control->mark() != nullptr) wanted[control->mark()];
  }
  for (QWidget* const child : window.findChildren<QWidget*>()) {
    auto* const field = dynamic_cast<CaptionedField*>(child);
    if (field != nullptr && field->mark() != nullptr) wanted[field->mark()];
  }
  for (const Finding& finding : findings) {
    const int parameter = finding.place.parameter;
    if (parameter == FindingPlace::kNone) continue;
    const bool has_level = parameter > kFirstLevelIndex;
    CaptionMark* mark = nullptr;
    if (auto* const control = window.findChild<ValueControl*>(
            has_level ? QStringLiteral("tsBotPara_%1")
                            .arg(parameter % kFirstLevelIndex)
                      : QStringLiteral("osBotPara_%1").arg(parameter))) {
      mark = control->NeedMark();
    } else if (CaptionedField* const field = FieldOf(
                   window.findChild<QWidget*>(FieldControl(parameter)))) {
      mark = field->NeedMark();
    }
    if (mark != nullptr) wanted[mark].Add(finding);
  }
  for (const auto& [mark, text] : wanted) mark->ShowText(text);
}

}  // namespace fragsmith
