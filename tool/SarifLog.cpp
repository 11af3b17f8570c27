// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SarifLog.h"

#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

namespace {
QString uriOf(const QString &path)
{
    const QString relative = QDir::current().relativeFilePath(QDir::current().absoluteFilePath(path));
    const bool isBelow = QDir::isRelativePath(relative) && relative != QLatin1String("..") &&
                         !relative.startsWith(QLatin1String("../"));
    if (!isBelow)
        return QUrl::fromLocalFile(QDir::current().absoluteFilePath(path)).toString(QUrl::FullyEncoded);
    // A colon in the first name would make a scheme of it.
    return QString::fromLatin1(QUrl::toPercentEncoding(relative, "/"));
}

QString levelOf(Severity severity)
{
    return severityId(severity); // the format has the same words
}

/// "Bone cycle" of "bone-cycle".
QString sentenceOf(QLatin1String id)
{
    QString words = QString(id).replace(QLatin1Char('-'), QLatin1Char(' '));
    words[0] = words[0].toUpper();
    return words;
}

QJsonArray ruleObjects()
{
    QJsonArray rules;
    for (const RuleWords &rule : allRuleWords()) {
        rules.append(QJsonObject{
            {QStringLiteral("id"), rule.id},
            {QStringLiteral("shortDescription"), QJsonObject{{QStringLiteral("text"), sentenceOf(rule.id)}}},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject{{QStringLiteral("level"), levelOf(rule.severity)}}},
        });
    }
    return rules;
}
} // namespace

void SarifLog::add(const QString &path, const ModFinding &finding, const QString &record)
{
    QJsonObject location{{QStringLiteral("physicalLocation"),
                          QJsonObject{{QStringLiteral("artifactLocation"),
                                       QJsonObject{{QStringLiteral("uri"), uriOf(path)}}}}}};
    if (!record.isEmpty())
        location.insert(QStringLiteral("logicalLocations"),
                        QJsonArray{QJsonObject{{QStringLiteral("fullyQualifiedName"), record}}});
    QJsonObject result{{QStringLiteral("ruleId"), finding.rule.id},
                       {QStringLiteral("ruleIndex"), finding.rule.order},
                       {QStringLiteral("level"), levelOf(finding.rule.severity)},
                       {QStringLiteral("message"), QJsonObject{{QStringLiteral("text"), finding.text}}},
                       {QStringLiteral("locations"), QJsonArray{location}}};
    if (finding.notListed > 0)
        result.insert(QStringLiteral("occurrenceCount"), finding.notListed);
    if (finding.isSilenced) {
        QJsonObject suppression{{QStringLiteral("kind"), QStringLiteral("external")}};
        if (!finding.why.isEmpty())
            suppression.insert(QStringLiteral("justification"), finding.why);
        result.insert(QStringLiteral("suppressions"), QJsonArray{suppression});
    }
    m_results.append(result);
}

QByteArray SarifLog::text() const
{
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("korvane-tool")},
                             {QStringLiteral("version"), QStringLiteral(KORVANE_VERSION)},
                             {QStringLiteral("rules"), ruleObjects()}};
    const QJsonObject run{{QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
                          {QStringLiteral("results"), m_results}};
    const QJsonObject log{
        {QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
        {QStringLiteral("version"), QStringLiteral("2.1.0")},
        {QStringLiteral("runs"), QJsonArray{run}}};
    return QJsonDocument(log).toJson();
}
