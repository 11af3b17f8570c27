// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TexturesAhead.h"

#include "Settings.h"
#include "TestSupport.h"
#include "TextureImages.h"

#include <QSignalSpy>

#include <optional>

/// Textures that are decoded while the window is still being built.
class tst_TexturesAhead : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home.emplace();
        TestSupport::useSettingsHome(*m_home);
        for (const char *folder : {"materials", "textures"})
            QVERIFY(QDir(m_home->path()).mkpath(QLatin1String(folder)));
        for (const QString &name :
             m_pictures + QStringList{"materials/mat_tinker.kmat", "materials/mat_crate.kmat"})
            QVERIFY(
                QFile::copy(TestSupport::source(QString("samples/game/") + name), m_home->filePath(name)));
        Settings::GamePath.setValue(m_home->path());
    }

    void decodesWhatTheModelsShow()
    {
        TexturesAhead(m_models + QStringList{TestSupport::source("samples/game/anims/tinker/tinker.anim"),
                                             m_home->filePath("nowhere.txt")})
            .wait();
        checkDecoded({true, true});
    }

    void decodesNeighboursUntilOthersAreExpected()
    {
        NeighboursAhead ahead(nullptr);
        QSignalSpy done(&ahead, &NeighboursAhead::done);
        ahead.expect({m_models[0]});
        ahead.expect({m_home->filePath("nowhere.txt"), m_models[1]});
        QVERIFY(done.wait());
        checkDecoded({false, true});
    }

private:
    /// What can still be shown when the files are as they were for all that the program can tell, but hold no
    /// picture any more, was decoded.
    void checkDecoded(const QVector<bool> &decoded)
    {
        for (int i = 0; i < decoded.size(); ++i) {
            QFile file(m_home->filePath(m_pictures[i]));
            const QDateTime changed = QFileInfo(file).lastModified();
            QVERIFY(file.open(QIODevice::ReadWrite));
            file.write(QByteArray(int(file.size()), '\0'));
            file.flush();
            QVERIFY(file.setFileTime(changed, QFileDevice::FileModificationTime));
            file.close();
            QVERIFY2(QImage(file.fileName()).isNull(), qPrintable(m_pictures[i]));
            QCOMPARE(!TextureImages::load(file.fileName()).isNull(), decoded[i]);
        }
    }

    std::optional<QTemporaryDir> m_home;
    const QStringList m_pictures{"textures/tinker.png", "textures/crate.png"};
    const QStringList m_models{TestSupport::source("samples/game/models/tinker/tinker.skinnedmesh"),
                               TestSupport::source("samples/game/models/crate/crate.staticmesh")};
};

QTEST_GUILESS_MAIN(tst_TexturesAhead)
#include "tst_texturesahead.moc"
