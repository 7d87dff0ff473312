// Prints on the system's default printer or on its only printer. Prints into a PDF file if there is neither, or if the
// printer module can't be loaded. All characters, tabs included, look as in the text box.
#pragma once

#include <QString>
#include <functional>

#include "platform/platform.h"

namespace pelmar {

PrintOutcome PrintOnDefault(const PrintFont& font, const QString& name, const std::function<void(Paper&)>& draw);

// An unused path in the folder: "name.pdf", "name (2).pdf" and so on. A name of more than 80 characters is cut.
QString NewPdfPath(const QString& folder, const QString& name);

}  // namespace pelmar
