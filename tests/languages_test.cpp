// SPDX-License-Identifier: MIT
#include "res/command_table.h"
#include "res/language.h"
#include "res/string_table.h"
#include "tests/cut_controls.h"
#include "tests/every_page.h"
#include "tests/person.h"
#include "tests/table.h"
#include "tests/test_program.h"
#include "widgets/app_style.h"
#include "widgets/window_style.h"

#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QXmlStreamReader>

#include <algorithm>

namespace {

const QStringList kCodes { u"de"_s, u"en"_s, u"es"_s, u"fr"_s, u"it"_s, u"ja"_s, u"pl"_s, u"sv"_s };

/// A language whose texts are two fifths longer, with marks above their letters.
class LongTexts : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* context, const char* source,
        const char* /*disambiguation*/, int /*n*/) const override
    {
        const QByteArrayView owner(context);
        const bool isToolkits = owner.startsWith('Q') && !owner.startsWith("Quillory");
        QString text = QString::fromUtf8(source);
        // Names of files stay what they are.
        if (isToolkits || text.endsWith(u".htm"))
            return {};
        const qsizetype more = (text.size() * 2 + 4) / 5;
        text.replace(u'a', u'ä').replace(u'e', u'é').replace(u'o', u'ô');
        for (qsizetype i = 1; i <= more; ++i)
            text += i % 8 == 0 ? u' ' : u'l';
        return text;
    }
};

struct Message
{
    QString source;
    QStringList translations;
    bool isFinished = true;
};

std::vector<Message> MessagesOf(const QString& code)
{
    QFile file(QStringLiteral(QUILLORY_TEST_FOLDER "/../res/languages/quillory_%1.ts").arg(code));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QXmlStreamReader xml(&file);
    std::vector<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"source") {
            messages.push_back({ xml.readElementText(), {}, true });
        } else if (xml.name() == u"translation") {
            messages.back().isFinished = !xml.attributes().hasAttribute(QLatin1StringView("type"));
            messages.back().translations
                << xml.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    return messages;
}

/// What a text has places for.
QStringList PlacesIn(const QString& text)
{
    static const QRegularExpression place(u"%[1-9ds]"_s);
    QStringList places;
    for (auto found = place.globalMatch(text); found.hasNext();)
        places << found.next().captured();
    places.sort();
    places.removeDuplicates();
    return places;
}

QStringList AnchorsOf(const QString& help)
{
    static const QRegularExpression anchor(u"(name|href|src)=\"[^\"]*\""_s);
    QFile file(u":/help/"_s + help);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QString text = QString::fromUtf8(file.readAll());
    QStringList anchors;
    for (auto found = anchor.globalMatch(text); found.hasNext();)
        anchors << found.next().captured();
    return anchors;
}

/// Speaks a language for as long as it lives.
class Spoken
{
public:
    explicit Spoken(const QString& code)
        : m_translator(
            code.isEmpty() ? std::make_unique<LongTexts>() : std::make_unique<QTranslator>())
    {
        if (!code.isEmpty())
            LoadLanguage(*m_translator, QLocale(code));
        QCoreApplication::installTranslator(m_translator.get());
    }
    [[nodiscard]] const QTranslator& operator*() const { return *m_translator; }

private:
    std::unique_ptr<QTranslator> m_translator;
};

} // namespace

class LanguagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTextIsThere_data()
    {
        const Table<QString> add;
        for (const QString& code : kCodes)
            add(qPrintable(code), code);
    }
    void everyTextIsThere()
    {
        const auto [code] = Table<QString>::Row();
        const auto messages = MessagesOf(code);
        QVERIFY(!messages.empty());
        for (const Message& message : messages) {
            QVERIFY2(message.isFinished, qPrintable(message.source));
            for (const QString& translation : message.translations)
                QCOMPARE(PlacesIn(translation), PlacesIn(message.source));
        }
        const Spoken language(code);
        QCOMPARE((*language).language(), code);
        const QString help = HelpPage::tr("Quillory.htm");
        const HelpPage page(QString {});
        QCOMPARE(AnchorsOf(help), AnchorsOf(u"Quillory.htm"_s));
    }

    void everyPageFits_data()
    {
        const Table<QString> add;
        add("longer", {});
        for (const QString& code : kCodes)
            add(qPrintable(code), code);
    }
    void everyPageFits()
    {
        const auto [code] = Table<QString>::Row();
        QApplication::setStyle(new AppStyle);
        const Spoken language(code);
        QStringList cut;
        for (const PageCase& page : kPages) {
            Subject subject;
            ApplyWindowStyle(&subject.stack);
            Show(subject, page);
            subject.page->OfferUndo(u"x"_s, {});
            // Alt and its first letter press a key: each has its own.
            const auto* left = subject.page->findChild<QAbstractButton*>(u"leftKey"_s);
            const auto* right = subject.page->findChild<QAbstractButton*>(u"rightKey"_s);
            QVERIFY(left == nullptr || right == nullptr
                || left->text().front() != right->text().front());
            for (const QSize size : { QSize(360, 640), QSize(240, 320) }) {
                subject.stack.resize(size);
                QStringList here;
                const auto isWhole = [&] {
                    here = CutControls(*subject.page);
                    if (auto* title = subject.page->findChild<QLabel*>(u"title"_s);
                        title != nullptr && title->isVisible() && IsCutTitle(*title))
                        here << title->text();
                    return here.isEmpty();
                };
                (void)QTest::qWaitFor(isWhole, 100);
                if (subject.stack.size() != size)
                    here << u"the window"_s;
                for (const QString& control : here)
                    QDebug(&cut.emplace_back()) << page.name << size << control;
            }
        }
        QWidget window;
        ApplyWindowStyle(&window);
        for (const MenuId id : { MenuId::Main, MenuId::Columns, MenuId::Rows, MenuId::ListContext,
                 MenuId::RowContext, MenuId::Filters }) {
            QMenu menu(&window);
            for (const MenuEntry& entry : MenuEntries(id))
                menu.addAction(entry.Text());
            if (menu.sizeHint().width() > 240)
                cut << menu.actions().constFirst()->text();
        }
        QVERIFY2(cut.isEmpty(), qPrintable(u'\n' + cut.join(u'\n')));
    }

    void aBoxTickedInOneLanguageIsTickedInAnother()
    {
        ListFixture file { u"Pantry"_s };
        std::vector<ObjectId> rows;
        {
            const Spoken german(u"de"_s);
            file.context = ValueContext::FromEnvironment();
            for (const StringId box : { StringId::Checked, StringId::Unchecked })
                rows.push_back(file.Add({ u"Tee"_s, u"1"_s, {}, LoadString(box) }));
        }
        const Spoken japanese(u"ja"_s);
        file.context = ValueContext::FromEnvironment();
        QStringList texts;
        for (const ObjectId row : rows) {
            const PropertyId box = file.Column(Bio);
            const Record record = file.rows->ReadRow(row);
            const auto value = std::ranges::find(record.values, box, &PropertyValue::id);
            texts << FormatEditText(std::to_address(value), box, file.context);
        }
        QCOMPARE(texts,
            (QStringList { LoadString(StringId::Checked), LoadString(StringId::Unchecked) }));
        QVERIFY(texts[0] != texts[1] && texts[0] != u"Checked");
    }
};

QUILLORY_TEST(QApplication, LanguagesTest)
#include "languages_test.moc"
