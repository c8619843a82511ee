// SPDX-License-Identifier: MIT
#pragma once

#include <QFileDevice>
#include <QString>

namespace Quillory {

/// What the user alone may do with a file.
constexpr QFileDevice::Permissions kOwnerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

/// The folder that an environment variable names, if it is an absolute path; else this one below
/// the user's home.
[[nodiscard]] QString UserFolder(const char* variable, const QString& belowHome);

/// Makes a folder, and those above it, that the user alone may enter; those that are there stay as
/// they are. False if nothing can be put into it.
[[nodiscard]] bool MakeUserFolder(const QString& folder);

} // namespace Quillory
