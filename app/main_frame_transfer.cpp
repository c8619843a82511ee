// SPDX-License-Identifier: MIT
#include "app/file_dialog.h"
#include "app/home_list.h"
#include "app/main_frame.h"
#include "app/transfer_progress.h"
#include "listdef/import_order_page.h"
#include "res/string_table.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"
#include "widgets/message_box.h"

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

void MainFrame::ImportList()
{
    ChooseFile(this, FileUse::Read, { LoadText(Text::TextFiles), u"txt"_s, {} },
        [this](const QString& path) {
            if (!path.isEmpty())
                ChooseImportOrder(path);
        });
}

void MainFrame::ChooseImportOrder(const QString& path)
{
    const ObjectId oid = m_home->SelectedList();
    m_list = {};
    if (oid == kNoObject || !m_catalogue.OpenList(oid, m_list))
        return;
    auto* page = new ImportOrderPage(m_list.columns);
    m_pages->Push(page, [this, page, path](PageResult result) {
        if (result == PageResult::Ok)
            ImportFrom(path, page->Order());
        else
            m_catalogue.CloseRows();
    });
}

void MainFrame::ImportFrom(const QString& path, const std::vector<PropertyId>& order)
{
    ImportOutcome outcome { ImportResult::Failed };
    const ListFile source = IsPlainFile(path) ? OpenListFile(path, m_settings.DbPath) : ListFile();
    if (source.file != nullptr) {
        TransferProgress progress(this, m_list.Name);
        outcome = ImportRows(
            m_volume, order, m_context, *source.file, [&progress](const ImportProgress& done) {
                // Half of the work is to read and sort, the other half to store.
                if (done.rows == 0)
                    return progress.Show(done.bytesRead, 2 * done.bytesTotal);
                return progress.Show(done.lines + done.rows, 2 * done.lines);
            });
    }
    // The import tells of it itself.
    m_writeFailure = ErrorNumber::None;
    EndImport(outcome);
}

void MainFrame::EndImport(const ImportOutcome& outcome)
{
    const ObjectId oid = m_home->SelectedList();
    const auto showRows = [this, oid](MessageAnswer = MessageAnswer::Ok) {
        m_catalogue.CloseRows();
        OpenList(oid);
    };
    // Rows for which there was no room are missing as those are that could not be read.
    if (outcome.result == ImportResult::Failed || outcome.writeError != ErrorNumber::None)
        ShowMessage(this, LoadString(StringId::ImportErrors), MessageIcon::Stop, MessageButtons::Ok,
            showRows);
    else if (outcome.result == ImportResult::Cancelled)
        ShowMessage(this,
            tr("The import was cancelled. %n row(s) are in the list already.", nullptr,
                static_cast<int>(outcome.rows)),
            MessageIcon::Information, MessageButtons::Ok, showRows);
    else
        showRows();
}

void MainFrame::ExportList()
{
    ChooseFile(this, FileUse::Write, { LoadText(Text::TextFiles), u"txt"_s, {} },
        [this](const QString& path) {
            if (!path.isEmpty())
                ExportTo(path);
        });
}

void MainFrame::ExportTo(const QString& path)
{
    InventoryList list;
    if (!m_catalogue.OpenList(m_home->SelectedList(), list))
        return;
    const ListFile target
        = IsPlainFile(path) ? CreateListFile(path, m_settings.DbPath) : ListFile();
    Database* rows = m_volume.OpenDatabase(ListCatalogue::kRowsType);
    if (target.file != nullptr && rows != nullptr) {
        const qint64 total = m_volume.RecordCount(ListCatalogue::kRowsType);
        TransferProgress progress(this, list.Name);
        const ExportOutcome outcome = ExportRows(*rows, list, m_context, *target.file,
            [&progress, total](qint64 done) { return progress.Show(done, total); });
        // There is no message: what could not be written or was cancelled leaves what was there.
        if (!outcome.isCancelled)
            static_cast<void>(target.Commit());
    }
    m_catalogue.CloseRows();
}

} // namespace Quillory
