#include "support/localization.h"

#include <gtest/gtest.h>

#include <string>

namespace fragsmith {
namespace {

TEST(Localization, FillsInTheValuesOfEitherLanguage) {
  EXPECT_EQ(Localized("100 % of %1, %2 and %3", {"a%2", "b"}),
            "100 % of a%2, b and %3");
  LocalizeBy([](std::string_view english) {
    return english == "%1 of %2" ? std::string("von %2 %1")
                                 : std::string(english);
  });
  EXPECT_EQ(Localized("%1 of %2", {"3", "7"}), "von 7 3");
  EXPECT_EQ(Localized("%1 or %2", {"3", "7"}), "3 or 7");
  LocalizeBy(nullptr);
  EXPECT_EQ(Localized("%1 of %2", {"3", "7"}), "3 of 7");
}

}  // namespace
}  // namespace fragsmith
