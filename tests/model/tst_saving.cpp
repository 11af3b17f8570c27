// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "KMat.h"
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "TestSupport.h"
#include "WholeFile.h"

#include <cerrno>
#include <dlfcn.h>
#include <unistd.h>

using namespace SampleModels;

namespace {
const QByteArray OldBytes = "the work of a week";

/// While one lives, the last step fails: no file takes another one's place, or there turns out to be no room
/// for what was taken.
struct Refusal
{
    explicit Refusal(bool &what)
        : m_what(what)
    {
        m_what = true;
    }
    ~Refusal() { m_what = false; }

private:
    bool &m_what;
};
bool s_noRename = false;
bool s_noRoom = false;

/// A model of `suffix` ready to be saved, a material table, or mere bytes, as of a picture.
using Save = std::function<bool(const QString &path)>;

Save saverOf(const QString &suffix, bool large)
{
    if (suffix == QLatin1String("kmat")) {
        MaterialTable table;
        for (int i = 0; i < (large ? 3000 : 1); ++i)
            table[QString::number(i)] = QStringLiteral("textures/t.png");
        return [table](const QString &path) { return !writeKMat(path, table).isEmpty(); };
    }
    if (suffix == QLatin1String("png")) {
        const QByteArray bytes(large ? 600000 : 600, 'x');
        return [bytes](const QString &path) { return !writeWholeFile(path, bytes).isEmpty(); };
    }
    Save save;
    withModel(suffix, [&save, large](auto model) {
        model = large ? longModel<decltype(model)>(20000) : oddModel<decltype(model)>();
        save = [model](const QString &path) { return model.write(path); };
    });
    return save;
}
} // namespace

// Stands before the system's own function, for the libraries too.
extern "C" int rename(const char *from, const char *to) noexcept
{
    if (s_noRename) {
        errno = EPERM;
        return -1;
    }
    static const auto next =
        reinterpret_cast<int (*)(const char *, const char *)>(dlsym(RTLD_NEXT, "rename"));
    return next(from, to);
}

extern "C" int fsync(int)
{
    errno = ENOSPC;
    return s_noRoom ? -1 : 0;
}

