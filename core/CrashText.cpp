// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashText.h"

#include <QCoreApplication>
#include <QSysInfo>

#include <algorithm>
#include <cstring>

namespace {
constexpr size_t LineBytes = 256;
constexpr size_t Lines = 40;

struct CrashFacts
{
    const char *lineEnd;
    char program[256];
    char graphics[512];
    char lines[Lines][LineBytes];
    volatile size_t lineCount;
};
CrashFacts facts;

template <size_t Size>
void setText(char (&place)[Size], const QByteArray &text)
{
    const size_t length = std::min(Size - 1, size_t(text.size()));
    std::memcpy(place, text.constData(), length);
    place[length] = 0;
}
} // namespace

void CrashText::setGraphics(const QString &text)
{
    setText(facts.graphics, text.toUtf8());
}

// As in the console, lines that are equal are one.
void CrashText::addLine(const QString &text)
{
    static QString s_last;
    static int s_times = 0;
    if (s_times > 0 && text == s_last) {
        const QByteArray count = " (" + QByteArray::number(++s_times) + " times)";
        setText(facts.lines[(facts.lineCount - 1) % Lines],
                text.toUtf8().left(int(LineBytes) - 1 - count.size()) + count);
        return;
    }
    s_last = text;
    s_times = 1;
    setText(facts.lines[facts.lineCount % Lines], text.toUtf8());
    facts.lineCount = facts.lineCount + 1;
}

void CrashText::prepare(const char *lineEnd)
{
    facts.lineEnd = lineEnd;
    setText(facts.program, QStringLiteral("%1 %2, Qt %3, %4, %5")
                               .arg(QCoreApplication::applicationName(),
                                    QCoreApplication::applicationVersion(), QLatin1String(qVersion()),
                                    QSysInfo::prettyProductName(), QSysInfo::currentCpuArchitecture())
                               .toUtf8());
}

void CrashText::put(const char *text)
{
    write(text, std::strlen(text));
}

void CrashText::putHexadecimal(std::uintptr_t number)
{
    char text[2 * sizeof number + 3];
    char *end = text + sizeof text - 1;
    *end = 0;
    do {
        *--end = "0123456789abcdef"[number % 16];
        number /= 16;
    } while (number != 0);
    *--end = 'x';
    *--end = '0';
    put(end);
}

void CrashText::putLineEnd()
{
    put(facts.lineEnd);
}

void CrashText::putBegin()
{
    put(facts.program);
    putLineEnd();
    put("Graphics: ");
    put(facts.graphics[0] ? facts.graphics : "not started");
    putLineEnd();
    put("Ended by ");
}

void CrashText::putStackTitle()
{
    putLineEnd();
    putLineEnd();
    put("Stack:");
    putLineEnd();
}

void CrashText::putLastLines()
{
    putLineEnd();
    put("Last lines of the console:");
    putLineEnd();
    const size_t count = facts.lineCount;
    for (size_t i = count > Lines ? count - Lines : 0; i < count; ++i) {
        put(facts.lines[i % Lines]);
        putLineEnd();
    }
}
