// Numbers as bytes, the least byte first, wherever a file or a pipe holds any; and records of them
// with blank-padded text in the user's code page, written and read field by field, without gaps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace tagwright {

// --- single numbers -----------------------------------------------------------------------------

// The unsigned number in the bytes from `at` on. What is missing counts as zero bytes.
template <class Unsigned>
Unsigned NumberAt(std::string_view bytes, std::size_t at = 0) {
  static_assert(std::is_unsigned_v<Unsigned>);
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof(Unsigned) && at + i < bytes.size(); ++i) {
    value |= std::uint64_t{static_cast<unsigned char>(bytes[at + i])} << 8 * i;
  }
  return static_cast<Unsigned>(value);
}

// The bytes of `value` behind those of `out`.
template <class Unsigned>
void AppendNumber(std::string& out, Unsigned value) {
  static_assert(std::is_unsigned_v<Unsigned>);
  for (std::size_t i = 0; i < sizeof value; ++i) out.push_back(static_cast<char>(value >> 8 * i));
}

// IEEE 754, every bit kept.
float SingleAt(std::string_view bytes, std::size_t at = 0);
double DoubleAt(std::string_view bytes, std::size_t at = 0);
void AppendSingle(std::string& out, float value);
void AppendDouble(std::string& out, double value);

// --- records ------------------------------------------------------------------------------------

// Collects the fields of a record in their order.
class ByteWriter {
 public:
  void U16(std::uint16_t value);
  void I16(std::int16_t value);
  void I32(std::int32_t value);
  void F32(float value);
  void F64(double value);
  // `size` bytes: one per character, cut or padded with blanks.
  void Text(std::string_view text, std::size_t size);
  void Raw(std::string_view bytes);
  void Zeros(std::size_t size);

  const std::string& Bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

// Reads fields in their order from bytes that may end anywhere: what is missing counts as zero
// bytes in numbers and raw bytes, and as blanks in text. The bytes must outlive the reader.
class ByteReader {
 public:
  explicit ByteReader(std::string_view bytes) : bytes_(bytes) {}

  std::uint16_t U16();
  std::int16_t I16();
  std::int32_t I32();
  float F32();
  double F64();
  // The text of `size` bytes, padding and zero bytes included: `size` characters.
  std::string Text(std::size_t size);
  // The same with zero bytes as blanks: fields of paths and names.
  std::string PathText(std::size_t size);
  std::string Raw(std::size_t size);
  void Skip(std::size_t size);

 private:
  std::string_view Next(std::size_t size);
  std::string_view bytes_;
};

}  // namespace tagwright
