// SPDX-License-Identifier: MIT
#pragma once

#include "store/inventory_list.h"
#include "transfer/list_file.h"
#include "transfer/text_export.h"
#include "transfer/text_import.h"
#include "values/value_text.h"

#include <QCoreApplication>

#include <functional>
#include <vector>

namespace Quillory {

class DataFileSession;
class PageStack;

/// Moves the rows of a list out to text files and in from them: asks for the file, shows how far it
/// is, and tells what came of it.
class ListTransfer
{
    Q_DECLARE_TR_FUNCTIONS(ListTransfer)

public:
    /// All three outlive the object, which outlives every answer.
    ListTransfer(DataFileSession& session, PageStack& pages, const ValueContext& context);

    /// `then` is called when the rows that came are to be shown; not if it is called off before.
    void Import(ObjectId list, const std::function<void()>& then);
    void Export(ObjectId list);

private:
    DataFileSession& m_session;
    PageStack& m_pages;
    const ValueContext& m_context;

    void AskForOrder(ObjectId list, const QString& path, const std::function<void()>& then);
    [[nodiscard]] ImportOutcome ImportFrom(
        const ListFile& source, const QString& title, const std::vector<PropertyId>& order);
    void TellImport(const ImportOutcome& outcome, const std::function<void()>& then);
    void ExportTo(ObjectId list, const QString& path);
    void TellExport(const ExportOutcome& outcome);
};

} // namespace Quillory
