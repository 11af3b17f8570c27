// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TexturesAhead.h"

#include "Settings.h"
#include "TestSupport.h"
#include "TextureImages.h"

/// Textures that are decoded while the window is still being built.
class tst_TexturesAhead : public QObject
{
    Q_OBJECT

private slots:
    void decodesWhatTheModelsShow()
    {
        QTemporaryDir home;
        TestSupport::useSettingsHome(home);
        for (const char *folder : {"materials", "textures"})
            QVERIFY(QDir(home.path()).mkpath(QLatin1String(folder)));
        const auto copy = [&home](const QString &name) {
            return QFile::copy(TestSupport::source(QString("samples/game/") + name), home.filePath(name));
        };
        const QStringList pictures{"textures/tinker.png", "textures/crate.png"};
        for (const QString &name :
             pictures + QStringList{"materials/mat_tinker.kmat", "materials/mat_crate.kmat"})
            QVERIFY(copy(name));
        Settings::GamePath.setValue(home.path());

        TexturesAhead({TestSupport::source(QStringLiteral("samples/game/models/tinker/tinker.skinnedmesh")),
                       TestSupport::source(QStringLiteral("samples/game/models/crate/crate.staticmesh")),
                       TestSupport::source(QStringLiteral("samples/game/anims/tinker/tinker.anim")),
                       home.filePath(QStringLiteral("nowhere.txt"))})
            .wait();

        // What can still be shown when the files are as they were for all that the program can tell, but hold
        // no picture any more, was decoded.
        for (const QString &name : pictures) {
            QFile file(home.filePath(name));
            const QDateTime changed = QFileInfo(file).lastModified();
            QVERIFY(file.open(QIODevice::ReadWrite));
            file.write(QByteArray(int(file.size()), '\0'));
            file.flush();
            QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
            file.close();
            QVERIFY2(QImage(file.fileName()).isNull(), qPrintable(name));
            QVERIFY2(!TextureImages::load(file.fileName()).isNull(), qPrintable(name));
        }
    }
};

QTEST_GUILESS_MAIN(tst_TexturesAhead)
#include "tst_texturesahead.moc"
