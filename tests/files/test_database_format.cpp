// The page about the file names the keys that there are, and its example works.

#include "DocumentFixture.h"

#include "library/HeaderInfo.h"
#include "library/LibraryInfo.h"
#include "library/SettingsStore.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

namespace {

using Keys = QSet<QString>;

const QString category = QStringLiteral("1 - Mine");
const QString hirajoshi = QStringLiteral("xoxxoooxxooo");
const QString minorPentatonic = QStringLiteral("xooxoxoxooxo");

QString page()
{
    QFile file(SORVANE_DOCS "/database-format.md");
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The page from a heading to the next of that rank.
QString sectionOf(const QString& heading)
{
    return page().section("\n## " + heading + '\n', 1).section(QStringLiteral("\n## "), 0, 0);
}

Keys keysOfTables(const QString& heading)
{
    static const QRegularExpression row(QStringLiteral("^\\| `([^`]+)`"),
                                        QRegularExpression::MultilineOption);
    Keys keys;
    auto found = row.globalMatch(sectionOf(heading));
    while (found.hasNext())
        keys.insert(found.next().captured(1).remove(QStringLiteral("NAME"))); // of a port
    return keys;
}

QJsonObject schema()
{
    QFile file(SORVANE_DOCS "/database.schema.json");
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object() : QJsonObject();
}

/// The names of the properties, and those prefixes that patterns begin with.
Keys keysOfSchema(const QJsonObject& object)
{
    Keys keys;
    for (const QString& name : object.value("properties").toObject().keys())
        keys.insert(name);
    for (const QString& pattern : object.value("patternProperties").toObject().keys())
        keys.insert(pattern.mid(1)); // behind the ^
    return keys;
}

Keys keysOfDefinition(const char* name)
{
    return keysOfSchema(schema().value("$defs").toObject().value(QLatin1String(name)).toObject());
}

Keys asSet(const QStringList& names)
{
    return {names.begin(), names.end()};
}

QJsonObject exampleOfPage()
{
    const QString block = page().section(QStringLiteral("```json\n"), 1).section(QStringLiteral("```"), 0, 0);
    return QJsonDocument::fromJson(block.toUtf8()).object();
}

} // namespace

class TestDatabaseFormat : public DocumentFixture
{
    Q_OBJECT

private slots:
    void pageAndSchemaAndProgramNameTheSameKeys();
    void exampleDoesWhatThePageSays();
};

void TestDatabaseFormat::pageAndSchemaAndProgramNameTheSameKeys()
{
    QCOMPARE(keysOfTables("The root"), keysOfSchema(schema()));
    QCOMPARE(keysOfTables("A scale"), keysOfDefinition("scaleObject"));
    QCOMPARE(keysOfTables("A preset"), keysOfDefinition("headerObject"));
    QCOMPARE(keysOfTables("A scale"), asSet(LibraryInfo().keys));
    QCOMPARE(keysOfTables("A preset"), asSet(HeaderInfo(true).keys));
    tonic().setSwitchOff(true); // which adds a key
    SettingsStore::registerDefaultValues();
    Keys written = asSet(exportRoot().keys()) + asSet(defaultKeys);
    QCOMPARE(keysOfTables("The root") - written, Keys());
    written.remove(QString()); // as the reading of a faulty table would give
    for (const QString& key : qAsConst(written))
        QVERIFY2(keysOfTables("The root").contains(key) || key.startsWith("Midi"), qPrintable(key));
}

void TestDatabaseFormat::exampleDoesWhatThePageSays()
{
    const QJsonObject example = exampleOfPage();
    QVERIFY(!example.isEmpty());
    const QStringList before = {asText(record(30)), asText(record(106))};
    importRoot(example);
    QCOMPARE(library().categories(), QVector<QString>({category, "2 - To be filled"}));
    QCOMPARE(library().scalesFromCategory(category), QList<QString>({hirajoshi, minorPentatonic}));
    QVERIFY(library().isEmptyCategory("2 - To be filled"));
    QCOMPARE(tonic().tonicModifier(), QString("D"));
    QCOMPARE(scale().scaleModifier(), hirajoshi);
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(target(60), 62); // middle C plays D
    QCOMPARE(target(62), 64);
    QCOMPARE(target(64), 65);
    QCOMPARE(target(65), 69);
    QCOMPARE(names(header(22)), QStringList({"KOTO", "Hira."}));
    QCOMPARE(fields(record(25)), fields({"", "", "A", on, "A", off, ""}));
    QCOMPARE(fields(record(27)), fields({"PENTA", "Min.Pt", "", off, "", on, minorPentatonic}));
    QCOMPARE(QStringList({asText(record(30)), asText(record(106))}), before);
}

QTEST_MAIN(TestDatabaseFormat)
#include "test_database_format.moc"
