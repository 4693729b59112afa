#include "sample.h"

namespace sample {
namespace {

Row MakeRow() { return {.used = kUsed, .dead_if_only_set = 1}; }

void Connect(void (Sender::*signal)());

}  // namespace

int Used() {
  const auto [one, other] = Bound{};
  return MakeRow().used + one + other;
}
int DeadFunction() { return DeadByItsCaller(); }
int DeadRecursion(int depth) { return depth ? DeadRecursion(depth - 1) : 0; }
int DeadByItsCaller() { return 1; }

void Base::DeadVirtual() {}

Sender::Sender() : member_(Used()) { Connect(&Sender::Heard); }
void Sender::Called() { member_ = static_cast<int>(Colour::kUsed); }

}  // namespace sample

int main() {
  sample::Sender sender;
  sender.Send();
  static_cast<sample::Base&>(sender).Called();
  return sample::Holder<int>().UsedMember(sender) +
         sample::UsedByTemplate(sender);
}
