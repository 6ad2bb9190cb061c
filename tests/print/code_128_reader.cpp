#include "print/code_128_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string_view>

namespace tagwright {
namespace {

constexpr std::size_t kBarsOfCharacter = 3;
constexpr std::size_t kBarsOfStop = 4;
constexpr double kModules = 11;
constexpr std::string_view kStartB = "211214";
constexpr char kFirstCharacter = ' ';

// Widths of bars and spaces in turn, by value; those of code set B that stand for a character.
constexpr std::array<std::string_view, 95> kPatterns = {
    "212222", "222122", "222221", "121223", "121322", "131222", "122213", "122312", "132212",
    "221213", "221312", "231212", "112232", "122132", "122231", "113222", "123122", "123221",
    "223211", "221132", "221231", "213212", "223112", "312131", "311222", "321122", "321221",
    "312212", "322112", "322211", "212123", "212321", "232121", "111323", "131123", "131321",
    "112313", "132113", "132311", "211313", "231113", "231311", "112133", "112331", "132131",
    "113123", "113321", "133121", "313121", "211331", "231131", "213113", "213311", "213131",
    "311123", "311321", "331121", "312113", "312311", "332111", "314111", "221411", "431111",
    "111224", "111422", "121124", "121421", "141122", "141221", "112214", "112412", "122114",
    "122411", "142112", "142211", "241211", "221114", "413111", "241112", "134111", "111242",
    "121142", "121241", "114212", "124112", "124211", "411212", "421112", "421211", "212141",
    "214121", "412121", "111143", "111341", "131141"};

// The pattern of the character whose first bar is `first`; the bar after it ends its last space.
std::string PatternAt(std::span<const PdfMark> bars, std::size_t first) {
  const double module = (bars[first + kBarsOfCharacter].x1 - bars[first].x1) / kModules;
  std::string pattern;
  const auto add = [&](double width) {
    pattern += static_cast<char>('0' + std::clamp(std::lround(width / module), 0L, 9L));
  };
  for (std::size_t bar = first; bar < first + kBarsOfCharacter; ++bar) {
    add(bars[bar].x2 - bars[bar].x1);
    add(bars[bar + 1].x1 - bars[bar].x2);
  }
  return pattern;
}

}  // namespace

std::string ReadCode128B(std::span<const PdfMark> bars) {
  if (bars.size() < 2 * kBarsOfCharacter + kBarsOfStop) return {};
  if (PatternAt(bars, 0) != kStartB) return {};
  std::string text;
  const std::size_t check = bars.size() - kBarsOfStop - kBarsOfCharacter;
  for (std::size_t first = kBarsOfCharacter; first < check; first += kBarsOfCharacter) {
    const auto found = std::ranges::find(kPatterns, PatternAt(bars, first));
    if (found == kPatterns.end()) return {};
    text += static_cast<char>(kFirstCharacter + (found - kPatterns.begin()));
  }
  return text;
}

}  // namespace tagwright
