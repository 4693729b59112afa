#include <string>

#include "fuzz/oracle.h"
#include "install/program/settings_file.h"
#include "support/text.h"

namespace fragsmith {

void FuzzOne(std::string_view bytes) {
  ProgramSettings settings = ParseSettings(bytes).settings;
  const std::string written = FormatSettings(settings);
  bool has_comma = false;
  for (int index = 0; index < kEditableOptionCount; ++index) {
    std::string text = GetOptionValue(settings, index);
    std::erase_if(text,
                  [](char letter) { return letter == '\r' || letter == '\n'; });
    has_comma = has_comma || Contains(text, ",");
    SetOptionValue(settings, index, text);
  }
  const ParsedSettings again = ParseSettings(written);
  // A comma ends a value, and what stands behind it shifts the rest.
  if (has_comma) return;
  Expect(!again.has_error, "our own file has no error");
  Expect(again.settings == settings, "all settings are kept");
  ExpectEqual(written, FormatSettings(again.settings), "the file is stable");
}

}  // namespace fragsmith
