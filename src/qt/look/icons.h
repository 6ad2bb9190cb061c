// Icons of the program's own family.
#pragma once

#include <QIcon>
#include <QString>

namespace tagwright {

// An icon of the program's own family by its file name without ending; drawn at any size in the
// colours of the theme in force at that moment. Null when there is none of that name.
QIcon ThemedIcon(const QString& name);

}  // namespace tagwright
