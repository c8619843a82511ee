// SPDX-License-Identifier: MIT
#include "app/list_transfer.h"

#include "app/data_file_session.h"
#include "app/transfer_progress.h"
#include "desktop/file_dialog.h"
#include "listdef/import_order_page.h"
#include "res/string_table.h"
#include "widgets/message_box.h"
#include "widgets/page_stack.h"

#include <QFileInfo>

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

/// To open a pipe is to wait for its other end, and the window with it. A file that is to be made
/// counts as plain.
bool IsPlainFile(const QString& path)
{
    const QFileInfo info(path);
    return info.isFile() || !info.exists();
}

} // namespace

ListTransfer::ListTransfer(DataFileSession& session, PageStack& pages, const ValueContext& context)
    : m_session(session)
    , m_pages(pages)
    , m_context(context)
{ }

void ListTransfer::Import(ObjectId list, const std::function<void()>& then)
{
    ChooseFile(&m_pages, FileUse::Read, { LoadText(Text::TextFiles), u"txt"_s, {} },
        [this, list, then](const QString& path) {
            if (!path.isEmpty())
                AskForOrder(list, path, then);
        });
}

void ListTransfer::AskForOrder(
    ObjectId list, const QString& path, const std::function<void()>& then)
{
    InventoryList definition;
    if (!m_session.Catalogue().OpenList(list, definition))
        return;
    auto* page = new ImportOrderPage(definition.columns);
    m_pages.Push(page, [this, page, list, path, definition, then](PageResult result) {
        m_session.Catalogue().CloseRows();
        if (result != PageResult::Ok)
            return;
        // Another device's file may have come while the page was open.
        const bool isOpen = m_session.Catalogue().OpenListAgain(list, definition).has_value();
        const ListFile source
            = isOpen && IsPlainFile(path) ? OpenListFile(path, m_session.Path()) : ListFile();
        const ImportOutcome outcome = ImportFrom(source, definition.Name, page->Order());
        m_session.Catalogue().CloseRows();
        TellImport(outcome, then);
    });
}

ImportOutcome ListTransfer::ImportFrom(
    const ListFile& source, const QString& title, const std::vector<PropertyId>& order)
{
    ImportOutcome outcome;
    outcome.result = ImportResult::Failed;
    if (source.file != nullptr) {
        TransferProgress progress(m_pages.window(), title);
        outcome = ImportRows(m_session.Volume(), order, m_context, *source.file,
            [&progress](const ImportProgress& done) {
                // Half of the work is to read and sort, the other half to store.
                if (done.rows == 0)
                    return progress.Show(done.bytesRead, 2 * done.bytesTotal);
                return progress.Show(done.lines + done.rows, 2 * done.lines);
            });
    }
    // What came of the import tells of it.
    m_session.ForgetFailure();
    return outcome;
}

void ListTransfer::TellImport(const ImportOutcome& outcome, const std::function<void()>& then)
{
    const auto tell = [this, then](const QString& text, MessageIcon icon) {
        ShowMessage(&m_pages, text, icon, MessageButtons::Ok, [then](MessageAnswer) { then(); });
    };
    // Rows for which there was no room are missing as those are that could not be read.
    if (outcome.result == ImportResult::Failed || outcome.writeError != ErrorNumber::None)
        tell(LoadString(StringId::ImportErrors), MessageIcon::Stop);
    else if (outcome.result == ImportResult::Cancelled)
        tell(tr("The import was cancelled. %n row(s) are in the list already.", nullptr,
                 static_cast<int>(outcome.rows)),
            MessageIcon::Information);
    else if (!outcome.ambiguousDate.isEmpty())
        //: %1 is such as 10/05/2026, %2 such as dd/MM/yyyy.
        tell(tr("Dates such as %1 were read in the form %2.")
                 .arg(outcome.ambiguousDate, m_context.userLocale.shortDatePicture),
            MessageIcon::Information);
    else
        then();
}

void ListTransfer::Export(ObjectId list)
{
    ChooseFile(&m_pages, FileUse::Write, { LoadText(Text::TextFiles), u"txt"_s, {} },
        [this, list](const QString& path) {
            if (!path.isEmpty())
                ExportTo(list, path);
        });
}

void ListTransfer::ExportTo(ObjectId list, const QString& path)
{
    InventoryList definition;
    if (!m_session.Catalogue().OpenList(list, definition))
        return;
    const ListFile target = IsPlainFile(path) ? CreateListFile(path, m_session.Path())
                                              : ListFile { nullptr, tr("It is no plain file.") };
    Database* rows = m_session.Volume().OpenDatabase(ListCatalogue::kRowsType);
    ExportOutcome outcome;
    outcome.writeFailure = target.failure;
    if (target.file != nullptr && rows != nullptr) {
        const qint64 total = m_session.Volume().RecordCount(ListCatalogue::kRowsType);
        TransferProgress progress(m_pages.window(), definition.Name);
        outcome = ExportToFile(*rows, definition, m_context, target,
            [&progress, total](qint64 done) { return progress.Show(done, total); });
    }
    m_session.Catalogue().CloseRows();
    TellExport(outcome);
}

void ListTransfer::TellExport(const ExportOutcome& outcome)
{
    if (outcome.isCancelled)
        return;
    if (!outcome.writeFailure.isEmpty())
        ShowMessage(&m_pages, tr("The file could not be written: %1").arg(outcome.writeFailure),
            MessageIcon::Stop);
    else if (outcome.readError != ErrorNumber::None)
        ShowMessage(&m_pages,
            tr("This list can be read only in part: %n row(s) are in the file. "
               "\"quillory restore\" lists copies, and what can be saved.",
                nullptr, static_cast<int>(outcome.rows)),
            MessageIcon::Exclamation);
}

} // namespace Quillory
