// Shows packages in the editor's window, for hostile_window_test.py:
//   test_trust_window PROGRAM_FOLDER PACKAGE...
//
// The settings in PROGRAM_FOLDER name a game's folder with the packages in it.
// The window searches that as its menu does; then each package is opened as
// one that is dropped, everything that shows something of it is painted, and
// the bot is saved to the settings' working folder. Afterwards the window is
// closed and another reads the lists that it left.
//
// On standard output: "scan SECONDS"; "begin PLACE" and "end PLACE SECONDS BOTS
// ICONS BOXES NAME" for each package, NAME that of the last bot, with escapes
// as in an address; "FAILED: ..." for what ought not to be; "done".

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QProgressDialog>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "editor/dialogs/compare_dialog.h"
#include "editor/dialogs/open_dialog.h"
#include "editor/dialogs/try_dialog.h"
#include "editor/frm_main.h"
#include "support/files.h"

namespace fragsmith {
namespace {

// Some packages hold thousands of each.
constexpr int kMaxBots = 4;
constexpr std::size_t kMaxIcons = 4;

/// Markup that the packages put into names. Where a text with it is taken as
/// rich text, a stranger decides on what the window shows.
constexpr const char* kMarkup = "<u>hostile";

void Fail(const std::string& what) {
  std::cout << "FAILED: " << what << std::endl;
}

/// Lets everything through, as that leads furthest; but every other model that
/// is in no list stays out of it.
class WillingPrompts : public Prompts {
 public:
  int boxes = 0;

  void Show(const Message& /*message*/) override { ++boxes; }
  bool Confirm(const std::string& /*title*/, const std::string& text) override {
    ++boxes;
    if (text.find("to add it") == std::string::npos) return true;
    return adds_ = !adds_;
  }
  std::size_t Choose(const std::string& /*title*/, const std::string& /*text*/,
                     const std::vector<std::string>& /*buttons*/) override {
    return 0;
  }
  std::optional<std::string> AskText(const std::string& /*title*/,
                                     const std::string& /*prompt*/) override {
    ++boxes;
    return std::nullopt;
  }

 private:
  bool adds_ = false;
};

void CheckMarkup(const QString& text, const QWidget& widget) {
  if (text.contains(QLatin1String(kMarkup))) {
    Fail("markup takes effect in " +
         std::string(widget.metaObject()->className()) + " " +
         widget.objectName().toStdString());
  }
}

/// No widget may take what a package holds as rich text.
void CheckTexts(const QWidget& root) {
  CheckMarkup(root.toolTip(), root);
  for (const QWidget* const widget : root.findChildren<QWidget*>()) {
    CheckMarkup(widget->toolTip(), *widget);
    const auto* const label = qobject_cast<const QLabel*>(widget);
    if (label != nullptr && label->textFormat() != Qt::PlainText) {
      CheckMarkup(label->text(), *widget);
    }
    const auto* const list = qobject_cast<const QListView*>(widget);
    const auto* const rows = list != nullptr ? list->model() : nullptr;
    for (int row = 0; rows != nullptr && row < rows->rowCount(); ++row) {
      CheckMarkup(rows->index(row, 0).data(Qt::ToolTipRole).toString(),
                  *widget);
    }
  }
}

void Paint(QWidget& widget) {
  QCoreApplication::processEvents();
  if (widget.grab().isNull()) Fail("a picture is empty");
}

/// The window with a user who opens, looks and turns pages.
class Visitor {
 public:
  explicit Visitor(const std::filesystem::path& program_folder)
      : state_({program_folder, program_folder}, prompts_, SeededRandom(1)) {
    QObject::connect(&timer_, &QTimer::timeout, &timer_,
                     [this] { AnswerDialog(); });
    timer_.start(2);
    window_ = std::make_unique<frmMain>(state_);
    window_->show();
    window_->FinishStart();
    QObject::connect(Find<BotCommands>(), &BotCommands::Loaded, window_.get(),
                     [this] { ++loads_; });
    QCoreApplication::processEvents();
  }

