#ifndef FRAGSMITH_BOTFILES_READ_REPORT_H_
#define FRAGSMITH_BOTFILES_READ_REPORT_H_

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/chat_type_id.h"
#include "model/parameter_id.h"
#include "model/value.h"
#include "support/notes.h"
#include "support/text.h"

namespace fragsmith {

/// What reading one bot file tells beside the values that it stored.
struct ReadReport {
  Notes notes;

  /// By bot parameter: the value that plainly stands behind the key, as the
  /// game takes it, wherever the reading rules took another one.
  std::map<ParameterId, Value> plain_values;

  /// The bot parameters of which the file speaks, to the game or to us. Of a
  /// characteristic file also all other keys with the level of their block.
  /// Each once, in order.
  std::vector<ParameterId> given;
  bool Gives(ParameterId id) const {
    return std::ranges::binary_search(given, id);
  }

  /// Where in the file stands what gave the bot a value, in the order in which
  /// the values were stored. In a description it is the whole line.
  struct ValueAt {
    ParameterId id;
    TextSpan span;
  };
  std::vector<ValueAt> spans;
  /// The last of a parameter, which counts.
  std::optional<TextSpan> SpanOf(ParameterId id) const {
    const auto found =
        std::find_if(spans.rbegin(), spans.rend(),
                     [id](const ValueAt& value) { return value.id == id; });
    if (found == spans.rend()) return std::nullopt;
    return found->span;
  }

  /// The same of each chat line, in the order in which they were stored.
  struct ChatLineAt {
    ChatTypeId type{0};
    TextSpan span;
  };
  std::vector<ChatLineAt> chat_lines;

  /// Where the file names the bot or one of its files. Readers keep to the
  /// names that follow from the bot's own.
  struct Name {
    std::string key;
    std::size_t line = 0;
    ParameterId field =
        kNameField;  ///< The field of the bot that a save writes there.
    std::string text;
  };
  std::vector<Name> names;

  /// What a save includes and the file does not.
  std::vector<std::string> missing_includes;

  /// The same of chat types, each a block.
  std::vector<std::string> missing_types;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_READ_REPORT_H_
