#include "editor/pages/spoken_preview.h"

#include <QEvent>
#include <QGridLayout>
#include <QPushButton>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "chat/vocabulary.h"
#include "editor/pages/chat_help.h"
#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/page_table.h"
#include "editor/toolkit/tool_tip.h"
#include "game/chat_type_facts.h"
#include "game/limits.h"
#include "game/spoken_line.h"

namespace fragsmith {
namespace {

/// A line this much below a limit is told of.
constexpr std::size_t kNearLimit = 20;

QString Counter(const QString& name, std::size_t count, std::size_t limit) {
  QString text =
      SpokenPreview::tr("%1: %2 of %3").arg(name).arg(count).arg(limit);
  // In words and weight, not by colour alone.
  if (count > limit) return SpokenPreview::tr("<b>%1, too long</b>").arg(text);
  if (count + kNearLimit > limit) {
    return SpokenPreview::tr("<b>%1, nearly full</b>").arg(text);
  }
  return text;
}

/// When the type is spoken, how likely where its characteristic has that value,
/// and what its variables become.
QString TellOf(ChatTypeId type, double characteristic) {
  const ChatTypeFacts& facts = FactsOfChatType(type);
  QString text = QString::fromUtf8(WhenText(facts));
  if (facts.is_heard && facts.chance) {
    const double chance =
        std::clamp(characteristic, 0.0, 1.0) * facts.chance_factor;
    text += SpokenPreview::tr(" Chance: %1 % (%2).")
                .arg(QString::number(chance * 100, 'f', 0),
                     QString::fromUtf8(ParameterName(*facts.chance)));
  }
  const QString variables = ChatVariables(type);
  if (!variables.isEmpty()) text += u'\n' + variables + u'.';
  return text;
}

}  // namespace

SpokenPreview::SpokenPreview(RandomSource random, QWidget* parent)
    : QWidget(parent),
      random_(std::move(random)),
      source_(new QLabel(this)),
      text_(new FunNamePreview(this)),
      lengths_(new QLabel(this)),
      when_(new QLabel(this)) {
  source_->setObjectName(QStringLiteral("lblSpokenSource"));
  text_->setObjectName(QStringLiteral("picSpoken"));
  text_->setAccessibleName(tr("What the game would say"));
  constexpr double kLetterScale = 1.15;
  text_->SetLetterScale(kLetterScale);
  text_->StandOnGameGround();
  text_->LetWrap(2);
  lengths_->setObjectName(QStringLiteral("lblLengths"));
  lengths_->setTextFormat(Qt::RichText);
  QFont bold = lengths_->font();
  bold.setBold(true);
  lengths_->setMinimumWidth(QFontMetrics(bold).horizontalAdvance(
      tr("in the file: 000 of 255, nearly full ")));
  when_->setObjectName(QStringLiteral("lblWhen"));
  when_->setTextFormat(Qt::PlainText);
  when_->setWordWrap(true);
  when_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  when_->installEventFilter(this);
  auto* const another = new QPushButton(tr("Say another"), this);
  another->setObjectName(QStringLiteral("cmdSayAnother"));
  another->setToolTip(
      WrappedToolTip({}, tr("Draws other words and says the line again.")));
  connect(another, &QPushButton::clicked, this, &SpokenPreview::SayAnother);

  auto* const grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->addWidget(source_, 0, 0);
  grid->addWidget(text_, 0, 1);
  grid->addWidget(another, 0, 2);
  grid->addWidget(when_, 1, 0, 1, 2);
  grid->addWidget(lengths_, 1, 2, Qt::AlignTop);
  grid->setColumnStretch(1, 1);
  SetGame(nullptr);
}

bool SpokenPreview::eventFilter(QObject* watched, QEvent* event) {
  // Room for the longest, so that nothing above it moves.
  if (watched == when_ && event->type() == QEvent::Resize) {
    int height = 0;
    for (const ChatTypeId type : kAllChatTypes) {
      const QRect text = when_->fontMetrics().boundingRect(
          QRect(0, 0, when_->width(), 0), Qt::TextWordWrap, TellOf(type, 1));
      height = std::max(height, text.height());
    }
    when_->setMinimumHeight(height);
  }
  return QWidget::eventFilter(watched, event);
}

void SpokenPreview::SetGame(const GameData* game) {
  game_ = game != nullptr && !game->words.empty() ? game : nullptr;
  source_->setText(game_ != nullptr ? tr("In the game:")
                                    : tr("In a game (our sample words):"));
  SayAnother();
}

void SpokenPreview::ShowLine(const Bot& bot, ChatTypeId type,
                             const std::string& line) {
  type_ = type;
  line_ = line;
  own_name_ = SimpleName(bot.FunName().empty() ? bot.Name() : bot.FunName());
  ShowWhen(bot);
  SayAnother();
}

void SpokenPreview::SayAnother() {
  SampleNames names;
  if (!own_name_.empty()) names.own_name = own_name_;
  const SpokenLine spoken =
      SpeakLine(type_, line_, names,
                game_ != nullptr ? game_->words : WordLists::Sample(), random_);
  QString text = ToQString(spoken.text);
  if (spoken.is_broken) {
    text = tr("(the line breaks the chat file)");
  } else if (line_.empty()) {
    text = tr("(nothing)");
  } else if (text.isEmpty() && !spoken.unknown_lists.empty()) {
    text = tr("(the game has no list %1)")
               .arg(ToQString(spoken.unknown_lists.front()));
  }
  text_->DrawFunName(text);
  lengths_->setText(
      Counter(tr("in the file"), spoken.encoded_length,
              limits::kMaxEncodedBytes) +
      QStringLiteral("<br>") +
      Counter(tr("spoken"),
              std::max(spoken.spoken_length, spoken.longest_length),
              limits::kMaxSpokenBytes));
}

void SpokenPreview::ShowWhen(const Bot& bot) {
  const std::optional<ParameterId> chance = FactsOfChatType(type_).chance;
  when_->setText(
      TellOf(type_, chance ? ToNumber(bot.Parameter(*chance)).value_or(0) : 0));
}

}  // namespace fragsmith
