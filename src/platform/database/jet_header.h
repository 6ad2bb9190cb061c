// The first bytes of a database file in the Jet format: whether it is one, and its password.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tagwright {

// How many bytes of a file hold all that is read here.
constexpr std::size_t kJetHeaderBytes = 0x98;

struct JetHeader {
  int version = 3;       // 3 or 4
  std::string password;  // as the file keeps it, zeros at the end cut off: one byte per character
                         // in version 3, two (UTF-16, little-endian) in version 4; empty for none
};

// The header that a file's first bytes hold; nothing for a file that is no such database or belongs
// to a later version.
std::optional<JetHeader> ReadJetHeader(std::string_view bytes);

// Whether `password` (UTF-8) opens the database: case counts, and a database without a password
// opens with any. Version 3 keeps it in the code page of its system, which is taken to be ours.
bool OpensWith(const JetHeader& header, std::string_view password);

}  // namespace tagwright
