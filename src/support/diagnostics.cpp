#include <string>
#include <utility>

#include "support/notes.h"
#include "support/result.h"

namespace fragsmith {
namespace {

std::string Place(const std::string& file, std::size_t line) {
  if (file.empty()) return {};
  if (line == 0) return file + ": ";
  return file + ":" + std::to_string(line) + ": ";
}

}  // namespace

std::string Describe(const Error& error) {
  std::string text = Place(error.file, error.line) + error.what;
  if (!error.advice.empty()) text += " " + error.advice;
  return text;
}

std::string Describe(const Note& note) {
  return Place(note.file, note.line) + note.text;
}

void Notes::Add(Note note) {
  if (list_.size() < kMax) {
    list_.push_back(std::move(note));
  } else {
    ++left_out_;
  }
}

void Notes::Append(const Notes& other) {
  for (const Note& note : other.list_) Add(note);
  left_out_ += other.left_out_;
}

void Notes::Remove(const std::string& file, NoteKind kind, std::size_t line) {
  std::erase_if(list_, [&](const Note& note) {
    return note.file == file && note.kind == kind &&
           (line == 0 || note.line == line);
  });
}

void Notes::Remove(const std::string& file) {
  std::erase_if(list_, [&file](const Note& note) { return note.file == file; });
}

}  // namespace fragsmith
