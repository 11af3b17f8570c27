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

QString row(const char *label, const QString &value)
{
    return QStringLiteral("<tr><td style=\"padding-right: 12px\">%1</td><td>%2</td></tr>")
        .arg(said(label), value);
}

/// The names that `describe` gives, as a text that is safe within others.
template <typename Item, typename Describe>
QString listed(const std::vector<Item> &items, Describe describe)
{
    QStringList names;
    for (size_t i = 0; i < std::min(items.size(), NamesShown); ++i)
        names += describe(items[i]).toHtmlEscaped();
    if (items.size() > NamesShown)
        names += said(QT_TRANSLATE_NOOP("SummaryText", "and %1 more"))
                     .arg(count(qint64(items.size() - NamesShown)));
    return names.join(QStringLiteral(", "));
}

QString described(const SceneSummary::Clip &clip)
{
    return clip.name.isEmpty() ? secondsText(clip.seconds)
                               : QStringLiteral("%1 (%2)").arg(clip.name, secondsText(clip.seconds));
}

QString described(const SceneSummary::Texture &texture)
{
    if (texture.isEmbedded)
        return said(QT_TRANSLATE_NOOP("SummaryText", "%1 (in the model)")).arg(texture.name);
    return texture.file.isEmpty() ? said(QT_TRANSLATE_NOOP("SummaryText", "%1 (missing)")).arg(texture.name)
                                  : texture.name;
}

template <typename Item>
QString counted(const std::vector<Item> &items)
{
    const QString names = listed(items, [](const Item &item) { return described(item); });
    return items.empty() ? count(0) : QStringLiteral("%1: %2").arg(count(qint64(items.size())), names);
}
} // namespace

QString sizeText(const QVector3D &size)
{
    QStringList sides;
    for (const float side : {size.x(), size.y(), size.z()})
        sides += Language::locale().toString(double(side), 'g', side < 1000.0f ? 4 : 7);
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
