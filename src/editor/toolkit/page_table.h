#ifndef FRAGSMITH_EDITOR_TOOLKIT_PAGE_TABLE_H_
#define FRAGSMITH_EDITOR_TOOLKIT_PAGE_TABLE_H_

#include <QString>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "chat/vocabulary.h"
#include "model/characteristic_catalogue.h"
#include "model/level_linking.h"
#include "model/value_scale.h"

namespace fragsmith {

// What stands on the eight pages of the window, in the order of the tabs.
// Texts are UTF-8.

/// A value control. Those of the per-level range have three sliders, the
/// others one. A row without an index is an empty place of the grid.
struct ControlRow {
  int index = 0;             ///< In the characteristic catalogue.
  int max = 0;               ///< Chooses the scale.
  bool is_optional = false;  ///< "No" is shown for 0.
  LevelLinking linking = LevelLinking::kNone;

  constexpr bool IsEmptyPlace() const { return index == 0; }
  constexpr bool HasLevels() const { return kPerLevelRange.Contains(index); }
  constexpr ParameterId Id() const { return ParameterAt(index); }
  /// True when the scale selector of its page sets its maximum.
  constexpr bool IsRescaled() const { return max == kWeightMaxima[0]; }
};

/// A frame: its controls fill a grid row by row.
struct FrameRow {
  std::string_view caption;
  std::span<const ControlRow> controls;
  int columns = 1;
  /// Stand before the rows of the grid, one after the other and again from
  /// the first one.
  std::span<const std::string_view> headings;
};

inline constexpr int kNoScaleSelector = -1;

struct PageRow {
  std::string_view tab_caption;
  std::span<const FrameRow> frames;
  std::string_view chapter;               ///< Of the manual.
  int scale_selector = kNoScaleSelector;  ///< The element of mseSelect.
};

namespace page_table {

inline constexpr auto kRising = LevelLinking::kRising;
inline constexpr auto kFalling = LevelLinking::kFalling;

inline constexpr ControlRow kGeneral[] = {
    {2, 1, false, kRising},  {3, 1, false, kRising},   {4, 1, false, kRising},
    {5, 1, false, kRising},  {6, 360, false, kRising}, {7, 5, false, kFalling},
    {17, 1, false, kRising}, {30, 1, true, kRising},
};

inline constexpr ControlRow kBehaviour[] = {
    {8, 1},  {9, 1},  {10, 1}, {11, 1}, {12, 1},
    {13, 1}, {14, 1}, {15, 1}, {16, 1},
};

inline constexpr ControlRow kAimSkill[] = {
    {26, 1, true, kRising},
    {27, 1, true, kRising},
    {28, 1, true, kRising},
    {29, 1, true, kRising},
};

inline constexpr ControlRow kAimAccuracy[] = {
    {18, 1, true, kRising}, {19, 1, true, kRising}, {20, 1, true, kRising},
    {21, 1, true, kRising}, {22, 1, true, kRising}, {23, 1, true, kRising},
    {24, 1, true, kRising}, {25, 1, true, kRising},
};

inline constexpr ControlRow kWeaponUsage[] = {
    {44, 400}, {45, 400}, {46, 400}, {47, 400}, {48, 400},
    {49, 400}, {50, 400}, {51, 400}, {52, 400}, {53, 400},
};

// In pairs: below the weight of a weapon that the bot has not got stands,
// without a caption, that of the same weapon when it has it.
inline constexpr ControlRow kWeaponPickup[] = {
    {57, 400}, {56, 400}, {58, 400}, {65, 400}, {64, 400}, {66, 400},
    {59, 400}, {63, 400}, {62, 400}, {67, 400}, {71, 400}, {70, 400},
    {60, 400}, {61, 400}, {},        {68, 400}, {69, 400}, {},
};

inline constexpr ControlRow kItemPickup[] = {
    {72, 400}, {73, 400}, {74, 400}, {75, 400}, {76, 400}, {77, 400},
    {78, 400}, {79, 400}, {80, 400}, {54, 4},   {55, 4},
};

inline constexpr ControlRow kChatCharacteristics[] = {
    {31, 1000}, {32, 1}, {33, 1}, {34, 1}, {35, 1}, {36, 1}, {37, 1},
    {38, 1},    {39, 1}, {40, 1}, {41, 1}, {42, 1}, {43, 1},
};

inline constexpr std::string_view kPickupHeadings[] = {"Without", "With"};

inline constexpr FrameRow kGeneralFrames[] = {
    {.caption = "General characteristics", .controls = kGeneral, .columns = 3}};
inline constexpr FrameRow kBehaviourFrames[] = {
    {.caption = "Behavioural characteristics",
     .controls = kBehaviour,
     .columns = 3}};
inline constexpr FrameRow kWeaponSkillFrames[] = {
    {.caption = "Weapon aim skill", .controls = kAimSkill, .columns = 4},
    {.caption = "Weapon aim accuracy", .controls = kAimAccuracy, .columns = 4}};
inline constexpr FrameRow kWeaponUsageFrames[] = {
    {.caption = "Weapon usage weights",
     .controls = kWeaponUsage,
     .columns = 2}};
inline constexpr FrameRow kWeaponPickupFrames[] = {
    {.caption = "Weapon pickup weights",
     .controls = kWeaponPickup,
     .columns = 3,
     .headings = kPickupHeadings}};
inline constexpr FrameRow kItemPickupFrames[] = {
    {.caption = "Item weights", .controls = kItemPickup, .columns = 3}};
inline constexpr FrameRow kChatCharacteristicFrames[] = {
    {.caption = "Chat characteristics",
     .controls = kChatCharacteristics,
     .columns = 3}};
inline constexpr FrameRow kChatTextFrames[] = {{.caption = "Chat texts"}};

}  // namespace page_table

inline constexpr std::string_view kPlaying = "Change how well it plays";
inline constexpr std::string_view kWanting = "Change its weapons and items";
inline constexpr std::string_view kSaying = "Change what it says";

/// The last one, whose frame is empty here, is the chat page.
inline constexpr std::array<PageRow, 8> kPages = {{
    {"General characteristics", page_table::kGeneralFrames, kPlaying},
    {"Behavioural characteristics", page_table::kBehaviourFrames, kPlaying},
    {"Weapon skills", page_table::kWeaponSkillFrames, kPlaying},
    {"Weapon usage", page_table::kWeaponUsageFrames, kWanting, 0},
    {"Weapon pickup", page_table::kWeaponPickupFrames, kWanting, 1},
    {"Item pickup", page_table::kItemPickupFrames, kWanting, 2},
    {"Chat characteristics", page_table::kChatCharacteristicFrames, kSaying},
    {"Chat texts", page_table::kChatTextFrames, kSaying},
}};
inline constexpr int kChatPage = 7;

/// The page that a parameter stands on; nothing for the fields of the identity.
constexpr std::optional<int> PageOfParameter(int index) {
  for (std::size_t page = 0; page < kPages.size(); ++page) {
    for (const FrameRow& frame : kPages.at(page).frames) {
      for (const ControlRow& control : frame.controls) {
        if (control.index == index && index != 0) return static_cast<int>(page);
      }
    }
  }
  return std::nullopt;
}

/// How often the parameter stands on the pages.
constexpr int PlacesOf(int index) {
  int count = 0;
  for (const PageRow& page : kPages) {
    for (const FrameRow& frame : page.frames) {
      for (const ControlRow& control : frame.controls) {
        if (control.index == index) ++count;
      }
    }
  }
  return count;
}

static_assert([] {
  for (int index = kPerLevelRange.first; index <= kItemWeightRange.last;
       ++index) {
    if (PlacesOf(index) != 1) return false;
  }
  return true;
}());

/// The text above a control: "Gauntlet (0-400)".
inline QString CaptionText(const ControlRow& control, int max) {
  const std::string_view caption = ParameterCaption(control.index);
  if (caption.empty()) return {};
  return QString::fromUtf8(caption) + QStringLiteral(" (0-%1)").arg(max);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_PAGE_TABLE_H_
