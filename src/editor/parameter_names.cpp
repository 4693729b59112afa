#include "editor/parameter_names.h"

#include <algorithm>
#include <array>
#include <utility>

#include "editor/pages/page_table.h"
#include "model/bot.h"
#include "model/characteristic_catalogue.h"

namespace fragsmith {
namespace {

constexpr std::array<std::pair<int, const char*>, 10> kFieldNames = {
    {{kNameIndex, "Name"},
     {kGenderIndex, "Gender"},
     {kFunNameField, "Funname"},
     {kRailColorField, "Railgun color"},
     {kModelField, "Model"},
     {kSkinField, "Skin"},
     {kVersionMajorField, "Version, major"},
     {kVersionMinorField, "Version, minor"},
     {kCommentField, "Comment"},
     {kArenaLordField, "Arenalord"}}};

/// A control without a caption goes by the one above it.
QString NameInFrame(const FrameRow& frame, int place) {
  const auto caption = [&frame](int at) {
    return TableText(frame.controls[static_cast<std::size_t>(at)].caption);
  };
  QString name = caption(place);
  if (name.isEmpty()) name = caption(place - frame.columns);
  if (!frame.spoken_suffixes.empty()) {
    const auto row = static_cast<std::size_t>(place / frame.columns);
    name +=
        QStringLiteral(", ") +
        TableText(frame.spoken_suffixes[row % frame.spoken_suffixes.size()]);
  }
  return name;
}

}  // namespace

QString ControlName(int index) {
  for (const PageRow& page : kPages) {
    for (const FrameRow& frame : page.frames) {
      const auto found =
          std::find_if(frame.controls.begin(), frame.controls.end(),
                       [index](const ControlRow& control) {
                         return control.index == index;
                       });
      if (found == frame.controls.end()) continue;
      return NameInFrame(frame,
                         static_cast<int>(found - frame.controls.begin()));
    }
  }
  return {};
}

QString ParameterTitle(int parameter) {
  constexpr int kFirstLevelIndex = 100;
  if (parameter > kFirstLevelIndex) {
    return ControlName(parameter % kFirstLevelIndex) +
           QStringLiteral(", level %1").arg(parameter / kFirstLevelIndex);
  }
  const auto* const field = std::find_if(
      kFieldNames.begin(), kFieldNames.end(),
      [parameter](const auto& row) { return row.first == parameter; });
  if (field != kFieldNames.end()) return QLatin1String(field->second);
  return ControlName(parameter);
}

}  // namespace fragsmith
