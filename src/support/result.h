#ifndef FRAGSMITH_SUPPORT_RESULT_H_
#define FRAGSMITH_SUPPORT_RESULT_H_

#include <cstddef>
#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace fragsmith {

/// Why something could not be done, in words for the user. All texts are
/// UTF-8.
struct Error {
  std::string what;      ///< What went wrong, a plain sentence.
  std::string file;      ///< The file it is about; empty when there is none.
  std::size_t line = 0;  ///< Line in that file, counted from 1; 0 is unknown.
  std::string advice;    ///< What to do about it; may be empty.
};

/// A value, or the reason why there is none. One that nobody looks at is a
/// failure that nobody hears of.
template <typename T>
class [[nodiscard]] Result : public tl::expected<T, Error> {
 public:
  using tl::expected<T, Error>::expected;
};

/// Wraps an error so that it can be returned as any Result.
inline tl::unexpected<Error> Failure(Error error) {
  return tl::unexpected<Error>(std::move(error));
}

/// The error as one line: "file:line: what advice".
std::string Describe(const Error& error);

}  // namespace fragsmith

#endif  // FRAGSMITH_SUPPORT_RESULT_H_
