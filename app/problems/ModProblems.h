// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "ModCheck.h"
#include "Problem.h"

#include <QTimer>

/// What is wrong with the files of the mod as they are on the disk, where somebody wants to know, and what
/// the mod silences. Another thread looks. What the mod silences is written into its file by this.
class ModProblems : public QObject
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 300;
    /// So many findings are listed, the worst first; the others are counted.
    static constexpr size_t MostListed = 3000;

    explicit ModProblems(QObject *parent);

    /// Whether all files are looked at, which the settings remember.
    bool isWhole() const { return m_isWhole; }
    void setWhole(bool on);
    /// The mod's folder; empty while the options name none.
    const QString &folder() const { return m_folder; }
    const CheckSettings &settings() const { return m_report.settings; }
    /// What was found, the worst first, but for what the checks of these open files find themselves.
    std::vector<Problem> problems(const QStringList &openFiles) const;
    /// What a file is called below the mod's folder; empty when it is not in there.
    QString nameOf(const QString &path) const;

    void setReferenceIds(const ReferenceIds &ids);
    /// Looks again, soon: files or folders may have changed.
    void recheck() { m_delay.start(); }

    // While all files are looked at.
    bool isRunning() const { return m_isWhole && m_check.isRunning(); }
    qint64 done() const { return m_progress ? m_progress->done.load() : 0; }
    /// None while it is not known.
    qint64 all() const { return m_progress ? m_progress->all.load() : 0; }
    void cancel();
    /// Nobody knows all that is wrong: the user has given the search up.
    bool isGivenUp() const { return m_isGivenUp; }

    /// A rule, for the file of that name or, where it is empty, for all files.
    struct Silence
    {
        QString rule;
        QString name;
    };
    /// Has the mod's file silence rules. Returns why that is not possible; empty when it is done.
    [[nodiscard]] QString silence(const QVector<Silence> &silences);
    /// Takes from the mod's file what silences these rules for these files.
    [[nodiscard]] QString hear(const QVector<Silence> &silences);

signals:
    void changed();
    /// A search of all files begins or ends.
    void runningChanged();

private:
    struct Progress
    {
        std::atomic<qint64> done{0};
        std::atomic<qint64> all{0};
    };

    void check();
    void take(ModReport report);
    QString readSettings(QByteArray &text) const;
    QString writeSettings(const QByteArray &text);
    QString settingsFile() const;
    QString notAsItHasToBe() const;

    bool m_isWhole;
    bool m_isGivenUp = false;
    QString m_folder;
    ModReport m_report;
    ReferenceIds m_ids;
    std::shared_ptr<Progress> m_progress;
    QTimer m_delay;
    Background m_check;
};
