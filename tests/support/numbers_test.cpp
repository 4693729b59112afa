#include "support/numbers.h"

#include <gtest/gtest.h>

namespace fragsmith {
namespace {

TEST(Numbers, KnowNumericTexts) {
  const std::string many(400, '9');
  // clang-format off
  const std::pair<std::string, std::optional<double>> numeric[] = {
      {"0", 0.0}, {" \t+07.5\t ", 7.5}, {"-.5", -0.5}, {"1.", 1.0}, {many, {}},
      {"0." + std::string(400, '0') + "1", 0.0}, {std::string(400, '0'), 0.0}};
  // clang-format on
  for (const auto& [text, number] : numeric) {
    EXPECT_TRUE(IsNumericText(text)) << text;
    EXPECT_EQ(NumberFromText(text), number) << text;
  }
  for (const char* text : {"", " ", ".", "-", "+-1", "1.2.3", "1,5", "1e5",
                           "0x10", "1 2", "- 1", "inf", "nan", "1\xA0"}) {
    EXPECT_FALSE(IsNumericText(text)) << text;
    EXPECT_EQ(NumberFromText(text), std::nullopt) << text;
  }
}

TEST(Numbers, PrintAsPlainDecimals) {
  // clang-format off
  const struct {
    double number;
    int digits;
    std::string_view text;
  } cases[] = {{0, 15, "0"}, {-0.0, 15, "0"}, {-2.5, 15, "-2.5"},
               {0.7, 15, "0.7"}, {2.0 / 3, 7, "0.6666667"},
               {static_cast<double>(0.7F), 15, "0.699999988079071"},
               {1e20, 15, "100000000000000000000"},
               {123456789, 7, "123456800"}, {9999999.6, 7, "10000000"},
               {0.00000012345678, 7, "0.0000001234568"}};
  // clang-format on
  for (const auto& row : cases) {
    EXPECT_EQ(PlainDecimal(row.number, row.digits), row.text);
  }
  EXPECT_EQ(PlainDecimal(5e-324, 15).size(), 2U + 323 + 15);
  EXPECT_EQ(ShortDecimal(0.1F), 0.1);
  EXPECT_EQ(ShortDecimal(1.1800001F), 1.18);
}

}  // namespace
}  // namespace fragsmith
