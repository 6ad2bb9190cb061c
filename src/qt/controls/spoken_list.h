// Lists as assistive tools meet them. The toolkit's own answer tells every list and all its rows as
// showing, also while they lie on a hidden panel or are folded up.
#pragma once

#include <QAccessible>

class QListView;

namespace tagwright {

// The answer for one list of rows, that of a combo too. The toolkit owns it.
QAccessibleInterface* MakeSpokenList(QListView& view);

}  // namespace tagwright
