#include "platform/controls/text_controls.h"

#include <algorithm>
#include <utility>

#include "platform/faults/fault.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

constexpr char32_t kBackspace = 8;
constexpr char32_t kTab = 9;
constexpr char32_t kReturn = 13;
constexpr char32_t kFirstPrintable = 32;
constexpr char32_t kDelete = 127;

int Clamp(int value, int low, int high) { return std::clamp(value, low, std::max(low, high)); }

// What `character` puts into a text; empty where it puts nothing.
std::u32string Insertion(char32_t character, bool multi_line) {
  if (character == kReturn) return multi_line ? U"\r\n" : U"";
  const bool printable = character >= kFirstPrintable && character != kDelete;
  return printable || character == kTab ? std::u32string(1, character) : U"";
}

// How much a backspace at `caret` takes: a line end goes whole.
int BackspaceLength(const std::u32string& text, int caret) {
  if (caret == 0) return 0;
  const bool line_end =
      caret > 1 && text.compare(static_cast<std::size_t>(caret) - 2, 2, U"\r\n") == 0;
  return line_end ? 2 : 1;
}

// The characters of a paste as keys: each sort of line end is one return, other controls but the
// tab are no characters that anybody entered.
std::u32string AsKeys(std::string_view text) {
  std::u32string keys;
  char32_t former = 0;
  for (const char32_t character : Characters(text)) {
    const bool second_half = character == U'\n' && former == U'\r';
    const char32_t key = character == U'\n' ? kReturn : character;
    if (!second_half && (key == kReturn || !Insertion(key, false).empty())) keys += key;
    former = character;
  }
  return keys;
}

// `text` with all its line ends as CR LF; `caret` moves along.
std::u32string WithFullLineEnds(const std::u32string& text, int& caret) {
  std::u32string full;
  const auto place = static_cast<std::size_t>(std::max(caret, 0));
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i == place) caret = static_cast<int>(full.size());
    const bool whole = text[i] == U'\r' && i + 1 < text.size() && text[i + 1] == U'\n';
    if (text[i] == U'\n' && (i == 0 || text[i - 1] != U'\r')) full += U'\r';
    full += text[i];
    if (text[i] == U'\r' && !whole) full += U'\n';
  }
  if (place >= text.size()) caret = static_cast<int>(full.size());
  return full;
}

}  // namespace

// --- caret --------------------------------------------------------------------------------------

void TextControl::SetSelStart(int value) {
  if (value < 0) RaiseFault(kBadValue);
  UserSelect(value, 0);
  Notify(Aspect::kSelection);
}

void TextControl::SetSelLength(int value) {
  if (value < 0) RaiseFault(kBadValue);
  UserSelect(sel_start_, value);
  Notify(Aspect::kSelection);
}

std::string TextControl::SelText() const {
  return Mid(text_, static_cast<std::size_t>(sel_start_), static_cast<std::size_t>(sel_length_));
}

void TextControl::UserSelect(int start, int length) {
  const int whole = static_cast<int>(Length(text_));
  sel_start_ = Clamp(start, 0, whole);
  sel_length_ = Clamp(length, 0, whole - sel_start_);
}

void TextControl::StoreText(std::string value) {
  text_ = std::move(value);
  sel_start_ = 0;
  sel_length_ = 0;
  Notify(Aspect::kText);
  Notify(Aspect::kSelection);
}

// --- characters ---------------------------------------------------------------------------------

char32_t TextControl::FilterCharacter(char32_t character) {
  const bool had_keyboard = HasFocus();
  int key = static_cast<int>(character);
  Events().KeyPress.Raise(Index(), key);
  if (key <= 0 || (had_keyboard && !HasFocus())) return 0;
  return static_cast<char32_t>(key);
}

bool TextControl::EnterCharacter(char32_t character, bool multi_line) {
  std::u32string text = Characters(text_);
  const std::u32string insertion = Insertion(character, multi_line);
  if (character == kBackspace) {
    if (sel_length_ == 0)
      sel_length_ = BackspaceLength(text, sel_start_), sel_start_ -= sel_length_;
  } else if (insertion.empty()) {
    return false;
  }
  text.replace(static_cast<std::size_t>(sel_start_), static_cast<std::size_t>(sel_length_),
               insertion);
  std::string entered = FromCharacters(text);
  const bool changed = entered != text_;
  const int caret = sel_start_ + static_cast<int>(insertion.size());
  StoreText(std::move(entered));
  SetSelStart(caret);
  return changed;
}

