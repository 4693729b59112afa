#ifndef FRAGSMITH_CHECKS_BOT_READER_H_
#define FRAGSMITH_CHECKS_BOT_READER_H_

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "checks/file_checks.h"
#include "game/character_reader.h"
#include "game/chat_reader.h"
#include "game/complaints.h"
#include "game/description_reader.h"
#include "game/weight_reader.h"

namespace fragsmith {

/// Goes the way of the game through a bot's files, from the description to the
/// chats. Of one file that is read one error is kept: what follows it in that
/// file follows from it.
class BotReader {
 public:
  /// Files and look-up must outlive the reader.
  BotReader(const BotFileSet& files, const IncludeLookup& game);

  BotReader(const BotReader&) = delete;
  BotReader& operator=(const BotReader&) = delete;

  Verdict At(double skill);

  /// What the game knows a bot of its own name by.
  bool is_defined() const { return is_defined_; }
  const std::optional<DescriptionSet>& description() const {
    return description_;
  }
  const std::optional<GameFile>& character() const { return character_; }
  /// A level that was read before; null when there is none.
  const CharacterLevel* Level(int level) const;
  /// Paths in the game of what was read.
  const std::vector<std::string>& opened() const { return opened_; }
  Complaints& complaints() { return complaints_; }
  /// That the bot has nothing to begin a fight with, which the game takes.
  const std::optional<Complaint>& weaponless() const { return weaponless_; }

  /// That the file of items has weights of weapons alone.
  const std::optional<Complaint>& itemless() const { return itemless_; }

  /// Whether a line of the character file has a "\" that is no escaped one.
  bool HasLoneBackslash(int line) const;

  /// The place of a complaint, with what is known of its file.
  FilePlace WholePlace(FilePlace place) const;

  /// How findings name the character file, or else what there is of the bot.
  std::string CharacterName() const;

 private:
  void ReadDescription();
  void TellSameName(const std::vector<DescriptionSet>& sets,
                    const DescriptionSet& first);
  void TakeDescription(const DescriptionSet& set);
  const std::optional<CharacterLevel>& LoadLevel(int level);
  void TellMissingBlocks(const GameFile& file);
  int LineOfSameBlock(const CharacterBlock& block) const;
  std::string MissingPaths(const CharacterLevel& level) const;
  static CharacterValue InPlaceOf(const CharacterValue& earlier);
  bool HasNoWeapons(const CharacterValue& items);
  std::string OwnName() const;
  Complaint EmptyPath(BotFile kind, const CharacterValue& path) const;
  const CharacterValue* PathAt(const CharacterLevel& level, int number,
                               std::string_view key);
  bool Weights(const std::string& path, bool are_weapons,
               const CharacterValue& value);
  bool Chat(const CharacterValue& path, const CharacterValue& name);
  Complaint WithoutChat(const CharacterValue& path, const CharacterValue& name,
                        const GameChat& chat, const Complaint& told) const;

  std::optional<GameFile> Find(std::string_view path, BotFile kind,
                               const std::string& file, int line);
  void TellMissing(const std::string& path, BotFile kind,
                   const std::string& file, int line);
  /// Whether the path in this line of the description is all that the game
  /// reads of a longer one.
  bool EndsAtAccent(std::string_view path, const std::string& file,
                    int line) const;
  std::string AdviceForPath(std::string_view path) const;
  template <typename Condition>
  const GameFile* FindOwn(const Condition& condition) const;
  const GameFile* OwnFile(std::string_view path) const;
  const GameFile* OwnInAnyCase(std::string_view path) const;
  bool NamesAnother(const CharacterValue& value) const;
  /// Reads a file; what is wrong with one that is not the bot's is not told.
  bool ReadOne(const GameFile& file, bool is_told,
               const std::function<bool(Complaints&)>& read);

  void Add(std::string_view id, Severity severity, const std::string& file,
           int line, std::string text) {
    complaints_.Add(id, severity, file, line, std::move(text));
  }

  const BotFileSet& files_;
  IncludeLookup game_;
  Complaints complaints_;
  Complaints untold_;
  bool is_defined_ = false;
  std::optional<DescriptionSet> description_;
  std::optional<GameFile> character_;
  std::vector<std::string> opened_;
  std::optional<Complaint> weaponless_;
  std::optional<Complaint> itemless_;
  std::map<int, std::optional<CharacterLevel>> levels_;
  /// Whether a file loads, by what it is read as, path, and of a chat file the
  /// name of the chat.
  std::map<std::tuple<BotFile, std::string, std::string>, bool> loaded_;
  /// By how findings name them: the bot's files, and what it has in their
  /// place.
  std::map<std::string, FilePlace, std::less<>> places_;
};

/// The bot that a description is about: the one with the character file of that
/// path or with its name, but of two bots of one name the first.
const DescriptionSet* ChooseDescription(const std::vector<DescriptionSet>& sets,
                                        std::string_view listed_name,
                                        std::string_view path);

}  // namespace fragsmith

#endif  // FRAGSMITH_CHECKS_BOT_READER_H_
