// The help menu.
#pragma once

#include <string>

namespace tagwright {

// Path of the help file, set at start-up.
inline std::string HelpFile;

void mnuHelpHelp_Click();     // shows the help file
void mnuHelpWebsite_Click();  // opens the product's web page
void mnuHelpAbout_Click();    // shows frmAbout modally

}  // namespace tagwright
