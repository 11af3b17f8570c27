// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <set>
#include <vector>

/// Edits of a JSON text that leave all else of it as it is written. The text is valid JSON in UTF-8, which
/// the toolkit's reader has found; places are numbers of bytes.
namespace JsonEdit {
/// Where a value stands.
struct Span
{
    int begin = 0;
    int end = 0; ///< behind its last byte
};

/// Where the text's value stands.
Span root(const QByteArray &text);
/// The value of an object's member; of several with that key, as readers take it, the last. Empty when there
/// is none.
Span member(const QByteArray &text, const Span &object, const QByteArray &key);
/// The elements of an array, or the members of an object with their keys.
std::vector<Span> children(const QByteArray &text, const Span &container);
/// Puts elements or members, written as JSON, behind the last one, in lines of their own where that has one.
void append(QByteArray &text, const Span &container, const QByteArrayList &added);
/// Takes children away, by their numbers, with the commas that part them from the others.
void removeChildren(QByteArray &text, const Span &container, const std::set<int> &numbers);
} // namespace JsonEdit
