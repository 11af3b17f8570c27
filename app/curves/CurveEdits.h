// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurveKeys.h"
#include "Document.h"

#include <memory>

class CurveView;
class Expression;

/// Makes edits of what is asked for in a view of curves, each one undo step. A drag is shown by the model's
/// view as it goes, in a copy of the block; the document hears of it when it is dropped.
class CurveEdits : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this.
    CurveEdits(CurveView &view, QObject *parent);
    ~CurveEdits() override;

    void setDocument(AnimDocument &document) { m_document = &document; }

    /// Gives the selected points of the current one's unit a value, or what an expression makes of their own.
    /// The latter gives the reason why it makes none; empty when it does.
    void set(double value);
    QString calculate(const Expression &expression);
    void smooth(int frames);
    void straighten();

signals:
    /// What is shown of the block is another pose.
    void posed();
    /// The document is about to be edited.
    void documentWanted();

private:
    void preview(CurveUnit unit, double by);
    void endPreview();
    void move(CurveUnit unit, double by);
    void store(BlockKeys keys, const QString &step);
    /// What is shown, as the document has it; null when it has it no more.
    const AnimBlock *block() const;
    bool isReady() const;
    /// Whether a field refuses what is typed in it; what can be stored is.
    bool isTyping() const;
    CurveUnit unit() const;
    BlockKeys moved(CurveUnit unit, double by) const;

    CurveView &m_view;
    AnimDocument *m_document = nullptr;
    std::unique_ptr<AnimBlock> m_preview;
};
