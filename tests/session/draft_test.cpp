#include "session/draft.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <memory>

#include "session/bot_document.h"
#include "session/presets.h"
#include "support/files.h"
#include "support/random.h"
#include "tests/support/ids.h"
#include "tests/support/set_parameter.h"

namespace fragsmith {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

Bot UnsavedBot() {
  Bot bot = CreateAverageBot(SeededRandom(3));
  // No check would let these pass, and a draft keeps them.
  Set(bot, kNameField, "not / a file");
  Set(bot, kFunNameField, "two words");
  Set(bot, {Level::k1, 2}, "odd\xE4");
  return bot;
}

TEST(Draft, ComesBackAsItWas) {
  Notes notes;
  const std::string written = WriteDraft({.bot = UnsavedBot()});
  EXPECT_THAT(written, StartsWith("{\n  \"format\": 2,\n  \"bot\": {\n"));
  EXPECT_EQ(ReadDraft(written, "", notes).value().bot, UnsavedBot());
  // Before there were versions it was the document alone.
  std::string bare = WriteBotDocument(UnsavedBot());
  const std::string version = "\n  \"format\": 1,";
  bare.erase(bare.find(version), version.size());
  EXPECT_EQ(ReadDraft(bare, "", notes).value().bot, UnsavedBot());
  EXPECT_TRUE(notes.empty());
}

TEST(Draft, LosesNoWorkForWhatIsNotKnown) {
  for (const auto& [json, count] :
       {std::pair(R"({"format": 3, "bot": {"name": "Newt", "x": 1}, "y": 2})",
                  3U),
        {R"({"format": 1, "bot": {"format": 9, "name": "Newt", "x": 1}})", 2U},
        {R"({"format": 1, "bot": {"name": "Newt", "x": 1}})", 1U},
        {R"({"format": 3, "bot": {"name": "Newt"},
             "x": [[[[[[[[[[[[{"y": 1}, 2]]]]]]]]]]]]})",
         3U},
        {R"({"format": 3, "bot": {"name": "Newt"}, "origin": {"x": 1,
             "home": {"files": {}, "usesLayout": true,
                      "loadsDescription": true, "y": 2},
             "report": {"notes": [], "oddValues": [], "z": 3}}})",
         4U},
        {R"({"name": "Newt", "x": 1})", 1U}}) {
    Notes notes;
    EXPECT_EQ(ReadDraft(json, "", notes).value().bot.Name(), "Newt") << json;
    EXPECT_EQ(notes.list().size(), count) << json;
  }
}

TEST(Draft, TellsWhyItCannotBeRead) {
  for (const auto& [json, reason] :
       {std::pair("", "JSON"),
        {"[]", "object"},
        {R"({"format": 1})", "Field bot"},
        {R"({"format": 1, "bot": []})", "Field bot"},
        {R"({"format": 3, "bot": {"name": 5}})", "Field name"},
        {R"({"name": "\u0100"})", "Field name"},
        {R"({"versionMajor": "x"})", "not a number"}}) {
    Notes notes;
    const Result<Draft> draft = ReadDraft(json, "fgs.draft", notes);
    ASSERT_FALSE(draft) << json;
    EXPECT_EQ(draft.error().file, "fgs.draft");
    EXPECT_THAT(draft.error().what, HasSubstr(reason));
  }
}

Draft DraftWithOrigin() {
  Draft draft = {.bot = UnsavedBot()};
  BotHome& home = *draft.origin.home;
  home.loaded = std::make_shared<const Bot>(CreateZeroBot());
  home.files = {{BotFile::kChat,
                 {.path = PathFromBytes("/b\xC3\xB6t\xFF/x_t.c"),
                  .fingerprint = ~std::uint64_t{0},
                  .spellings = {{"{{TAUNT0}}", "TAUNT0;"},
                                {"\xE4\x81", "\"\xE4\x81\" ;"}}}},
                {BotFile::kDescription,
                 {.path = "/g/a.pk3", .entry = "scripts/x\xE4.bot"}}};
  home.load_options = {.uses_layout = true, .loads_description = false};
  home.target = SaveTarget{
      .folder = "/g", .options = {.uses_layout = false, .makes_package = true}};
  home.package = OriginFile{.path = "/g/bot-x.pk3", .fingerprint = 7};
  home.left_package = "/g/bot-y.pk3";
  LoadReport& report = *draft.origin.report;
  report.notes.Add({.file = "x_c.c", .line = 3, .text = "Odd \xFF."});
  report.notes.Add({.file = "x_c.c",
                    .line = 9,
                    .text = "Also.",
                    .kind = NoteKind::kAlsoInFile});
  report.odd_values = {{Id(102), {.read = 0.5, .plain = 0.25}},
                       {Id(49), {.read = 0.0, .plain = std::string("x")}},
                       {kModelField, {.read = std::string("a"), .plain = {}}}};
  return draft;
}

