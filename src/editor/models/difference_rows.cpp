#include "editor/models/difference_rows.h"

#include <QCoreApplication>
#include <map>
#include <string>
#include <utility>

#include "chat/vocabulary.h"
#include "editor/toolkit/game_text_conversion.h"

namespace fragsmith {
namespace {

using Cell = DifferenceRow::Cell;

// A bad file may have millions of lines, and one of them may be as long.
constexpr std::size_t kMaxLines = 200;
constexpr int kMaxLetters = 500;

/// What is not there is said, for those who hear the list too.
Cell CellOf(const QString& text) {
  if (text.isEmpty())
    return {QCoreApplication::translate("DifferenceRows", "(none)"), true};
  return {text.left(kMaxLetters)};
}

Cell Shown(const Bot& bot, ParameterId parameter) {
  return CellOf(IsIdentityField(parameter) ? ToQString(bot.Text(parameter))
                                           : QString::fromStdString(ShownValue(
                                                 bot.Parameter(parameter))));
}

/// The line as it is counted in the bot that is compared; one that it lacks,
/// as in the other.
std::size_t LineNumber(const BotDifference& difference) {
  const ChatLineIndex line =
      difference.is_in_left ? difference.left_line : difference.right_line;
  return line.number();
}

DifferenceRow& Add(DifferenceRows& rows, DifferenceRow* parent) {
  rows.push_back(std::make_unique<DifferenceRow>());
  rows.back()->parent = parent;
  return *rows.back();
}

DifferenceRow& AddGroup(int group, DifferenceRows& rows,
                        DifferenceRow* parent) {
  DifferenceRow& row = Add(rows, parent);
  row.key.group = group;
  row.is_group = true;
  row.cells.front().text = GroupTitle(group);
  return row;
}

void AddParameters(int group, const Bot& bot, const Bot& other,
                   const std::map<ParameterId, std::size_t>& indices,
                   DifferenceRows& rows) {
  DifferenceRow& parent = AddGroup(group, rows, nullptr);
  for (const ParameterId parameter : ParametersOf(group)) {
    const auto found = indices.find(parameter);
    DifferenceRow& row = Add(parent.children, &parent);
    row.key.group = group;
    row.key.parameter = parameter;
    row.is_equal = found == indices.end();
    if (!row.is_equal) row.difference = found->second;
    row.cells = {Cell{QString::fromUtf8(ParameterTitle(parameter))},
                 Shown(bot, parameter), Shown(other, parameter)};
  }
}

void AddLines(const std::vector<BotDifference>& differences,
              DifferenceRows& rows) {
  DifferenceRow* all_types = nullptr;
  std::map<int, DifferenceRow*> types;
  std::map<int, int> left_out;
  int lacking = 0;
  for (std::size_t index = 0; index < differences.size(); ++index) {
    const BotDifference& difference = differences[index];
    if (!difference.chat_type) continue;
    if (all_types == nullptr) all_types = &AddGroup(kChatGroup, rows, nullptr);
    const int group = GroupOf(difference);
    DifferenceRow*& type = types[group];
    if (type == nullptr) {
      type = &AddGroup(group, all_types->children, all_types);
      lacking = 0;
    }
    if (type->children.size() == kMaxLines) {
      ++left_out[group];
      continue;
    }
    const bool follows =
        !type->children.empty() &&
        type->children.back()->key.right_line == difference.right_line;
    lacking = difference.is_in_right ? 0 : (follows ? lacking : 0) + 1;
    DifferenceRow& row = Add(type->children, type);
    row.key.group = group;
    row.key.right_line = difference.right_line;
    row.key.lacking = lacking;
    row.difference = index;
    row.cells = {Cell{QCoreApplication::translate("DifferenceRows", "Line %1")
                          .arg(LineNumber(difference))},
                 CellOf(QString::fromStdString(difference.left)),
                 CellOf(QString::fromStdString(difference.right))};
  }
  for (const auto& [group, count] : left_out) {
    DifferenceRow& row = Add(types[group]->children, types[group]);
    row.key.group = group;
    row.cells.front().text =
        QCoreApplication::translate("DifferenceRows", "and %1 more").arg(count);
  }
}

}  // namespace

DifferenceRows MakeDifferenceRows(
    const Bot& bot, const Bot& other,
    const std::vector<BotDifference>& differences) {
  std::map<ParameterId, std::size_t> indices;
  for (std::size_t index = 0; index < differences.size(); ++index) {
    if (const auto parameter = differences[index].parameter) {
      indices.emplace(*parameter, index);
    }
  }
  DifferenceRows rows;
  for (int group = kIdentityGroup; group < kChatGroup; ++group) {
    AddParameters(group, bot, other, indices, rows);
  }
  AddLines(differences, rows);
  return rows;
}

QString DifferenceTitle(const BotDifference& difference) {
  if (difference.parameter) {
    return QString::fromUtf8(ParameterTitle(*difference.parameter));
  }
  return QCoreApplication::translate("DifferenceRows", "%1, line %2")
      .arg(GroupTitle(GroupOf(difference)),
           QString::number(LineNumber(difference)));
}

}  // namespace fragsmith
