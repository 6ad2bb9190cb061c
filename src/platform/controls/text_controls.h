// Controls that the user types in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/control.h"

namespace tagwright {

// Something that holds the caret: shared by text boxes and combos. Positions count characters of
// Text(), in which a line ends in CR LF and so counts two.
class TextControl : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }
  const std::string& Text() const { return text_; }
  int SelStart() const { return sel_start_; }
  int SelLength() const { return sel_length_; }
  void SetSelStart(int value);   // past the end: the end; negative: fault 380; clears the selection
  void SetSelLength(int value);  // cut at the end; negative: fault 380
  std::string SelText() const;
  // The view reports where the user has put the caret.
  void UserSelect(int start, int length);

 protected:
  void StoreText(std::string value);  // caret to the start, nothing raised
  // Raises KeyPress for a character of the user's. Returns what is left to enter; 0 when the
  // handler swallowed it or moved the keyboard elsewhere.
  char32_t FilterCharacter(char32_t character);
  // Text and caret after `character` in place of the selection; false when it changes nothing.
  bool EnterCharacter(char32_t character, bool multi_line);
  std::string text_;
  int sel_start_ = 0;
  int sel_length_ = 0;
};

class TextBox : public TextControl {
 public:
  using TextControl::TextControl;
  // Raises Change only on a change.
  void SetText(std::string value);
  bool MultiLine() const { return multi_line_; }
  void SetMultiLine(bool value);
  bool Locked() const { return locked_; }
  void SetLocked(bool value);

  // One character entered by the user, whatever way: raises KeyPress, then replaces the selection
  // by what is left of it (8 deletes backwards, 13 breaks the line where there are several) and
  // raises Change. A handler that moves the keyboard elsewhere drops the character.
  void UserKey(char32_t character);
  // Characters of a paste or an input method: UserKey for each.
  void UserType(std::string_view text);
  // The view edited the text itself (delete, cut, undo): stores and raises Change on a change.
  // Lines may end in LF alone here; `caret` counts the characters as they come.
  void UserEdit(std::string text, int caret);

 private:
  bool multi_line_ = false;
  bool locked_ = false;
};

class ComboBox : public TextControl {
 public:
  using TextControl::TextControl;
  // --- rows ---
  int ListCount() const { return static_cast<int>(rows_.size()); }
  const std::string& List(int row) const;  // faults 9 outside
  // Sorted lists insert without regard to case, behind equal rows. The chosen row stays chosen.
  void AddItem(std::string row);
  void Clear();  // no rows, no text, index -1; raises nothing
  bool Sorted() const { return sorted_; }
  void SetSorted(bool value) { sorted_ = value; }

  // The chosen row, -1 none. Setting 0 or more stores, sets the text and always raises Click, also
  // for the same row; -1 empties the text and raises nothing; outside: fault 380, value kept.
  int ListIndex() const { return list_index_; }
  void SetListIndex(int row);
  // Sets the text; the index becomes that of the first row equal to it, or -1. Raises nothing.
  // On a pick list (Editable false) a text that is no row shows all the same.
  void SetText(std::string value);
  bool Editable() const { return editable_; }
  void SetEditable(bool value);

  // --- the user ---
  void UserChoose(int row);  // chose a row (the same one too): as SetListIndex
  // As TextBox; a pick list only raises KeyPress. Edited text is no chosen row: the index is -1.
  void UserKey(char32_t character);
  void UserType(std::string_view text);
  void UserEdit(std::string text, int caret);

 private:
  void TextEdited();
  std::vector<std::string> rows_;
  int list_index_ = -1;
  bool sorted_ = false;
  bool editable_ = false;
};

}  // namespace tagwright
