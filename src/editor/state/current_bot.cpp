#include "editor/state/current_bot.h"

#include <QGuiApplication>
#include <QUndoCommand>
#include <cstddef>
#include <set>
#include <utility>

#include "chat/vocabulary.h"
#include "support/files.h"

namespace fragsmith {
namespace {

constexpr int kMaxSteps = 500;

/// A longer pause ends what is taken back as one, unless a slider is held.
constexpr qint64 kPauseMilliseconds = 1500;

}  // namespace

/// The bot before and after an edit. Snapshots are shared, so that a step
/// costs one bot.
class CurrentBot::Step : public QUndoCommand {
 public:
  Step(CurrentBot& current, const EditName& name, int step, State before)
      : QUndoCommand(name.text),
        current_(current),
        place_(name.place),
        merges_(name.merges),
        step_(step),
        before_(std::move(before)),
        after_(current.state_) {}

  int id() const override { return merges_ ? 1 : -1; }

  bool mergeWith(const QUndoCommand* other) override {
    const auto& next = static_cast<const Step&>(*other);
    if (text() != next.text() || place_ != next.place_ || step_ != next.step_) {
      return false;
    }
    after_ = next.after_;
    setObsolete(after_ == before_);
    return true;
  }

  void undo() override { current_.ShowStep(before_, place_); }
  void redo() override {
    // At first the edit has been made already.
    if (std::exchange(is_new_, false)) return;
    current_.ShowStep(after_, place_);
  }

 private:
  CurrentBot& current_;
  BotPlace place_;
  bool merges_;
  int step_;
  bool is_new_ = true;
  State before_;
  State after_;
};

CurrentBot::CurrentBot(QObject* parent)
    : QObject(parent), state_{std::make_shared<Bot>(), {}} {
  state_.origin.home->loaded = state_.bot;
  unchanged_[state_.origin.home] = state_.bot;
  steps_.setUndoLimit(kMaxSteps);
  connect(&steps_, &QUndoStack::indexChanged, this, &CurrentBot::ShowFlag);
  connect(&steps_, &QUndoStack::cleanChanged, this, &CurrentBot::ShowFlag);
}

// The steps tell of themselves as they go, when nothing else is left here.
CurrentBot::~CurrentBot() { steps_.disconnect(this); }

void CurrentBot::SetChanged(bool is_changed) {
  is_touched_ = is_changed;
  if (!is_changed) {
    // Homes that no step leads back to are forgotten.
    std::erase_if(unchanged_,
                  [](const auto& one) { return one.first.use_count() == 1; });
    unchanged_[state_.origin.home] = state_.bot;
    steps_.setClean();
    EndStep();
  }
  ShowFlag();
}

void CurrentBot::ShowFlag() {
  // A step back over New or Load leads to a bot with a state of its own.
  const auto kept = unchanged_.find(state_.origin.home);
  const bool is_kept = kept != unchanged_.end() && kept->second == state_.bot;
  const bool is_changed = is_touched_ || (!is_kept && !steps_.isClean());
  if (is_changed_ == is_changed) return;
  is_changed_ = is_changed;
  emit ChangedFlagSet(is_changed);
}

void CurrentBot::Push(const EditName& name, State before) {
  const bool is_held = QGuiApplication::mouseButtons() != Qt::NoButton;
  if (!is_held && since_edit_.isValid() &&
      since_edit_.hasExpired(kPauseMilliseconds)) {
    EndStep();
  }
  since_edit_.restart();
  if (before != state_) {
    steps_.push(new Step(*this, name, step_, std::move(before)));
  }
}

void CurrentBot::ShowStep(const State& state, const BotPlace& place) {
  const State before = std::exchange(state_, state);
  EndStep();
  emit Stepped(place);
  if (before.origin != state_.origin) emit OriginChanged();
  is_touched_ = false;
}

CurrentBot::State CurrentBot::Exchange(Bot bot) {
  State next = {std::make_shared<const Bot>(std::move(bot)), state_.origin};
  return std::exchange(state_, std::move(next));
}

bool CurrentBot::SetParameter(ParameterId id, const Value& value) {
  return SetParameter(id, value, id);
}

bool CurrentBot::SetParameter(ParameterId id, const Value& value,
                              ParameterId leader) {
  Bot next = bot();
  if (!next.SetParameter(id, value)) return false;
  State before = Exchange(std::move(next));
  if (is_filling()) {
    SetChanged(true);
    return true;
  }
  const EditName name = {.text = QString::fromUtf8(ParameterTitle(leader)),
                         .place = leader,
                         .merges = true};
  is_touched_ = before == state_;
  Push(name, std::move(before));
  ShowFlag();
  emit ParameterEdited(id);
  return true;
}

void CurrentBot::EditChats(const EditName& name,
                           const std::function<void(Bot&)>& edit) {
  Bot next = bot();
  edit(next);
  State before = Exchange(std::move(next));
  is_touched_ = before == state_;
  Push(name, std::move(before));
  ShowFlag();
  emit ChatsEdited();
}

void CurrentBot::Edit(const EditName& name,
                      const std::function<void(Bot&)>& edit) {
  Bot next = bot();
  edit(next);
  State before = Exchange(std::move(next));
  EndStep();
  emit Stepped(name.place);
  Push(name, std::move(before));
  EndStep();
  ShowFlag();
}

void CurrentBot::Replace(Bot bot, bool is_changed, const QString& name,
                         BotOrigin origin) {
  State before = Exchange(std::move(bot));
  state_.origin = std::move(origin);
  const std::shared_ptr<BotHome> home = state_.origin.home;
  const bool is_fresh = home->loaded == nullptr;
  if (is_fresh) home->loaded = state_.bot;
  const std::shared_ptr<const Bot> given = state_.bot;
  // The window may have to give it a model that there is.
  emit Replaced();
  EndStep();
  if (is_fresh) home->loaded = state_.bot;
  Push({.text = name, .place = {}, .merges = false}, std::move(before));
  SetChanged(is_changed || *state_.bot != *given);
  emit OriginChanged();
}

void CurrentBot::SetReport(LoadReport report) {
  *state_.origin.report = std::move(report);
  emit OriginChanged();
}

void CurrentBot::ForgetGonePackages() {
  std::set<std::shared_ptr<BotHome>> homes = {state_.origin.home};
  for (const auto& [home, bot] : unchanged_) homes.insert(home);
  for (const std::shared_ptr<BotHome>& home : homes) {
    const std::size_t gone = std::erase_if(home->files, [](const auto& file) {
      return !file.second.is_on_disk() && !IsFile(file.second.path);
    });
    if (gone == 0) continue;
    unchanged_.erase(home);
    // No step leads to it as it was saved.
    steps_.resetClean();
    if (home != state_.origin.home) continue;
    SetChanged(true);
    emit OriginChanged();
  }
}

void CurrentBot::ForgetSteps() {
  const bool is_changed = is_changed_;
  steps_.clear();
  SetChanged(is_changed);
}

}  // namespace fragsmith
