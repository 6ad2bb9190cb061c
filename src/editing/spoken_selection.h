// The selection in words, for people who do not see the board.
#pragma once

#include <string>

namespace tagwright {

// "Rectangle at 10.00, 5.00, 30.00 by 20.00 mm", in the user's unit; texts, barcodes, fields and
// pictures with what they hold; "3 objects selected"; "Nothing selected".
std::string SelectionInWords();

}  // namespace tagwright
