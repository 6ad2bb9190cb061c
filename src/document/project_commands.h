// The entries of the file menu that begin, open and save a project. Each does what its name says.
#pragma once

namespace tagwright {

void mnuFileNew_Click();
void mnuFileOpen_Click();
void mnuFileSave_Click();
void mnuFileSaveAs_Click();
void mnuFileOld_Click(int Index);

}  // namespace tagwright
