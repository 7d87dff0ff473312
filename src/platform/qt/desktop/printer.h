// Printing on the system's default printer, or into a PDF file where there is none. Letters, tabs and the signs of
// control characters are those of the text box.
#pragma once

#include <QString>
#include <functional>

#include "platform/platform.h"

namespace pelmar {

PrintOutcome PrintOnDefault(const PrintFont& font, const QString& name, const std::function<void(Paper&)>& draw);

// A path in the folder that no file has yet: "name.pdf", else "name (2).pdf" and so on.
QString NewPdfPath(const QString& folder, const QString& name);

}  // namespace pelmar
