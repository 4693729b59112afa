#ifndef FRAGSMITH_BOTFILES_VALUE_FORMAT_H_
#define FRAGSMITH_BOTFILES_VALUE_FORMAT_H_

#include <string>
#include <string_view>

#include "model/value.h"
#include "support/result.h"

namespace fragsmith {

/// A value as all bot files hold it: 0 as "0.0", 1 as "1.0", other numbers in
/// plain decimal, text in double quotes with nothing escaped. A number below
/// 0 loses its sign and gets a "0" in front (-2 becomes 02): the format is
/// made by dropping the first character, whatever it is.
std::string FormatValue(const Value& value);

/// The value of the text behind a key. Numbers with a fraction come as 32-bit
/// floats and keep at most three digits behind the point: with four or more
/// the fraction is dropped, and it is added to the whole part even where that
/// is negative. Text loses a leading double quote, a trailing ";" and then a
/// trailing double quote.
Value CleanValue(std::string_view text);

/// The number that somebody typed, where the files can hold it: read back from
/// one, it is the same.
Result<double> NumberForFiles(std::string_view text);

}  // namespace fragsmith

#endif  // FRAGSMITH_BOTFILES_VALUE_FORMAT_H_
