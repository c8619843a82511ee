// SPDX-License-Identifier: MIT
#include "cli/due_rows.h"
#include "cli/expiry_calendar.h"
#include "cli/reminder.h"
#include "store/column_scan.h"
#include "store/user_folders.h"
#include "values/column_type.h"
#include "values/file_date.h"
#include "values/value_text.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusError>
#include <QProcess>

#include <array>
#include <memory>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// A reminder that nobody answered goes away before the next one comes.
constexpr int kMostReminderMs = 12 * 60 * 60 * 1000;

QString MemoryPath()
{
    return UserFolder("XDG_STATE_HOME", u".local/state"_s) + u"/quillory/reminded"_s;
}

QDate DayOf(FileTime time)
{
    return FileTimeToDate(time).value_or(QDate());
}

void PrintDue(const CommandRun& run, const DueRow& row, JsonArrayWriter& json)
{
    const QString state = StateName(row.state);
    if (json.IsWanted()) {
        const std::pair<QString, QJsonValue> detail = row.expiry
            ? std::pair(u"date"_s, QJsonValue(DayOf(*row.expiry).toString(Qt::ISODate)))
            : std::pair(u"count"_s, QJsonValue(row.count));
        return json.Add(
            { { u"list"_s, row.list }, { u"row"_s, row.row }, { u"state"_s, state }, detail });
    }
    const PropertyValue expiry { PropExpiryDate, 0, row.expiry.value_or(FileTime {}) };
    run.output.WriteFields({ row.list, row.row,
        row.state == DueState::Expiring
            ? FormatCellText(&expiry, PropExpiryDate, run.environment.context)
            : state });
}

/// Adds every row of the open list that has an expiry date, up to the last day if there is one.
void AddExpiries(const CommandRun& run, CommandData& data, ObjectId list, std::optional<QDate> last,
    ExpiryCalendar& calendar)
{
    constexpr std::array kColumns { PropName, PropExpiryDate };
    PropertyValue name { PropName, 0, {} };
    FailIfRowsAreMissing(ScanPastDamage(
        data.Rows(), kColumns, nullptr, run.environment.context, [&](const ScannedRecord& record) {
            record.Read(0, name);
            const auto* text = std::get_if<QString>(&name.value);
            const auto day = FileTimeToDate({ static_cast<quint64>(record.Integer(1)) });
            if (record.IsMissing(1) || !day || (last && *day > *last))
                return true;
            run.found = true;
            calendar.Add(u"%1.%2@quillory.org"_s.arg(static_cast<quint32>(list))
                             .arg(static_cast<quint32>(record.Oid())),
                data.list.Name, text == nullptr ? QString() : *text, *day);
            return true;
        }));
}

void WriteCalendar(const CommandRun& run, std::optional<QDate> last)
{
    const LocalTime now = run.environment.context.clock();
    ExpiryCalendar calendar(QDateTime(now.date, now.time));
    const auto data = run.OpenForReading();
    run.VisitLists(
        *data,
        [&](const ListCatalogue::HomeListEntry& entry) {
            AddExpiries(run, *data, entry.oid, last, calendar);
        },
        [&] { run.output.WriteRaw(calendar.Text()); });
}

/// Starts the window, or has the one that is open show the list.
void OpenWindow(const CommandRun& run, const ReminderAnswer& answer)
{
    QStringList arguments;
    if (run.parser.isSet(u"data"_s))
        arguments << u"--data"_s << run.DataFile();
    // A list may have the name of a command.
    arguments << u"--"_s << answer.list;
    if (!answer.activationToken.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", answer.activationToken.toUtf8());
    QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments);
}

void Notify(const CommandRun& run, const QList<ReminderRow>& due)
{
    const QDate today = run.environment.context.clock().date;
    const ReminderMemory memory(MemoryPath());
    if (memory.WasToldOn(today))
        return;
    const auto store = [&](std::optional<QDate> toldOn) {
        if (!memory.Store(due, toldOn))
            Complain(run.environment.errors,
                u"what you were reminded of cannot be stored in %1"_s.arg(MemoryPath()));
    };
    const QList<ReminderRow> news = memory.NewsIn(due);
    if (news.isEmpty())
        return store({});
    int count = 0;
    std::unique_ptr<QCoreApplication> application;
    if (QCoreApplication::instance() == nullptr)
        application = std::make_unique<QCoreApplication>(count, nullptr);
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        Fail(u"no notification can be shown: %1"_s.arg(bus.lastError().message()));
    const ReminderAnswer answer = Remind(bus, news, kMostReminderMs, [&] { store(today); });
    if (!answer.failure.isEmpty())
        Fail(u"no notification can be shown: %1"_s.arg(answer.failure));
    if (!answer.list.isEmpty())
        OpenWindow(run, answer);
}

} // namespace

void RunDue(const CommandRun& run)
{
    constexpr qint32 kMostDays = 36'525;
    const auto isSet = [&run](const QString& option) { return run.parser.isSet(option); };
    if (isSet(u"json"_s) + isSet(u"ics"_s) + isSet(u"notify"_s) > 1)
        FailUsage(u"only one of --ics, --json and --notify can be given"_s);
    const qint32 days = isSet(u"within"_s) ? ReadInteger(run.parser, u"within"_s, 0, kMostDays) : 0;
    const QDate last = run.environment.context.clock().date.addDays(days);
    if (isSet(u"ics"_s))
        return WriteCalendar(run, isSet(u"within"_s) ? std::optional(last) : std::nullopt);
    const bool isReminder = isSet(u"notify"_s);
    QList<ReminderRow> due;
    {
        // Closed again before anybody is waited for.
        const auto data = run.OpenForReading();
        JsonArrayWriter json(run.output, run.IsJson());
        run.VisitLists(
            *data,
            [&](const ListCatalogue::HomeListEntry&) {
                VisitDueRows(run, *data, last, [&](const DueRow& row) {
                    run.found = true;
                    if (isReminder)
                        due << ReminderRow { row.list, row.row, StateName(row.state) };
                    else
                        PrintDue(run, row, json);
                });
            },
            [&json] { json.End(); });
    }
    if (isReminder)
        Notify(run, due);
}

} // namespace Quillory
