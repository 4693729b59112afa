#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include "chat/chat_file.h"
#include "fuzz/oracle.h"

namespace fragsmith {

void FuzzOne(std::string_view bytes) {
  Bot first;
  ExpectShowable(ReadChatFile(bytes, "file", first).notes);
  const std::string written = WriteChatFile(first, {});
  Bot second;
  ReadChatFile(written, "file", second);
  for (const ChatTypeId type : kAllChatTypes) {
    const std::vector<std::string>& lines = first.ChatLines(type);
    const auto count =
        std::count_if(lines.begin(), lines.end(),
                      [](const std::string& line) { return !line.empty(); });
    Expect(std::ssize(second.ChatLines(type)) ==
               std::max<std::ptrdiff_t>(count, 1),
           "no line is lost");
  }

  const std::string again = WriteChatFile(second, {});
  if (again == written) return;
  Bot third;
  ReadChatFile(again, "file", third);
  ExpectEqual(again, WriteChatFile(third, {}), "the file is stable");
}

}  // namespace fragsmith
