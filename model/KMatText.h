// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "KMatWords.h"
#include "TextEncoding.h"

#include <QString>

#include <vector>

/// A sampler of a material in the text of a file.
struct KMatSampler
{
    QString name;    ///< without quotes, such as "diffuse"
    QString texture; ///< its path without the quotes, as a reader of the file has it
    TextSpan word;   ///< the word that this is, with its quotes; empty where the line ends before it
    int free = 0;    ///< behind here it can be written then
};

/// A material in the text of a file.
struct KMatMaterial
{
    QString name;
    TextSpan word;
    std::vector<KMatSampler> samplers;

    /// What is drawn: the last sampler's.
    QString texture() const { return samplers.empty() ? QString() : samplers.back().texture; }
};

/// Characters of a text, and others in their place.
struct TextEdit
{
    TextSpan span;
    QString text;
};

/// The text of a .kmat file, with the places of what it says, so that a value can be edited and all else
/// stays as it is, byte for byte: comments, blanks, line ends, words that nobody here knows, the encoding.
class KMatText
{
public:
    KMatText() = default;
    explicit KMatText(const QByteArray &bytes);

    const QString &text() const { return m_text; }
    const TextEncoding &encoding() const { return m_encoding; }
    QByteArray bytes() const { return m_encoding.encode(m_text); }
    /// In the order of the text, those too that a reader refuses the file for.
    const std::vector<KMatMaterial> &materials() const { return m_materials; }
    /// Why a reader refuses the file; empty when it does not.
    const QString &problem() const { return m_problem; }

    /// What gives a sampler another texture. Returns why that cannot be; an empty text means that it can.
    [[nodiscard]] QString findTextureEdit(int material, int sampler, const QString &texture,
                                          TextEdit &edit) const;
    /// What gives a material another name, which no other one may have. Returns the same.
    [[nodiscard]] QString findRenaming(int material, const QString &name, TextEdit &edit) const;
    /// What adds a material with this texture at the end, as imports write it. Returns the same.
    [[nodiscard]] QString findAddition(const QString &name, const QString &texture, TextEdit &edit) const;
    /// Edits the text. Returns what takes that back.
    TextEdit apply(const TextEdit &edit);

private:
    void read();
    KMatText after(const TextEdit &edit) const;
    /// Why no material can get this name; empty when one can.
    QString refusalOf(const QString &name) const;
    /// Whether bytes that are written of this are read as this text again.
    bool isWritable() const;

    TextEncoding m_encoding;
    QString m_text;
    std::vector<KMatMaterial> m_materials;
    QString m_problem;
};
