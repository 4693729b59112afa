#ifndef FRAGSMITH_EDITOR_TOOLKIT_PROGRAM_END_H_
#define FRAGSMITH_EDITOR_TOOLKIT_PROGRAM_END_H_

#include <functional>

namespace fragsmith {

/// Calls a function when the program ends while this is still there. That may
/// come by a way on which nobody is asked, as when the screen goes away.
class AtProgramEnd {
 public:
  explicit AtProgramEnd(std::function<void()> function);
  ~AtProgramEnd();
  AtProgramEnd(const AtProgramEnd&) = delete;
  AtProgramEnd& operator=(const AtProgramEnd&) = delete;

  void operator()() const { function_(); }

 private:
  std::function<void()> function_;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_TOOLKIT_PROGRAM_END_H_
