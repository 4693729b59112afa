#ifdef _WIN32

#include <windows.h>

#include "support/files.h"

namespace fragsmith {
namespace {

/// Empty when the bytes are no text of the code page.
std::wstring Widen(std::string_view bytes, unsigned code_page, DWORD flags) {
  const int size = static_cast<int>(bytes.size());
  std::wstring wide(bytes.size(), L'\0');
  const int length = ::MultiByteToWideChar(code_page, flags, bytes.data(), size,
                                           wide.data(), size);
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

}  // namespace

// What is no UTF-8 is a setting that another program or an older system wrote,
// in its code page.
std::filesystem::path PathFromBytes(std::string_view bytes) {
  constexpr unsigned kWestern = 1252;
  std::wstring wide = Widen(bytes, CP_UTF8, MB_ERR_INVALID_CHARS);
  if (wide.empty()) wide = Widen(bytes, kWestern, 0);
  return wide;
}

// Half a pair of UTF-16, which a name may hold there, becomes U+FFFD; the
// standard library would throw.
std::string BytesFromPath(const std::filesystem::path& path) {
  constexpr std::size_t kMaxPerLetter = 3;
  const std::wstring& wide = path.native();
  std::string bytes(wide.size() * kMaxPerLetter, '\0');
  const int length = ::WideCharToMultiByte(
      CP_UTF8, 0, wide.data(), static_cast<int>(wide.size()), bytes.data(),
      static_cast<int>(bytes.size()), nullptr, nullptr);
  bytes.resize(static_cast<std::size_t>(length));
  return bytes;
}

}  // namespace fragsmith

#endif  // _WIN32
