// The scales as JSON: what is written, what is read, and what a wrong type reads as.

#include "json_values.h"
#include "library/LibraryInfo.h"

#include <QtTest>

#include <type_traits>

namespace {

const QStringList scaleKeys = {QStringLiteral("Category"), QStringLiteral("Abbr1"),
                               QStringLiteral("Abbr2"),    QStringLiteral("Scale"),
                               QStringLiteral("Title"),    QStringLiteral("LibBody")};

scale_data scaleNamed(const QString& name)
{
    return {name + QStringLiteral(" word"), name + QStringLiteral(" one"), name + QStringLiteral(" two"),
            name + QStringLiteral(" title"), name + QStringLiteral(" body")};
}

QStringList fields(const scale_data& scale)
{
    return {scale.scale, scale.abbr1, scale.abbr2, scale.title, scale.libBody};
}

QJsonArray written(const LibraryInfo& info)
{
    QJsonArray array;
    info.write(array);
    return array;
}

/// "category title", in the map's own order.
QStringList titles(const LibraryInfo& info)
{
    QMap<QString, scale_data> data;
    info.getData(data);
    QStringList lines;
    for (auto entry = data.begin(); entry != data.end(); ++entry)
        lines << entry.key() + QLatin1Char(' ') + entry->title;
    return lines;
}

} // namespace

class TestFileScales : public QObject
{
    Q_OBJECT

private slots:
    void scalesAreJsonInfo();
    void scaleKeysStandInTheirOrder();
    void scaleIsWrittenAsSixStrings();
    void scaleIsReadFieldByField();
    void emptyCategoryIsWrittenAsEmptyStrings();
    void categoriesAreWrittenByTheirNames();
    void categoryIsWrittenFromItsLastScale();
    void readingKeepsTheLastObjectInFront();
    void writingAndReadingTwiceIsTheSame();
    void readingReplacesTheScales();
    void writingAppendsScales();
    void scaleReadsWrongTypesAsEmpty();
    void elementThatIsNoObjectIsAScaleWithoutAnything();
    void nothingIsTestedByReading();
    void scaleDataIsCopiedInAndOut();
};

void TestFileScales::scalesAreJsonInfo()
{
    QVERIFY((std::is_base_of_v<JsonInfo, LibraryInfo>));
    QVERIFY(std::has_virtual_destructor_v<JsonInfo>);
}

void TestFileScales::scaleKeysStandInTheirOrder()
{
    QCOMPARE(LibraryInfo().keys, scaleKeys);
}

void TestFileScales::scaleIsWrittenAsSixStrings()
{
    LibraryInfo info;
    info.setData({{QStringLiteral("c"), scaleNamed(QStringLiteral("a"))}});
    QCOMPARE(written(info), (QJsonArray{QJsonObject{{"Category", "c"},
                                                    {"Scale", "a word"},
                                                    {"Abbr1", "a one"},
                                                    {"Abbr2", "a two"},
                                                    {"Title", "a title"},
                                                    {"LibBody", "a body"}}}));
}

void TestFileScales::scaleIsReadFieldByField()
{
    LibraryInfo info;
    info.read({QJsonObject{{"Category", "c"},
                           {"Scale", "w"},
                           {"Abbr1", "1"},
                           {"Abbr2", "2"},
                           {"Title", "t"},
                           {"LibBody", "b"}}});
    QMap<QString, scale_data> data;
    info.getData(data);
    QCOMPARE(data.keys(), QStringList{QStringLiteral("c")});
    QCOMPARE(fields(data.first()), (QStringList{"w", "1", "2", "t", "b"}));
}

void TestFileScales::emptyCategoryIsWrittenAsEmptyStrings()
{
    LibraryInfo info;
    info.setData({{QStringLiteral("c"), scale_data()}});
    QCOMPARE(written(info), (QJsonArray{QJsonObject{{"Category", "c"},
                                                    {"Scale", ""},
                                                    {"Abbr1", ""},
                                                    {"Abbr2", ""},
                                                    {"Title", ""},
                                                    {"LibBody", ""}}}));
}

