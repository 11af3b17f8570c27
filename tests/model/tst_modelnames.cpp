// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelNames.h"

#include <QTemporaryDir>
#include <QtTest>

class TestModelNames : public QObject
{
    Q_OBJECT

private slots:
    void comesBack()
    {
        ModelNames names;
        names.bones = {{10, QStringLiteral("tail \"tip\"")}, {2, QStringLiteral("Kopf ä")}};
        names.animations = {{-1, QStringLiteral("walk")}};
        const QByteArray json = names.toJson();
        QVERIFY(json.indexOf("\"2\"") < json.indexOf("\"10\""));
        ModelNames read;
        QVERIFY(!read.fromJson(json));
        QCOMPARE(read.bones, names.bones);
        QCOMPARE(read.animations, names.animations);
        QVERIFY(!read.fromJson(ModelNames().toJson()));
        QVERIFY(read.isEmpty());
    }

    void onlyWhatIsAName()
    {
        ModelNames names;
        QVERIFY(!names.fromJson(R"({"bones": {"x": "no number", "1": 5, "2": " \n", "3": " a\tb "}})"));
        QCOMPARE(names.bones, (QHash<int, QString>{{3, QStringLiteral("a b")}}));
        QVERIFY(names.fromJson("{\"bones\""));
        QVERIFY(names.fromJson("[]"));
        QCOMPARE(names.bones.size(), 1);
    }

    void files()
    {
        const QTemporaryDir folder;
        const QString path = ModelNames::pathFor(folder.filePath(QStringLiteral("a.b.skinnedmesh")));
        QCOMPARE(path, folder.filePath(QStringLiteral("a.b.names.json")));
        ModelNames names;
        QString reason;
        QVERIFY(!names.read(path, &reason));
        QVERIFY(names.isEmpty() && reason.isEmpty());
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("{") == 1);
        file.close();
        QVERIFY(names.read(path, &reason));
        QVERIFY2(reason.contains(path), qPrintable(reason));
    }
};

QTEST_GUILESS_MAIN(TestModelNames)
#include "tst_modelnames.moc"
