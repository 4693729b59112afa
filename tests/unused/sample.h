// What scripts/unused --self-check reads: whatever is called dead has to be
// found, and nothing else.
#ifndef FRAGSMITH_TESTS_UNUSED_SAMPLE_H_
#define FRAGSMITH_TESTS_UNUSED_SAMPLE_H_

#define signals public

namespace sample {

inline constexpr int kUsed = 1;
inline constexpr int kDead = 2;

enum class Colour { kUsed, kDeadColour };

struct DeadType {};
using DeadAlias = int;

struct Row {
  int used = 0;
  int dead_if_only_set = 0;
};

struct Bound {
  int first = 0;
  int second = 0;
};

int Used();
int DeadFunction();
/// Calls itself, and nobody else does.
int DeadRecursion(int depth);
/// Only what is dead itself calls it.
int DeadByItsCaller();
template <class T>
int UsedByTemplate(const T& value) {
  return value.used_in_template();
}

template <class T>
class Holder {
 public:
  enum Column { kFirst };

  template <class U>
  int UsedMember(const U& value) {
    return kFirst + value.used_in_template();
  }
  void DeadMember() {}
};

class Base {
 public:
  virtual ~Base() = default;
  virtual void Called() = 0;
  virtual void DeadVirtual();
};

class Sender : public Base {
 public:
  Sender();
  /// Called by way of Base.
  void Called() override;
  int DeadAccessor() const { return member_; }
  int used_in_template() const { return 1; }
  void Send() {
    Heard();
    DeadUnheard();
  }

 signals:
  void Heard();
  void DeadUnheard();

 private:
  int member_ = 0;
  int dead_member_ = 0;
};

}  // namespace sample

#endif  // FRAGSMITH_TESTS_UNUSED_SAMPLE_H_
