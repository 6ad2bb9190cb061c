// What painting needs of the toolkit.
#pragma once

namespace tagwright {

// Makes the toolkit's fonts, pictures and printers the program's.
void InstallPaintServices();

}  // namespace tagwright
