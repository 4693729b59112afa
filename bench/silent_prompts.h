#ifndef FRAGSMITH_BENCH_SILENT_PROMPTS_H_
#define FRAGSMITH_BENCH_SILENT_PROMPTS_H_

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "support/prompts.h"

namespace fragsmith::bench {

/// Counts the boxes: a run that shows one did not do the work that is
/// measured.
class SilentPrompts : public Prompts {
 public:
  std::size_t shown() const { return shown_; }

  void Show(const Message& /*message*/) override { ++shown_; }
  bool Confirm(const std::string& /*title*/,
               const std::string& /*text*/) override {
    ++shown_;
    return false;
  }
  std::size_t Choose(const std::string& /*title*/, const std::string& /*text*/,
                     const std::vector<std::string>& /*buttons*/) override {
    ++shown_;
    return 0;
  }
  std::optional<std::string> AskText(const std::string& /*title*/,
                                     const std::string& /*prompt*/) override {
    ++shown_;
    return std::nullopt;
  }

 private:
  std::size_t shown_ = 0;
};

}  // namespace fragsmith::bench

#endif  // FRAGSMITH_BENCH_SILENT_PROMPTS_H_
