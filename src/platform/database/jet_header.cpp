#include "platform/database/jet_header.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <utility>

#include "platform/files/bytes.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

// Where things stand in the file. All versions mask a part of the header with one fixed stream;
// version 4 masks the password once more, with the whole days of the date of creation.
constexpr std::string_view kFormatName{"\0\1\0\0Standard Jet DB\0", 20};
constexpr std::size_t kVersion = 0x14;
constexpr std::size_t kMasked = 0x18;
constexpr std::size_t kPassword = 0x42;
constexpr std::size_t kPasswordBytes3 = 20;
constexpr std::size_t kPasswordBytes4 = 40;
constexpr std::size_t kCreated = 0x72;
constexpr std::size_t kMaskedBytes = kCreated + sizeof(double) - kMasked;  // as far as we read

// Applies the stream cipher RC4 under the header's fixed key.
void Unmask(std::string& bytes, std::size_t start, std::size_t count) {
  constexpr std::array<unsigned, 4> kKey = {0xC7, 0xDA, 0x39, 0x6B};
  std::array<unsigned char, 256> state{};
  std::iota(state.begin(), state.end(), static_cast<unsigned char>(0));
  for (unsigned i = 0, j = 0; i < state.size(); ++i) {
    j = (j + state[i] + kKey[i % kKey.size()]) & 0xFF;
    std::swap(state[i], state[j]);
  }
  for (unsigned k = 0, j = 0; k < count; ++k) {
    const unsigned i = (k + 1) & 0xFF;
    j = (j + state[i]) & 0xFF;
    std::swap(state[i], state[j]);
    bytes[start + k] = static_cast<char>(static_cast<unsigned char>(bytes[start + k]) ^
                                         state[(state[i] + state[j]) & 0xFF]);
  }
}

// The whole days as 32 bits. A damaged date has none.
std::uint32_t WholeDays(double days) {
  constexpr double kBeyond = 2147483648.0;
  if (!(std::fabs(days) < kBeyond)) return 0;
  return static_cast<std::uint32_t>(static_cast<std::int32_t>(days));
}

void UnmaskByDate(std::string& password, double created) {
  const std::uint32_t days = WholeDays(created);
  for (std::size_t i = 0; i < password.size(); ++i) {
    password[i] =
        static_cast<char>(static_cast<unsigned char>(password[i]) ^ (days >> 8 * (i % 4) & 0xFF));
  }
}

std::string WithoutZerosAtEnd(std::string text) {
  const std::size_t last = text.find_last_not_of('\0');
  text.resize(last == std::string::npos ? 0 : last + 1);
  return text;
}

std::string Utf16(std::string_view text) {
  std::string out;
  const auto put = [&](char32_t unit) { AppendNumber(out, static_cast<std::uint16_t>(unit)); };
  for (const char32_t c : Characters(text)) {
    if (c >= 0x10000) put(0xD800 + ((c - 0x10000) >> 10));
    put(c >= 0x10000 ? 0xDC00 + (c & 0x3FF) : c);
  }
  return out;
}

}  // namespace

std::optional<JetHeader> ReadJetHeader(std::string_view bytes) {
  if (bytes.size() < kJetHeaderBytes || !bytes.starts_with(kFormatName)) return std::nullopt;
  const int version = 3 + static_cast<unsigned char>(bytes[kVersion]);
  if (version > 4) return std::nullopt;
  std::string header(bytes.substr(0, kJetHeaderBytes));
  Unmask(header, kMasked, kMaskedBytes);
  std::string password = header.substr(kPassword, version == 3 ? kPasswordBytes3 : kPasswordBytes4);
  if (version == 4) UnmaskByDate(password, DoubleAt(header, kCreated));
  return JetHeader{version, WithoutZerosAtEnd(password)};
}

bool OpensWith(const JetHeader& header, std::string_view password) {
  if (header.password.empty()) return true;
  const std::string given = header.version == 3 ? ToCodePage(password) : Utf16(password);
  return WithoutZerosAtEnd(given) == header.password;
}

}  // namespace tagwright
