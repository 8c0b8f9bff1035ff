// The files of the fuzzer's corpus, each taken up once, with every rule that the fuzzer checks.

#include "ImportRig.h"

#include <QDir>
#include <QtTest>

#include <memory>

class TestCorpus : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { rig = std::make_unique<ImportRig>(); }
    void cleanupTestCase() { rig.reset(); }

    void everyRuleHolds_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(QStringLiteral(SORVANE_CORPUS));
        for (const QString& name : folder.entryList(QDir::Files))
            QTest::newRow(qPrintable(name)) << folder.filePath(name);
    }

    void everyRuleHolds()
    {
        QFETCH(QString, path);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList wrong = rig->run(file.readAll(), ImportRig::Depth::thorough);
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
        takenUp += rig->wasTakenUp() ? 1 : 0;
        refused += rig->wasTakenUp() ? 0 : 1;
    }

    void bothKindsWereThere()
    {
        QVERIFY2(takenUp >= 20, qPrintable(QString::number(takenUp)));
        QVERIFY2(refused >= 3, qPrintable(QString::number(refused)));
    }

    void theFactoryItself()
    {
        QCOMPARE(rig->run(rig->factoryFile(), ImportRig::Depth::thorough), QStringList());
    }

private:
    std::unique_ptr<ImportRig> rig;
    int takenUp = 0, refused = 0;
};

QTEST_MAIN(TestCorpus)
#include "test_corpus.moc"
