// Where file dialogs open: where the last file of their kind lies, else where the program's main
// file does. A kind of file is told by its filter, as in FileDialogRequest.
#pragma once

#include <string>

namespace tagwright {

// With a trailing separator; empty when neither file is known.
std::string DialogFolder(const std::string& filter);

// `path` is the last file of its kind. An empty one changes nothing.
void RememberFile(const std::string& filter, const std::string& path);

// `path` is the main file: dialogs for kinds that have none of their own yet open there.
void RememberMainFile(const std::string& path);

// As at program start.
void ForgetDialogFolders();

}  // namespace tagwright