TEST(Draft, KnowsWhereTheBotCameFrom) {
  const Draft draft = DraftWithOrigin();
  const BotHome& home = *draft.origin.home;
  Notes notes;
  const Draft read = ReadDraft(WriteDraft(draft), "", notes).value();
  EXPECT_TRUE(notes.empty());
  const BotHome& found = *read.origin.home;
  EXPECT_EQ(found.files, home.files);
  EXPECT_EQ(found.load_options, home.load_options);
  EXPECT_EQ(found.target, home.target);
  EXPECT_EQ(found.package, home.package);
  EXPECT_EQ(found.left_package, home.left_package);
  ASSERT_NE(found.loaded, nullptr);
  EXPECT_EQ(WriteBotDocument(*found.loaded), WriteBotDocument(*home.loaded));
  const LoadReport& report = *read.origin.report;
  ASSERT_EQ(report.notes.list().size(), 2U);
  EXPECT_THAT(Describe(report.notes.list().front()), HasSubstr("x_c.c:3: Odd"));
  EXPECT_EQ(report.notes.list().front().kind, NoteKind::kOther);
  EXPECT_EQ(report.notes.list().back().kind, NoteKind::kAlsoInFile);
  ASSERT_EQ(report.odd_values.size(), 3U);
  EXPECT_EQ(report.odd_values.at(Id(49)), (OddValue{0.0, std::string("x")}));
}

TEST(Draft, NotesWhatIsNotKnownOfAnOriginAndTakesTheRest) {
  const Draft draft = DraftWithOrigin();
  const std::string whole = WriteDraft(draft);
  for (const auto& [before, field] :
       {std::pair("\"chat\": {", "origin.home.files.new"),
        {"\"path\": \"/b", "origin.home.files.chat.new"},
        {"\"folder\":", "origin.home.place.new"},
        {"\"path\": \"/g/bot-x", "origin.home.package.new"},
        {"\"format\": 1,\n        \"name\"", "new"},
        {"\"notes\":", "origin.report.new"},
        {"\"file\":", "origin.report.notes[0].new"},
        {"\"parameter\": 49", "origin.report.oddValues[1].new"}}) {
    std::string newer = whole;
    const std::size_t place = newer.find(before);
    ASSERT_NE(place, std::string::npos) << before;
    newer.insert(place, R"("new": {"deep": [1]}, )");
    Notes notes;
    const Draft read = ReadDraft(newer, "", notes).value();
    ASSERT_EQ(notes.list().size(), 1U) << before;
    EXPECT_THAT(notes.list()[0].text,
                StartsWith(std::string("Field ") + field + ": "));
    EXPECT_EQ(read.origin.home->files, draft.origin.home->files);
    EXPECT_EQ(read.origin.report->odd_values.size(), 3U) << before;
  }
  std::string newer = whole;
  newer.replace(newer.find("alsoInFile"), 10, "shy");
  Notes notes;
  EXPECT_EQ(ReadDraft(newer, "", notes).value().origin.home->files,
            draft.origin.home->files);
  EXPECT_EQ(notes.list().size(), 1U);
}

TEST(Draft, LetsAnOriginGoThatCannotBeMeantAndKeepsTheBot) {
  const std::string whole = WriteDraft(DraftWithOrigin());
  for (const auto& [from, to] :
       {std::pair("\"files\": {", "\"folders\": {"),
        {"\"usesLayout\": true", "\"usesLayout\": 1"},
        {"\"parameter\": 102", "\"parameter\": 1102"},
        {"\"parameter\": 49", "\"parameter\": 86"},
        {"\"fingerprint\": 7", "\"fingerprint\": \"7\""},
        {"\"plain\": 0.25", "\"plain\": []"},
        {"\"line\": 3", "\"line\": {}"}}) {
    std::string broken = whole;
    const std::size_t place = broken.find(from);
    ASSERT_NE(place, std::string::npos) << from;
    broken.replace(place, std::string_view(from).size(), to);
    Notes notes;
    const Draft read = ReadDraft(broken, "", notes).value();
    EXPECT_EQ(read.bot, UnsavedBot());
    EXPECT_TRUE(read.origin.home->files.empty()) << from;
    EXPECT_TRUE(read.origin.report->notes.empty()) << from;
    EXPECT_EQ(notes.list().size(), 1U) << from;
  }
}

}  // namespace
}  // namespace fragsmith
