// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SaveGuard.h"

#include "Document.h"
#include "FileSystem.h"
#include "Files.h"
#include "SavePath.h"
#include "Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>

namespace {
constexpr int MostLinks = 40; // as the system follows them

/// The file that would be written, links followed, those too that lead to where nothing stands yet, and those
/// of the folders around it.
QString realPath(const QString &path, int links = MostLinks)
{
    const QFileInfo file(QDir().absoluteFilePath(path));
    if (file.exists())
        return file.canonicalFilePath();
    if (links > 0 && file.isSymLink())
        return realPath(file.symLinkTarget(), links - 1);
    if (file.path() == file.filePath())
        return file.filePath(); // a root that is away
    return QDir::cleanPath(realPath(file.path(), links) + QLatin1Char('/') + file.fileName());
}

/// Where a file stands below a folder; empty when it stands elsewhere.
QString below(const QString &folder, const QString &file)
{
    if (folder.isEmpty())
        return {};
    const QString relative = QDir(folder).relativeFilePath(file);
    const bool isElsewhere = relative == QLatin1String("..") || relative.startsWith(QLatin1String("../")) ||
                             QDir::isAbsolutePath(relative);
    return isElsewhere ? QString() : relative;
}

QString realFolder(const SettingKey<QString> &key)
{
    const QString folder = key.value();
    return folder.isEmpty() ? QString() : QFileInfo(folder).canonicalFilePath();
}
} // namespace

SaveGuard::SaveGuard(QWidget *window)
    : m_window(window)
{}

QString SaveGuard::placeInGame(const QString &path)
{
    if (path.isEmpty())
        return {}; // never saved
    const QString archived = Files::placeInArchive(path);
    if (!archived.isEmpty())
        return archived;
    const QString file = realPath(path);
    const QString game = realFolder(Settings::GamePath);
    const QString mod = realFolder(Settings::OutputDir);
    const bool isMods = mod.size() >= game.size() && !below(mod, file).isEmpty();
    return isMods ? QString() : below(game, file);
}

QString SaveGuard::placeInMod(const QString &path)
{
    if (path.isEmpty())
        return {}; // never saved
    // What a link in the mod leads to is seen in the link's place.
    const QString named = below(Settings::OutputDir.value(), path);
    return named.isEmpty() ? below(realFolder(Settings::OutputDir), realPath(path)) : named;
}

QString SaveGuard::modPath(const QString &path)
{
    const QString place = placeInGame(path);
    const QString mod = Settings::OutputDir.value();
    if (place.isEmpty() || mod.isEmpty() || !QFileInfo(mod).isDir())
        return {};
    QString there = QDir::cleanPath(mod);
    for (const QString &part : place.split(QLatin1Char('/')))
        there = Files::trueCase(QDir(there).filePath(part), there.size()); // beside what the mod has
    return below(mod, there).isEmpty() ? QString() : there;
}

QString SaveGuard::allowed(const Document &document, const QString &path)
{
    return withNames(document, allowed({document.path(), document.fileStamp()}, path));
}

QString SaveGuard::intoMod(const Document &document, const QString &path)
{
    return withNames(document, freeInMod(path));
}

QString SaveGuard::withNames(const Document &document, const QString &path) const
{
    const QString names = path.isEmpty() ? QString() : document.replacedBeside(path);
    return names.isEmpty() || mayReplace(m_window, tr("Save"), names) ? path : QString();
}

QString SaveGuard::allowed(const OpenFile &file, const QString &path)
{
    if (isInGame(path) && !m_overwritten.contains(FileSystem::comparable(realPath(path)))) {
        const QString answer = askAboutGame(path, modPath(path));
        if (answer != path)
            return answer;
    }
    const FileStamp now = FileStamp::of(path);
    if (FileSystem::isSamePath(path, file.path) && now.exists() && now != file.stamp &&
        !mayReplaceChanged(path))
        return {};
    return path;
}

QString SaveGuard::freeInMod(const QString &path)
{
    // A link there, of the file or of a folder, can lead back.
    const bool leadsBack = isInGame(path);
    if (!leadsBack && QFileInfo::exists(path) && !mayReplace(m_window, tr("Save"), path))
        return {};
    const QString target = leadsBack ? askAboutGame(path, path) : path;
    if (!target.isEmpty())
        QDir().mkpath(QFileInfo(target).path()); // or saving says why not
    return target;
}

bool SaveGuard::mayReplaceChanged(const QString &path) const
{
    // By this program, too, where the work was restored.
    const QString question = tr("'%1' has changed since this work began. Replace it by what is open here?")
                                 .arg(QDir::toNativeSeparators(path));
    return QMessageBox::question(m_window, tr("Save"), question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

QString SaveGuard::askAboutGame(const QString &path, const QString &inMod)
{
    const bool isArchived = !Files::archiveOf(path).isEmpty();
    const bool leadsBack = isInGame(inMod);
    const QString mod = leadsBack ? QString() : inMod;
    QMessageBox box(QMessageBox::Question, tr("Save"),
                    (isArchived ? tr("'%1' stands in an archive, which is never written.")
                                : tr("'%1' belongs to the game folder."))
                        .arg(QDir::toNativeSeparators(path)),
                    QMessageBox::Cancel, m_window);
    const QString native = QDir::toNativeSeparators(inMod);
    box.setInformativeText(
        leadsBack       ? tr("In the mod folder a link in its place leads back there:\n%1").arg(native)
        : mod.isEmpty() ? tr("There is no mod folder that it could be saved into; the options set one.")
                        : tr("In the mod folder it would be\n%1").arg(native));
    const QPushButton *overwrite =
        isArchived ? nullptr : box.addButton(tr("&Overwrite"), QMessageBox::DestructiveRole);
    const QPushButton *save = nullptr;
    box.setDefaultButton(QMessageBox::Cancel);
    box.setEscapeButton(QMessageBox::Cancel);
    if (!mod.isEmpty()) {
        auto *button = box.addButton(tr("Save into the &Mod"), QMessageBox::AcceptRole);
        box.setDefaultButton(button);
        save = button;
    }
    box.exec();
    if (save && box.clickedButton() == save)
        return freeInMod(mod);
    if (!overwrite || box.clickedButton() != overwrite)
        return {};
    m_overwritten.insert(FileSystem::comparable(realPath(path)));
    return path;
}
