// SPDX-License-Identifier: MIT
#include "res/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

// Resources of a static library are not found unless somebody asks for them by name.
static void LoadLanguageResources()
{
    Q_INIT_RESOURCE(languages);
}

namespace Quillory {

using namespace Qt::StringLiterals;

namespace {

const QString kLanguages = u":/languages"_s;

} // namespace

void LoadLanguage(QTranslator& translator, const QLocale& locale)
{
    LoadLanguageResources();
    if (!translator.load(locale, u"quillory"_s, u"_"_s, kLanguages))
        static_cast<void>(translator.load(u"quillory_en"_s, kLanguages));
}

void SpeakLanguage(const QLocale& locale)
{
    QCoreApplication* application = QCoreApplication::instance();
    auto* own = new QTranslator(application);
    LoadLanguage(*own, locale);
    QCoreApplication::installTranslator(own);
    // The toolkit speaks English by itself, and knows no Swedish.
    const QString language = own->language();
    auto* toolkit = new QTranslator(application);
    if (language != u"en"
        && (toolkit->load(
                u"qtbase_"_s + language, QLibraryInfo::path(QLibraryInfo::TranslationsPath))
            || toolkit->load(u"toolkit_"_s + language, kLanguages)))
        QCoreApplication::installTranslator(toolkit);
}

} // namespace Quillory
