#ifndef FRAGSMITH_SUPPORT_PROMPTS_H_
#define FRAGSMITH_SUPPORT_PROMPTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace fragsmith {

enum class MessageIcon { kNone, kInformation, kExclamation };

/// Title of the boxes that have none of their own.
inline constexpr std::string_view kProgramTitle = "Fragsmith";

/// A box with one OK button. Texts are UTF-8.
struct Message {
  std::string title;
  std::string text;
  MessageIcon icon = MessageIcon::kNone;
};

/// The one way in which the program speaks with its user: boxes in the
/// window, standard error on the command line, a script in tests.
class Prompts {
 public:
  Prompts() = default;
  Prompts(const Prompts&) = delete;
  Prompts& operator=(const Prompts&) = delete;
  virtual ~Prompts() = default;

  virtual void Show(const Message& message) = 0;

  /// A question with the buttons Yes and No. False is the answer that loses
  /// nothing, and the one given when there is nobody to ask.
  virtual bool Confirm(const std::string& title, const std::string& text) = 0;

  /// A question with buttons of its own, of which it gives one by its index.
  /// The first is the answer that loses nothing, and the one given when there
  /// is nobody to ask.
  virtual std::size_t Choose(const std::string& title, const std::string& text,
                             const std::vector<std::string>& buttons) = 0;

  /// Asks for one line of text; nothing when the user cancels or there is
  /// nobody to ask.
  virtual std::optional<std::string> AskText(const std::string& title,
                                             const std::string& prompt) = 0;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_PROMPTS_H_