/// Saving that cannot succeed says so, leaves the old file byte for byte and nothing beside it.
class TestSaving : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("suffix");
        for (const QString &suffix : suffixes() + QStringList{"kmat", "png"})
            QTest::newRow(qPrintable(suffix)) << suffix;
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(TestSupport::writeFile(path(), OldBytes));
    }

    void fullDisk()
    {
        QFETCH_GLOBAL(QString, suffix);
        // A small file goes out in one piece at the very end, a large one in several.
        for (bool large : {false, true}) {
            const Save save = saverOf(suffix, large);
            const QString reference = m_folder->filePath(QStringLiteral("reference"));
            QVERIFY(!save(reference));
            const qint64 size = QFileInfo(reference).size();
            QVERIFY(QFile::remove(reference));
            QVERIFY(large ? size > 512 * 1024 : size < 4096);

            const qint64 step = large ? size / 40 : 1;
            for (qint64 limit = 0; limit < size; limit = limit + step < size ? limit + step : size - 1) {
                bool failed = false;
                {
                    const FullDisk disk(limit);
                    QVERIFY(disk.isSet());
                    failed = save(path());
                }
                QVERIFY2(failed, qPrintable(QString::number(limit)));
                QVERIFY2(oldFileIsIntact(), qPrintable(QString::number(limit)));
                if (limit == size - 1)
                    break;
            }
            const FullDisk justEnough(size);
            QVERIFY(!save(m_folder->filePath(QStringLiteral("fits"))));
            QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("fits"))));
        }
    }

    void readOnlyFolder()
    {
        QFETCH_GLOBAL(QString, suffix);
        const Save save = saverOf(suffix, false);
        // The file itself may be written: it is still not overwritten in place.
        QFile::setPermissions(path(), QFile::Permissions(0x6666));
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x5555));
        // Root may write everywhere, so someone else does the saving.
        const bool root = geteuid() == 0;
        if (root && seteuid(65534) != 0)
            QSKIP("runs as root and cannot be anybody else");
        const bool writable = access(QFile::encodeName(m_folder->path()).constData(), W_OK) == 0 && !root;
        const bool failed = save(path());
        if (root)
            QCOMPARE(seteuid(0), 0);
        QFile::setPermissions(m_folder->path(), QFile::Permissions(0x7777));
        if (writable)
            QSKIP("permissions do not hold here");
        QVERIFY(failed);
        QVERIFY(oldFileIsIntact());
    }

    void refusedAtTheEnd()
    {
        QFETCH_GLOBAL(QString, suffix);
        for (bool large : {false, true}) {
            const Save save = saverOf(suffix, large);
            for (bool *what : {&s_noRename, &s_noRoom}) {
                const Refusal none(*what);
                QVERIFY(save(path()));
                QVERIFY(oldFileIsIntact());
            }
        }
        QVERIFY(!saverOf(suffix, false)(path()));
        QVERIFY(TestSupport::readFile(path()) != OldBytes);
    }

    void noFileToReplace()
    {
        QFETCH_GLOBAL(QString, suffix);
        const Save save = saverOf(suffix, false);
        const QString pipe = SpecialFiles::pipe(m_folder->filePath(QStringLiteral("pipe")));
        QVERIFY(save(pipe) && !QFileInfo(pipe).isFile());
        QVERIFY(QFile::remove(pipe));
        QVERIFY(save(QStringLiteral("/dev/null")));
        QVERIFY(save(path() + QStringLiteral("/below a file")));
        QVERIFY(save(QString()));
        QVERIFY(oldFileIsIntact());
        QVERIFY(save(m_folder->path()));
        const QString gone = m_folder->path();
        QVERIFY(m_folder->remove());
        QVERIFY(save(path()));
        QVERIFY(!QFile::exists(gone));
    }

    void draftsAreReadBack()
    {
        const auto readBack = [](const auto &model) {
            BinaryFileWriter writer;
            model.writeDraft(writer);
            auto back = std::decay_t<decltype(model)>();
            if (readBytes(back, bytesOf(writer)))
                qFatal("a draft cannot be read");
            return back;
        };
        SkinnedMesh mesh = skinnedMesh();
        mesh.surfaces[0].triangleIndexes = {1, SkinnedMesh::IndexTerminator, 0, 1};
        QVERIFY(!mesh.refusal().isEmpty());
        QCOMPARE(readBack(mesh).surfaces[0].triangleIndexes, (std::vector<quint16>{1, 65534, 0, 1}));
        QCOMPARE(readBack(mesh).vertices.size(), mesh.vertices.size());
        mesh.nodes.clear();
        QCOMPARE(readBack(mesh).surfaces.size(), mesh.surfaces.size());

        StaticMesh rigid = staticMesh();
        rigid.surfaces[0].triangleIndexes = {0, 1, 2, 1};
        QCOMPARE(readBack(rigid).surfaces[0].triangleIndexes, (std::vector<quint16>{0, 1, 2, 1, 1, 1}));
        QCOMPARE(readBack(rigid).vertices.size(), rigid.vertices.size());
        rigid.surfaces.clear();
        QVERIFY(!rigid.refusal().isEmpty());
        QCOMPARE(readBack(rigid).vertices.size(), rigid.vertices.size());
        QVERIFY(readBack(AnimFile()).blocks.empty());
    }

private:
    QString path() const { return m_folder->filePath(QStringLiteral("model")); }
    bool oldFileIsIntact() const
    {
        return TestSupport::readFile(path()) == OldBytes &&
               QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden) == QStringList("model");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_GUILESS_MAIN(TestSaving)
#include "tst_saving.moc"
