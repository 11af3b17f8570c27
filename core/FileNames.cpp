// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileNames.h"

#include <QCoreApplication>
#include <QRegularExpression>

namespace {
/// What stands before the first dot decides, and blanks behind it do not count.
QRegularExpressionMatch deviceIn(const QString &name)
{
    static const QRegularExpression device(
        QStringLiteral("^(con|prn|aux|nul|conin\\$|conout\\$|(?:com|lpt)[0-9\u00b9\u00b2\u00b3]) *(?=\\.|$)"),
        QRegularExpression::CaseInsensitiveOption);
    return device.match(name);
}
} // namespace

bool FileNames::isDevice(const QString &name)
{
    return deviceIn(name).hasMatch();
}

QString FileNames::portable(const QString &name)
{
    QString portable = name;
    for (QChar &each : portable) {
        if (each < QLatin1Char(' ') || QStringLiteral("<>:\"/\\|?*").contains(each))
            each = QLatin1Char('_');
    }
    while (portable.endsWith(QLatin1Char('.')) || portable.endsWith(QLatin1Char(' ')))
        portable.chop(1);
    const QRegularExpressionMatch device = deviceIn(portable);
    if (device.hasMatch() || portable.isEmpty())
        portable.insert(device.capturedEnd(1) < 0 ? 0 : device.capturedEnd(1), QLatin1Char('_'));
    return portable;
}

QString FileNames::problem(const QString &path)
{
    const QStringList names = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    for (const QString &name : names) {
        const bool isStep = name == QLatin1String(".") || name == QLatin1String("..") ||
                            (name.size() == 2 && name.endsWith(QLatin1Char(':')) && path.startsWith(name));
        if (!isStep && portable(name) != name)
            return QCoreApplication::translate(
                       "FileNames", "'%1' cannot be a name on Windows: it is that of a device, ends in a dot "
                                    "or a blank, or holds one of < > : \" \\ | ? *")
                .arg(name);
    }
    return {};
}
