// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TextureList.h"

#include <QWidget>

class ChoiceList;
class MaterialCatalog;
class QCompleter;
class QToolButton;
class TextField;

/// The path of a texture: a field that completes it, and a button that lists all textures of game and mod.
class TextureField : public QWidget
{
    Q_OBJECT

public:
    explicit TextureField(QWidget *parent = nullptr);

    TextField *editor() const { return m_editor; }
    /// Where small pictures come from.
    void setCatalog(MaterialCatalog &catalog) { m_catalog = &catalog; }

signals:
    void chosen(const QString &texture);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ChoiceList *list(QObject *parent) const;
    void choose();

    TextField *m_editor;
    QToolButton *m_button;
    QCompleter *m_completer;
    TextureList m_textures;
    MaterialCatalog *m_catalog = nullptr;
};
