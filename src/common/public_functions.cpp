#include "common/public_functions.h"

#include <cmath>
#include <limits>

#include "platform/controls/text_controls.h"
#include "platform/controls/windows.h"
#include "platform/faults/fault.h"
#include "platform/services/desktop.h"
#include "platform/text/locale.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr int kBackspace = 8;
constexpr int kReturn = 13;
constexpr int kDecimalSymbol = 14;  // item of LocaleValue

// --- rounding ---

template <class Integer>
Integer RoundedTo(double value) {
  const double floor = std::floor(value);
  const double above = value - floor;
  const bool up = above > 0.5 || (above == 0.5 && std::fmod(floor, 2) != 0);
  const double rounded = up ? floor + 1 : floor;
  const bool fits = rounded >= std::numeric_limits<Integer>::min() &&
                    rounded <= std::numeric_limits<Integer>::max();
  if (!fits) RaiseFault(kOverflow);  // no number compares as fitting
  return static_cast<Integer>(rounded);
}

// --- the key filter ---

enum class Verdict { kPass, kSwallow, kAskSet };

std::string Symbol(int key) { return FromCharacters(std::u32string{static_cast<char32_t>(key)}); }

bool Holds(std::string_view text, std::string_view part) {
  return !part.empty() && text.find(part) != std::string_view::npos;
}

bool HoldsOperator(std::string_view text) {
  return text.find_first_of("+-/*%") != std::string_view::npos;
}

// The accented capitals by their numbers in the user's code page, whatever letters it has there.
std::string CodePageLetters() {
  std::string bytes;
  for (int code = 192; code <= 221; ++code) bytes.push_back(static_cast<char>(code));
  for (int code = 140; code <= 144; ++code) bytes.push_back(static_cast<char>(code));
  return FromCodePage(bytes);
}

std::string ValidSet(bool letters, bool numbers, bool operators) {
  std::string set;
  if (numbers) set += "0123456789-" + LocaleValue(kDecimalSymbol);
  if (letters) set += "ABCDEFGHIJKLMNOPQRSTUVWXYZ_" + CodePageLetters();
  if (operators) set += "+/-*%";
  return set;
}

// A decimal symbol passes once, and again where it replaces the one there is or where an operator
// shows that the text holds several numbers. It cannot come first, although "." can.
Verdict JudgeDecimal(const TextControl& box, const std::string& decimal) {
  if (box.Text().empty()) return Verdict::kSwallow;
  if (!Holds(box.Text(), decimal) || Holds(box.SelText(), decimal)) return Verdict::kPass;
  return HoldsOperator(box.Text()) ? Verdict::kPass : Verdict::kSwallow;
}

// The rules of a box for numbers only, beyond its set.
Verdict JudgeNumberKey(const std::string& key, bool operators, const TextControl& box) {
  const std::string decimal = LocaleValue(kDecimalSymbol);
  if (key == decimal) return JudgeDecimal(box, decimal);
  if (key == "-" && !operators && !box.Text().empty()) return Verdict::kSwallow;
  return Verdict::kAskSet;
}

int InCase(int key, bool upper, bool lower) {
  auto character = static_cast<char32_t>(key);
  if (upper) character = UpperCase(character);
  if (lower) character = LowerCase(character);
  return static_cast<int>(character);
}

}  // namespace

double ToNumber(std::string_view Value) { return ParseNumber(Value).value_or(0); }

std::int16_t ToInt16(double value) { return RoundedTo<std::int16_t>(value); }
std::int32_t ToInt32(double value) { return RoundedTo<std::int32_t>(value); }

int FilterKey(int KeyAscii, std::int16_t ToUpper, std::int16_t ToLower, std::int16_t AllowLetters,
              std::int16_t AllowNumbers, std::int16_t AllowOperators, const TextControl& Box) {
  if (KeyAscii == kBackspace) return KeyAscii;
  const int key = InCase(KeyAscii, ToUpper != 0, ToLower != 0);
  const std::string symbol = Symbol(key);
  if (symbol == "." && Box.Text().empty()) return key;
  if (AllowNumbers != 0 && AllowLetters == 0) {
    const Verdict verdict = JudgeNumberKey(symbol, AllowOperators != 0, Box);
    if (verdict != Verdict::kAskSet) return verdict == Verdict::kPass ? key : 0;
  }
  const std::string set = ValidSet(AllowLetters != 0, AllowNumbers != 0, AllowOperators != 0);
  return Holds(set, UpperCase(symbol)) ? key : 0;
}

int CompleteCombo(ComboBox& Combo, int KeyAscii) {
  if (KeyAscii == kReturn) {
    Combo.SetSelStart(static_cast<int>(Length(Combo.Text())));
    SendTab();
    return 0;
  }
  if (KeyAscii == kBackspace) return KeyAscii;
  const int caret = Combo.SelStart();
  const auto before = static_cast<std::size_t>(caret);
  const std::string kept = Left(Combo.Text(), before);
  const std::string typed = kept + Symbol(KeyAscii);
  for (int row = 0; row < Combo.ListCount(); ++row) {
    const std::string entry = Combo.List(row);
    if (!EqualIgnoringCase(Left(entry, before + 1), typed)) continue;
    Combo.SetText(typed + Mid(entry, before + 1));
    Combo.SetSelStart(caret + 1);
    Combo.SetSelLength(static_cast<int>(Length(entry)) - caret - 1);
    return 0;
  }
  Combo.SetText(kept);
  Combo.SetSelStart(caret);
  return 0;
}

bool SelectRow(ComboBox& Combo, std::string_view text) {
  for (int row = 0; row < Combo.ListCount(); ++row) {
    if (Combo.List(row) != text) continue;
    Combo.SetListIndex(row);
    return true;
  }
  return false;
}

void SelectComboText(ComboBox& Combo) {
  for (int row = 0; row < Combo.ListCount(); ++row) {
    if (!EqualIgnoringCase(Combo.List(row), Combo.Text())) continue;
    Combo.SetListIndex(row);
    return;
  }
}

std::int16_t PrimeRecordset(Recordset& Rs) {
  if (Rs.RecordCount() < 0) return 0;
  Rs.MoveLast();
  Rs.MoveFirst();
  return -1;
}

int ShellOpen(const std::string& Target, int ShowCommand) {
  return DesktopOpen()(Target, ShowCommand);
}

std::string LocaleValue(int LCType) {
  if (LCType != kDecimalSymbol) return {};
  const std::string& decimal = Locale().decimal;
  return decimal.substr(0, decimal.find('\0'));
}

}  // namespace tagwright
