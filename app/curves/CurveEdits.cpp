// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveEdits.h"

#include "AllCommands.h"
#include "CurveView.h"
#include "Expression.h"
#include "NumberRange.h"
#include "Playback.h"

#include <algorithm>

CurveEdits::CurveEdits(CurveView &view, QObject *parent)
    : QObject(parent)
    , m_view(view)
{
    connect(&view, &CurveView::dragged, this, &CurveEdits::preview);
    connect(&view, &CurveView::givenUp, this, &CurveEdits::endPreview);
    connect(&view, &CurveView::moveAsked, this, &CurveEdits::move);
}

CurveEdits::~CurveEdits()
{
    if (m_preview && playback().preview == m_preview.get())
        playback().preview = nullptr;
}

BlockKeys CurveEdits::moved(CurveUnit unit, double by) const
{
    return CurveKeys::changed(m_view.data(), m_view.selection(), unit,
                              [by](const CurveKey &, double value) { return value + by; });
}

const AnimBlock *CurveEdits::block() const
{
    const CurveData &shown = m_view.data();
    if (!m_document || !shown.block())
        return nullptr;
    const AnimBlock *block = Records::Block::find(m_document->model(), {playback().blockIndex});
    return block == shown.block() && block->frameCount() == shown.frameCount() ? block : nullptr;
}

void CurveEdits::preview(CurveUnit unit, double by)
{
    const AnimBlock *block = this->block();
    if (!block)
        return;
    // Where nothing is moved there are no keys to put back what was.
    if (!m_preview || by == 0.0)
        m_preview = std::make_unique<AnimBlock>(*block);
    moved(unit, by).store(*m_preview);
    playback().preview = m_preview.get();
    emit posed();
}

void CurveEdits::endPreview()
{
    if (!m_preview)
        return;
    playback().preview = nullptr;
    m_preview.reset();
    emit posed();
}

bool CurveEdits::isTyping() const
{
    return m_document && m_document->returnToTyping();
}

void CurveEdits::move(CurveUnit unit, double by)
{
    endPreview();
    if (!isTyping() && block())
        store(moved(unit, by), tr("Move Keys"));
}

CurveUnit CurveEdits::unit() const
{
    return unitOf(m_view.data().curves()[size_t(m_view.selection().current().curve)].channel);
}

bool CurveEdits::isReady() const
{
    return block() && !m_view.selection().current().isNone();
}

void CurveEdits::set(double value)
{
    if (isReady())
        store(CurveKeys::changed(m_view.data(), m_view.selection(), unit(),
                                 [value](const CurveKey &, double) { return value; }),
              tr("Set Keys"));
}

QString CurveEdits::calculate(const Expression &expression)
{
    if (!isReady())
        return {};
    QString reason;
    int place = 0;
    const BlockKeys keys =
        CurveKeys::changed(m_view.data(), m_view.selection(), unit(), [&](const CurveKey &, double value) {
            double number = value;
            const QString lack =
                NumberRange::ofFloats().fit(expression.value({value, double(place++), 1.0}), number);
            if (reason.isEmpty())
                reason = lack;
            return number;
        });
    if (reason.isEmpty())
        store(keys, tr("Set Keys"));
    return reason;
}

void CurveEdits::smooth(int frames)
{
    if (!isTyping() && block())
        store(CurveKeys::smoothed(m_view.data(), m_view.selection(), frames), tr("Smooth Keys"));
}

void CurveEdits::straighten()
{
    if (!isTyping() && block())
        store(CurveKeys::straightened(m_view.data(), m_view.selection()), tr("Straighten Keys"));
}

void CurveEdits::store(BlockKeys keys, const QString &step)
{
    const int block = playback().blockIndex;
    const AnimBlock *edited = this->block();
    if (!edited)
        return;
    keys.leaveOutSame(*edited);
    if (keys.isEmpty())
        return;
    emit documentWanted();
    QVector<RecordRef> shown;
    const CurveData &data = m_view.data();
    const bool isOfBones =
        std::any_of(data.sources().begin(), data.sources().end(), [this](const auto &source) {
            return m_view.selection().hasOf(source.translations) ||
                   m_view.selection().hasOf(source.rotations);
        });
    // Trees make the last one the current one, which comes first among the curves.
    for (auto source = data.sources().rbegin(); isOfBones && source != data.sources().rend(); ++source)
        shown.append({RecordKind::AnimBone, {block, source->bone}});
    if (shown.isEmpty())
        shown.append({RecordKind::AnimFrames, {block}});
    auto *command = new UC_AnimKeys(m_document->editTarget(), {block}, std::move(keys), shown);
    command->setText(step);
    m_document->undoStack()->push(command);
}
