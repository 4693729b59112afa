#include "cli/console_prompts.h"

namespace fragsmith {

void ConsolePrompts::Show(const Message& message) {
  err_ << message.title << ": " << message.text << '\n';
}

bool ConsolePrompts::Confirm(const std::string& title,
                             const std::string& text) {
  err_ << title << ": " << text << " - No\n";
  return false;
}

std::optional<std::string> ConsolePrompts::AskText(const std::string& title,
                                                   const std::string& prompt) {
  err_ << title << ": " << prompt << " - no answer\n";
  return std::nullopt;
}

}  // namespace fragsmith
