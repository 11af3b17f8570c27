// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderWalk.h"

#include "RawNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <vector>

namespace {
struct Place
{
    QString path;
    QString canonical;
    int number;
};

struct Link
{
    QString path;
    int parent;
};

class Walk
{
public:
    explicit Walk(const std::function<bool(const FolderEntry &)> &visit)
        : m_visit(visit)
    {}

    void go(const QString &folder)
    {
        if (!QFileInfo(folder).isDir())
            return;
        // That of a root, "/" or "C:/".
        const auto withoutSlash = [](const QString &path) {
            return path.endsWith(QLatin1Char('/')) ? path.chopped(1) : path;
        };
        const QString root = withoutSlash(QFileInfo(folder).canonicalFilePath());
        if (!tree({withoutSlash(QDir::cleanPath(folder)), root, m_folders}))
            return;
        // What a link leads to may hold further ones.
        while (!m_links.empty()) {
            std::vector<Link> links;
            links.swap(m_links);
            std::sort(links.begin(), links.end(),
                      [](const Link &a, const Link &b) { return a.path < b.path; });
            for (const Link &link : links) {
                const QString target = QFileInfo(link.path).canonicalFilePath();
                const bool leadsUp =
                    (root + QLatin1Char('/')).startsWith(withoutSlash(target) + QLatin1Char('/'));
                if (leadsUp || m_seen.contains(target))
                    continue;
                if (!m_visit({link.path, link.parent, true}) || !tree({link.path, target, ++m_folders}))
                    return;
            }
        }
    }

private:
    /// A folder with everything below it but links to folders, which are noted.
    bool tree(const Place &top)
    {
        std::vector<Place> places{top};
        while (!places.empty()) {
            const Place place = std::move(places.back());
            places.pop_back();
            m_seen.insert(place.canonical);
            const int nameStart = place.path.size() + 1;
            // Without its slash a root is the folder that is current there.
            const bool isRoot = place.path.isEmpty() || place.path.endsWith(QLatin1Char(':'));
            QDirIterator it(isRoot ? place.path + QLatin1Char('/') : place.path,
                            QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
            while (it.hasNext()) {
                const QString path = it.next();
                const QFileInfo info = it.fileInfo();
                const bool isFolder = info.isDir();
                if (isFolder && info.isSymLink()) {
                    m_links.push_back({path, place.number});
                    continue;
                }
                if (isFolder) {
                    QString canonical = place.canonical + QLatin1Char('/') + path.midRef(nameStart);
                    if (m_seen.contains(canonical)) // by a link before
                        continue;
                    places.push_back({path, std::move(canonical), ++m_folders});
                }
                if (!m_visit({path, place.number, isFolder}))
                    return false;
            }
        }
        return true;
    }

    const std::function<bool(const FolderEntry &)> &m_visit;
    int m_folders = 0;
    QSet<QString> m_seen; ///< canonical paths
    std::vector<Link> m_links;
};
} // namespace

void walkFolder(const QString &folder, const std::function<bool(const FolderEntry &)> &visit)
{
    Walk(visit).go(folder);
}

QString reasonOfGaps(const QString &folder)
{
    if (!QFileInfo(folder).isDir())
        return {};
    if (!mayBeWalked(folder))
        return QCoreApplication::translate("FolderWalk", "The folder cannot be read.");
    const QString name = nameWithoutText(folder);
    return name.isEmpty() ? QString()
                          : QCoreApplication::translate("FolderWalk",
                                                        "The name of '%1' is no text in the encoding of this "
                                                        "system, so the file is passed over. Rename it.")
                                .arg(name);
}
