// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace Quillory {

enum class CallKind
{
    /// Opens a file that is there.
    Open,
    Read,
    Lock,
    /// Asks about a file without opening it, or about one that is open.
    Look,
    /// Opens a file that is made by it. From here on they change what is on the medium, or when.
    Create,
    Write,
    Truncate,
    Sync,
    SyncFolder,
    Remove,
    Rename,
};

/// One call of the operating system on a file below the watched folder.
struct SystemCall
{
    CallKind kind {};
    QByteArray path;
    /// The new name; of a rename only.
    QByteArray target;
    /// What is written; null for other calls.
    const char* bytes = nullptr;
    /// Bytes to read or to write, or the size to truncate to.
    qint64 size = 0;
    qint64 offset = 0;

    /// Whether the call changes what is on the medium, or when it is.
    [[nodiscard]] bool IsMutating() const { return kind >= CallKind::Create; }
};

/// What happens in place of a call.
struct CallFault
{
    /// An errno value; 0 lets the call succeed with fewer bytes.
    int errorNumber = 0;
    /// So many bytes of a write are written all the same.
    qint64 sizeDone = 0;
    /// The whole call is made, and told to have failed.
    bool isDone = false;
};

/// Stands between the program, SQLite included, and the operating system.
class CallWatcher
{
public:
    CallWatcher() = default;
    virtual ~CallWatcher() = default;
    CallWatcher(const CallWatcher&) = delete;
    CallWatcher& operator=(const CallWatcher&) = delete;

    /// Asked before each call. Calls that it makes itself are not watched.
    [[nodiscard]] virtual std::optional<CallFault> BeforeCall(const SystemCall& /*call*/)
    {
        return std::nullopt;
    }
    /// Told of each call that succeeded, `size` being what it really read or wrote.
    virtual void AfterCall(const SystemCall& /*call*/) { }
};

/// While it lives, calls on files in `folder` and below go by the watcher. One at a time; files
/// that were open before are not watched.
class WatchScope
{
public:
    WatchScope(const QByteArray& folder, CallWatcher& watcher);
    ~WatchScope();
    WatchScope(const WatchScope&) = delete;
    WatchScope& operator=(const WatchScope&) = delete;
};

} // namespace Quillory
