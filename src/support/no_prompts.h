#ifndef FRAGSMITH_SUPPORT_NO_PROMPTS_H_
#define FRAGSMITH_SUPPORT_NO_PROMPTS_H_

#include <optional>
#include <string>

#include "support/prompts.h"

namespace fragsmith {

/// For work whose boxes are no concern of the user's: shows nothing and gives
/// the safe answers.
class NoPrompts : public Prompts {
 public:
  void Show(const Message& /*message*/) override {}
  bool Confirm(const std::string& /*title*/,
               const std::string& /*text*/) override {
    return false;
  }
  std::size_t Choose(const std::string& /*title*/, const std::string& /*text*/,
                     const std::vector<std::string>& /*buttons*/) override {
    return 0;
  }
  std::optional<std::string> AskText(const std::string& /*title*/,
                                     const std::string& /*prompt*/) override {
    return std::nullopt;
  }
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_NO_PROMPTS_H_
