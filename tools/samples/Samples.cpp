// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Samples.h"

#include "AnimFile.h"
#include "Atlas.h"
#include "FigureMesh.h"
#include "KMat.h"
#include "Props.h"
#include "Tinker.h"

#include <QDir>

namespace {
/// Writes files below one folder and keeps the first error.
class Output
{
public:
    explicit Output(const QString &folder)
        : m_folder(folder)
    {}

    const QString &error() const { return m_error; }

    template <typename Model>
    void model(const QString &path, const Model &model)
    {
        const QString file = prepared(path);
        if (m_error.isEmpty() && model.write(file))
            m_error = QStringLiteral("cannot write %1").arg(file);
    }

    void texture(const QString &path, const QImage &image)
    {
        const QString file = prepared(path);
        if (m_error.isEmpty() && !image.save(file, "PNG", 0))
            m_error = QStringLiteral("cannot write %1").arg(file);
    }

    void materials(const QString &path, const MaterialTable &table)
    {
        const QString file = prepared(path);
        if (m_error.isEmpty())
            m_error = writeKMat(file, table);
    }

private:
    /// The whole path, its folder made.
    QString prepared(const QString &path)
    {
        const QString file = m_folder.filePath(path);
        if (!QDir().mkpath(QFileInfo(file).path()))
            m_error = QStringLiteral("cannot make the folder of %1").arg(file);
        return file;
    }

    QDir m_folder;
    QString m_error;
};

/// Swaps red and blue: a copy that is told from its original at a glance.
QImage recoloured(const QImage &image)
{
    return image.rgbSwapped();
}

void makeTinker(Output &output)
{
    Figure figure = Tinker::makeFigure();
    const QImage body = bakeTexture(figure, Tinker::BodyMaterial, 1024);
    const QImage glow = bakeTexture(figure, Tinker::GlowMaterial, 256);
    const QImage scarf = bakeTexture(figure, Tinker::ScarfMaterial, 128);
    SkinnedMesh mesh = toSkinnedMesh(figure, {"materials/mat_tinker/body", "materials/mat_tinker/glow",
                                              "materials/mat_tinker_scarf/scarf"});
    Tinker::addGameData(mesh);
    output.model("game/models/tinker/tinker.skinnedmesh", mesh);
    output.model("game/anims/tinker/tinker.anim", Tinker::makeAnimations(figure));
    // The body's material file and texture lie in both folders, and the game's are the ones to be shown; the
    // other two textures lie in the mod folder only, the scarf's material file as well.
    for (const char *path : {"game/materials/mat_tinker.kmat", "mod/materials/mat_tinker.kmat"}) {
        output.materials(QLatin1String(path),
                         {{"body", "textures/tinker.png"}, {"glow", "textures/tinker_glow.png"}});
    }
    output.materials("mod/materials/mat_tinker_scarf.kmat", {{"scarf", "textures/tinker_scarf.png"}});
    output.texture("game/textures/tinker.png", body);
    output.texture("mod/textures/tinker.png",
                   recoloured(body).scaled(256, 256, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    output.texture("mod/textures/tinker_glow.png", glow);
    output.texture("mod/textures/tinker_scarf.png", scarf);
}

void makeProps(Output &output)
{
    Figure crate = makeCrate();
    const QImage crateTexture = bakeTexture(crate, 0, 512);
    output.model("game/models/crate/crate.staticmesh", toStaticMesh(crate, {"materials/mat_crate/wood"}));
    output.materials("game/materials/mat_crate.kmat", {{"wood", "textures/crate.png"}});
    output.texture("game/textures/crate.png", crateTexture);

    Figure lantern = makeStreetLantern();
    const QImage post = bakeTexture(lantern, 0, 256);
    const QImage light = bakeTexture(lantern, 1, 64);
    output.model("mod/models/lantern/lantern.staticmesh",
                 toStaticMesh(lantern, {"materials/mat_lantern/post", "materials/mat_lantern/light"}));
    output.materials("mod/materials/mat_lantern.kmat",
                     {{"post", "textures/lantern.png"}, {"light", "textures/lantern_light.png"}});
    output.texture("mod/textures/lantern.png", post);
    output.texture("game/textures/lantern_light.png", light);
}
} // namespace

QString makeSamples(const QString &folder)
{
    // Baking takes seconds: first see whether there is a place for the results.
    for (const char *room : {"game", "mod"}) {
        const QString path = QDir(folder).filePath(QLatin1String(room));
        if (!QDir().mkpath(path))
            return QStringLiteral("cannot make the folder %1").arg(path);
    }
    Output output(folder);
    makeTinker(output);
    makeProps(output);
    return output.error();
}
