#include "platform/files/bytes.h"

#include <algorithm>
#include <bit>
#include <limits>

#include "platform/text/text.h"

namespace tagwright {

static_assert(std::numeric_limits<float>::is_iec559 && sizeof(float) == 4);
static_assert(std::numeric_limits<double>::is_iec559 && sizeof(double) == 8);

// --- single numbers ---

float SingleAt(std::string_view bytes, std::size_t at) {
  return std::bit_cast<float>(NumberAt<std::uint32_t>(bytes, at));
}

double DoubleAt(std::string_view bytes, std::size_t at) {
  return std::bit_cast<double>(NumberAt<std::uint64_t>(bytes, at));
}

void AppendSingle(std::string& out, float value) {
  AppendNumber(out, std::bit_cast<std::uint32_t>(value));
}

void AppendDouble(std::string& out, double value) {
  AppendNumber(out, std::bit_cast<std::uint64_t>(value));
}

// --- writing ---

void ByteWriter::U16(std::uint16_t value) { AppendNumber(bytes_, value); }
void ByteWriter::I16(std::int16_t value) { U16(static_cast<std::uint16_t>(value)); }
void ByteWriter::I32(std::int32_t value) {
  AppendNumber(bytes_, static_cast<std::uint32_t>(value));
}
void ByteWriter::F32(float value) { AppendSingle(bytes_, value); }
void ByteWriter::F64(double value) { AppendDouble(bytes_, value); }

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

std::uint16_t ByteReader::U16() { return NumberAt<std::uint16_t>(Next(2)); }
std::int16_t ByteReader::I16() { return static_cast<std::int16_t>(U16()); }
std::int32_t ByteReader::I32() {
  return static_cast<std::int32_t>(NumberAt<std::uint32_t>(Next(4)));
}
float ByteReader::F32() { return SingleAt(Next(4)); }
double ByteReader::F64() { return DoubleAt(Next(8)); }

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
