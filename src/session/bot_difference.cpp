#include "session/bot_difference.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <utility>

#include "chat/chat_catalogue.h"
#include "chat/vocabulary.h"
#include "model/characteristic_catalogue.h"
#include "support/code_page.h"
#include "support/localization.h"

namespace fragsmith {
namespace {

bool IsTextField(ParameterId parameter) {
  constexpr std::array kTexts = {kNameField,   kGenderField, kFunNameField,
                                 kModelField,  kSkinField,   kRailColorField,
                                 kCommentField};
  return std::count(kTexts.begin(), kTexts.end(), parameter) > 0;
}

bool SaysTheSame(const Value& left, const Value& right) {
  const std::optional<double> number = ToNumber(left);
  if (number != ToNumber(right)) return false;
  return number.has_value() || ToText(left) == ToText(right);
}

void ComparePair(ParameterId parameter, const Bot& left, const Bot& right,
                 std::vector<BotDifference>& differences) {
  const Value& of_left = left.Parameter(parameter);
  const Value& of_right = right.Parameter(parameter);
  BotDifference difference = {.parameter = parameter,
                              .chat_type = std::nullopt,
                              .title = QuotedName(parameter)};
  if (IsTextField(parameter)) {
    // "007" is another name than "7", and an empty one is no 0.
    const std::string text = ToText(of_left);
    const std::string other = ToText(of_right);
    if (text == other) return;
    difference.left = Quoted(text, std::string::npos);
    difference.right = Quoted(other, std::string::npos);
  } else {
    if (SaysTheSame(of_left, of_right)) return;
    difference.left = ShownValue(of_left);
    difference.right = ShownValue(of_right);
  }
  differences.push_back(std::move(difference));
}

/// A chat line that is not empty, by its index in the type.
struct PlacedLine {
  ChatLineIndex line;
  const std::string* text;
};

std::vector<PlacedLine> LinesOf(const Bot& bot, ChatTypeId type) {
  std::vector<PlacedLine> lines;
  const std::vector<std::string>& all = bot.ChatLines(type);
  for (std::size_t line = 0; line < all.size(); ++line) {
    if (!all[line].empty()) {
      lines.push_back({ChatLineIndex(line), &all[line]});
    }
  }
  return lines;
}

/// Two lists of lines side by side, equal lines opposite each other as far as
/// their order allows.
class ChatAligner {
 public:
  ChatAligner(ChatTypeId type, const Bot& left, const Bot& right,
              std::vector<BotDifference>& differences)
      : type_(type),
        left_(LinesOf(left, type)),
        right_(LinesOf(right, type)),
        left_end_(left.EndOfChatLines(type)),
        right_end_(right.EndOfChatLines(type)),
        differences_(differences) {}

  void Align() {
    while (left_at_ < left_.size() && right_at_ < right_.size() &&
           IsEqual(left_at_, right_at_)) {
      ++left_at_;
      ++right_at_;
    }
    Measure();
    while (left_at_ < left_.size() || right_at_ < right_.size()) Step();
  }

 private:
  /// Beyond so many pairs lines are compared one by one in their order.
  static constexpr std::size_t kMaxPairs = 4'000'000;

  bool IsEqual(std::size_t left, std::size_t right) const {
    return *left_[left].text == *right_[right].text;
  }

  /// How many lines the two rests have in common at most, for all rests.
  void Measure() {
    columns_ = right_.size() + 1;
    if ((left_.size() + 1) * columns_ > kMaxPairs) return;
    common_.assign((left_.size() + 1) * columns_, 0);
    for (std::size_t left = left_.size(); left-- > left_at_;) {
      for (std::size_t right = right_.size(); right-- > right_at_;) {
        common_[left * columns_ + right] =
            IsEqual(left, right)
                ? Common(left + 1, right + 1) + 1
                : std::max(Common(left + 1, right), Common(left, right + 1));
      }
    }
  }

  int Common(std::size_t left, std::size_t right) const {
    return common_.empty() ? 0 : common_[left * columns_ + right];
  }

  void Step() {
    const bool has_left = left_at_ < left_.size();
    const bool has_right = right_at_ < right_.size();
    if (has_left && has_right && IsEqual(left_at_, right_at_)) {
      ++left_at_;
      ++right_at_;
      return;
    }
    const int common = Common(left_at_, right_at_);
    const bool may_pair =
        has_left && has_right && Common(left_at_ + 1, right_at_ + 1) == common;
    const bool takes_left =
        may_pair || !has_right ||
        (has_left && Common(left_at_ + 1, right_at_) == common);
    Add(takes_left, may_pair || !takes_left);
  }

  void Add(bool takes_left, bool takes_right) {
    BotDifference difference = {
        .parameter = std::nullopt,
        .chat_type = type_,
        .left_line = left_at_ < left_.size() ? left_[left_at_].line : left_end_,
        .right_line =
            right_at_ < right_.size() ? right_[right_at_].line : right_end_,
        .is_in_left = takes_left,
        .is_in_right = takes_right,
        .title = {},
        .left = {},
        .right = {}};
    const ChatLineIndex shown =
        takes_left ? difference.left_line : difference.right_line;
    difference.title = Localized(
        "%1, line %2", {QuotedChatType(type_), std::to_string(shown.number())});
    if (takes_left) {
      difference.left = Utf8FromGameText(*left_[left_at_++].text);
    }
    if (takes_right) {
      difference.right = Utf8FromGameText(*right_[right_at_++].text);
    }
    differences_.push_back(std::move(difference));
  }

  ChatTypeId type_;
  std::vector<PlacedLine> left_;
  std::vector<PlacedLine> right_;
  ChatLineIndex left_end_;
  ChatLineIndex right_end_;
  std::vector<BotDifference>& differences_;
  std::size_t left_at_ = 0;
  std::size_t right_at_ = 0;
  std::size_t columns_ = 0;
  std::vector<int> common_;
};

}  // namespace

std::vector<BotDifference> CompareBots(const Bot& left, const Bot& right) {
  std::vector<BotDifference> differences;
  const auto compare = [&](ParameterId parameter) {
    ComparePair(parameter, left, right, differences);
  };
  for (const ParameterId field : kIdentityFields) compare(field);
  for (const int index : kPerLevelRange) {
    for (const Level level : kLevels) compare(ParameterId(level, index));
  }
  for (int index = kWeaponWeightRange.first; index <= kItemWeightRange.last;
       ++index) {
    compare(ParameterId(index));
  }
  for (const int index : kChatRange) compare(ParameterId(index));
  for (const ChatTypeId type : kAllChatTypes) {
    ChatAligner(type, left, right, differences).Align();
  }
  return differences;
}

void CopyToRight(const BotDifference& difference, const Bot& left, Bot& right) {
  if (difference.parameter) {
    right.Put(*difference.parameter, left.Parameter(*difference.parameter));
    return;
  }
  const ChatTypeId type = difference.chat_type.value();
  if (!difference.is_in_left) {
    right.RemoveChatLine(type, difference.right_line);
    return;
  }
  const std::string& text = left.ChatLine(type, difference.left_line);
  if (difference.is_in_right) {
    right.SetChatLine(type, difference.right_line, text);
  } else {
    right.InsertChatLine(type, difference.right_line, text);
  }
}

BotDifference Reversed(BotDifference difference) {
  std::swap(difference.left_line, difference.right_line);
  std::swap(difference.is_in_left, difference.is_in_right);
  std::swap(difference.left, difference.right);
  return difference;
}

void CopyChatType(ChatTypeId type, const Bot& from, Bot& to) {
  to.SetChatLines(type, from.ChatLines(type));
}

}  // namespace fragsmith
