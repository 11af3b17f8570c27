// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QString;

/// The files that a thread, and what it starts, can open from then on: by Linux' Landlock, of any version.
/// The kernel looks at where a link leads.
class FileRules
{
public:
    FileRules();
    ~FileRules();
    FileRules(const FileRules &) = delete;
    FileRules &operator=(const FileRules &) = delete;

    /// A file, or a folder with all that is in it; one that is not there is none.
    void allowReading(const QString &path);
    /// A folder in which files and folders may be made, changed and removed; neither links nor devices.
    void allowChanging(const QString &folder);
    /// Returns true when the system does not offer it.
    [[nodiscard]] bool enforce();

private:
    void allow(const QString &path, unsigned long long rights);

    int m_rules = -1;
    unsigned long long m_handled = 0;
};
