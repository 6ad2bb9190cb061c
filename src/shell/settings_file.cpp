#include "shell/settings_file.h"

#include <algorithm>

#include "platform/faults/fault.h"
#include "platform/files/bytes.h"
#include "platform/files/files.h"

namespace tagwright {
namespace {

template <std::size_t N>
void Put(ByteWriter& out, const FixedText<N>& text) {
  out.Text(text.Padded(), N);
}

template <std::size_t N>
void Put(ByteWriter& out, const std::array<unsigned char, N>& bytes) {
  out.Raw(std::string(bytes.begin(), bytes.end()));
}

template <std::size_t N>
void Take(ByteReader& in, FixedText<N>& text) {
  text = in.PathText(N);
}

template <std::size_t N>
void Take(ByteReader& in, std::array<unsigned char, N>& bytes) {
  const std::string raw = in.Raw(N);
  std::copy(raw.begin(), raw.end(), bytes.begin());
}

}  // namespace

std::string SettingsBytes(const SettingsRecord& settings) {
  ByteWriter out;
  Put(out, settings.DefaultFontName);
  out.F64(settings.DefaultFontSize);
  out.I16(settings.NumericBarcodeType);
  out.I16(settings.AlphaBarcodeType);
  out.F64(settings.BarcodeFontSize);
  out.I16(settings.PrintOffsetX);
  out.I16(settings.PrintOffsetY);
  out.I16(settings.ShowRulers);
  out.I16(settings.MetricUnits);
  out.I16(settings.ShowCrossHairs);
  Put(out, settings.RecentFile1);
  Put(out, settings.RecentFile2);
  Put(out, settings.RecentFile3);
  Put(out, settings.RecentFile4);
  Put(out, settings.RecentFile5);
  Put(out, settings.RecentFile6);
  Put(out, settings.Reserved1);
  out.F64(settings.WindowLeft);
  out.F64(settings.WindowTop);
  out.F64(settings.WindowWidth);
  out.F64(settings.WindowHeight);
  out.F64(settings.MagneticZone);
  Put(out, settings.Reserved2);
  return out.Bytes();
}

SettingsRecord SettingsFromBytes(std::string_view bytes) {
  ByteReader in(bytes);
  SettingsRecord settings;
  Take(in, settings.DefaultFontName);
  settings.DefaultFontSize = in.F64();
  settings.NumericBarcodeType = in.I16();
  settings.AlphaBarcodeType = in.I16();
  settings.BarcodeFontSize = in.F64();
  settings.PrintOffsetX = in.I16();
  settings.PrintOffsetY = in.I16();
  settings.ShowRulers = in.I16();
  settings.MetricUnits = in.I16();
  settings.ShowCrossHairs = in.I16();
  Take(in, settings.RecentFile1);
  Take(in, settings.RecentFile2);
  Take(in, settings.RecentFile3);
  Take(in, settings.RecentFile4);
  Take(in, settings.RecentFile5);
  Take(in, settings.RecentFile6);
  Take(in, settings.Reserved1);
  settings.WindowLeft = in.F64();
  settings.WindowTop = in.F64();
  settings.WindowWidth = in.F64();
  settings.WindowHeight = in.F64();
  settings.MagneticZone = in.F64();
  Take(in, settings.Reserved2);
  return settings;
}

SettingsRecord ReadSettings(const std::string& path) {
  return SettingsFromBytes(ReadFileStart(path, kSettingsSize));
}

// The former file goes under whatever case it was found.
void WriteSettings(const std::string& path, const SettingsRecord& settings) {
  CarryOn([&] {
    if (FileExists(path)) DeleteFile(path);
  });
  ReplaceFile(path, SettingsBytes(settings));
}

}  // namespace tagwright
