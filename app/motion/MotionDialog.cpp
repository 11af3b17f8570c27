// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionDialog.h"

#include "DocumentLoader.h"
#include "LabelDrag.h"
#include "Memory.h"
#include "Playback.h"
#include "ui_MotionDialog.h"

#include <QPushButton>

#include <algorithm>
#include <numeric>

namespace {
/// As the form lists them.
enum ResampleGoal { AsLong, AtSameSpeed, ToRate };

/// What another thread has worked out.
struct WorkedOut
{
    std::vector<Motion::BlockChange> changes;
    QString lack; ///< of memory
};
} // namespace

MotionDialog::MotionDialog(MotionKind::Name kind, AnimDocument &anim, SkinnedMeshDocument &mesh,
                           std::vector<int> selected, QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::MotionDialog>())
    , m_kind(kind)
    , m_anim(anim)
    , m_mesh(mesh)
    , m_selected(std::move(selected))
    , m_onView(anim.model())
{
    m_ui->setupUi(this);
    LabelDrag::installAll(*this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    const MotionKind &shown = motionKinds()[kind];
    setWindowTitle(shown.step);
    m_ui->lblWhat->setText(shown.tip);
    m_ui->stackNumbers->setCurrentWidget(findChild<QWidget *>(QLatin1String(shown.page)));
    m_ui->stackNumbers->setFixedHeight(std::max(m_ui->stackNumbers->currentWidget()->sizeHint().height(), 0));
    m_ui->stackNumbers->setVisible(shown.page != QLatin1String("pageNone"));
    m_ui->progress->hide();

    const AnimFile &file = m_anim.model();
    const SkinnedMesh *names = m_mesh.isOpen() ? &m_mesh.model() : nullptr;
    if (m_selected.size() == 1)
        m_ui->cbBlocks->addItem(Motion::blockTitle(file, m_selected.front(), names));
    else if (m_selected.size() > 1 && m_selected.size() < file.blocks.size())
        m_ui->cbBlocks->addItem(tr("Selected animations (%1)").arg(m_selected.size()));
    if (m_selected.size() != 1 || file.blocks.size() > 1)
        m_ui->cbBlocks->addItem(tr("All animations (%1)").arg(file.blocks.size()));
    fillNumbers();
    watchNumbers();
    m_look.setInterval(100);
    m_later.setSingleShot(true);
    m_later.setInterval(250);
    connect(&m_later, &QTimer::timeout, this, &MotionDialog::start);
    connect(&m_look, &QTimer::timeout, this, [this] {
        m_ui->progress->setValue(*m_percent);
        m_ui->progress->show();
    });
    workOut();
}

MotionDialog::~MotionDialog() = default;

/// With what the first of the animations has.
void MotionDialog::fillNumbers()
{
    const AnimFile &file = m_anim.model();
    const std::vector<int> chosen = blocks();
    const AnimBlock none;
    const AnimBlock &first = chosen.empty() ? none : file.blocks[size_t(chosen.front())];
    const int last = std::max(first.frameCount() - 1, 0);
    m_ui->sbRate->setEnabled(false);
    m_ui->sbFrames->setValue(last + 1);
    m_ui->sbRate->setValue(float(Motion::rateOf(first)));
    const FrameRange range = playback().range;
    // What is selected on the timeline is of the animation that plays.
    const bool isRange = !range.isEmpty() && range.last <= last && !chosen.empty() &&
                         playback().anim == &file && chosen.front() == playback().blockIndex;
    m_ui->sbFirst->setValue(isRange ? range.first : 0);
    m_ui->sbLast->setValue(isRange ? range.last : last);
    m_ui->sbShift->setValue(1);
    m_ui->sbBlend->setValue(std::clamp(last, 1, 5));
    if (auto *field = m_ui->stackNumbers->currentWidget()->findChild<QAbstractSpinBox *>()) {
        field->setFocus();
        field->selectAll();
    }
}

void MotionDialog::watchNumbers()
{
    for (IntSpinBox *field : m_ui->stackNumbers->findChildren<IntSpinBox *>())
        connect(field, &IntSpinBox::valueEdited, this, &MotionDialog::workOut);
    connect(m_ui->sbRate, &FloatSpinBox::valueEdited, this, &MotionDialog::workOut);
    connect(m_ui->cbResample, qOverload<int>(&QComboBox::currentIndexChanged), this, [this](int goal) {
        m_ui->sbFrames->setEnabled(goal != ToRate);
        m_ui->sbRate->setEnabled(goal == ToRate);
        workOut();
    });
    connect(m_ui->txtTable, &QLineEdit::textChanged, this, &MotionDialog::workOut);
    for (QComboBox *choice : {m_ui->cbAround, m_ui->cbBlocks})
        connect(choice, qOverload<int>(&QComboBox::currentIndexChanged), this, &MotionDialog::workOut);
}

std::vector<int> MotionDialog::blocks() const
{
    const bool isAll = m_ui->cbBlocks->currentIndex() == m_ui->cbBlocks->count() - 1 &&
                       (m_ui->cbBlocks->count() > 1 || m_selected.size() != 1);
    if (!isAll)
        return m_selected;
    std::vector<int> all(m_anim.model().blocks.size());
    std::iota(all.begin(), all.end(), 0);
    return all;
}

Motion::Command MotionDialog::command(QString &refusal) const
{
    switch (m_kind) {
    case MotionKind::Resample:
        if (m_ui->cbResample->currentIndex() == ToRate)
            return Motion::Resample{0, double(m_ui->sbRate->value()), false};
        return Motion::Resample{m_ui->sbFrames->value(), 0, m_ui->cbResample->currentIndex() == AtSameSpeed};
    case MotionKind::Trim:
        return Motion::Trim{m_ui->sbFirst->value(), m_ui->sbLast->value()};
    case MotionKind::Shift:
        return Motion::Shift{m_ui->sbShift->value(), Motion::Shift::Around(m_ui->cbAround->currentIndex())};
    case MotionKind::CloseLoop:
        return Motion::CloseLoop{m_ui->sbBlend->value()};
    case MotionKind::Mirror:
        return Motion::Mirror{};
    case MotionKind::ExtractYaw:
        return Motion::ExtractYaw{};
    case MotionKind::ApplyYaw:
        return Motion::ApplyYaw{};
    case MotionKind::RemoveUnusedTracks:
        return Motion::RemoveUnusedTracks{};
    case MotionKind::JoinEqualTracks:
        return Motion::JoinEqualTracks{};
    case MotionKind::RenumberIds: {
        Motion::RenumberIds how{{}, m_ui->sbOffset->value()};
        refusal = Motion::readIdTable(m_ui->txtTable->text(), how.table);
        return how;
    }
    case MotionKind::Reverse:
    case MotionKind::Count:
        break;
    }
    return Motion::Reverse{};
}

void MotionDialog::workOut()
{
    // What takes long is not begun anew with each key.
    const bool isLong = m_work.isRunning() || m_later.isActive();
    m_work.cancel();
    m_later.stop();
    m_isWanted = false; // what was accepted had other numbers
    Background::discard(std::exchange(m_changes, {}));
    m_onView.giveBack();
    QString refusal;
    command(refusal);
    m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(refusal.isEmpty());
    if (!refusal.isEmpty()) {
        m_look.stop();
        m_ui->progress->hide();
        m_ui->preview->setEntries({{refusal, {}, true}});
        return;
    }
    m_ui->preview->tell(tr("Being worked out…"));
    if (isLong) {
        m_later.start();
        return;
    }
    start();
    // Animations of the game's size are worked out before anybody sees that they are.
    m_work.wait(DocumentLoader::usualPatience());
}

void MotionDialog::start()
{
    QString refusal;
    const Motion::Command wanted = command(refusal);
    m_percent = std::make_shared<std::atomic_int>(0);
    const auto mesh = m_mesh.isOpen() ? m_mesh.copy() : nullptr;
    const auto work = [wanted, chosen = blocks(), file = m_anim.copy(), mesh,
                       percent = m_percent](const Background::Cancelled &cancelled) {
        WorkedOut made;
        made.lack = withinMemory([&] {
            made.changes = Motion::changesBy(wanted, file->get(), chosen, mesh ? &mesh->get() : nullptr,
                                             cancelled, percent.get());
        });
        return made;
    };
    m_look.start();
    m_work.start(work, [this](WorkedOut made) {
        m_look.stop();
        m_ui->progress->hide();
        m_changes = std::move(made.changes);
        m_onView.show(m_changes);
        if (made.lack.isEmpty())
            showChanges();
        else
            m_ui->preview->setEntries({{tr("Nothing can be done."), {made.lack}, true}});
        const bool changes = std::any_of(m_changes.begin(), m_changes.end(),
                                         [](const Motion::BlockChange &each) { return each.changes; });
        m_ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(changes);
        if (std::exchange(m_isWanted, false) && changes)
            QDialog::accept();
    });
}

void MotionDialog::showChanges()
{
    const AnimFile &file = m_anim.model();
    const SkinnedMesh *names = m_mesh.isOpen() ? &m_mesh.model() : nullptr;
    QVector<MotionPreview::Entry> entries;
    for (const Motion::BlockChange &change : m_changes) {
        MotionPreview::Entry entry{Motion::blockTitle(file, change.index, names), change.words,
                                   !change.refusal.isEmpty()};
        if (entry.isRefused)
            entry.lines = QStringList{change.refusal, tr("It stays as it is.")};
        else if (!change.changes)
            entry.lines = QStringList{tr("Nothing changes.")};
        entries.append(entry);
    }
    m_ui->preview->setEntries(entries);
}

void MotionDialog::done(int result)
{
    m_onView.giveBack();
    QDialog::done(result);
}

void MotionDialog::accept()
{
    if (TypingField::returnToRefused(*this))
        return;
    m_isWanted = m_work.isRunning() || m_later.isActive();
    if (!m_isWanted && m_ui->buttonBox->button(QDialogButtonBox::Ok)->isEnabled())
        QDialog::accept();
}
