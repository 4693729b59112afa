#ifndef FRAGSMITH_EDITOR_STATE_RECENT_BOTS_H_
#define FRAGSMITH_EDITOR_STATE_RECENT_BOTS_H_

#include <QString>
#include <QStringList>
#include <filesystem>
#include <string>
#include <vector>

namespace fragsmith {

/// Where a bot came from: a characteristic file, or a package and the bot's
/// name in it.
struct RecentBot {
  std::filesystem::path path;
  std::string name;  ///< 8-bit text; empty for a file.

  bool operator==(const RecentBot&) const = default;
};

/// The last bots that were loaded or saved, the latest first; none twice, and
/// only what is still there.
class RecentBots {
 public:
  /// What ToStrings gave; anything else is passed over.
  explicit RecentBots(const QStringList& texts = {});

  void Add(const RecentBot& bot);

  /// Drops what is gone first.
  const std::vector<RecentBot>& Present();

  /// The folders that they lie in, each once.
  std::vector<std::filesystem::path> Folders() const;

  /// For a settings file; any bytes of a path survive.
  QStringList ToStrings() const;

 private:
  std::vector<RecentBot> bots_;
};

/// "Rookie - /games/arena/baseq3/bot-Rookie.pk3", as a menu shows it.
QString MenuText(const RecentBot& bot);

}  // namespace fragsmith

#endif  // FRAGSMITH_EDITOR_STATE_RECENT_BOTS_H_
