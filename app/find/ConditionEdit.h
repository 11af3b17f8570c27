// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordWords.h"

#include <QComboBox>
#include <QLineEdit>

class QCompleter;
class QStringListModel;

/// The line in which a condition is typed. It proposes words for fields and kinds, and behind a sign the
/// names of values.
class ConditionEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ConditionEdit(QWidget *parent = nullptr);

    /// The models that are searched, and the mesh that has bones; null for none.
    void setModels(KindSet roots, const SkinnedMesh *mesh);

signals:
    /// Return was pressed.
    void entered();
    /// Down was pressed.
    void wentDown();
    /// Escape was pressed.
    void left();

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void propose(bool isAsked);
    void complete(const QString &text);

    QCompleter *m_completer;
    QStringListModel *m_proposals;
    KindSet m_roots;
    const SkinnedMesh *m_mesh = nullptr;
    int m_from = 0; ///< where the proposal goes
};

/// That line with the conditions that were used before.
class ConditionBox : public QComboBox
{
    Q_OBJECT

public:
    static constexpr int MostKept = 20;

    explicit ConditionBox(QWidget *parent = nullptr);

    ConditionEdit &line() const { return *m_line; }
    /// Keeps what stands there for another time.
    void keep();

private:
    ConditionEdit *m_line;
};
