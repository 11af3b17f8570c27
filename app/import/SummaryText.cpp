// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SummaryText.h"

#include "Language.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
/// Names beyond these are only counted.
constexpr size_t NamesShown = 5;

QString said(const char *text)
{
    return QCoreApplication::translate("SummaryText", text);
}

QString count(qint64 number)
{
    return Language::locale().toString(number);
}

QString lengthText(float length)
{
    const bool isLong = length >= 1000.0f; // four digits tell enough
    return Language::locale().toString(double(length), isLong ? 'f' : 'g', isLong ? 0 : 4);
}

QString row(const char *label, const QString &value)
{
    return QStringLiteral("<tr><td style=\"padding-right: 12px\">%1</td><td>%2</td></tr>")
        .arg(said(label), value);
}

QString described(const SceneSummary::Clip &clip)
{
    const QString length = secondsText(clip.seconds);
    return clip.name.isEmpty() ? length : QStringLiteral("%1 (%2)").arg(clip.name.toHtmlEscaped(), length);
}

QString described(const SceneSummary::Texture &texture)
{
    const QString name = texture.name.toHtmlEscaped();
    if (texture.isEmbedded)
        return said(QT_TRANSLATE_NOOP("SummaryText", "%1 (in the model)")).arg(name);
    return texture.file.isEmpty() ? QStringLiteral("<b>%1</b>")
                                        .arg(said(QT_TRANSLATE_NOOP("SummaryText", "%1 (missing)")).arg(name))
                                  : name;
}

template <typename Item>
QString counted(const std::vector<Item> &items)
{
    if (items.empty())
        return count(0);
    QStringList names;
    for (size_t i = 0; i < std::min(items.size(), NamesShown); ++i)
        names += described(items[i]);
    if (items.size() > NamesShown)
        names += said(QT_TRANSLATE_NOOP("SummaryText", "and %1 more"))
                     .arg(count(qint64(items.size() - NamesShown)));
    return QStringLiteral("%1: %2").arg(count(qint64(items.size())), names.join(QStringLiteral(", ")));
}
} // namespace

QString sizeText(const QVector3D &size)
{
    QStringList sides;
    for (const float side : {size.x(), size.y(), size.z()})
        sides += lengthText(side);
    return sides.join(QString::fromUtf8(" × "));
}

QString secondsText(double seconds)
{
    return said(QT_TRANSLATE_NOOP("SummaryText", "%1 s")).arg(Language::locale().toString(seconds, 'f', 2));
}

QString summaryText(const SceneSummary &summary)
{
    QString text = QStringLiteral("<table cellspacing=\"0\">");
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Objects"), count(summary.objects));
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Bones"), count(summary.bones));
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Vertices"), count(summary.vertices));
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Triangles"), count(summary.triangles));
    text +=
        row(QT_TRANSLATE_NOOP("SummaryText", "Size"),
            said(QT_TRANSLATE_NOOP("SummaryText", "%1 high, %2 in all"))
                .arg(Language::locale().toString(double(summary.size.z()), 'g', 4), sizeText(summary.size)));
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Animations"), counted(summary.clips));
    text += row(QT_TRANSLATE_NOOP("SummaryText", "Textures"), counted(summary.textures));
    text += QStringLiteral("</table>");
    if (!summary.losses.isEmpty()) {
        text += QStringLiteral("<p><b>%1</b></p><ul style=\"-qt-list-indent: 0; margin-left: 14px\">")
                    .arg(said(QT_TRANSLATE_NOOP("SummaryText", "What cannot come along")));
        for (const QString &loss : summary.losses)
            text += QStringLiteral("<li>%1</li>").arg(loss.toHtmlEscaped());
        text += QStringLiteral("</ul>");
    }
    return text;
}
