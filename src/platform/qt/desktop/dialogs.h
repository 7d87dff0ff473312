// The boxes in which the program asks a person: messages, one line of text, a file's name. Each is the toolkit's own,
// so that the desktop's look, its translation and assistive technology apply. They return when answered and survive
// the end of the window that they stand over.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "platform/platform.h"

namespace pelmar {

Answer ShowMessage(MessageType type, const QString& text, const QString& title);

// With the program's icon.
void ShowAbout(const QString& title, const QString& text);

std::optional<QString> AskForText(const QString& prompt, const QString& title, const QString& initial);

enum class FileDialogKind { kOpen, kSave };

// The file's path, nothing on cancel. `folder` is where the dialog starts ("" the current one) and becomes the chosen
// file's. Saving takes the name as it was typed and asks nothing about an existing file. Filter and index are those of
// Platform::OpenDialog.
std::optional<QString> AskForFile(FileDialogKind kind, const QString& filter, int filter_index, QString& folder);

// "caption|*.a;*.b|caption|*.*" as the toolkit's list, one entry a pair. An unpaired caption at the end is dropped.
QStringList NameFilters(const QString& filter);

}  // namespace pelmar
