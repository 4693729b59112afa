#include "editor/state/recent_bots.h"

#include <algorithm>
#include <optional>

#include "editor/toolkit/game_text_conversion.h"
#include "editor/toolkit/shown_path.h"
#include "session/bot_sources.h"
#include "support/files.h"

namespace fragsmith {
namespace {

constexpr std::size_t kMaxBots = 9;

/// Parts the path from the name; in no path is it unescaped.
constexpr QChar kSeparator = u'|';

std::string Unescaped(const QString& text) {
  return QByteArray::fromPercentEncoding(text.toLatin1()).toStdString();
}

QString Escaped(const std::string& bytes) {
  return QString::fromLatin1(
      QByteArray::fromStdString(bytes).toPercentEncoding("/"));
}

}  // namespace

RecentBots::RecentBots(const QStringList& texts) {
  for (const QString& text : texts) {
    if (bots_.size() == kMaxBots) break;
    const QStringList parts = text.split(kSeparator);
    if (parts.size() != 2 || parts.front().isEmpty()) continue;
    bots_.push_back(
        {PathFromBytes(Unescaped(parts.front())), Unescaped(parts.back())});
  }
}

void RecentBots::Add(const RecentBot& bot) {
  std::erase(bots_, bot);
  bots_.insert(bots_.begin(), bot);
  if (bots_.size() > kMaxBots) bots_.resize(kMaxBots);
}

const std::vector<RecentBot>& RecentBots::Present() {
  std::erase_if(bots_, [](const RecentBot& bot) { return !IsFile(bot.path); });
  return bots_;
}

std::vector<std::filesystem::path> RecentBots::Folders() const {
  std::vector<std::filesystem::path> folders;
  for (const RecentBot& bot : bots_) {
    const std::filesystem::path folder = bot.path.parent_path();
    if (std::find(folders.begin(), folders.end(), folder) == folders.end()) {
      folders.push_back(folder);
    }
  }
  return folders;
}

QStringList RecentBots::ToStrings() const {
  QStringList texts;
  for (const RecentBot& bot : bots_) {
    texts << Escaped(BytesFromPath(bot.path)) + kSeparator + Escaped(bot.name);
  }
  return texts;
}

QString MenuText(const RecentBot& bot) {
  const std::string name =
      bot.name.empty() ? BotNameOfFile(bot.path).value_or("") : bot.name;
  QString text = ToQString(name) + QStringLiteral(" - ") + ShortPath(bot.path);
  return text.replace(u'&', QStringLiteral("&&"));
}

}  // namespace fragsmith
