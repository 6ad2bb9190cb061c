// Places in a text: the control model and the toolkit count them each in a way of its own.
#pragma once

#include <QString>

namespace tagwright {

// The model counts characters, with a line end as two; the toolkit counts UTF-16 units, with a line
// end as one.

// The model's place of what lies `units` behind the start of the toolkit's `text`.
int ModelPlace(const QString& text, int units);

// The toolkit's place of the model's `place` in `text`; the end for one beyond it.
int ToolkitPlace(const QString& text, int place);

// How many characters, a line end as one, lie in the first `units` of the toolkit's `text`.
int CharactersBefore(const QString& text, int units);

}  // namespace tagwright
