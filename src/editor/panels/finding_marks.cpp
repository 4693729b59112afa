#include "editor/panels/finding_marks.h"

#include <map>
#include <variant>

#include "editor/controls/caption_mark.h"
#include "editor/controls/captioned_field.h"
#include "editor/controls/value_control.h"
#include "editor/pages/page_navigator.h"

namespace fragsmith {
namespace {

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
    const auto* const parameter = std::get_if<ParameterId>(&finding.place);
    if (parameter == nullptr) continue;
    QWidget* const control = ControlOf(window, *parameter);
    CaptionMark* mark = nullptr;
    if (auto* const values = qobject_cast<ValueControl*>(control)) {
      mark = values->NeedMark();
    } else if (CaptionedField* const field = FieldOf(control)) {
      mark = field->NeedMark();
    }
    if (mark != nullptr) wanted[mark].Add(finding);
  }
  for (const auto& [mark, text] : wanted) mark->ShowText(text);
}

}  // namespace fragsmith
