#ifndef FRAGSMITH_INPLACE_NUMBER_STYLE_H_
#define FRAGSMITH_INPLACE_NUMBER_STYLE_H_

#include <string>
#include <string_view>

#include "model/value.h"
#include "support/text.h"

namespace fragsmith {

/// The value in the way in which the token there is written, in quotes or not.
/// Where the token does not tell, as 0.75 does not of 0.5 or 0.50, and 0.5 not
/// of 1 or 1.0, the other numbers of the file do: a number that comes again
/// then looks as it did.
std::string InStyleOf(std::string_view bytes, TextSpan token,
                      const Value& value);

}  // namespace fragsmith

#endif  // FRAGSMITH_INPLACE_NUMBER_STYLE_H_
