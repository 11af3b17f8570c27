// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelContents.h"

#include "ImportRun.h"
#include "SummaryText.h"

#include <QProgressBar>
#include <QTextEdit>
#include <QVBoxLayout>

namespace {
constexpr int ProgressHeight = 6;
constexpr int LeastTextHeight = 110;
} // namespace

ModelContents::ModelContents(QWidget *parent)
    : QWidget(parent)
    , m_text(new QTextEdit(this))
    , m_progress(new QProgressBar(this))
{
    m_text->setObjectName(QStringLiteral("txtContents"));
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setMinimumHeight(LeastTextHeight);
    m_text->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // it scrolls, and so is not asked
    m_text->setAccessibleName(tr("What the file holds"));
    m_progress->setObjectName(QStringLiteral("barContents"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setFixedHeight(ProgressHeight);
    // The text does not move when the bar comes and goes.
    QSizePolicy keeping = m_progress->sizePolicy();
    keeping.setRetainSizeWhenHidden(true);
    m_progress->setSizePolicy(keeping);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(2);
    layout->addWidget(m_text);
    layout->addWidget(m_progress);
    setFocusProxy(m_text);
    look({});
}

ModelContents::~ModelContents() = default;

void ModelContents::look(const QString &path)
{
    m_isKnown = false;
    m_worker.reset();
    m_progress->setVisible(!path.isEmpty());
    say(path.isEmpty() ? tr("Choose a model, and what it holds is shown here.")
                       : tr("Looking into the file…"));
    emit looked();
    if (path.isEmpty())
        return;
    WorkerJob job;
    job.task = WorkerJob::Task::Summarize;
    job.modelPath = path;
    m_worker = std::make_unique<ImportWorker>();
    connect(m_worker.get(), &ImportWorker::finished, this, &ModelContents::onFinished);
    ImportRun::limit(*m_worker);
    m_worker->start(job);
}

void ModelContents::onFinished()
{
    const ImportMessages &messages = m_worker->messages();
    m_progress->hide();
    m_isKnown = !messages.hasError();
    if (m_isKnown) {
        tell(m_worker->summary());
    } else {
        QStringList errors;
        for (const ImportMessage &line : messages.lines) {
            if (line.severity == LogSeverity::Error)
                errors += line.text.toHtmlEscaped();
        }
        say(QStringLiteral("<p><b>%1</b></p><p>%2</p>")
                .arg(tr("This file cannot be imported."), errors.join(QStringLiteral("<br>"))));
    }
    m_worker->discard();
    emit looked();
}

void ModelContents::tell(const SceneSummary &summary)
{
    say(summaryText(summary));
}

void ModelContents::say(const QString &html)
{
    m_text->setHtml(html);
}
