// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UnsavedWork.h"

class MaterialDocument;

/// The material file that is open.
class MaterialWork : public UnsavedWork
{
    Q_OBJECT

public:
    /// `mayBeReplaced` asks about what is unsaved.
    MaterialWork(MaterialDocument &document, std::function<bool()> mayBeReplaced, QObject *parent);

    QString extension() const override { return QStringLiteral("kmat"); }
    QString label() const override { return tr("Materials"); }
    QString path() const override;
    QString fileName() const override;
    FileStamp stamp() const override;
    bool differsFromFile() const override;
    std::function<std::vector<uchar>()> drafter() override;
    bool mayBeReplaced() override { return m_mayBeReplaced(); }
    bool restore(const QByteArray &bytes, const QString &path, const QString &unsavedName,
                 const FileStamp &stamp) override;

signals:
    void restored();

private:
    MaterialDocument &m_document;
    const std::function<bool()> m_mayBeReplaced;
};
