// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QTextStream>

namespace {
QString declareMaterial(QTextStream &words, const QString &path, MaterialTable &table,
                        MaterialTable::iterator &current)
{
    QString name;
    words >> name;
    if (table.count(name) != 0) {
        return QCoreApplication::translate(
                   "ModelFiles",
                   ".kMat file has a material with the same name - %1. The file may be invalid - %2")
            .arg(name, path);
    }
    current = table.emplace(name, QString()).first;
    return {};
}

QString setTexture(QTextStream &words, const QString &path, MaterialTable &table,
                   const MaterialTable::iterator &current)
{
    QString samplerName;
    int textureUnit = 0;
    QString texturePath;
    // A unit that is no number is not consumed: it is then the path.
    words >> samplerName >> textureUnit >> texturePath;
    if (current == table.end()) {
        return QCoreApplication::translate(
                   "ModelFiles",
                   ".kMat file read a texture path with no material set. The file may be invalid - %1")
            .arg(path);
    }
    current->second = texturePath.remove(QLatin1Char('"'));
    return {};
}

QString readMaterials(QIODevice &text, const QString &path, MaterialTable &table)
{
    QTextStream lines(&text);
    lines.setCodec("UTF-8");
    auto current = table.end();
    QString line;
    QString word;
    QTextStream words;
    while (lines.readLineInto(&line)) {
        if (line.startsWith(QLatin1String("//")))
            continue;
        words.setString(&line, QIODevice::ReadOnly);
        for (words >> word; !word.isEmpty(); words >> word) {
            QString error;
            if (word == QLatin1String("material"))
                error = declareMaterial(words, path, table, current);
            else if (word == QLatin1String("sampler"))
                error = setTexture(words, path, table, current);
            if (!error.isEmpty())
                return error;
        }
    }
    return {};
}
} // namespace

QString readKMat(QIODevice &text, const QString &path, MaterialTable &table)
{
    table.clear();
    const QString error = readMaterials(text, path, table);
    if (!error.isEmpty())
        table.clear();
    return error;
}

QString readKMat(const QString &path, MaterialTable &table)
{
    return readKMat(QStringList(path), table);
}

QString readKMat(const QStringList &candidates, MaterialTable &table)
{
    for (const QString &path : candidates) {
        QFile file(path);
        // Opening a pipe would wait for a writer for ever.
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
            continue;
        return readKMat(file, path, table);
    }
    table.clear();
    return QCoreApplication::translate("ModelFiles", "Unable to read .kMat file at %1")
        .arg(candidates.isEmpty() ? QString() : candidates.last());
}

bool writeKMat(QIODevice &text, const MaterialTable &table)
{
    QTextStream out(&text);
    out.setCodec("UTF-8");
    for (const auto &[name, texturePath] : table) {
        out << "material " << name << " {\n"
            << "\tcull back\n"
            << "\tparam \"uLimitAlpha\" 0 \"0\"\n"
            << "\tparam \"uReflective\" 0 \"0\"\n"
            << "\tparam \"uPseduoColor\" 0 \"0\"\n" // the game's own spelling
            << "\tsort default\n"
            << "\tdepthtest\n"
            << "\tcolor_environment \"0.000000 0.000000 0.000000 1.000000\"\n"
            << "\tcolor_diffuse \"1.000000 1.000000 1.000000 1.000000\"\n"
            << "\tsampler \"diffuse\" 0 \"" << texturePath << "\" {\n"
            << "\t\tfilter      linear_anisotropic\n"
            << "\t\twrap        repeat\n"
            << "\t}\n"
            << "}\n"
            << "\n";
    }
    out.flush();
    return out.status() != QTextStream::Ok;
}

QString writeKMat(const QString &path, const MaterialTable &table)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text) || writeKMat(file, table) || !file.commit())
        return QCoreApplication::translate("ModelFiles", "Unable to open file for writing - %1").arg(path);
    return {};
}
