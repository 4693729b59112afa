#include "tests/support/package_maker.h"

#include <cstdint>
#include <string_view>

namespace fragsmith {
namespace {

std::string Number(std::uint64_t number, int bytes) {
  std::string text;
  for (; bytes > 0; --bytes, number >>= 8U) {
    text += static_cast<char>(number & 0xFFU);
  }
  return text;
}

std::uint32_t CheckSum(std::string_view bytes) {
  std::uint32_t sum = ~std::uint32_t{0};
  for (const char letter : bytes) {
    sum ^= static_cast<unsigned char>(letter);
    for (int bit = 0; bit < 8; ++bit) {
      sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  return ~sum;
}

/// What stands in front of the file and again in the table of contents.
std::string Header(const TestEntry& entry) {
  const std::string size = Number(entry.bytes.size(), 4);
  return Number(10, 2) + Number(0, 2) + Number(0, 2) + Number(0, 2) +
         Number(0x21, 2) + Number(CheckSum(entry.bytes), 4) + size + size +
         Number(entry.name.size(), 2);
}

}  // namespace

std::string MakeZip(const std::vector<TestEntry>& entries,
                    const std::string& comment) {
  std::string archive;
  std::string contents;
  for (const TestEntry& entry : entries) {
    contents += "PK\x01\x02" + Number(10, 2) + Header(entry) +
                Number(entry.extra.size(), 2) +
                Number(entry.comment.size(), 2) + Number(0, 4) +
                Number(entry.attributes, 4) + Number(archive.size(), 4) +
                entry.name + entry.extra + entry.comment;
    archive +=
        "PK\x03\x04" + Header(entry) + Number(0, 2) + entry.name + entry.bytes;
  }
  const std::string count = Number(entries.size(), 2);
  const std::size_t offset = archive.size();
  return archive + contents + "PK\x05\x06" + Number(0, 4) + count + count +
         Number(contents.size(), 4) + Number(offset, 4) +
         Number(comment.size(), 2) + comment;
}

std::string MakeZipOfNames(const std::vector<std::string>& names) {
  std::vector<TestEntry> entries;
  entries.reserve(names.size());
  for (const std::string& name : names) entries.push_back({name, {}});
  return MakeZip(entries);
}

}  // namespace fragsmith
