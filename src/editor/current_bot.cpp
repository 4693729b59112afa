#include "editor/current_bot.h"

#include <QGuiApplication>
#include <QUndoCommand>
#include <utility>

#include "editor/parameter_names.h"

namespace fragsmith {
namespace {

constexpr int kMostSteps = 500;

/// A longer pause ends what is taken back as one, unless a slider is held.
constexpr qint64 kPauseMilliseconds = 1500;

}  // namespace

/// The bot before and after an edit. Snapshots are shared, so that a step
/// costs one bot.
class CurrentBot::Step : public QUndoCommand {
 public:
  Step(CurrentBot& current, const EditName& name, int step,
       std::shared_ptr<const Bot> before)
      : QUndoCommand(name.text),
        current_(current),
        place_(name.place),
        merges_(name.merges),
        step_(step),
        before_(std::move(before)),
        after_(current.bot_) {}

  int id() const override { return merges_ ? 1 : -1; }

  bool mergeWith(const QUndoCommand* other) override {
    const auto& next = static_cast<const Step&>(*other);
    if (text() != next.text() || place_ != next.place_ || step_ != next.step_) {
      return false;
    }
    after_ = next.after_;
    setObsolete(*after_ == *before_);
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
  FindingPlace place_;
  bool merges_;
  int step_;
  bool is_new_ = true;
  std::shared_ptr<const Bot> before_;
  std::shared_ptr<const Bot> after_;
};

CurrentBot::CurrentBot(QObject* parent)
    : QObject(parent), bot_(std::make_shared<Bot>()), loaded_(bot_) {
  steps_.setUndoLimit(kMostSteps);
  connect(&steps_, &QUndoStack::indexChanged, this, &CurrentBot::ShowFlag);
  connect(&steps_, &QUndoStack::cleanChanged, this, &CurrentBot::ShowFlag);
}

CurrentBot::~CurrentBot() = default;

void CurrentBot::SetChanged(bool is_changed) {
  is_touched_ = is_changed;
  if (!is_changed) {
    steps_.setClean();
    EndStep();
  }
  ShowFlag();
}

void CurrentBot::ShowFlag() {
  const bool is_changed = is_touched_ || !steps_.isClean();
  if (is_changed_ == is_changed) return;
  is_changed_ = is_changed;
  emit ChangedFlagSet(is_changed);
}

void CurrentBot::Push(const EditName& name, std::shared_ptr<const Bot> before) {
  const bool is_held = QGuiApplication::mouseButtons() != Qt::NoButton;
  if (!is_held && since_edit_.isValid() &&
      since_edit_.hasExpired(kPauseMilliseconds)) {
    EndStep();
  }
  since_edit_.restart();
  if (*before != *bot_) {
    steps_.push(new Step(*this, name, step_, std::move(before)));
  }
}

void CurrentBot::ShowStep(const std::shared_ptr<const Bot>& bot,
                          const FindingPlace& place) {
  bot_ = bot;
  EndStep();
  emit Stepped(place);
  is_touched_ = false;
}

bool CurrentBot::SetParameter(int index, const Value& value) {
  return SetParameter(index, value, index);
}

bool CurrentBot::SetParameter(int index, const Value& value, int leader) {
  auto next = std::make_shared<Bot>(*bot_);
  if (!next->SetParameter(index, value)) return false;
  const auto before = std::exchange(bot_, std::move(next));
  if (is_filling()) {
    SetChanged(true);
    return true;
  }
  EditName name = {.text = ParameterTitle(leader), .place = {}, .merges = true};
  name.place.parameter = leader;
  is_touched_ = *before == *bot_;
  Push(name, before);
  ShowFlag();
  emit ParameterEdited(index);
  return true;
}

void CurrentBot::EditChats(const EditName& name,
                           const std::function<void(Bot&)>& edit) {
  auto next = std::make_shared<Bot>(*bot_);
  edit(*next);
  const auto before = std::exchange(bot_, std::move(next));
  is_touched_ = *before == *bot_;
  Push(name, before);
  ShowFlag();
  emit ChatsEdited();
}

void CurrentBot::Edit(const EditName& name,
                      const std::function<void(Bot&)>& edit) {
  auto next = std::make_shared<Bot>(*bot_);
  edit(*next);
  const auto before = std::exchange(bot_, std::move(next));
  EndStep();
  emit Stepped(name.place);
  Push(name, before);
  EndStep();
  ShowFlag();
}

void CurrentBot::Replace(Bot bot, bool is_changed, const QString& name) {
  const auto before =
      std::exchange(bot_, std::make_shared<const Bot>(std::move(bot)));
  // The window may have to give it a model that there is.
  emit Replaced();
  EndStep();
  Push({.text = name, .place = {}, .merges = false}, before);
  if (!is_changed) loaded_ = bot_;
  SetChanged(is_changed);
}

void CurrentBot::ForgetSteps() {
  const bool is_changed = is_changed_;
  steps_.clear();
  SetChanged(is_changed);
}

}  // namespace fragsmith
