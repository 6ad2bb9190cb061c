#include "document/source_state.h"

#include "document/objects.h"
#include "forms/frmMain.h"
#include "platform/services/dialogs.h"

namespace tagwright {

void CloseSource() {
  SourceRecordset.reset();
  SourceDatabase.reset();
  SourceTable = {};
  CurrentTable.clear();
  UnlistedTable = -1;
  DatabasePassword.clear();
  FieldValues.assign(kFieldSlots, {});
  FieldUB = -1;
  RecordCount = -1;
  frmMain.cboRSet.Clear();
  frmMain.lstFields.Clear();
  frmMain.lblRCount.SetCaption("");
}

void ForgetSource() {
  CloseSource();
  frmMain.lblFileName.SetCaption("");
  frmMain.chkMailshot.SetValue(0);
  frmMain.chkMailshot.SetVisible(false);
}

void ShowSourceFields(bool database) {
  frmMain.cboRSet.SetVisible(database);
  frmMain.lblFName(kTableCaption).SetVisible(database);
  frmMain.chkFirstRow.SetVisible(!database);
  frmMain.chkQuote.SetVisible(!database);
}

void TellNoDatabase(const std::string& path, const Fault& fault) {
  const bool says_more = fault.description != FaultDescription(fault.number);
  MessageBox("The file " + path + " cannot be read as a database" +
             (says_more ? "\r\n" + fault.description : ""));
}

}  // namespace tagwright
