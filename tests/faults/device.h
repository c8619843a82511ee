// SPDX-License-Identifier: MIT
#pragma once

#include "merge/file_merge.h"
#include "store/list_catalogue.h"
#include "store/row_store.h"
#include "values/value_text.h"

#include <QStringList>

#include <functional>
#include <map>
#include <set>

namespace Quillory {

/// What was done to the lists of a household, on whichever device: each text that is written is
/// written once, so that it can be told what became of it.
struct Deeds
{
    /// Texts that were written and that nobody who saw them has replaced or deleted.
    std::set<QString> standing;
    /// Texts that a merge said to have decided against.
    std::set<QString> told;
    /// Of rows by their marks: the counts of all devices together, and what else was done.
    std::map<QString, qint64> counts;
    std::set<QString> deletedRows;
    std::set<QString> changedRows;
    std::set<QString> copiedRows;
    /// A merge had no base, or not the latest one.
    bool wasGuessed = false;
    QStringList trace;
};

/// The contents of a file by all that devices agree on: lists and rows by what tells them apart.
struct DeviceContents
{
    FileVersion version;
    QByteArray dump;
    /// By their marks; a mark is in the dump as often as the row.
    std::multimap<QString, std::pair<Origin, qint32>> rows;
};
[[nodiscard]] DeviceContents ReadDevice(const QString& path);

/// A device: its data file, its copies, and what other devices have sent to it.
class Device
{
public:
    /// For copies: Short where each is as large as all together may be for older ones to be kept.
    enum class Room
    {
        Enough,
        Short,
    };
    /// `deeds` outlives the device.
    Device(QString folder, Room room, Deeds& deeds);

    [[nodiscard]] QString Path() const { return m_folder + QStringLiteral("/data.idb"); }
    /// Where the file of another device lies once it was sent.
    [[nodiscard]] QString Inbox(int device) const;
    void SetClock(const QDateTime& now) { m_now = now; }

    using Draw = std::function<size_t(size_t limit)>;
    /// A run of a few random changes; `meanwhile` is called after each, the file being in use.
    void Run(const Draw& draw, const std::function<void()>& meanwhile);
    /// Merges the file at `other`, this device's own being at rest. What is wrong with the outcome,
    /// empty if nothing is.
    [[nodiscard]] QString Merge(const QString& other);
    /// A change, amid which another device's file takes the place of the own one; the two are
    /// brought together.
    [[nodiscard]] QString RunAndBeReplaced(const Draw& draw, const QByteArray& bytes);

private:
    QString m_folder;
    Room m_room;
    Deeds& m_deeds;
    QDateTime m_now;
    DataVolume m_data;
    ListCatalogue m_catalogue;
    InventoryList m_list;
    ValueContext m_context;

    void Open();
    void Close();
    void Change(const Draw& draw);
    void ChangeLists(size_t what, const Draw& draw);
    void ChangeRows(size_t what, const Draw& draw);
    void ForgetRow(ObjectId row);
    void ForgetRows();
    QString NewText(const QString& stem);
    [[nodiscard]] QString MergeWith(Volume& theirs);
    void Note(const MergePlan& plan);
};

} // namespace Quillory
