#ifndef FRAGSMITH_CLI_CONSOLE_PROMPTS_H_
#define FRAGSMITH_CLI_CONSOLE_PROMPTS_H_

#include <optional>
#include <ostream>
#include <string>

#include "support/prompts.h"

namespace fragsmith {

/// What the window would show in a box goes to standard error as one line,
/// "TITLE: TEXT". There is nobody to ask: questions get the safe answer.
class ConsolePrompts : public Prompts {
 public:
  explicit ConsolePrompts(std::ostream& err) : err_(err) {}

  void Show(const Message& message) override;
  bool Confirm(const std::string& title, const std::string& text) override;
  std::size_t Choose(const std::string& title, const std::string& text,
                     const std::vector<std::string>& buttons) override;
  std::optional<std::string> AskText(const std::string& title,
                                     const std::string& prompt) override;

 private:
  std::ostream& err_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_CLI_CONSOLE_PROMPTS_H_
