// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ConditionProgram.h"

/// Reads a Condition by descent, one function a level of precedence.
class ConditionReader
{
public:
    ConditionReader(const QString &text, const SkinnedMesh *mesh)
        : m_text(text)
        , m_mesh(mesh)
    {}

    /// The reason why the text is no condition; empty when it is one.
    QString read();
    /// What was read, once.
    ConditionProgram takeProgram() { return std::move(m_program); }
    bool lacksName() const { return m_lacksName; }

private:
    using Part = ConditionProgram::Part;
    using Sign = ConditionProgram::Sign;

    /// Which kinds of records have what something asks for, and which of them may meet it.
    struct Reach
    {
        KindSet defined;
        KindSet possible;
    };
    Reach anyOf();
    Reach allOf();
    Reach term();
    Reach wordTerm();
    Reach comparison(const RecordWord &word, const QString &typed, Sign sign);

    const RecordWord *takeRecordWord(QString &typed);
    bool takeWord(const char *english);
    bool isWordAt(int at, const char *english) const;
    bool isJunctionAt(int at) const;
    Sign takeSign();
    bool takeNumberOrRange(QString &text);
    QString takeValue(bool &isQuoted);

    void add(Part part, KindSet kinds = {}, int comparison = -1);
    void skipBlanks();
    bool take(QChar character);
    bool atEnd();
    bool failed() const { return !m_reason.isEmpty(); }
    void fail(int place, const QString &reason);

    const QString m_text;
    const SkinnedMesh *m_mesh;
    ConditionProgram m_program;
    QString m_reason;
    int m_at = 0;
    int m_depth = 0;
    bool m_lacksName = false;
};
