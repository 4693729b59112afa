#ifndef FRAGSMITH_TESTS_SUPPORT_SCRIPTED_PROMPTS_H_
#define FRAGSMITH_TESTS_SUPPORT_SCRIPTED_PROMPTS_H_

#include <deque>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "support/prompts.h"

namespace fragsmith {

/// Records every box in the order of its appearance and answers questions
/// from a script. A question without an answer in the script gets the safe
/// one, No or Cancel.
class ScriptedPrompts : public Prompts {
 public:
  /// What was shown or asked, each as "TITLE: TEXT".
  std::vector<std::string> log;
  /// The messages alone, with their icons.
  std::vector<Message> messages;

  std::deque<bool> confirmations;
  std::deque<std::size_t> choices;
  std::deque<std::optional<std::string>> answers;

  void Show(const Message& message) override {
    log.push_back(message.title + ": " + message.text);
    messages.push_back(message);
  }

  bool Confirm(const std::string& title, const std::string& text) override {
    log.push_back(title + ": " + text);
    return Take(confirmations).value_or(false);
  }

  std::size_t Choose(const std::string& title, const std::string& text,
                     const std::vector<std::string>& /*buttons*/) override {
    log.push_back(title + ": " + text);
    return Take(choices).value_or(0);
  }

  std::optional<std::string> AskText(const std::string& title,
                                     const std::string& prompt) override {
    log.push_back(title + ": " + prompt);
    return Take(answers).value_or(std::nullopt);
  }

 private:
  template <typename T>
  static std::optional<T> Take(std::deque<T>& script) {
    if (script.empty()) return std::nullopt;
    T next = std::move(script.front());
    script.pop_front();
    return next;
  }
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TESTS_SUPPORT_SCRIPTED_PROMPTS_H_
