// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "IndexTargets.h"
#include "PropertyPage.h"
#include "ui_TriIndexPage.h"

/// One triangle index of a surface, of either kind of mesh.
template <typename RecordType>
class TriIndexPage : public RecordPage<RecordType>
{
protected:
    TriIndexPage(ModelDocument<typename RecordType::Model> &document, const KVTreeView &tree, QWidget *parent)
        : RecordPage<RecordType>(document, tree,
                                 PropertyPage::tr("Surface %1 - Triangle Index %2 Properties"), parent)
    {
        m_ui.setupUi(this);
    }

    void tellRange()
    {
        for (QWidget *widget :
             {static_cast<QWidget *>(m_ui.lblTIIndex), static_cast<QWidget *>(m_ui.sbTIIndex)})
            widget->setToolTip(PropertyPage::tr("Vertex at this corner of the triangle (0 to %1)")
                                   .arg(m_ui.sbTIIndex->maximum()));
    }

    void recordShown() override
    {
        const quint16 *vertex = this->record();
        if (!vertex)
            return;
        m_ui.hintTIIndex->setTarget(IndexTargets::vertex(this->model(), *vertex));
        m_ui.lblTICorner->setText(IndexTargets::triangleCorner(this->index()[1]));
    }

    Ui::TriIndexPage m_ui;
};

/// One triangle index of a skinned mesh surface.
class SkinnedMeshTriIndexPage : public TriIndexPage<Records::SkinnedTriangleIndex>
{
    Q_OBJECT

public:
    SkinnedMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree,
                            QWidget *parent = nullptr);

private slots:
    void OnSkinMeshTriIndexChanged() { commit(m_ui.sbTIIndex); }
};

/// One triangle index of a static mesh surface.
class StaticMeshTriIndexPage : public TriIndexPage<Records::StaticTriangleIndex>
{
    Q_OBJECT

public:
    StaticMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

private slots:
    void OnStaticMeshTriIndexChanged() { commit(m_ui.sbTIIndex); }
};
