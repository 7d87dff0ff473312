// The boxes for messages, for one line of text and for a file name. They are Qt's dialogs, with the look of the
// desktop. Each function returns when the person has answered or the parent window is deleted.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "platform/platform.h"

namespace pelmar {

Answer ShowMessage(MessageType type, const QString& text, const QString& title);

// Shows the text with the icon of the program.
void ShowAbout(const QString& title, const QString& text);

std::optional<QString> AskForText(const QString& prompt, const QString& title, const QString& initial);

enum class FileDialogKind { kOpen, kSave };

// Returns the path of the file, or nothing on cancel. The dialog starts in `folder`; "" means the current folder. Sets
// `folder` to the folder of the file. A save dialog returns the name as typed and does not ask before overwriting.
// Filter and index are those of Platform::OpenDialog.
std::optional<QString> AskForFile(FileDialogKind kind, const QString& filter, int filter_index, QString& folder);

// Converts "caption|*.a;*.b|caption|*.*" to a filter list for Qt. A caption without a pattern at the end is dropped.
QStringList NameFilters(const QString& filter);

}  // namespace pelmar
