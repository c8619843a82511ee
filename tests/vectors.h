// SPDX-License-Identifier: MIT
#pragma once

#include "tests/file_bytes.h"

#include <QJsonDocument>
#include <QTest>

#include <cstdio>

namespace Quillory {

/// A line of a file of vectors: its fields by the names that stand in the file's first line.
class Vector
{
public:
    Vector(const QByteArray& names, const QByteArray& line)
        : m_names(names.split('\t'))
        , m_fields(line.split('\t'))
    { }
    /// A field that the line ends before is empty. What cannot be seen is written as in JSON.
    QString operator[](const char* name) const
    {
        const QByteArray field = m_fields.value(m_names.indexOf(name));
        return QJsonDocument::fromJson("[\"" + field + "\"]")[0].toString(
            QStringLiteral("no JSON"));
    }

private:
    QByteArrayList m_names;
    QByteArrayList m_fields;
};

/// Tests that `actual` makes of each line of vectors/NAME.tsv what the line has as "result".
template <typename Actual> void CheckVectors(const QString& name, const Actual& actual)
{
    const QString path = QStringLiteral(QUILLORY_TEST_FOLDER "/vectors/%1.tsv").arg(name);
    const QByteArrayList lines = FileBytes(path).split('\n');
    QString failures;
    QVERIFY2(lines.size() > 1, qPrintable(path));
    for (qsizetype i = 1; i < lines.size(); ++i) {
        const Vector vector(lines[0], lines[i]);
        if (lines[i].isEmpty() || lines[i].startsWith('#') || actual(vector) == vector["result"])
            continue;
        failures
            += QStringLiteral("%1.tsv:%2: %3: is “%4”\n")
                   .arg(name, QString::number(i + 1), QString::fromUtf8(lines[i]), actual(vector));
    }
    // A failure's own text is cut where it is long.
    std::fputs(qPrintable(failures), stderr);
    QVERIFY2(failures.isEmpty(), "There are other results, see above.");
}

} // namespace Quillory
