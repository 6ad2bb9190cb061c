// Records as bytes: little-endian numbers and blank-padded text in the user's code page, written
// and read field by field, without gaps.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace tagwright {

// Collects the fields of a record in their order.
class ByteWriter {
 public:
  void U16(std::uint16_t value);
  void I16(std::int16_t value);
  void I32(std::int32_t value);
  void F32(float value);   // IEEE 754, every bit kept
  void F64(double value);  // likewise
  // `size` bytes: one per character, cut or padded with blanks.
  void Text(std::string_view text, std::size_t size);
  void Raw(std::string_view bytes);
  void Zeros(std::size_t size);

  const std::string& Bytes() const { return bytes_; }

 private:
  void Little(std::uint64_t bits, std::size_t size);
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
  std::uint64_t Little(std::size_t size);
  std::string_view bytes_;
};

}  // namespace tagwright
