#ifndef FRAGSMITH_EDITOR_PAGES_PAGE_TABLE_H_
#define FRAGSMITH_EDITOR_PAGES_PAGE_TABLE_H_

#include <QString>
#include <array>
#include <span>
#include <string_view>

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
  std::string_view caption;  ///< Without the range.
  int max = 0;               ///< Chooses the scale.
  bool is_optional = false;  ///< "No" is shown for 0.
  LevelLinking linking = LevelLinking::kNone;

  constexpr bool IsEmptyPlace() const { return index == 0; }
  constexpr bool HasLevels() const { return kPerLevelRange.Contains(index); }
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
  /// What assistive tools say behind the captions of a row, taken in turn as
  /// the headings are: captions repeat themselves from frame to frame.
  std::span<const std::string_view> spoken_suffixes;
};

inline constexpr int kNoScaleSelector = -1;

struct PageRow {
  std::string_view tab_caption;
  std::span<const FrameRow> frames;
  int scale_selector = kNoScaleSelector;  ///< The element of mseSelect.
};

namespace page_table {

inline constexpr auto kRising = LevelLinking::kRising;
inline constexpr auto kFalling = LevelLinking::kFalling;

inline constexpr ControlRow kGeneral[] = {
    {2, "Attack skill", 1, false, kRising},
    {3, "Aim skill", 1, false, kRising},
    {4, "Aim accuracy", 1, false, kRising},
    {5, "View factor", 1, false, kRising},
    {6, "Max view change angle °/s", 360, false, kRising},
    {7, "Reaction time s", 5, false, kFalling},
    {17, "Alertness", 1, false, kRising},
    {30, "Firing speed", 1, true, kRising},
};

inline constexpr ControlRow kBehaviour[] = {
    {8, "Croucher", 1},
    {9, "Jumper", 1},
    {10, "Weapon jumper", 1},
    {11, "Grapple user", 1},
    {12, "Aggression", 1},
    {13, "Selfpreservation", 1},
    {14, "Vengefulness", 1},
    {15, "Camper", 1},
    {16, "Frags easy targets", 1},
};

inline constexpr ControlRow kAimSkill[] = {
    {26, "Rocket launcher", 1, true, kRising},
    {27, "Grenade launcher", 1, true, kRising},
    {28, "Plasma gun", 1, true, kRising},
    {29, "BFG10K", 1, true, kRising},
};

inline constexpr ControlRow kAimAccuracy[] = {
    {18, "Machinegun", 1, true, kRising},
    {19, "Shotgun", 1, true, kRising},
    {20, "Rocket launcher", 1, true, kRising},
    {21, "Grenade launcher", 1, true, kRising},
    {22, "Lightning gun", 1, true, kRising},
    {23, "Plasma gun", 1, true, kRising},
    {24, "Railgun", 1, true, kRising},
    {25, "BFG10K", 1, true, kRising},
};

inline constexpr ControlRow kWeaponUsage[] = {
    {44, "Gauntlet", 400},        {45, "Shotgun", 400},
    {46, "Machinegun", 400},      {47, "Grenade launcher", 400},
    {48, "Rocket launcher", 400}, {49, "Railgun", 400},
    {50, "BFG10K", 400},          {51, "Lightning gun", 400},
    {52, "Plasma gun", 400},      {53, "Grapple", 400},
};

// In pairs: below the weight of a weapon that the bot has not got stands,
// without a caption, that of the same weapon when it has it.
inline constexpr ControlRow kWeaponPickup[] = {
    {57, "Machinegun", 400},
    {56, "Shotgun", 400},
    {58, "Grenade launcher", 400},
    {65, "", 400},
    {64, "", 400},
    {66, "", 400},
    {59, "Rocket launcher", 400},
    {63, "Plasma gun", 400},
    {62, "Lightning gun", 400},
    {67, "", 400},
    {71, "", 400},
    {70, "", 400},
    {60, "Railgun", 400},
    {61, "BFG10K", 400},
    {},
    {68, "", 400},
    {69, "", 400},
    {},
};

inline constexpr ControlRow kItemPickup[] = {
    {72, "Teleporter", 400},   {73, "Medkit", 400}, {74, "Quad damage", 400},
    {75, "Battle suit", 400},  {76, "Haste", 400},  {77, "Invisibility", 400},
    {78, "Regeneration", 400}, {79, "Flight", 400}, {80, "CTF Flag", 400},
    {54, "Health", 4},         {55, "Armor", 4},
};

inline constexpr ControlRow kChatCharacteristics[] = {
    {31, "Typing speed cpm", 1000},
    {32, "Insult", 1},
    {33, "Misc", 1},
    {34, "Start and end of level", 1},
    {35, "Enters or exits level", 1},
    {36, "Kills", 1},
    {37, "Dies", 1},
    {38, "Enemy suicide", 1},
    {39, "Hit while talking", 1},
    {40, "Hit, not dead", 1},
    {41, "Hit, no kill", 1},
    {42, "Random", 1},
    {43, "Reply", 1},
};

inline constexpr std::string_view kPickupHeadings[] = {"Without", "With"};
inline constexpr std::string_view kPickupSuffixes[] = {"pickup without it",
                                                       "pickup with it"};
inline constexpr std::string_view kAimSkillSuffix[] = {"aim skill"};
inline constexpr std::string_view kAimAccuracySuffix[] = {"aim accuracy"};
inline constexpr std::string_view kUsageSuffix[] = {"usage"};

inline constexpr FrameRow kGeneralFrames[] = {
    {.caption = "General characteristics", .controls = kGeneral, .columns = 3}};
inline constexpr FrameRow kBehaviourFrames[] = {
    {.caption = "Behavioural characteristics",
     .controls = kBehaviour,
     .columns = 3}};
inline constexpr FrameRow kWeaponSkillFrames[] = {
    {.caption = "Weapon aim skill",
     .controls = kAimSkill,
     .columns = 4,
     .spoken_suffixes = kAimSkillSuffix},
    {.caption = "Weapon aim accuracy",
     .controls = kAimAccuracy,
     .columns = 4,
     .spoken_suffixes = kAimAccuracySuffix}};
inline constexpr FrameRow kWeaponUsageFrames[] = {
    {.caption = "Weapon usage weights",
     .controls = kWeaponUsage,
     .columns = 2,
     .spoken_suffixes = kUsageSuffix}};
inline constexpr FrameRow kWeaponPickupFrames[] = {
    {.caption = "Weapon pickup weights",
     .controls = kWeaponPickup,
     .columns = 3,
     .headings = kPickupHeadings,
     .spoken_suffixes = kPickupSuffixes}};
inline constexpr FrameRow kItemPickupFrames[] = {
    {.caption = "Item weights", .controls = kItemPickup, .columns = 3}};
inline constexpr FrameRow kChatCharacteristicFrames[] = {
    {.caption = "Chat characteristics",
     .controls = kChatCharacteristics,
     .columns = 3}};
inline constexpr FrameRow kChatTextFrames[] = {{.caption = "Chat texts"}};

}  // namespace page_table

/// The last one, whose frame is empty here, is the chat page.
inline constexpr std::array<PageRow, 8> kPages = {{
    {"General characteristics", page_table::kGeneralFrames},
    {"Behavioural characteristics", page_table::kBehaviourFrames},
    {"Weapon skills", page_table::kWeaponSkillFrames},
    {"Weapon usage", page_table::kWeaponUsageFrames, 0},
    {"Weapon pickup", page_table::kWeaponPickupFrames, 1},
    {"Item pickup", page_table::kItemPickupFrames, 2},
    {"Chat characteristics", page_table::kChatCharacteristicFrames},
    {"Chat texts", page_table::kChatTextFrames},
}};
inline constexpr int kChatPage = 7;

/// A text of the table for a widget.
inline QString TableText(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The text above a control: "Gauntlet (0-400)".
inline QString CaptionText(const ControlRow& control, int max) {
  if (control.caption.empty()) return {};
  return TableText(control.caption) + QStringLiteral(" (0-%1)").arg(max);
}

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PAGES_PAGE_TABLE_H_
