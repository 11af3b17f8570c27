// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "JsonEdit.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cstring>

namespace {
bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r';
}

int behindBlanks(const QByteArray &text, int at)
{
    while (at < text.size() && isBlank(text[at]))
        ++at;
    return at;
}

int behindString(const QByteArray &text, int at)
{
    for (++at; at < text.size() && text[at] != '"'; ++at) {
        if (text[at] == '\\')
            ++at;
    }
    return at + 1;
}

int behindValue(const QByteArray &text, int at)
{
    int depth = 0;
    while (at < text.size()) {
        const char letter = text[at];
        if (letter == '"') {
            at = behindString(text, at);
        } else if (letter == '{' || letter == '[') {
            ++depth;
            ++at;
        } else if (letter == '}' || letter == ']') {
            --depth;
            ++at;
        } else if (depth > 0) {
            ++at;
            continue;
        } else {
            while (at < text.size() && !isBlank(text[at]) && !std::strchr(",]}", text[at]))
                ++at;
        }
        if (depth <= 0)
            break;
    }
    return at;
}

/// Where a member's value begins.
int valueOf(const QByteArray &text, const JsonEdit::Span &child)
{
    const int colon = behindBlanks(text, behindString(text, child.begin));
    return behindBlanks(text, colon + 1);
}

/// As a reader has it, which knows all ways to write letters.
QByteArray keyOf(const QByteArray &text, const JsonEdit::Span &child)
{
    const int end = behindString(text, child.begin);
    const QByteArray list = '[' + text.mid(child.begin, end - child.begin) + ']';
    return QJsonDocument::fromJson(list).array().first().toString().toUtf8();
}
} // namespace

JsonEdit::Span JsonEdit::root(const QByteArray &text)
{
    const int begin = behindBlanks(text, text.startsWith("\xef\xbb\xbf") ? 3 : 0);
    return {begin, behindValue(text, begin)};
}

std::vector<JsonEdit::Span> JsonEdit::children(const QByteArray &text, const Span &container)
{
    std::vector<Span> found;
    const bool isObject = container.begin < text.size() && text[container.begin] == '{';
    int at = behindBlanks(text, container.begin + 1);
    while (at < container.end - 1) {
        Span child{at, 0};
        child.end = behindValue(text, isObject ? valueOf(text, child) : at);
        found.push_back(child);
        const int comma = behindBlanks(text, child.end);
        at = behindBlanks(text, comma + 1);
        if (comma >= container.end - 1)
            break;
    }
    return found;
}

JsonEdit::Span JsonEdit::member(const QByteArray &text, const Span &object, const QByteArray &key)
{
    Span found;
    for (const Span &child : children(text, object)) {
        if (keyOf(text, child) == key)
            found = {valueOf(text, child), child.end};
    }
    return found;
}

void JsonEdit::append(QByteArray &text, const Span &container, const QByteArrayList &added)
{
    const std::vector<Span> present = children(text, container);
    if (present.empty()) {
        text.insert(container.begin + 1, added.join(", "));
        return;
    }
    const Span &last = present.back();
    int line = last.begin;
    while (line > 0 && (text[line - 1] == ' ' || text[line - 1] == '\t'))
        --line;
    const bool hasLine = line > 0 && text[line - 1] == '\n';
    const bool hasReturn = hasLine && line > 1 && text[line - 2] == '\r';
    const QByteArray gap =
        hasLine ? (hasReturn ? "\r\n" : "\n") + text.mid(line, last.begin - line) : QByteArray(" ");
    text.insert(last.end, ',' + gap + added.join(',' + gap));
}

void JsonEdit::removeChildren(QByteArray &text, const Span &container, const std::set<int> &numbers)
{
    const std::vector<Span> present = children(text, container);
    size_t left = present.size(); // none is left from there on
    // The last one first: those before it stay where they are.
    for (auto number = numbers.rbegin(); number != numbers.rend(); ++number) {
        if (*number < 0 || size_t(*number) >= left)
            continue;
        const auto at = size_t(*number);
        int begin = present[at].begin;
        int end = present[at].end;
        if (at + 1 < left) {
            end = present[at + 1].begin; // up to the next one, which takes its place
        } else {
            left = at;
            begin = at > 0 ? present[at - 1].end : begin;
        }
        text.remove(begin, end - begin);
    }
}
