#include "platform/files/bytes.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "platform/text/text.h"

namespace tagwright {

static_assert(std::numeric_limits<float>::is_iec559 && sizeof(float) == 4);
static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);

// --- writing ---

void ByteWriter::Little(std::uint64_t bits, std::size_t size) {
  for (std::size_t i = 0; i < size; ++i) bytes_.push_back(static_cast<char>(bits >> (8 * i)));
}

void ByteWriter::U16(std::uint16_t value) { Little(value, 2); }
void ByteWriter::I16(std::int16_t value) { Little(static_cast<std::uint16_t>(value), 2); }
void ByteWriter::I32(std::int32_t value) { Little(static_cast<std::uint32_t>(value), 4); }
void ByteWriter::F32(float value) { Little(std::bit_cast<std::uint32_t>(value), 4); }
void ByteWriter::F64(double value) { Little(std::bit_cast<std::uint64_t>(value), 8); }

void ByteWriter::Text(std::string_view text, std::size_t size) {
  std::string field = ToCodePage(Left(text, size));
  field.resize(size, ' ');
  bytes_ += field;
}

void ByteWriter::Raw(std::string_view bytes) { bytes_ += bytes; }

void ByteWriter::Zeros(std::size_t size) { bytes_.append(size, '\0'); }

// --- reading ---

// What is there of the next `size` bytes.
std::string_view ByteReader::Next(std::size_t size) {
  const std::string_view field = bytes_.substr(0, size);
  bytes_.remove_prefix(field.size());
  return field;
}

std::uint64_t ByteReader::Little(std::size_t size) {
  std::uint64_t bits = 0;
  int shift = 0;
  for (const char byte : Next(size)) {
    bits |= static_cast<std::uint64_t>(static_cast<unsigned char>(byte)) << shift;
    shift += 8;
  }
  return bits;
}

std::uint16_t ByteReader::U16() { return static_cast<std::uint16_t>(Little(2)); }
std::int16_t ByteReader::I16() { return static_cast<std::int16_t>(Little(2)); }
std::int32_t ByteReader::I32() { return static_cast<std::int32_t>(Little(4)); }
float ByteReader::F32() { return std::bit_cast<float>(static_cast<std::uint32_t>(Little(4))); }
double ByteReader::F64() { return std::bit_cast<double>(Little(8)); }

std::string ByteReader::Text(std::size_t size) {
  std::string field(Next(size));
  field.resize(size, ' ');
  return FromCodePage(field);
}

std::string ByteReader::PathText(std::size_t size) { return ZeroBytesAsBlanks(Text(size)); }

std::string ByteReader::Raw(std::size_t size) {
  std::string field(Next(size));
  field.resize(size, '\0');
  return field;
}

void ByteReader::Skip(std::size_t size) { Next(size); }

}  // namespace tagwright
