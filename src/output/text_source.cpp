#include "output/text_source.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "common/diagnostics.h"
#include "common/public_functions.h"
#include "document/objects.h"
#include "document/source_state.h"
#include "forms/frmMain.h"
#include "output/data_sources.h"
#include "platform/faults/fault.h"
#include "platform/files/files.h"
#include "platform/files/line_reader.h"
#include "platform/services/progress.h"
#include "platform/text/text.h"

namespace tagwright {
namespace {

std::string SeparatorOf(bool comma) { return comma ? "," : "\t"; }

// Faults 62 where the file has no line left.
std::string ReadLine(LineReader& file) {
  std::string line;
  if (!file.Next(line)) RaiseFault(kPastEnd);
  return line;
}

std::string FirstLine(const std::string& path) {
  LineReader file(path);
  return ReadLine(file);
}

// The slots have an end, and FieldUB never passes it.
void StoreField(std::string_view value) {
  FieldValueAt(FieldUB + 1) = value;
  ++FieldUB;
}

// Behind FieldUB. Quotes protect nothing, and nothing is trimmed.
void SplitIntoFields(std::string_view line) {
  for (std::size_t end = line.find(FieldSeparator); end != std::string_view::npos;
       end = line.find(FieldSeparator)) {
    StoreField(line.substr(0, end));
    line.remove_prefix(end + FieldSeparator.size());
  }
  StoreField(line);
}

// A count that the user cuts short is the number of rows met by then.
std::int32_t CountRows(const std::string& path) {
  Progress progress("Counting records");
  progress.Tell(FileBaseName(path));
  const auto goes_on = [&](double share) {
    progress.Tell(FileBaseName(path), share);
    return progress.GoesOn();
  };
  return ToInt32(static_cast<double>(CountLines(path, goes_on)));
}

}  // namespace

void OpenTextSource(bool Comma) { TakeTextSource(frmMain.cd1.FileName, Comma); }

void TakeTextSource(const std::string& path, bool Comma) {
  std::string line;
  ShowSourceFields(false);
  Traced([&] { line = FirstLine(path); });
  FieldSeparator = SeparatorOf(Comma);
  Traced([&] { SplitIntoFields(line); });
  RecordCount = 0;
  Traced([&] { RecordCount = CountRows(path); });
  ShowRecordCount();
  FillFieldList();
}

void OpenTextRows(bool Comma) {
  SourceFile.reset();
  Traced([] { SourceFile = std::make_unique<LineReader>(frmMain.lblFileName.Caption()); });
  Traced([] {
    if (SourceFile) ReadLine(*SourceFile);
  });
  FieldSeparator = SeparatorOf(Comma);
}

void NextTextRow(bool& More) {
  std::string line;
  bool read = false;
  Traced([&] { read = SourceFile && SourceFile->Next(line); });
  if (!read) return;
  if (frmMain.chkQuote.Value() != 0) line = Replace(line, "\"", "");
  FieldUB = -1;
  Traced([&] { SplitIntoFields(Trim(line)); });
  More = true;
}

}  // namespace tagwright
