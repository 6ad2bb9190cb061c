#include "qt/services/database.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QString>
#include <string>

#include "platform/database/reader_database.h"

namespace tagwright {
namespace {

constexpr const char* kReaderName = "tagwright-reader";

// What the user does meanwhile waits; the board and the other windows show themselves again.
void LetWindowsPaint() {
  if (QCoreApplication::instance() == nullptr) return;
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace

ReaderProgram ReaderBesideProgram() {
  return {.path = QCoreApplication::applicationDirPath().toStdString() + "/" + kReaderName};
}

DatabaseEngine MakeDatabaseEngine(ReaderProgram reader) {
  reader.meanwhile = LetWindowsPaint;
  return MakeReaderEngine(reader);
}

}  // namespace tagwright
