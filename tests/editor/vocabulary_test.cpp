#include "chat/vocabulary.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <string_view>

#include "editor/controls/captioned_field.h"
#include "editor/controls/value_control.h"
#include "editor/pages/page_navigator.h"
#include "editor/pages/parameter_help.h"
#include "editor/toolkit/page_table.h"
#include "model/characteristic_catalogue.h"
#include "session/bot_difference.h"
#include "support/text.h"
#include "tests/editor/window_fixture.h"

namespace fragsmith {
namespace {

std::string Spoken(const QWidget& control) {
  const auto* const button = qobject_cast<const QAbstractButton*>(&control);
  QString name = control.accessibleName();
  if (name.isEmpty() && button != nullptr) name = button->text();
  return name.remove(u'&').toStdString();
}

using Vocabulary = WindowFixture;

std::string LettersOf(std::string_view text) {
  std::string letters;
  for (const char letter : text) {
    if (letter != ' ' && letter != ',') letters += ToLower(letter);
  }
  return letters;
}

// The names stand in a table of their own. A row in the wrong place would give
// two parameters each other's names; most names have the words of the key.
TEST(VocabularyRows, AreThoseOfTheirKeys) {
  const std::map<int, std::string_view> other_words = {
      {6, "maxviewchangeangle"},  {10, "weaponjumper"},
      {16, "easytargets"},        {30, "firingspeed"},
      {31, "typingspeed"},        {34, "startandendoflevel"},
      {35, "entersorexitslevel"}, {37, "dies"},
      {39, "hitwhiletalking"},    {40, "hitnotdead"},
      {75, "battlesuit"}};
  for (int index = kPerLevelRange.first; index <= kItemWeightRange.last;
       ++index) {
    const std::string name = LettersOf(ParameterName(ParameterAt(index)));
    const auto other = other_words.find(index);
    std::string key(other == other_words.end() ? BareKey(index)
                                               : other->second);
    for (const std::string_view prefix :
         {"#define ", "CHARACTERISTIC_CHAT_", "CHARACTERISTIC_", "GWW_", "FS_",
          "W_"}) {
      if (key.starts_with(prefix)) key.erase(0, prefix.size());
    }
    std::ranges::replace(key, '_', ' ');
    std::istringstream words(key);
    for (std::string word; words >> word;) {
      if (word == "WEIGHT") continue;
      EXPECT_TRUE(Contains(name, ToLower(word))) << index << ": " << name;
    }
    EXPECT_EQ(name.find("withoutit") != std::string::npos,
              56 <= index && index <= 63);
    EXPECT_EQ(name.find("pickupwithit") != std::string::npos,
              64 <= index && index <= 71);
  }
}

TEST_F(Vocabulary, NamesParametersAsTheWindowDoes) {
  int count = 0;
  for (const ValueControl* const control :
       window_->findChildren<ValueControl*>()) {
    const int index = control->Index();
    for (const ValueSlider* const slider :
         control->findChildren<ValueSlider*>()) {
      const auto parameter = ParameterOf(slider);
      ASSERT_TRUE(parameter) << index;
      EXPECT_EQ(Spoken(*slider), ParameterTitle(*parameter));
      EXPECT_EQ(ControlOf(*window_, *parameter), control);
      EXPECT_FALSE(slider->accessibleDescription().isEmpty());
      ++count;
    }
    EXPECT_FALSE(control->toolTip().contains(u'{')) << index;
    const std::string caption =
        control->findChild<QLabel*>("lblCaption")->text().toStdString();
    const std::string expected(ParameterCaption(index));
    EXPECT_EQ(caption.substr(0, caption.rfind(" (")), expected);
  }
  // Three sliders for each parameter of a level, one for each other.
  EXPECT_EQ(count, 3 * 29 + 50);
}

TEST_F(Vocabulary, NamesTheIdentityAsTheWindowDoes) {
  for (const ParameterId field : kIdentityFields) {
    QWidget* const control = ControlOf(*window_, field);
    ASSERT_NE(control, nullptr) << ParameterName(field);
    if (field == kGenderField) {
      // Its buttons are called by the genders.
      const auto labels = control->parentWidget()->findChildren<QLabel*>();
      ASSERT_FALSE(labels.empty());
      EXPECT_EQ(labels.front()->text().toStdString(), ParameterName(field));
      continue;
    }
    EXPECT_EQ(Spoken(*control), ParameterName(field));
  }
}

}  // namespace
}  // namespace fragsmith