  int boxes() const { return prompts_.boxes; }

  void Scan() {
    const std::clock_t start = std::clock();
    Choose("mnuCheck");
    Paint(*window_);
    for (const ModelEntry& model : state_.lists.models.models()) {
      for (const SkinEntry& skin : model.Skins) {
        std::vector<Skin>& skins = skins_[skin.PK3File];
        if (!skin.IsOriginal && skins.size() < kMaxIcons) {
          skins.emplace_back(model.Name, skin.Name);
        }
      }
    }
    std::cout << "scan " << SecondsSince(start) << std::endl;
    Choose("mnuFindings");
    Choose("mnuLoad");
  }

  void Visit(int place, const std::filesystem::path& package) {
    std::cout << "begin " << place << std::endl;
    const std::clock_t start = std::clock();
    loads_ = icons_ = prompts_.boxes = 0;
    int bots = 1;
    for (row_ = 0; row_ < std::min(bots, kMaxBots); ++row_) {
      const int before = loads_;
      bots_ = 0;
      window_->OpenPath(package);
      bots = bots_;
      if (loads_ > before) LookAround();
    }
    const std::string name = window_->current().bot().Name();
    ShowSkins(package);
    LookInMenus();
    std::cout << "end " << place << ' ' << SecondsSince(start) << ' ' << loads_
              << ' ' << icons_ << ' ' << prompts_.boxes << ' '
              << QByteArray::fromStdString(name).toPercentEncoding().constData()
              << std::endl;
  }

