// SPDX-License-Identifier: MIT
#include "app/data_file_watch.h"

#include <QFileInfo>
#include <QGuiApplication>

namespace Quillory {

namespace {

/// A commit of the program's own makes several changes.
constexpr int kGatherMs = 200;
/// Between two looks at a file that comes bit by bit.
constexpr int kLookAgainMs = 1000;

} // namespace

DataFileWatch::DataFileWatch(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &DataFileWatch::Stirred);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &DataFileWatch::NoteChange);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &DataFileWatch::NoteChange);
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, &DataFileWatch::NoteChange);
}

void DataFileWatch::Watch(const QString& path)
{
    const QStringList before = m_watcher.files() + m_watcher.directories();
    if (!before.isEmpty())
        m_watcher.removePaths(before);
    m_path = path;
    m_watcher.addPath(QFileInfo(path).absolutePath());
    m_watcher.addPath(path);
}

void DataFileWatch::LookAgain()
{
    StartAfter(kLookAgainMs);
}

void DataFileWatch::NoteChange()
{
    // A file that was replaced is watched no more; one that came back is.
    if (!m_path.isEmpty() && !m_watcher.files().contains(m_path))
        m_watcher.addPath(m_path);
    StartAfter(kGatherMs);
}

void DataFileWatch::StartAfter(int ms)
{
    if (!m_timer.isActive())
        m_timer.start(ms);
}

} // namespace Quillory
