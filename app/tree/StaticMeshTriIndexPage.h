// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PropertyPage.h"
#include "ui_StaticMeshTriIndexPage.h"

/// One triangle index of a static mesh surface.
class StaticMeshTriIndexPage : public RecordPage<Records::StaticTriangleIndex>
{
    Q_OBJECT

public:
    StaticMeshTriIndexPage(ModelDocument<Model> &document, const KVTreeView &tree, QWidget *parent = nullptr);

    QString title() const override;

protected:
    void recordShown() override;

private slots:
    void OnStaticMeshTriIndexChanged() { commit(m_ui.sbSTTIIndex); }

private:
    Ui::StaticMeshTriIndexPage m_ui;
};
