// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"

#include <QListWidget>

#include <initializer_list>

/// Shows the account of an import; all of it can be copied.
class MessageList : public QListWidget
{
    Q_OBJECT

public:
    explicit MessageList(QWidget *parent = nullptr);

    /// Shows the lines of the severities named, in their order.
    void setMessages(const ImportMessages &messages, std::initializer_list<LogSeverity> order);

public slots:
    void copy() const;
};
