#include "app/file_dialog.h"
#include "app/home_list.h"
#include "app/main_frame.h"
#include "app/transfer_progress.h"
#include "res/string_table.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"

namespace Quillory {

using namespace Qt::StringLiterals;

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
    const ListFile target = CreateListFile(path, m_settings.DbPath);
    Database* rows = m_volume.OpenDatabase(ListCatalogue::kRowsType);
    if (target.file != nullptr && rows != nullptr) {
        const qint64 total = m_volume.RecordCount(ListCatalogue::kRowsType);
        TransferProgress progress(this, list.Name);
        // The file tells of its own failure by what is missing in it; there is no message.
        static_cast<void>(ExportRows(*rows, list, m_context, *target.file,
            [&progress, total](qint64 done) { return progress.Show(done, total); }));
    }
    m_catalogue.CloseRows();
}

} // namespace Quillory
