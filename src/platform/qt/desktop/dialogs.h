// The boxes for messages, for one line of text and for a file name. They are Qt's dialogs, with the look of the
// desktop. A dialog ends when the person answers or closes the dialog, or when the parent window is deleted.
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

// Returns the path of the file and sets `folder` to the folder of the file. Returns nothing on cancel. The dialog
// starts in `folder`, or in the current folder if `folder` is "". A save dialog adds no extension and does not ask
// before overwriting. `filter` and `filter_index` are those of Platform::OpenDialog.
std::optional<QString> AskForFile(FileDialogKind kind, const QString& filter, int filter_index, QString& folder);

// Converts "caption|*.a;*.b|caption|*.*" to a filter list for Qt. A last caption without a pattern is dropped.
QStringList NameFilters(const QString& filter);

}  // namespace pelmar
