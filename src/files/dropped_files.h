// Opens the files that the person drops on the main window.
#pragma once

#include <string>
#include <vector>

#include "files/open.h"
#include "platform/platform.h"
#include "shell/documents.h"

namespace pelmar {

// Asks, and after Yes opens the first file in the current tab and the others in empty tabs. Messages name the files
// without an extension, which are refused, and the files that found no empty tab.
void OpenDropped(std::vector<std::string> paths, Documents& documents, Opener& opener, Platform& platform);

}  // namespace pelmar
