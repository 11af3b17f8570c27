// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReadyChoices.h"
#include "SceneSummary.h"

#include <QWidget>

#include <memory>
#include <optional>

class QTreeWidgetItem;

namespace Ui {
class ReadyPage;
}

/// The choices for a model that arrives ready for the game: its scale, its up axis, which of its animations
/// come along, how they are sampled and looped, and whether vertices get bones of their own.
class ReadyPage : public QWidget
{
    Q_OBJECT

public:
    explicit ReadyPage(QWidget *parent = nullptr);
    ~ReadyPage() override;

    /// Animations are none of a static mesh's.
    void setHasAnimations(bool on);
    /// Proposes what suits this file; nothing is known of another one, or none, when it is null.
    void setSummary(const SceneSummary *summary);

    ReadyChoices choices() const;

signals:
    /// The other axis was chosen to be up.
    void turned(const SceneSummary &summary);

private:
    std::vector<QWidget *> ofAnimations() const;
    void showSize();
    void turn();
    void storeRate();
    void checkAll(Qt::CheckState state);
    void showLoop();
    void setLoop(int loop);
    void spreadMark(QTreeWidgetItem *row, int column);
    void tell(QTreeWidgetItem &row) const;

    std::unique_ptr<Ui::ReadyPage> m_ui;
    std::optional<SceneSummary> m_known; ///< with the axis up that is chosen
};
