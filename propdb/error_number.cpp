// SPDX-License-Identifier: MIT
#include "propdb/error_number.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace Quillory {

namespace {

struct SystemError
{
    int code;
    ErrorNumber number;
};

constexpr std::array kSystemErrors {
    SystemError { ENOTDIR, ErrorNumber::PathNotFound },
    SystemError { ELOOP, ErrorNumber::PathNotFound },
    SystemError { EACCES, ErrorNumber::AccessDenied },
    SystemError { EPERM, ErrorNumber::AccessDenied },
    SystemError { EISDIR, ErrorNumber::AccessDenied },
    SystemError { EROFS, ErrorNumber::WriteProtected },
    SystemError { EEXIST, ErrorNumber::FileExists },
    SystemError { ENAMETOOLONG, ErrorNumber::NameTooLong },
    SystemError { ENOSPC, ErrorNumber::DiskFull },
    SystemError { EDQUOT, ErrorNumber::DiskFull },
    SystemError { EFBIG, ErrorNumber::FileTooLarge },
    SystemError { EMFILE, ErrorNumber::TooManyOpenFiles },
    SystemError { ENFILE, ErrorNumber::TooManyOpenFiles },
    SystemError { ENOMEM, ErrorNumber::NotEnoughMemory },
    SystemError { EINVAL, ErrorNumber::InvalidParameter },
    SystemError { EBUSY, ErrorNumber::SharingViolation },
    SystemError { ETXTBSY, ErrorNumber::SharingViolation },
    SystemError { EAGAIN, ErrorNumber::LockViolation },
    SystemError { ENOLCK, ErrorNumber::LockViolation },
    SystemError { EIO, ErrorNumber::IoDevice },
    SystemError { ENODEV, ErrorNumber::NotReady },
    SystemError { ENXIO, ErrorNumber::NotReady },
    SystemError { EBADF, ErrorNumber::InvalidHandle },
    SystemError { ENOTEMPTY, ErrorNumber::DirectoryNotEmpty },
    SystemError { EXDEV, ErrorNumber::NotSameDevice },
    SystemError { ENOSYS, ErrorNumber::NotSupported },
    SystemError { EOPNOTSUPP, ErrorNumber::NotSupported },
    SystemError { EILSEQ, ErrorNumber::NoUnicodeTranslation },
    SystemError { ETIMEDOUT, ErrorNumber::Timeout },
};

struct Phrase
{
    ErrorNumber number;
    const char* text;
};

constexpr std::array kPhrases {
    Phrase { ErrorNumber::None, "no error" },
    Phrase { ErrorNumber::FileNotFound, "file not found" },
    Phrase { ErrorNumber::PathNotFound, "folder not found" },
    Phrase { ErrorNumber::TooManyOpenFiles, "too many open files" },
    Phrase { ErrorNumber::AccessDenied, "access denied" },
    Phrase { ErrorNumber::InvalidHandle, "not open" },
    Phrase { ErrorNumber::NotEnoughMemory, "not enough memory" },
    Phrase { ErrorNumber::BadFormat, "not a Quillory data file" },
    Phrase { ErrorNumber::InvalidData, "invalid data" },
    Phrase { ErrorNumber::NotSameDevice, "not on the same device" },
    Phrase { ErrorNumber::WriteProtected, "the medium is write-protected" },
    Phrase { ErrorNumber::NotReady, "the device is not ready" },
    Phrase { ErrorNumber::BadLength, "value too long" },
    Phrase { ErrorNumber::WriteFault, "write failed" },
    Phrase { ErrorNumber::ReadFault, "read failed" },
    Phrase { ErrorNumber::SharingViolation, "in use by another program" },
    Phrase { ErrorNumber::LockViolation, "cannot be locked" },
    Phrase { ErrorNumber::NotSupported, "not supported, or made by a newer version" },
    Phrase { ErrorNumber::DuplicateName, "name exists already" },
    Phrase { ErrorNumber::FileExists, "file exists already" },
    Phrase { ErrorNumber::InvalidParameter, "invalid parameter" },
    Phrase { ErrorNumber::DiskFull, "no space left" },
    Phrase { ErrorNumber::InvalidName, "invalid name" },
    Phrase { ErrorNumber::DirectoryNotEmpty, "folder not empty" },
    Phrase { ErrorNumber::AlreadyExists, "exists already" },
    Phrase { ErrorNumber::NameTooLong, "name too long" },
    Phrase { ErrorNumber::FileTooLarge, "file too large" },
    Phrase { ErrorNumber::ChangedOutside,
        "another program has written into the file, whose checksums do not fit any more" },
    Phrase { ErrorNumber::NoUnicodeTranslation, "text that cannot be converted" },
    Phrase { ErrorNumber::IoDevice, "input or output error" },
    Phrase { ErrorNumber::TooManyLinks, "the file has a second name, by a hard link" },
    Phrase { ErrorNumber::NotFound, "not found" },
    Phrase { ErrorNumber::Cancelled, "cancelled" },
    Phrase { ErrorNumber::FileCorrupt, "the file is damaged" },
    Phrase { ErrorNumber::Timeout, "timed out" },
};

} // namespace

ErrorNumber ErrorFromErrno(int systemError, bool folderIsMissing)
{
    if (systemError == ENOENT)
        return folderIsMissing ? ErrorNumber::PathNotFound : ErrorNumber::FileNotFound;
    const auto found = std::find_if(kSystemErrors.begin(), kSystemErrors.end(),
        [systemError](const SystemError& entry) { return entry.code == systemError; });
    return found == kSystemErrors.end() ? ErrorNumber::GeneralFailure : found->number;
}

const char* ErrorPhrase(ErrorNumber error)
{
    const auto found = std::find_if(kPhrases.begin(), kPhrases.end(),
        [error](const Phrase& phrase) { return phrase.number == error; });
    return found == kPhrases.end() ? "general failure" : found->text;
}

} // namespace Quillory
