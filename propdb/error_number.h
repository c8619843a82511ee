// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Quillory {

/// Why an operation of the data layer failed. The numbers are shown to people and given back by
/// the command line; they never change.
enum class ErrorNumber : quint32
{
    None = 0,
    FileNotFound = 2,
    PathNotFound = 3,
    TooManyOpenFiles = 4,
    AccessDenied = 5,
    InvalidHandle = 6,
    NotEnoughMemory = 8,
    BadFormat = 11,
    InvalidData = 13,
    NotSameDevice = 17,
    WriteProtected = 19,
    NotReady = 21,
    BadLength = 24,
    WriteFault = 29,
    ReadFault = 30,
    GeneralFailure = 31,
    SharingViolation = 32,
    LockViolation = 33,
    NotSupported = 50,
    DuplicateName = 52,
    FileExists = 80,
    InvalidParameter = 87,
    DiskFull = 112,
    InvalidName = 123,
    DirectoryNotEmpty = 145,
    AlreadyExists = 183,
    NameTooLong = 206,
    FileTooLarge = 223,
    ChangedOutside = 1006,
    NoUnicodeTranslation = 1113,
    IoDevice = 1117,
    TooManyLinks = 1142,
    NotFound = 1168,
    Cancelled = 1223,
    FileCorrupt = 1392,
    Timeout = 1460,
};

/// The number for a failed system call that left `systemError` (an errno value).
/// `folderIsMissing` tells a missing file from a missing folder, which errno does not.
[[nodiscard]] ErrorNumber ErrorFromErrno(int systemError, bool folderIsMissing = false);

/// A short English phrase for messages on standard error, such as "file not found".
[[nodiscard]] const char* ErrorPhrase(ErrorNumber error);

} // namespace Quillory
