#include "editor/dialogs/find_dialog.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "chat/chat_catalogue.h"
#include "editor/game_text_conversion.h"
#include "editor/pages/page_table.h"
#include "editor/parameter_names.h"
#include "model/characteristic_catalogue.h"
#include "support/text.h"

namespace fragsmith {
namespace {

/// More are of no help in a list, and a bad file may have millions of lines.
constexpr int kMostMatches = 200;
constexpr int kMostLineLetters = 120;

}  // namespace

frmFind::frmFind(const Bot& bot, QWidget* parent)
    : QDialog(parent),
      box_(new QLineEdit(this)),
      list_(new QListWidget(this)),
      hint_(new HintLine(1, this)) {
  setObjectName(QStringLiteral("frmFind"));
  setWindowTitle(QStringLiteral("Find"));
  auto* const label = new QLabel(
      QStringLiteral("&Words of a parameter's name or of a chat line:"), this);
  label->setBuddy(box_);
  box_->setObjectName(QStringLiteral("txtFind"));
  box_->setAccessibleName(QStringLiteral("Words to find"));
  box_->setClearButtonEnabled(true);
  box_->installEventFilter(this);
  list_->setObjectName(QStringLiteral("lstFound"));
  list_->setAccessibleName(QStringLiteral("Found"));
  list_->setUniformItemSizes(true);
  auto* const column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addWidget(box_);
  column->addWidget(list_, 1);
  column->addWidget(hint_);
  column->addWidget(
      MakeButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this));
  connect(box_, &QLineEdit::textChanged, this, &frmFind::ShowMatches);
  connect(list_, &QListWidget::itemDoubleClicked, this, &frmFind::accept);

  CollectParameters();
  CollectChats(bot);
  ShowMatches();
  const int line = fontMetrics().lineSpacing();
  resize(34 * line, 24 * line);
  box_->setFocus();
}

void frmFind::CollectParameters() {
  const auto add = [this](int parameter, const QString& where,
                          std::string_view key) {
    Entry entry;
    entry.text = ParameterTitle(parameter);
    if (!where.isEmpty()) entry.text += QStringLiteral(" - ") + where;
    entry.sought = (entry.text + u' ' + TableText(key)).toLower();
    entry.place.parameter = parameter;
    entries_.push_back(std::move(entry));
  };
  for (const int field :
       {kNameIndex, kFunNameField, kGenderIndex, kRailColorField, kModelField,
        kSkinField, kVersionMajorField, kVersionMinorField, kCommentField,
        kArenaLordField}) {
    add(field, {}, {});
  }
  for (const PageRow& page : kPages) {
    for (const FrameRow& frame : page.frames) {
      for (const ControlRow& control : frame.controls) {
        if (control.IsEmptyPlace()) continue;
        const std::string_view key = TrimBlanksAndTabs(
            kCatalogue.at(static_cast<std::size_t>(control.index)));
        if (!control.HasLevels()) {
          add(control.index, TableText(page.tab_caption), key);
          continue;
        }
        for (const int level : kSkillLevels) {
          add(LevelIndex(level, control.index), TableText(page.tab_caption),
              key);
        }
      }
    }
  }
}

void frmFind::CollectChats(const Bot& bot) {
  for (int type = 0; type < kChatTypeCount; ++type) {
    const ChatType& row = ChatTypeAt(type);
    const QString caption = TableText(row.Caption);
    FindingPlace place;
    place.chat_type = type;
    entries_.push_back({QStringLiteral("%1 - Chat texts").arg(caption),
                        (caption + u' ' + TableText(row.Key)).toLower(),
                        place});
    for (const std::string& line : bot.ChatLines(type)) {
      ++place.chat_line;
      if (line.empty()) continue;
      const QString text =
          ToQString(line.substr(0, static_cast<std::size_t>(kMostLineLetters)));
      entries_.push_back({QStringLiteral("%1: %2").arg(caption, text),
                          ToQString(line).toLower(), place});
    }
  }
}

void frmFind::ShowMatches() {
  const QStringList words =
      box_->text().toLower().split(u' ', Qt::SkipEmptyParts);
  matches_.clear();
  list_->clear();
  for (std::size_t place = 0;
       place < entries_.size() && list_->count() < kMostMatches; ++place) {
    const Entry& entry = entries_[place];
    const bool has_all = std::all_of(
        words.begin(), words.end(),
        [&entry](const QString& word) { return entry.sought.contains(word); });
    if (!has_all) continue;
    matches_.push_back(place);
    list_->addItem(entry.text);
  }
  list_->setCurrentRow(0);
  hint_->Say(list_->count() > 0
                 ? QString()
                 : QStringLiteral("No parameter and no chat line has this."));
}

FindingPlace frmFind::Chosen() const {
  const int row = list_->currentRow();
  return row < 0 ? FindingPlace()
                 : entries_[matches_[static_cast<std::size_t>(row)]].place;
}

void frmFind::accept() {
  // Nothing found is nowhere to go: the words stay to be mended.
  if (list_->currentRow() >= 0) QDialog::accept();
}

bool frmFind::eventFilter(QObject* watched, QEvent* event) {
  if (watched == box_ && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
        key == Qt::Key_PageDown) {
      QCoreApplication::sendEvent(list_, event);
      return true;
    }
  }
  return QDialog::eventFilter(watched, event);
}

}  // namespace fragsmith
