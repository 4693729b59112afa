#include "support/field_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fragsmith {
namespace {

using ::testing::ElementsAre;

std::vector<std::string> Fields(std::string_view bytes) {
  std::vector<std::string> fields;
  FieldReader reader(bytes);
  while (const auto field = reader.Next()) fields.emplace_back(*field);
  return fields;
}

TEST(FieldReader, EndsFieldsAtCommasAndLineEnds) {
  EXPECT_THAT(Fields("a,b\r\nc\nd\re"), ElementsAre("a", "b", "c", "d", "e"));
  EXPECT_THAT(Fields(" \ta b \t, c"), ElementsAre("a b \t", "c"));
  EXPECT_THAT(Fields("a\r\n\r\nb\r\n"), ElementsAre("a", "", "b"));
  EXPECT_THAT(Fields("a,\r\n,b,"), ElementsAre("a", "", "", "b"));
  EXPECT_THAT(Fields("\t"), ElementsAre(""));
  EXPECT_THAT(Fields(""), ElementsAre());
}

TEST(FieldReader, TakesQuotedFieldsToTheClosingQuote) {
  EXPECT_THAT(Fields("\"a,\r\nb\" \t,\"\"\r\nc"),
              ElementsAre("a,\r\nb", "", "c"));
  EXPECT_THAT(Fields("\"a\"b,c"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(Fields("a\"b,c\"d"), ElementsAre("a\"b", "c\"d"));
  FieldReader reader("\"a\",\"b\r\n");
  EXPECT_EQ(reader.Next(), "a");
  EXPECT_FALSE(reader.is_cut());
  EXPECT_EQ(reader.Next(), "b\r\n");
  EXPECT_TRUE(reader.is_cut());
  EXPECT_TRUE(reader.AtEnd());
}

TEST(FieldReader, TellsRecordsOfAnotherShape) {
  FieldReader good("\"a\", b\r\n\"c\",\r\n\"d\",e");
  EXPECT_THAT(*good.NextRecord(2), ElementsAre("a", "b"));
  EXPECT_THAT(*good.NextRecord(2), ElementsAre("c", ""));
  EXPECT_THAT(*good.NextRecord(2), ElementsAre("d", "e"));
  EXPECT_TRUE(good.AtEnd());
  for (const char* bytes : {"a\r\nb", "a,b,c\r\n", "a,\"b", "a,", "\"a\"b,c",
                            "\r\na,b", "\"a\",\"b\"c", ""}) {
    FieldReader bad(bytes);
    EXPECT_FALSE(bad.NextRecord(2)) << bytes;
  }
}

TEST(FieldReader, ReadsBackWhatWasQuoted) {
  std::string text;
  AppendQuotedField("a, b", text);
  text += ',';
  AppendQuotedField("say \"no\"", text);
  EXPECT_THAT(Fields(text), ElementsAre("a, b", "say no"));
}

}  // namespace
}  // namespace fragsmith
