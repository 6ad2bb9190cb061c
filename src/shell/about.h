// The window "About".
#pragma once

namespace tagwright::about {

void Form_Load();    // caption, version and the product's texts
void cmdOK_Click();  // unloads the window

}  // namespace tagwright::about
