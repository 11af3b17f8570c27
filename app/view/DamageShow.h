// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class KVOpenGLWidget;
class QAction;
class QActionGroup;
class QLabel;
class QMenu;

/// Colors the model by what its bones say of damage, with a legend in the corner of the view. Follows edits.
class DamageShow : public QObject
{
    Q_OBJECT

public:
    /// Both outlive this; the actions belong to `window`.
    DamageShow(SkinnedMeshDocument &document, KVOpenGLWidget &view, QWidget *window);

    QMenu *menu() const { return m_menu; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnShowDamageChosen(QAction *action);

private:
    enum class Shown { Nothing, DamageScale, ImpactType };

    Shown shown() const;
    void update();
    void placeLegend();

    SkinnedMeshDocument &m_document;
    KVOpenGLWidget &m_view;
    QMenu *m_menu;
    QActionGroup *m_choices;
    QLabel *m_legend = nullptr; ///< null while nothing is shown
};
