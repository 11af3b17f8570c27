// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <memory>

namespace {
const QString English = QStringLiteral("en");

QString &installedCode()
{
    static QString code = English;
    return code;
}

bool isKnown(const QString &code)
{
    const auto &all = Language::choices();
    return !code.isEmpty() &&
           std::any_of(all.begin(), all.end(), [&code](const auto &each) { return each.code == code; });
}
} // namespace

const QVector<Language::Choice> &Language::choices()
{
    static const QVector<Choice> all{
        {{}, {}}, {English, QStringLiteral("English")}, {QStringLiteral("de"), QStringLiteral("Deutsch")}};
    return all;
}

QString Language::resolve(const QString &choice)
{
    if (isKnown(choice))
        return choice;
    for (const QString &wanted : QLocale::system().uiLanguages()) {
        const QString code = QLocale(wanted).name().section(QLatin1Char('_'), 0, 0);
        if (isKnown(code))
            return code;
    }
    return English;
}

void Language::install(const QString &code)
{
    // They belong to the application, which takes them off when they or it go.
    for (QTranslator *old : QCoreApplication::instance()->findChildren<QTranslator *>(
             QStringLiteral("language"), Qt::FindDirectChildrenOnly))
        delete old;
    installedCode() = code;
    if (code == English)
        return;
    const auto load = [](const QString &name, const QString &folder) {
        auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
        translator->setObjectName(QStringLiteral("language"));
        if (translator->load(name, folder))
            QCoreApplication::installTranslator(translator.release());
    };
    // The toolkit's own may not be installed; then its buttons stay English.
    load(QStringLiteral("qtbase_") + code, QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    load(QStringLiteral("korvane_") + code, QStringLiteral(":/translations"));
}

QString Language::installed()
{
    return installedCode();
}

QLocale Language::locale()
{
    const QLocale own(installed());
    return QLocale().language() == own.language() ? QLocale() : own;
}
