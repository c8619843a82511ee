// SPDX-License-Identifier: MIT
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

namespace Quillory {

/// Tells that something may have happened to the data file: to its name, its content or its folder,
/// or while the program was not the one in use, for not every file system tells. The program's own
/// changes are among it.
class DataFileWatch : public QObject
{
    Q_OBJECT

public:
    explicit DataFileWatch(QObject* parent = nullptr);

    /// From now on this file, which need not be there, and no other.
    void Watch(const QString& path);
    /// Stirred() comes once more after a while, for what is on its way.
    void LookAgain();

Q_SIGNALS:
    /// Shortly after the first of several changes.
    void Stirred();

private:
    QString m_path;
    QFileSystemWatcher m_watcher;
    QTimer m_timer;

    void NoteChange();
    void StartAfter(int ms);
};

} // namespace Quillory
