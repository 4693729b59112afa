#ifndef FRAGSMITH_EDITOR_MODELS_KEYED_MODEL_H_
#define FRAGSMITH_EDITOR_MODELS_KEYED_MODEL_H_

#include <QAbstractItemModel>
#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <utility>
#include <vector>

namespace fragsmith {

/// A model whose rows have keys by which they are known again when its data
/// is made anew. A row of the same key stays the same one for the views, with
/// what they keep of it: selected, current, expanded, scrolled to.
template <typename Base>
class KeyedModel : public Base {
 protected:
  using Base::Base;

  /// Makes the rows of a parent into the wanted ones, with signals for what
  /// differs alone. key_of(row) has an order and is given once in each list;
  /// update(row, wanted) takes over what the row shows and says whether it
  /// shows another thing now.
  template <typename Row, typename KeyOf, typename Update>
  void ChangeRows(const QModelIndex& parent, std::vector<Row>& rows,
                  std::vector<Row> wanted, KeyOf key_of, Update update) {
    RemoveOthers(parent, rows, KeysOf(wanted, key_of), key_of);
    const auto there = KeysOf(rows, key_of);
    for (std::size_t at = 0; at < wanted.size(); ++at) {
      std::size_t end = at;
      while (end < wanted.size() && !there.contains(key_of(wanted[end]))) ++end;
      if (end > at) {
        this->beginInsertRows(parent, Number(at), Number(end) - 1);
        rows.insert(IteratorAt(rows, at),
                    std::make_move_iterator(IteratorAt(wanted, at)),
                    std::make_move_iterator(IteratorAt(wanted, end)));
        this->endInsertRows();
        at = end;
        if (at == wanted.size()) return;
      }
      MoveHere(parent, rows, at, key_of(wanted[at]), key_of);
      if (!update(rows[at], wanted[at])) continue;
      const int row = Number(at);
      const QAbstractItemModel& model = *this;
      const int last = model.columnCount(parent) - 1;
      emit this->dataChanged(this->index(row, 0, parent),
                             this->index(row, last, parent));
    }
  }

 private:
  static int Number(std::size_t index) { return static_cast<int>(index); }

  template <typename Row>
  static auto IteratorAt(std::vector<Row>& rows, std::size_t index) {
    return rows.begin() + static_cast<std::ptrdiff_t>(index);
  }

  template <typename Row, typename KeyOf>
  static auto KeysOf(const std::vector<Row>& rows, KeyOf key_of) {
    std::set<decltype(key_of(rows.front()))> keys;
    for (const Row& row : rows) keys.insert(key_of(row));
    return keys;
  }

  template <typename Row, typename Keys, typename KeyOf>
  void RemoveOthers(const QModelIndex& parent, std::vector<Row>& rows,
                    const Keys& keys, KeyOf key_of) {
    const auto stays = [&](std::size_t index) {
      return keys.contains(key_of(rows[index]));
    };
    for (std::size_t end = rows.size(); end > 0;) {
      if (stays(end - 1)) {
        --end;
        continue;
      }
      std::size_t first = end - 1;
      while (first > 0 && !stays(first - 1)) --first;
      this->beginRemoveRows(parent, Number(first), Number(end) - 1);
      rows.erase(IteratorAt(rows, first), IteratorAt(rows, end));
      this->endRemoveRows();
      end = first;
    }
  }

  /// Fetches the row of the key, which is further down if not here.
  template <typename Row, typename Key, typename KeyOf>
  void MoveHere(const QModelIndex& parent, std::vector<Row>& rows,
                std::size_t at, const Key& key, KeyOf key_of) {
    const auto here = IteratorAt(rows, at);
    const auto found = std::find_if(
        here, rows.end(), [&](const Row& row) { return key_of(row) == key; });
    if (found == here) return;
    const int from = static_cast<int>(found - rows.begin());
    this->beginMoveRows(parent, from, from, parent, Number(at));
    std::rotate(here, found, found + 1);
    this->endMoveRows();
  }
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_MODELS_KEYED_MODEL_H_
