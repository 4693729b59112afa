#ifdef _WIN32

#include <windows.h>
// The next one needs what stands in the one above.
#include <shellapi.h>

#include "support/files.h"
#include "support/system/program_arguments.h"

namespace fragsmith {

// What main() is given there has lost the characters that the system's code
// page lacks.
std::vector<std::string> ProgramArguments(int /*count*/,
                                          const char* const* /*arguments*/) {
  std::vector<std::string> texts;
  int count = 0;
  wchar_t** const arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
  if (arguments == nullptr) return texts;
  for (int index = 1; index < count; ++index) {
    texts.push_back(BytesFromPath(arguments[index]));
  }
  ::LocalFree(arguments);
  return texts;
}

}  // namespace fragsmith

#endif  // _WIN32
