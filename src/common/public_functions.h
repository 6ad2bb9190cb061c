// The small helpers that all windows share: numbers from text, keys, completion, the desktop.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/database/database.h"

namespace tagwright {

class ComboBox;
class TextControl;

// --- numbers ------------------------------------------------------------------------------------

// The number of a text that IsNumeric accepts, otherwise 0. Every number read from a text box or a
// file goes through here, so bad text counts as 0 rather than as a fault. Rounds nothing.
double ToNumber(std::string_view Value);

// To the nearest integer, halves to the even one. Faults 6 outside the type and for no number.
std::int16_t ToInt16(double value);
std::int32_t ToInt32(double value);

// --- keys and lists -----------------------------------------------------------------------------

// The key to pass on to `Box`, 0 to swallow it. `KeyAscii` is the character's code point; the flags
// are 16-bit booleans. The three sets: numbers (digits, "-", the user's decimal symbol), letters
// (capitals, "_" and characters 192 to 221 and 140 to 144 of the user's code page; small letters
// pass as their capitals would), operators ("+/-*%").
int FilterKey(int KeyAscii, std::int16_t ToUpper, std::int16_t ToLower, std::int16_t AllowLetters,
              std::int16_t AllowNumbers, std::int16_t AllowOperators, const TextControl& Box);

// Completes the text of a combo to its first entry that begins with what stands before the caret
// and the typed character; what has been added is selected. A character that fits no entry is
// refused, and what stood behind the caret goes too. Return leaves the box. Gives the key to pass
// on, 0 when it has been dealt with. Changes the combo's text and selection, raises nothing.
int CompleteCombo(ComboBox& Combo, int KeyAscii);

// Chooses the first entry that is exactly `text`, which raises its Click. Returns false, and
// changes nothing, without one.
bool SelectRow(ComboBox& Combo, std::string_view text);

// Chooses the first entry equal to the combo's text, case ignored, which raises its Click. Without
// one nothing changes.
void SelectComboText(ComboBox& Combo);

// --- platform -----------------------------------------------------------------------------------

// Goes to the last row and back to the first, so that later counts are exact. Returns -1, or 0 for
// a recordset that does not know its count. Passes the recordset's faults on.
std::int16_t PrimeRecordset(Recordset& Rs);

// Opens a file or address in its default application; the desktop's result, above 32 for success.
int ShellOpen(const std::string& Target, int ShowCommand);

// An item of the user's locale by its number: 14 is the decimal symbol. The program asks for no
// other; any other is empty.
std::string LocaleValue(int LCType);

}  // namespace tagwright