// --- text box -----------------------------------------------------------------------------------

void TextBox::SetText(std::string value) {
  if (value == text_) return;
  StoreText(std::move(value));
  Events().Change.Raise(Index());
}

void TextBox::SetMultiLine(bool value) {
  if (value == multi_line_) return;
  multi_line_ = value;
  Notify(Aspect::kLook);
}

void TextBox::SetLocked(bool value) {
  if (value == locked_) return;
  locked_ = value;
  Notify(Aspect::kEnabled);
}

void TextBox::UserKey(char32_t character) {
  if (Waits() || !IsUsable()) return;
  const char32_t entered = FilterCharacter(character);
  if (entered == 0 || locked_) return;
  if (EnterCharacter(entered, multi_line_)) Events().Change.Raise(Index());
}

void TextBox::UserType(std::string_view text) {
  const bool had_keyboard = HasFocus();
  for (const char32_t key : AsKeys(text)) {
    UserKey(key);
    if (had_keyboard && !HasFocus()) return;  // the rest was not meant for whoever has it now
  }
}

void TextBox::UserEdit(std::string text, int caret) {
  if (Waits() || !IsUsable() || locked_) return;
  if (multi_line_) text = FromCharacters(WithFullLineEnds(Characters(text), caret));
  const bool changed = text != text_;
  StoreText(std::move(text));
  SetSelStart(std::max(caret, 0));
  if (changed) Events().Change.Raise(Index());
}

// --- combo box ----------------------------------------------------------------------------------

const std::string& ComboBox::List(int row) const {
  if (row < 0 || row >= ListCount()) RaiseFault(kOutOfBounds);
  return rows_[static_cast<std::size_t>(row)];
}

void ComboBox::AddItem(std::string row) {
  const auto before = [](const std::string& a, const std::string& b) {
    return CompareIgnoringCase(a, b) < 0;
  };
  const auto place =
      sorted_ ? std::upper_bound(rows_.begin(), rows_.end(), row, before) : rows_.end();
  if (place - rows_.begin() <= list_index_) ++list_index_;
  rows_.insert(place, std::move(row));
  Notify(Aspect::kList);
}

void ComboBox::Clear() {
  rows_.clear();
  list_index_ = -1;
  Notify(Aspect::kList);
  StoreText({});
}

void ComboBox::SetListIndex(int row) {
  if (row < -1 || row >= ListCount()) RaiseFault(kBadValue);
  list_index_ = row;
  StoreText(row < 0 ? std::string() : List(row));
  if (row >= 0) Events().Click.Raise(Index());
}

void ComboBox::SetText(std::string value) {
  const auto found = std::find(rows_.begin(), rows_.end(), value);
  list_index_ = found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
  StoreText(std::move(value));
}

void ComboBox::SetEditable(bool value) {
  if (value == editable_) return;
  editable_ = value;
  Notify(Aspect::kLook);
}

void ComboBox::UserChoose(int row) {
  if (Waits() || !IsUsable() || row < 0 || row >= ListCount()) return;
  SetListIndex(row);
}

void ComboBox::UserKey(char32_t character) {
  if (Waits() || !IsUsable()) return;
  const char32_t entered = FilterCharacter(character);
  if (entered == 0 || !editable_) return;
  if (EnterCharacter(entered, false)) TextEdited();
}

void ComboBox::UserType(std::string_view text) {
  const bool had_keyboard = HasFocus();
  for (const char32_t key : AsKeys(text)) {
    UserKey(key);
    if (had_keyboard && !HasFocus()) return;
  }
}

void ComboBox::UserEdit(std::string text, int caret) {
  if (Waits() || !IsUsable() || !editable_) return;
  const bool changed = text != text_;
  StoreText(std::move(text));
  SetSelStart(std::max(caret, 0));
  if (changed) TextEdited();
}

void ComboBox::TextEdited() {
  list_index_ = -1;
  Notify(Aspect::kSelection);
  Events().Change.Raise(Index());
}

}  // namespace tagwright
