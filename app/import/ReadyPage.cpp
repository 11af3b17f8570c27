// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyPage.h"

#include "Fuzzy.h"
#include "Settings.h"
#include "SummaryText.h"
#include "ui_ReadyPage.h"

#include <QHeaderView>
#include <QSignalBlocker>

namespace {
enum ClipColumn { ClipName, ClipLength, ClipLoop };
constexpr int LoopRole = Qt::UserRole;

QStringList loopNames()
{
    return {ReadyPage::tr("Where it closes"), ReadyPage::tr("Always"), ReadyPage::tr("Never")};
}
} // namespace

ReadyPage::ReadyPage(QWidget *parent)
    : QWidget(parent)
    , m_ui(std::make_unique<Ui::ReadyPage>())
{
    m_ui->setupUi(this);
    m_ui->treeClips->header()->setSectionResizeMode(ClipName, QHeaderView::Stretch);
    m_ui->treeClips->header()->setSectionResizeMode(ClipLength, QHeaderView::ResizeToContents);
    m_ui->treeClips->header()->setSectionResizeMode(ClipLoop, QHeaderView::ResizeToContents);
    m_ui->cbClipLoop->setNames(loopNames());
    m_ui->cbReadyUp->setNames({tr("Y is up in the file"), tr("Z is up in the file")});
    const float rate = Settings::ImportReadyRate.value();
    m_ui->cbReadyOwnRate->setChecked(rate <= 0.0f);
    m_ui->sbReadyRate->setValue(rate > 0.0f
                                    ? qBound(m_ui->sbReadyRate->minimum(), rate, m_ui->sbReadyRate->maximum())
                                    : float(ReadyChoices::UsualRate));
    connect(m_ui->sbReadyScale, &FloatSpinBox::valueEdited, this, &ReadyPage::showSize);
    connect(m_ui->cbReadyUp, &ChoiceBox::valueEdited, this, &ReadyPage::turn);
    connect(m_ui->sbReadyRate, &FloatSpinBox::valueEdited, this, &ReadyPage::storeRate);
    connect(m_ui->cbReadyOwnRate, &QCheckBox::toggled, this, &ReadyPage::storeRate);
    m_ui->cbExtraBones->setChecked(Settings::ImportReadyExtraBones.value());
    connect(m_ui->cbExtraBones, &QCheckBox::toggled, this,
            [](bool on) { Settings::ImportReadyExtraBones.setValue(on); });
    connect(m_ui->btnClipsAll, &QPushButton::clicked, this, [this] { checkAll(Qt::Checked); });
    connect(m_ui->btnClipsNone, &QPushButton::clicked, this, [this] { checkAll(Qt::Unchecked); });
    connect(m_ui->treeClips, &QTreeWidget::itemSelectionChanged, this, &ReadyPage::showLoop);
    connect(m_ui->treeClips, &QTreeWidget::itemChanged, this, &ReadyPage::spreadMark);
    connect(m_ui->cbClipLoop, &ChoiceBox::valueEdited, this, &ReadyPage::setLoop);
    setSummary(nullptr);
}

ReadyPage::~ReadyPage() = default;

std::vector<QWidget *> ReadyPage::ofAnimations() const
{
    return {m_ui->lblReadyRate, m_ui->sbReadyRate, m_ui->cbReadyOwnRate, m_ui->cbExtraBones,
            m_ui->lblClips,     m_ui->btnClipsAll, m_ui->btnClipsNone,   m_ui->treeClips,
            m_ui->lblClipLoop,  m_ui->cbClipLoop};
}

void ReadyPage::setHasAnimations(bool on)
{
    for (QWidget *widget : ofAnimations())
        widget->setVisible(on);
}

