#include "trial/trial_run.h"

#include <cstddef>
#include <system_error>
#include <utility>

namespace fragsmith {
namespace {

constexpr std::size_t kPieceBytes = 65536;

}  // namespace

Result<TrialRun> TrialRun::Start(const TrialSetup& setup,
                                 const std::string& bot_name) {
  return Start(setup, TrialArguments(setup, bot_name));
}

Result<TrialRun> TrialRun::Start(const TrialSetup& setup,
                                 const std::vector<std::string>& arguments) {
  std::filesystem::path output = setup.home / "output";
  Result<ChildProcess> engine =
      ChildProcess::Start(setup.engine, arguments, output);
  if (!engine) return Failure(engine.error());
  return TrialRun(std::move(*engine), std::move(output));
}

TrialRun::TrialRun(ChildProcess engine, std::filesystem::path output)
    : engine_(std::move(engine)),
      path_(std::move(output)),
      output_(path_, std::ios::binary),
      piece_(kPieceBytes) {}

TrialRun::~TrialRun() { End(); }

std::string_view TrialRun::ReadMore() {
  output_.clear();
  output_.read(piece_.data(), static_cast<std::streamsize>(piece_.size()));
  return {piece_.data(), static_cast<std::size_t>(output_.gcount())};
}

bool TrialRun::IsEndless() const {
  std::error_code reason;
  const std::uintmax_t size = std::filesystem::file_size(path_, reason);
  return !reason && size > kMaxOutputBytes;
}

}  // namespace fragsmith
