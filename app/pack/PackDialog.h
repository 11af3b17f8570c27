// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PackList.h"

#include <QDialog>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QTreeWidgetItem;

namespace Ui {
class PackDialog;
}

/// An error in a file of the mod.
struct PackError
{
    QString name; ///< of the file, the path below the mod's folder
    QString text;
};

/// What is known of a mod that is to be packed.
struct PackAccount
{
    QString modFolder;
    bool isGameKnown = true; ///< else nobody knows what replaces the game's files
    PackList list;
    std::vector<PackError> errors; ///< of all files, those too that stay out
};

/// Shows what goes into the archive of a mod, what that replaces of the game, what stays out and why, and
/// what stands in the way; asks where the archive is to be written.
class PackDialog : public QDialog
{
    Q_OBJECT

public:
    /// Lists the mod anew with other patterns of what stays out; nothing when that was given up.
    using Relist = std::function<std::optional<PackList>(const QStringList &patterns)>;

    PackDialog(const PackAccount &account, Relist relist, QWidget *parent);
    ~PackDialog() override;

    const PackList &list() const { return m_account.list; }
    /// The archive to write, its whole path.
    QString target() const;
    /// What a text in the field of patterns stands for.
    static QStringList patterns(const QString &text);

public slots:
    void accept() override;

protected:
    /// The Return that stores what was typed does no more than that: the list is to be seen first.
    void keyPressEvent(QKeyEvent *event) override;

private slots:
    void on_btnPackTarget_clicked();
    void on_txtPackLeaveOut_valueEdited(const QString &text);

private:
    void showList();
    void addGroup(const QString &title, const std::vector<QStringList> &rows, bool isOpen,
                  const char *icon = nullptr);
    /// Those in files that go in.
    std::vector<PackError> errors() const;
    void updatePack();
    void skipReturn();

    std::unique_ptr<Ui::PackDialog> m_ui;
    PackAccount m_account;
    Relist m_relist;
    bool m_skipsReturn = false;
    QString m_agreed; ///< may be replaced, as the user has said
};