void ReadyPage::setSummary(const SceneSummary *summary)
{
    const QSignalBlocker blocker(m_ui->treeClips);
    m_known = summary ? std::optional(*summary) : std::nullopt;
    m_ui->treeClips->clear();
    const size_t clips = summary ? summary->clips.size() : 0;
    for (size_t i = 0; i < clips; ++i) {
        const SceneSummary::Clip &clip = summary->clips[i];
        auto *row = new QTreeWidgetItem(m_ui->treeClips);
        row->setText(ClipName, clip.name.isEmpty() ? tr("Animation %1").arg(i) : clip.name);
        row->setText(ClipLength, secondsText(clip.seconds));
        row->setTextAlignment(ClipLength, int(Qt::AlignRight | Qt::AlignVCenter));
        row->setCheckState(ClipName, Qt::Checked);
        row->setData(ClipLoop, LoopRole, int(ReadyClip::Loop::WhereItCloses));
        tell(*row);
    }
    m_ui->sbReadyScale->setValue(summary ? summary->proposedScale : 1.0f);
    m_ui->cbReadyUp->setValue(summary && summary->proposesZUp ? 1 : 0);
    setEnabled(summary);
    for (QWidget *widget : ofAnimations())
        widget->setEnabled(clips > 0);
    m_ui->sbReadyRate->setEnabled(clips > 0 && !m_ui->cbReadyOwnRate->isChecked());
    showSize();
    showLoop();
}

ReadyChoices ReadyPage::choices() const
{
    ReadyChoices choices;
    choices.scale = m_ui->sbReadyScale->value();
    choices.isZUp = m_ui->cbReadyUp->value() == 1;
    choices.rate = m_ui->cbReadyOwnRate->isChecked() ? 0.0 : double(m_ui->sbReadyRate->value());
    choices.extraBones = m_ui->cbExtraBones->isChecked();
    choices.allClips = !m_known;
    for (int i = 0; i < m_ui->treeClips->topLevelItemCount(); ++i) {
        const QTreeWidgetItem &row = *m_ui->treeClips->topLevelItem(i);
        if (row.checkState(ClipName) == Qt::Checked)
            choices.clips.push_back({i, ReadyClip::Loop(row.data(ClipLoop, LoopRole).toInt())});
    }
    return choices;
}

void ReadyPage::showSize()
{
    m_ui->lblReadySize->setText(m_known ? tr("%1 units; a person is about 200 high")
                                              .arg(sizeText(m_known->size * m_ui->sbReadyScale->value()))
                                        : QString());
}

void ReadyPage::turn()
{
    // A scale of one's own stays.
    const bool isProposed = fuzzyEqual(m_ui->sbReadyScale->value(), m_known->proposedScale);
    m_known = m_known->turned();
    if (isProposed)
        m_ui->sbReadyScale->setValue(m_known->proposedScale);
    showSize();
    emit turned(*m_known);
}

void ReadyPage::storeRate()
{
    const bool isOwn = m_ui->cbReadyOwnRate->isChecked();
    m_ui->sbReadyRate->setEnabled(!isOwn);
    Settings::ImportReadyRate.setValue(isOwn ? 0.0f : m_ui->sbReadyRate->value());
}

void ReadyPage::checkAll(Qt::CheckState state)
{
    const QSignalBlocker blocker(m_ui->treeClips);
    for (int i = 0; i < m_ui->treeClips->topLevelItemCount(); ++i)
        m_ui->treeClips->topLevelItem(i)->setCheckState(ClipName, state);
    m_ui->treeClips->viewport()->update();
}

/// What is done to the mark of one selected row is done to all of them.
void ReadyPage::spreadMark(QTreeWidgetItem *row, int column)
{
    if (column != ClipName || !row->isSelected())
        return;
    const QSignalBlocker blocker(m_ui->treeClips);
    for (QTreeWidgetItem *other : m_ui->treeClips->selectedItems())
        other->setCheckState(ClipName, row->checkState(ClipName));
    m_ui->treeClips->viewport()->update();
}

/// Of several rows the first one's.
void ReadyPage::showLoop()
{
    const QList<QTreeWidgetItem *> rows = m_ui->treeClips->selectedItems();
    m_ui->cbClipLoop->setEnabled(!rows.isEmpty());
    if (!rows.isEmpty())
        m_ui->cbClipLoop->setValue(rows.first()->data(ClipLoop, LoopRole).toInt());
}

void ReadyPage::setLoop(int loop)
{
    for (QTreeWidgetItem *row : m_ui->treeClips->selectedItems()) {
        row->setData(ClipLoop, LoopRole, loop);
        tell(*row);
    }
}

void ReadyPage::tell(QTreeWidgetItem &row) const
{
    row.setText(ClipLoop, loopNames().value(row.data(ClipLoop, LoopRole).toInt()));
}
