#include "editor/toolkit/program_end.h"

#include <cstdlib>
#include <utility>
#include <vector>

namespace fragsmith {
namespace {

/// Those that are there. The list outlives the calls at the end, being made
/// before these are asked for.
std::vector<const AtProgramEnd*>& All() {
  static std::vector<const AtProgramEnd*> all;
  static const bool kIsRegistered = std::atexit([] {
                                      for (const auto* const one : all) {
                                        (*one)();
                                      }
                                    }) == 0;
  static_cast<void>(kIsRegistered);  // It is there for its making alone.
  return all;
}

}  // namespace

AtProgramEnd::AtProgramEnd(std::function<void()> function)
    : function_(std::move(function)) {
  All().push_back(this);
}

AtProgramEnd::~AtProgramEnd() { std::erase(All(), this); }

}  // namespace fragsmith
