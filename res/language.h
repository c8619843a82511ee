// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>
#include <QTranslator>

namespace Quillory {

/// Loads the program's texts in the first of the languages that the person of `locale` reads and
/// that there is, else English, which has plurals of its own.
void LoadLanguage(QTranslator& translator, const QLocale& locale = QLocale::system());

/// Gives the application that runs these texts, and the toolkit's in the same language.
void SpeakLanguage(const QLocale& locale = QLocale::system());

} // namespace Quillory
