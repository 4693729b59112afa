#ifndef FRAGSMITH_TRIAL_TRIAL_RUN_H_
#define FRAGSMITH_TRIAL_TRIAL_RUN_H_

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/child_process.h"
#include "support/result.h"
#include "trial/game_trial.h"

namespace fragsmith {

/// What an engine may print, or write into a log; real ones have some hundred
/// KiB.
inline constexpr std::uintmax_t kMaxOutputBytes = std::uintmax_t{16} << 20U;

/// An engine that runs with a bot. It ends with this object at the latest, and
/// so does all that it started. What it prints goes into a file of the scratch
/// folder, which is bounded.
class TrialRun {
 public:
  static Result<TrialRun> Start(const TrialSetup& setup,
                                const std::string& bot_name);
  /// The same with other arguments than those for a trial.
  static Result<TrialRun> Start(const TrialSetup& setup,
                                const std::vector<std::string>& arguments);
  TrialRun(TrialRun&&) = default;
  TrialRun& operator=(TrialRun&&) = delete;
  TrialRun(const TrialRun&) = delete;
  TrialRun& operator=(const TrialRun&) = delete;
  ~TrialRun();

  bool IsRunning() { return engine_.IsRunning(); }

  /// Waits for the end of the engine, or for about so long.
  void Wait(std::chrono::milliseconds longest) { engine_.Wait(longest); }

  /// Asks it to end, and makes it end when it does not do so soon.
  void End() { engine_.End(); }

  /// A piece of what it printed since the last call; empty when there is no
  /// more just now. Good until the next call.
  std::string_view ReadMore();

  /// It has printed more than any game does, and is to be ended.
  bool IsEndless() const;

 private:
  TrialRun(ChildProcess engine, std::filesystem::path output);

  ChildProcess engine_;
  std::filesystem::path path_;
  std::ifstream output_;
  std::vector<char> piece_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_TRIAL_TRIAL_RUN_H_
