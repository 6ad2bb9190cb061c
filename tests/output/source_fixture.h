// The panel of data sources with its handlers, text files of a test's own and databases in memory.
#pragma once

#include <string>
#include <vector>

#include "common/diagnostics.h"
#include "common/prog_settings.h"
#include "document/objects.h"
#include "forms/frmMain.h"
#include "output/data_sources.h"
#include "output/database_source.h"
#include "platform/files/files.h"
#include "support/fake_database.h"
#include "support/test_support.h"

namespace tagwright {

using Texts = std::vector<std::string>;

class SourceTest : public ProgramTest {
 protected:
  SourceTest() {
    ResetDataSources();
    frmMain.cboImportType.AddItem("database");
    frmMain.cboImportType.AddItem("comma");
    frmMain.cboImportType.AddItem("tab");
    frmMain.cboImportType.Events().Click = cboImportType_Click;
    frmMain.cmdBrowse.Events().Click = cmdBrowse_Click;
    frmMain.cboRSet.Events().Click = cboRSet_Click;
    frmMain.chkFirstRow.Events().Click = chkFirstRow_Click;
    frmMain.lstFields.Events().DblClick = lstFields_DblClick;
  }
  ~SourceTest() override { ResetDataSources(); }

  // A file of these bytes in the test's folder; its path.
  std::string Written(const std::string& name, const std::string& bytes) {
    const std::string path = folder.File(name);
    WriteFile(path, bytes);
    return path;
  }

  // Chooses a kind and, in the dialog that this opens, a file.
  void Browse(SourceKind kind, const std::string& path) {
    dialogs.files.push_back(path);
    frmMain.cboImportType.UserChoose(kind);
  }
  void BrowseCsv(const std::string& bytes) { Browse(kCommaSource, Written("data.csv", bytes)); }

  // FieldValues(0) to FieldValues(FieldUB).
  static Texts Columns() { return {FieldValues.begin(), FieldValues.begin() + FieldUB + 1}; }

  static Texts ListedFields() {
    Texts rows;
    for (int i = 0; i < frmMain.lstFields.ListCount(); ++i)
      rows.push_back(frmMain.lstFields.List(i));
    return rows;
  }

  static Texts ListedTables() {
    Texts rows;
    for (int i = 0; i < frmMain.cboRSet.ListCount(); ++i) rows.push_back(frmMain.cboRSet.List(i));
    return rows;
  }

  // The next row of the merge; whether there was one.
  static bool Next() {
    bool more = true;
    NextMergeRecord(more);
    return more;
  }

  // Column `slot` of every row that a merge of the present source gives.
  static Texts Merged(std::size_t slot = 0) {
    Texts values;
    OpenMergeSource();
    while (Next()) values.push_back(FieldValues[slot]);
    CloseMergeSource();
    return values;
  }

  // From here on faults that are passed over show in message boxes.
  void LeaveMarker() { WriteFile(AppFolder + "tracemark.flg", ""); }

  Texts Messages() const {
    Texts texts;
    for (const auto& message : dialogs.messages) texts.push_back(message.text);
    return texts;
  }

  FakeDatabases databases;
};

}  // namespace tagwright
