#include "cli/console_prompts.h"

#include "cli/terminal.h"

namespace fragsmith {

void ConsolePrompts::Show(const Message& message) {
  err_ << Printable(message.title + ": " + message.text) << '\n';
}

bool ConsolePrompts::Confirm(const std::string& title,
                             const std::string& text) {
  err_ << Printable(title + ": " + text) << " - No\n";
  return false;
}

std::size_t ConsolePrompts::Choose(const std::string& title,
                                   const std::string& text,
                                   const std::vector<std::string>& buttons) {
  err_ << Printable(title + ": " + text + " - " + buttons.front()) << '\n';
  return 0;
}

std::optional<std::string> ConsolePrompts::AskText(const std::string& title,
                                                   const std::string& prompt) {
  err_ << Printable(title + ": " + prompt) << " - no answer\n";
  return std::nullopt;
}

}  // namespace fragsmith
