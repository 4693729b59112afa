#ifndef FRAGSMITH_GAME_FILE_FAULTS_H_
#define FRAGSMITH_GAME_FILE_FAULTS_H_

#include <optional>
#include <string>
#include <string_view>

#include "game/complaints.h"
#include "game/preprocessor.h"

namespace fragsmith {

/// What is wrong with the bytes of a file as a whole, which the game stumbles
/// over only later, or never: how it was saved, or a comment without an end. As
/// a warning; nothing when there is none.
std::optional<Complaint> FaultOfBytes(const GameFile& file);

/// What stands in a line of a file, from 1.
std::string_view LineOfFile(std::string_view bytes, int line);

/// Where a } is missing in a file that ends too early: a sentence behind a
/// blank.
std::string AdviceForOpenBrace(std::string_view bytes);

/// What to do about a text that opens in this line and does not end there: a
/// sentence.
std::string AdviceForOpenText(std::string_view line);

/// What a complaint about this line should add: signs that look like others,
/// a comment inside a comment, and a "\\" that joins the next line to it.
/// Empty, or a sentence behind a blank, in English; Localized() shows it.
std::string_view AdviceForLine(std::string_view line);

/// The same of curly quotation marks alone.
std::string_view AdviceForCurlyQuotes(std::string_view line);

}  // namespace fragsmith

#endif  // FRAGSMITH_GAME_FILE_FAULTS_H_
