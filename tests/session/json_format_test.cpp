#include "session/json_format.h"

#include <gtest/gtest.h>

#include <array>

namespace fragsmith {
namespace {

using Json = nlohmann::json;

/// A format of two steps: a name became "title", then the title a list.
constexpr std::array<Migration, 2> kSteps = {{
    {.from = 0,
     .Apply =
         [](Json& value) {
           value["title"] = value.at("name");
           value.erase("name");
         }},
    {.from = 1,
     .Apply =
         [](Json& value) { value["title"] = Json::array({value["title"]}); }},
}};
static_assert(HasNoGap(kSteps) && FormatBehind(kSteps) == 2);
static_assert(!HasNoGap(std::span(kSteps).subspan(1)));

Result<Json> UpToDate(std::string_view text, bool& are_slips, Notes& notes) {
  return ReadJson(text, "it.json", [&](Json value) {
    UnknownKeys unknown = {.are_slips = true, .file = {}, .notes = notes};
    BringUpToDate(value, kSteps, unknown);
    are_slips = unknown.are_slips;
    return value;
  });
}

TEST(JsonFormat, BringsEachVersionUpToDateStepByStep) {
  Notes notes;
  bool are_slips = false;
  for (const char* const text :
       {R"({"name": "x"})", R"({"format": 0, "name": "x"})",
        R"({"format": 1, "title": "x"})", R"({"format": 2, "title": ["x"]})"}) {
    const Result<Json> value = UpToDate(text, are_slips, notes);
    ASSERT_TRUE(value) << text;
    EXPECT_EQ(value->dump(), R"({"title":["x"]})") << text;
    EXPECT_TRUE(are_slips && notes.empty()) << text;
  }
  const Result<Json> newer = UpToDate(
      R"({"format": 18446744073709551615, "name": 1})", are_slips, notes);
  EXPECT_EQ(newer.value().dump(), R"({"name":1})");
  EXPECT_FALSE(are_slips);
  EXPECT_EQ(notes.list().size(), 1U);

  // What a step cannot work on is a fault of the file.
  const Result<Json> wrong = UpToDate("{}", are_slips, notes);
  ASSERT_FALSE(wrong);
  EXPECT_EQ(wrong.error().file, "it.json");
}

}  // namespace
}  // namespace fragsmith
