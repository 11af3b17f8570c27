// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "MaterialPlace.h"

#include <QObject>
#include <QPointer>

class ChoiceList;
class ChoicePopup;
class IndexHint;
class MaterialCatalog;
class QAction;
class QCompleter;
class QToolButton;
class TextField;

/// What belongs to the field of a surface's material: the file that it is in, which can be opened, and all
/// materials that there are, to complete what is typed and to choose from.
class MaterialField : public QObject
{
    Q_OBJECT

public:
    /// The editor stands in a form alone. The catalog outlives this.
    MaterialField(TextField *editor, MaterialCatalog &catalog);

    /// `differs`: not all selected records have this one.
    void show(const QString &materialPath, bool differs);
    void choose();
    /// Another record is shown.
    void leave();
    void setAction(const QAction *choose);

    TextField *editor() const { return m_editor; }

signals:
    /// All selected records are to get it.
    void chosen(const QString &materialPath);
    /// Something for the status bar.
    void told(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    ChoiceList *list(QObject *parent) const;
    void OnCatalogChanged();
    void find();
    void tell();
    /// In the dock of materials.
    void edit();
    /// With a program of the desktop.
    void open(bool folder);

    TextField *m_editor;
    MaterialCatalog &m_catalog;
    IndexHint *m_hint;
    QToolButton *m_button;
    QToolButton *m_edit;
    QToolButton *m_open;
    QList<QAction *> m_fileActions; ///< for what there is a file for
    QCompleter *m_completer;
    QPointer<ChoicePopup> m_popup;
    Background m_finder;
    QString m_path;
    bool m_differs = false;
    bool m_isFound = false;
    bool m_wantsChoice = false; ///< as soon as the materials are read
    MaterialPlace m_place;
};
