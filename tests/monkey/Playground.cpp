// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Playground.h"

#include "FormatMutator.h"
#include "Settings.h"
#include "TestSupport.h"

#include <algorithm>

namespace {
constexpr qint64 LargestForeignFolder = 48 * 1024;
constexpr int MutantsKept = 12;

const QString OwnNames[] = {"*.skinnedmesh", "*.anim", "*.staticmesh"};
const QStringList ModelFolders{"/game", "/mod", "/import", "/damaged"};

void copyTree(const QString &from, const QString &to)
{
    QDir().mkpath(to);
    QDirIterator walk(from, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        const QString copy = to + path.mid(from.size());
        QDir().mkpath(QFileInfo(copy).path());
        if (QFile::copy(path, copy))
            QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
    }
}

qint64 sizeOf(const QString &folder)
{
    qint64 size = 0;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        size += walk.fileInfo().size();
    }
    return size;
}

/// Cut off, or with some bytes that others stand for.
QByteArray damaged(QByteArray bytes, Dice &dice)
{
    if (bytes.isEmpty())
        return bytes;
    if (dice.chance(30))
        return bytes.left(dice.below(bytes.size()));
    // Near the beginning stand the counts.
    const int reach = dice.chance(50) ? std::min(bytes.size(), 400) : bytes.size();
    for (int i = dice.between(1, 8); i > 0; --i)
        bytes[dice.below(reach)] = dice.chance(30) ? char(0xFF) : char(dice.below(256));
    return bytes;
}
} // namespace

Playground::Playground()
    : m_folder(QDir::tempPath() + QStringLiteral("/korvane-monkey-XXXXXX"))
    , m_root(QFileInfo(m_folder.path()).canonicalFilePath())
{
    if (m_root.isEmpty())
        qFatal("cannot make a folder in %s", qPrintable(QDir::tempPath()));
    const QDir root(m_root);
    for (const char *name : {"config", "data", "cache", "state", "tmp", "damaged", "import"})
        root.mkpath(QLatin1String(name));
    for (const QString &from :
         {TestSupport::source(QStringLiteral("samples")), TestSupport::shared(QStringLiteral("gamedata"))}) {
        if (from.isEmpty())
            continue;
        for (const char *name : {"/game", "/mod"})
            copyTree(from + QLatin1String(name), m_root + QLatin1String(name));
    }
    const QString foreign = TestSupport::shared(QStringLiteral("models"));
    QDirIterator models(foreign, QDir::Dirs | QDir::NoDotAndDotDot);
    while (!foreign.isEmpty() && models.hasNext()) {
        const QString from = models.next();
        if (sizeOf(from) <= LargestForeignFolder)
            copyTree(from, m_root + QStringLiteral("/import/") + models.fileName());
    }
    TestSupport::writeFile(m_root + QStringLiteral("/import/triangle.obj"),
                           "v 0 0 0\nv 1 0 0\nv 0 1 0\nvt 0 0\nvt 1 0\nvt 0 1\nf 1/1 2/2 3/3\n");
    TestSupport::writeFile(m_root + QStringLiteral("/import/readme.txt"), "No model.\n");

    const std::pair<const char *, const char *> homes[] = {{"HOME", ""},
                                                           {"XDG_CONFIG_HOME", "/config"},
                                                           {"XDG_DATA_HOME", "/data"},
                                                           {"XDG_CACHE_HOME", "/cache"},
                                                           {"XDG_STATE_HOME", "/state"},
                                                           {"TMPDIR", "/tmp"}};
    for (const auto &[variable, name] : homes)
        qputenv(variable, QFile::encodeName(m_root + QLatin1String(name)));
    QDir::setCurrent(m_root);
}

QString Playground::shortName(const QString &path) const
{
    QString text = path;
    return text.replace(m_root, QStringLiteral("~"));
}

void Playground::storeSettings() const
{
    const QString game = m_root + QStringLiteral("/game");
    Settings::GamePath.setValue(game);
    Settings::OutputDir.setValue(m_root + QStringLiteral("/mod"));
    Settings::SkinnedMeshExplorePath.setValue(game + QStringLiteral("/models"));
    Settings::AnimationExplorePath.setValue(game + QStringLiteral("/anims"));
    Settings::StaticMeshExplorePath.setValue(game + QStringLiteral("/models"));
    // Nobody listens there, and nothing leaves the machine.
    Settings::Updates.setValue(false);
    Settings::UpdateUrl.setValue(QStringLiteral("https://127.0.0.1:1/release"));
    Settings::MasterServerHost.setValue(QStringLiteral("127.0.0.1"));
    Settings::MasterServerPort.setValue(1);
    Settings::ImportTimeLimit.setValue(15);
}

QString Playground::anyOf(const QStringList &folders, const QString &name, Dice &dice) const
{
    QStringList found;
    for (const QString &folder : folders) {
        QDirIterator walk(m_root + folder, {name}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            found += walk.next();
    }
    found.sort();
    return found.isEmpty() ? m_root + QStringLiteral("/nothing") : dice.pick(found);
}

QString Playground::anyFile(Dice &dice) const
{
    return dice.chance(70) ? model(dice) : anyOf(ModelFolders, QStringLiteral("*"), dice);
}

QString Playground::model(Dice &dice) const
{
    return anyOf(ModelFolders, dice.pick(OwnNames), dice);
}

QString Playground::foreignModel(Dice &dice) const
{
    return anyOf({QStringLiteral("/import")}, QStringLiteral("*"), dice);
}

QString Playground::damagedModel(Dice &dice)
{
    const QString from = model(dice);
    // A few names, used again: one of the files may be open.
    const QString to = QStringLiteral("%1/damaged/%2.%3")
                           .arg(m_root, QString::number(m_damaged++ % 12), QFileInfo(from).suffix());
    TestSupport::writeFile(to, damaged(TestSupport::readFile(from), dice));
    return to;
}

QString Playground::mutant(int number, Dice &dice) const
{
    const QString from = model(dice);
    const QString suffix = QFileInfo(from).suffix();
    const QString name = QStringLiteral("%1/damaged/mutant %2.").arg(m_root);
    for (const QString &old : OwnNames)
        QFile::remove(name.arg(number - MutantsKept) + old.mid(2));
    const QString to = name.arg(number) + suffix;
    TestSupport::writeFile(to, FormatMutator(dice.next()).mutated(suffix, TestSupport::readFile(from)));
    return to;
}

QString Playground::folder(Dice &dice) const
{
    const char *const names[] = {"/game",       "/mod",     "/game/models", "/game/anims",
                                 "/mod/models", "/damaged", "/empty",       "/not there"};
    return m_root + QLatin1String(dice.pick(names));
}

QString Playground::tamperWith(const QString &path, Dice &dice) const
{
    const QByteArray bytes = TestSupport::readFile(path);
    switch (dice.below(5)) {
    case 0:
        TestSupport::writeFile(path, bytes.left(dice.below(bytes.size())));
        return QStringLiteral("cut");
    case 1:
        TestSupport::writeFile(path, bytes + QByteArray(dice.between(1, 100), char(dice.below(256))));
        return QStringLiteral("append to");
    case 2:
        TestSupport::writeFile(path, damaged(bytes, dice));
        return QStringLiteral("damage");
    case 3:
        TestSupport::writeFile(
            path, TestSupport::readFile(anyOf(ModelFolders, QString("*.") + QFileInfo(path).suffix(), dice)));
        return "replace";
    default:
        QFile::remove(path);
        return QStringLiteral("remove");
    }
}
