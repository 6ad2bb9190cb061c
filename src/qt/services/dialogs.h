// Message boxes, input boxes and the common dialogs of the toolkit.
#pragma once

#include <QString>
#include <QStringList>
#include <memory>
#include <string>

#include "platform/services/dialogs.h"

namespace tagwright {

std::unique_ptr<DialogService> MakeDialogService();

// The title of a message that has none of its own.
QString ProgramName();

// "description|*.a;*.b|description|*.c" as the toolkit's file dialogs want it:
// {"description (*.a *.b)", "description (*.c)"}. A description without patterns counts for all
// files.
QStringList NameFilters(const std::string& filter);

}  // namespace tagwright
