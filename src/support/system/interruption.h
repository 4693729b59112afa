#ifndef FRAGSMITH_SUPPORT_SYSTEM_INTERRUPTION_H_
#define FRAGSMITH_SUPPORT_SYSTEM_INTERRUPTION_H_

namespace fragsmith {

/// While this is there, Ctrl+C, a request to end and a terminal or a reader of
/// our output that goes away do not end the program at once: it can put its
/// things in order first. Where the system has a way to, the program ends of
/// it when this goes. There may be one at a time.
class Interruption {
 public:
  Interruption();
  Interruption(const Interruption&) = delete;
  Interruption& operator=(const Interruption&) = delete;
  ~Interruption();

  /// The program is to end.
  static bool HasCome();

  /// A descriptor that can be read from then, for those who wait for several
  /// things; -1 where the system has none.
  int descriptor() const;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_SYSTEM_INTERRUPTION_H_