  /// What the lists hold, in an order that does not depend on theirs.
  std::vector<std::string> ListedNames() const {
    std::vector<std::string> names;
    for (const ModelEntry& model : state_.lists.models.models()) {
      for (const SkinEntry& skin : model.Skins) {
        names.push_back(model.Name + '/' + skin.Name + '/' + skin.PK3File +
                        '/' + skin.IconFile);
      }
    }
    for (const BotListEntry& bot : state_.lists.bots.entries()) {
      names.push_back(bot.Name + '/' + bot.PK3File);
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  void Close() {
    if (!window_->close()) Fail("the window does not close");
  }

 private:
  using Skin = std::pair<std::string, std::string>;

  /// Of the processor's time: that of other programs does not count.
  static double SecondsSince(std::clock_t start) {
    return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  }

  template <typename Object>
  Object* Find(const char* name = nullptr) {
    auto* const found = window_->findChild<Object*>(QLatin1String(name));
    if (found == nullptr) {
      Fail("there is no " + std::string(name == nullptr ? "object" : name));
      std::exit(1);
    }
    return found;
  }

  void Choose(const char* name) { Find<QAction>(name)->trigger(); }

  /// Called again and again, also from within a dialog that waits for an
  /// answer.
  void AnswerDialog() {
    for (const QWidget* const shown :
         window_ == nullptr ? QList<QProgressDialog*>()
                            : window_->findChildren<QProgressDialog*>()) {
      CheckTexts(*shown);
    }
    auto* const dialog =
        qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr || qobject_cast<QProgressDialog*>(dialog)) return;
    CheckTexts(*dialog);
    if (dialog->grab().isNull()) Fail("a dialog's picture is empty");
    if (qobject_cast<frmOpen*>(dialog) != nullptr) {
      auto* const bots =
          dialog->findChild<QListWidget*>(QStringLiteral("lstBots"));
      bots_ = bots->count();
      // In the one for saving, no bot can be chosen.
      bots->setCurrentRow(row_);
      dialog->accept();
    } else {
      if (qobject_cast<frmCompare*>(dialog) == nullptr &&
          qobject_cast<frmTry*>(dialog) == nullptr) {
        Fail("a dialog nobody asked for: " +
             dialog->objectName().toStdString());
      }
      dialog->reject();
    }
  }

  /// Paints the current bot on all pages, in the findings and in the dialogs.
  void LookAround() {
    auto* const as_game = Find<QPushButton>("cmdAsGame");
    Find<QPushButton>("cmdNotesList")->setChecked(true);
    Find<BotChecker>()->CheckNow();
    Paint(*window_);
    if (as_game->isVisible()) as_game->click();
    auto* const pages = Find<QTabWidget>("tbsBotPara");
    for (int page = 0; page < pages->count(); ++page) {
      pages->setCurrentIndex(page);
      Paint(*pages->currentWidget());
    }
    LookAtChats();
    Find<BotChecker>()->CheckNow();
    CheckTexts(*window_);
    Choose("mnuCompareAverage");
    Choose("mnuTry");
    Choose("mnuMake");
  }

  void LookAtChats() {
    auto* const types = Find<QListWidget>("lstChatGroups");
    auto* const lines = Find<QListWidget>("lstChatLines");
    for (int type = 0; type < types->count(); ++type) {
      types->setCurrentRow(type);
      if (lines->count() == 0) continue;
      for (const int line : {0, lines->count() - 1}) {
        lines->setCurrentRow(line);
      }
      Paint(*Find<QTabWidget>("tbsBotPara")->currentWidget());
    }
  }

  void ShowSkins(const std::filesystem::path& package) {
    const auto name = GameTextFromPath(package.filename());
    const auto skins = name ? skins_.find(*name) : skins_.end();
    if (skins == skins_.end()) return;
    for (const auto& [model, skin] : skins->second) {
      Pick("cmbModel", state_.lists.models.FindModel(model));
      const auto place = state_.lists.models.FindModel(model);
      Pick("cmbSkin",
           place ? state_.lists.models.FindSkin(*place, skin) : std::nullopt);
      Paint(*window_);
      icons_ += Find<QLabel>("lblIcon")->text().isEmpty() ? 1 : 0;
    }
  }

  void Pick(const char* list, std::optional<std::size_t> place) {
    if (!place) return Fail("a model or skin is not listed any more");
    auto* const box = Find<QComboBox>(list);
    box->setCurrentIndex(static_cast<int>(*place));
    emit box->activated(static_cast<int>(*place));
  }

  void LookInMenus() {
    for (const char* const name : {"mnuEdit", "mnuRecent"}) {
      auto* const menu = Find<QMenu>(name);
      emit menu->aboutToShow();
      Paint(*menu);
      CheckTexts(*menu);
    }
  }

  WillingPrompts prompts_;
  ProgramState state_;
  QTimer timer_;
  std::unique_ptr<frmMain> window_;
  std::map<std::string, std::vector<Skin>> skins_;  ///< By package.
  int row_ = 0;    ///< Of the bot that is to be chosen.
  int bots_ = 0;   ///< That the last dialog had to choose from.
  int loads_ = 0;  ///< Of the current package.
  int icons_ = 0;
};

int Run(const std::filesystem::path& program_folder,
        const std::vector<std::filesystem::path>& packages) {
  std::vector<std::string> names;
  {
    Visitor visitor(program_folder);
    visitor.Scan();
    for (std::size_t place = 0; place < packages.size(); ++place) {
      visitor.Visit(static_cast<int>(place), packages[place]);
    }
    visitor.Close();
    names = visitor.ListedNames();
  }
  const Visitor visitor(program_folder);
  if (visitor.boxes() > 0) Fail("boxes at the second start");
  const std::vector<std::string> again = visitor.ListedNames();
  if (again != names) {
    Fail("the lists were " + std::to_string(names.size()) + " entries long," +
         " but " + std::to_string(again.size()) + " were read again");
  }
  std::cout << "done" << std::endl;
  return 0;
}

}  // namespace
}  // namespace fragsmith

int main(int count, char** arguments) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(count, arguments);
  if (count < 3) {
    std::cerr << "usage: test_trust_window PROGRAM_FOLDER PACKAGE...\n";
    return 2;
  }
  const std::vector<std::filesystem::path> packages(arguments + 2,
                                                    arguments + count);
  return fragsmith::Run(arguments[1], packages);
}
