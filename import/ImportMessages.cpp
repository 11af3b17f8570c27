// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportMessages.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

void ImportMessages::foldWarnings()
{
    static const QRegularExpression number(QStringLiteral("\\b\\d+\\b"));
    struct Folded
    {
        int first; ///< its line
        int count;
    };
    QHash<QString, Folded> known;
    QVector<ImportMessage> kept;
    for (const ImportMessage &line : qAsConst(lines)) {
        if (line.severity == LogSeverity::Warning) {
            const QString sentence = QString(line.text).remove(number);
            const auto found = known.find(sentence);
            if (found != known.end()) {
                ++found->count;
                continue;
            }
            known.insert(sentence, {kept.size(), 1});
        }
        kept.append(line);
    }
    for (const Folded &folded : qAsConst(known)) {
        QString &text = kept[folded.first].text;
        if (folded.count > 1)
            text = QCoreApplication::translate("Import", "%1 (and %2 more like this)")
                       .arg(text, QString::number(folded.count - 1));
    }
    lines = kept;
}
