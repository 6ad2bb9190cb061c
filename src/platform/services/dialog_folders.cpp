#include "platform/services/dialog_folders.h"

#include <map>

#include "platform/files/files.h"

namespace tagwright {
namespace {

std::map<std::string, std::string>& FoldersByFilter() {
  static std::map<std::string, std::string> folders;
  return folders;
}

std::string& MainFolder() {
  static std::string folder;
  return folder;
}

std::string FolderOf(const std::string& path) {
  const std::string found = ResolvePath(path);
  return found.substr(0, found.rfind('/') + 1);
}

}  // namespace

std::string DialogFolder(const std::string& filter) {
  const auto found = FoldersByFilter().find(filter);
  return found == FoldersByFilter().end() ? MainFolder() : found->second;
}

void RememberFile(const std::string& filter, const std::string& path) {
  if (!path.empty()) FoldersByFilter()[filter] = FolderOf(path);
}

void RememberMainFile(const std::string& path) { MainFolder() = FolderOf(path); }

void ForgetDialogFolders() {
  FoldersByFilter().clear();
  MainFolder().clear();
}

}  // namespace tagwright