// Not collated: "10" stands before "2", and capitals before small letters.
void TestFileScales::categoriesAreWrittenByTheirNames()
{
    LibraryInfo info;
    QMap<QString, scale_data> data;
    for (const char* name : {"b", "2", "A", "10", "", "a"})
        data.insert(QLatin1String(name), scale_data());
    info.setData(data);
    QStringList names;
    for (const QJsonValue& value : written(info))
        names << value.toObject().value(QStringLiteral("Category")).toString();
    QCOMPARE(names, (QStringList{"", "10", "2", "A", "a", "b"}));
}

void TestFileScales::categoryIsWrittenFromItsLastScale()
{
    QMultiMap<QString, scale_data> data;
    for (const char* name : {"1", "2", "3"})
        data.insert(QStringLiteral("c"), scaleNamed(QLatin1String(name)));
    LibraryInfo info;
    info.setData(data);
    QStringList words;
    for (const QJsonValue& value : written(info))
        words << value.toObject().value(QStringLiteral("Scale")).toString();
    QCOMPARE(words, (QStringList{"3 word", "2 word", "1 word"}));
}

void TestFileScales::readingKeepsTheLastObjectInFront()
{
    const auto object = [](const char* category, const char* title) {
        return QJsonObject{{"Category", category}, {"Title", title}};
    };
    LibraryInfo info;
    info.read({object("d", "1"), object("c", "2"), object("d", "3"), object("c", "4")});
    QCOMPARE(titles(info), (QStringList{"c 4", "c 2", "d 3", "d 1"}));
}

void TestFileScales::writingAndReadingTwiceIsTheSame()
{
    QMultiMap<QString, scale_data> data;
    for (const char* name : {"1", "2", "3"})
        for (const char* category : {"c", "d"})
            data.insert(QLatin1String(category), scaleNamed(QLatin1String(name)));
    LibraryInfo first, second, third;
    first.setData(data);
    second.read(written(first));
    third.read(written(second));
    QVERIFY(titles(first) != titles(second));
    QCOMPARE(titles(third), titles(first));
}

void TestFileScales::readingReplacesTheScales()
{
    LibraryInfo info;
    info.setData({{QStringLiteral("old"), scaleNamed(QStringLiteral("a"))}});
    info.read({QJsonObject{{"Category", "new"}}});
    QCOMPARE(titles(info), QStringList{QStringLiteral("new ")});
    info.read({});
    QCOMPARE(titles(info), QStringList());
}

void TestFileScales::writingAppendsScales()
{
    LibraryInfo info;
    info.setData({{QStringLiteral("c"), scale_data()}});
    QJsonArray array{1};
    info.write(array);
    QCOMPARE(array.size(), 2);
    QCOMPARE(array.first(), QJsonValue(1));
}

void TestFileScales::scaleReadsWrongTypesAsEmpty()
{
    for (const QString& key : scaleKeys) {
        for (const QJsonValue& value : oneOfEachType()) {
            LibraryInfo info;
            info.read({QJsonObject{{key, value}}});
            QMap<QString, scale_data> data;
            info.getData(data);
            QCOMPARE(data.size(), 1);
            const QStringList all = QStringList(data.firstKey()) + fields(data.first());
            QCOMPARE(all.filter(QStringLiteral("text")).size(), value.isString() ? 1 : 0);
            QCOMPARE(all.count(QString()), value.isString() ? 5 : 6);
        }
    }
}

void TestFileScales::elementThatIsNoObjectIsAScaleWithoutAnything()
{
    for (const QJsonValue& value : oneOfEachType()) {
        LibraryInfo info;
        info.read({value});
        QCOMPARE(titles(info), QStringList{QStringLiteral(" ")});
    }
}

void TestFileScales::nothingIsTestedByReading()
{
    LibraryInfo info;
    info.read({QJsonObject{{"Category", "c"}, {"Scale", "no word"}}, QJsonObject{{"Category", "c"}}});
    QCOMPARE(titles(info).size(), 2);
}

void TestFileScales::scaleDataIsCopiedInAndOut()
{
    QMap<QString, scale_data> data{{QStringLiteral("c"), scaleNamed(QStringLiteral("a"))}};
    LibraryInfo info;
    info.setData(data);
    data.clear();
    QCOMPARE(titles(info), QStringList{QStringLiteral("c a title")});
    data.insert(QStringLiteral("other"), scale_data());
    info.getData(data);
    QCOMPARE(data.keys(), QStringList{QStringLiteral("c")});
}

QTEST_APPLESS_MAIN(TestFileScales)
#include "test_file_scales.moc"
