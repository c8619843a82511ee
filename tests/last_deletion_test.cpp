// SPDX-License-Identifier: MIT
#include "store/last_deletion.h"
#include "tests/file_bytes.h"
#include "tests/list_fixture.h"
#include "tests/test_program.h"

#include <QStringConverter>

#include <functional>

namespace {

const QString kTea = u"Uncommonly-green-tea"_s;

} // namespace

class LastDeletionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_deletion.reset();
        m_lists = std::make_unique<ListFixture>();
        m_list = m_lists->MakeFullList(u"Pantry"_s);
        m_tea = m_lists->Add({ kTea, u"7"_s, u"top"_s, u"Checked"_s, u"1.25"_s, u"3"_s,
            u"1/2/2026"_s, u"3/4/2027"_s });
        m_lists->Add({ u"Salt"_s, u"1"_s });
        m_deletion = std::make_unique<LastDeletion>(*m_lists->catalogue);
    }

    void aRowComesBackWithEveryValue()
    {
        const QString before = Values(m_tea);
        // The second time the list is left in between.
        for (const bool isLeft : { false, true }) {
            QVERIFY(m_deletion->DeleteRow(m_list, *m_lists->rows, m_tea));
            QCOMPARE(m_lists->Cells(m_lists->rows->FillRows().rows), u"Salt"_s);
            QVERIFY(m_deletion->CanUndoIn(m_list));
            if (isLeft)
                m_lists->catalogue->CloseRows();
            const auto restored = m_deletion->Undo();
            QVERIFY(restored.has_value() && !m_deletion->CanUndo() && !m_deletion->Undo());
            m_lists->OpenList(m_list);
            m_tea = restored->row;
            QCOMPARE(Values(m_tea), before);
        }
        QCOMPARE(Contents(), u"Pantry: Salt Uncommonly-green-tea"_s);
    }

    void allRowsComeBackBesideNewOnes()
    {
        QCOMPARE(m_deletion->DeleteAllRows(m_list), ListCatalogue::EmptyOutcome::Done);
        const auto columns = m_lists->list.columns;
        m_lists->OpenList(m_list);
        QCOMPARE(m_lists->list.columns, columns);
        QVERIFY(m_lists->rows->FillRows().rows.empty());
        m_lists->Add({ u"Oats"_s, u"2"_s });
        m_lists->Add({ u"Bread"_s, u"1"_s });
        QVERIFY(m_deletion->Undo());
        QCOMPARE(Contents(), u"Pantry: Bread Oats Salt Uncommonly-green-tea"_s);
    }

    void aListComesBackWithItsRows()
    {
        QVERIFY(m_deletion->DeleteList(m_list));
        QVERIFY(m_lists->catalogue->FillHomeList().lists.empty());
        QVERIFY(!m_deletion->CanUndoIn(m_list));
        const auto restored = m_deletion->Undo();
        QVERIFY(restored.has_value());
        QVERIFY(restored->list != m_list);
        QCOMPARE(Contents(), u"Pantry: Salt Uncommonly-green-tea"_s);
    }

    void onlyTheLatestDeletionIsUndone()
    {
        QVERIFY(m_deletion->DeleteList(m_list));
        const ObjectId second = m_lists->MakeFullList(u"Attic"_s);
        const ObjectId row = m_lists->Add({ u"Chair"_s, u"4"_s });
        QVERIFY(m_deletion->DeleteRow(second, *m_lists->rows, row));
        QVERIFY(m_deletion->Undo());
        QVERIFY(!m_deletion->Undo());
        QCOMPARE(Contents(), u"Attic: Chair"_s);
    }

    void whatIsForgottenIsGoneFromTheFile()
    {
        const auto isTeaInFile = [this] {
            const QByteArray name = QStringEncoder(QStringEncoder::Utf16BE)(kTea);
            return FileBytes(m_lists->Path()).contains(name);
        };
        const std::function<bool()> deletions[] {
            [this] { return m_deletion->DeleteRow(m_list, *m_lists->rows, m_tea); },
            [this] {
                return m_deletion->DeleteAllRows(m_list) == ListCatalogue::EmptyOutcome::Done;
            },
            [this] { return m_deletion->DeleteList(m_list); },
        };
        for (const auto& deletion : deletions) {
            init();
            QVERIFY(deletion());
            QCOMPARE(isTeaInFile(), &deletion != deletions);
            m_deletion.reset();
            m_lists->Restart();
            QVERIFY(!isTeaInFile());
        }
    }

private:
    std::unique_ptr<ListFixture> m_lists;
    std::unique_ptr<LastDeletion> m_deletion;
    ObjectId m_list = kNoObject;
    ObjectId m_tea = kNoObject;

    /// The names of the rows of every list, as they are after a restart.
    QString Contents()
    {
        m_deletion.reset();
        m_lists->Restart();
        QStringList lists;
        for (const auto& entry : m_lists->catalogue->FillHomeList().lists) {
            m_lists->OpenList(entry.oid);
            lists << entry.name + u": "_s + m_lists->Cells(m_lists->rows->FillRows().rows);
        }
        m_lists->catalogue->CloseRows();
        return lists.join(u"; "_s);
    }
    QString Values(ObjectId row) const
    {
        QStringList texts;
        for (const ColumnDefinition& column : m_lists->list.columns) {
            const auto values = m_lists->rows->ReadRow(row).values;
            texts << FormatEditText(FindProperty(values, column.id), column.id, m_lists->context);
        }
        return texts.join(u'|');
    }
};

QUILLORY_TEST(QCoreApplication, LastDeletionTest)
#include "last_deletion_test.moc"
