// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace Quillory {

enum class FileUse
{
    /// A file that is made, or opened as it is.
    MakeOrOpen,
    /// A file that is written, an existing one only after a question.
    Write,
    Read,
};

/// What a file dialog offers.
struct FileKind
{
    QString name;
    /// Without a point; added to names that have none.
    QString suffix;
    QString suggestion;
};

/// Opens the desktop's file dialog over the window of `parent`, as soon as what was asked there
/// before is answered, and returns at once; `then` is called with the path, or with an empty one if
/// none was chosen.
void ChooseFile(QWidget* parent, FileUse use, const FileKind& kind,
    const std::function<void(const QString& path)>& then);

} // namespace Quillory
