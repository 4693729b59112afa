#ifndef FRAGSMITH_EDITOR_PANELS_WELCOME_PAGE_H_
#define FRAGSMITH_EDITOR_PANELS_WELCOME_PAGE_H_

#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <vector>

#include "editor/controls/card_button.h"
#include "editor/state/recent_bots.h"
#include "game/bot_kinds.h"

namespace fragsmith {

/// Greets who has no bot yet: where the game is, bots to begin with, the
/// game's own and the recent ones. It lies over a widget that is all there
/// behind it, and goes as soon as the focus goes there.
class WelcomePage : public QScrollArea {
  Q_OBJECT

 public:
  explicit WelcomePage(QWidget& covered);

  /// A game folder that is set or could be.
  struct Game {
    QString name;
    std::filesystem::path folder;
    QString about;  ///< What a scan found in it.
    bool is_set = false;
    bool is_scanned = false;

    bool operator==(const Game&) const = default;
  };
  void ShowGames(const std::vector<Game>& games);

  struct ListedBot {
    QString name;
    QString package;
    std::size_t index = 0;  ///< In the list of bots.
  };
  void ShowBots(const std::vector<ListedBot>& bots);

  void ShowRecent(const std::vector<RecentBot>& bots);

  void Open();
  void Close();

 signals:
  void Opened(bool is_open);
  void GameChosen(const std::filesystem::path& folder);
  void ScanWanted();
  void OtherFolderWanted();
  void KindChosen(BotKind kind);
  void BotChosen(std::size_t index);
  void RecentChosen(const RecentBot& bot);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void MakeHead(QVBoxLayout& column);
  void MakeKinds(QVBoxLayout& column);
  void MakeBots(QVBoxLayout& column);
  /// To what had the focus last, or else to the game that could be used, or to
  /// the bots.
  void FocusAgain();
  /// Makes anew what may have the focus, which stays on the page.
  void Renew(const std::function<void()>& make);
  QWidget* MakeGame(const Game& game);
  void FillGames(const std::vector<Game>& games);
  void FillRecent(const std::vector<RecentBot>& bots);
  void PlaceKinds();
  void Filter(const QString& text);

  QWidget& covered_;
  QVBoxLayout* games_;
  std::vector<Game> shown_;
  QString focused_;  ///< The name of what had the focus last.
  QGridLayout* kinds_;
  std::vector<CardButton*> kind_buttons_;
  QWidget* bots_part_ = nullptr;
  QLineEdit* filter_ = nullptr;
  QListWidget* bots_ = nullptr;
  QWidget* recent_part_ = nullptr;
  QVBoxLayout* recent_ = nullptr;
};

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_PANELS_WELCOME_PAGE_H_
