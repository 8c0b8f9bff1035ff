// What a file's library, presets and places do to the window.

#include "FileFixture.h"
#include "library/DbReadWriter.h"

class TestFileImport : public FileFixture
{
    Q_OBJECT

private slots:
    // Scales
    void scalesAloneReplaceTheLibrary();
    void scaleWithoutAWordOrATitleMakesItsCategoryAlone_data();
    void scaleWithoutAWordOrATitleMakesItsCategoryAlone();
    void lastOfTwoObjectsWithOneWordInACategoryCounts();
    void firstCategoryDecidesARecordInSeveral();
    void categoryIsReadBackwards();
    void emptyCategoryComesBack();
    void namelessCategoryIsACategory();
    void scalesOfAWrongTypeEmptyTheLibrary_data();
    void scalesOfAWrongTypeEmptyTheLibrary();
    void playedScalesGoWithTheLibrary();
    void userStaysInTheCategoryOfThatName();

    // Presets
    void presetsAloneChangeTheSelectorsWithThem();
    void presetsAreReadWithoutTheSelectors();
    void shortArrayChangesTheFirstPresets();
    void presetsBeyondTheLastAreDropped();
    void presetsOfAWrongTypeChangeNothing();
    void presetWithoutMembersIsEmpty();
    void positionsNeverMoveAFlag();
    void namesFollowTheLibraryOfTheFile();

    // Power button and anchors
    void powerButtonGoesToEachOfItsPlaces();
    void missingPowerPlaceLeavesTheButton();
    void powerPlaceOfAWrongTypeIsZero_data() { addWrongNumbers(); }
    void powerPlaceOfAWrongTypeIsZero();
    void powerButtonKeepsItsHeight();
    void powerPlaceWithoutAFlagLeavesTheButton();
    void powerButtonMovesAlone();
    void powerButtonIsLookedUpAtItsHeight();
    void missingAnchorsPlaceLeavesThem();
    void anchorsGoToTheirPlaceAndKeepTheirHeight();
    void anchorsPlaceOfAWrongTypeIsZero_data() { addWrongNumbers(); }
    void anchorsPlaceOfAWrongTypeIsZero();
    void anchorsBeyondTheBarAreDimmed();

    // All
    void rootWithoutTheFourKeysChangesNothing();
    void libraryComesBeforeThePresets();
    void presetsAreNamedByTheLibraryOfTheFileAlone();
    void presetsThatStayTakeTheNewNames();

private:
    static void addWrongNumbers();
    /// The reader alone, without what comes behind it.
    static void readRoot(const QJsonObject& root) { DbReadWriter::importJsonDatabase(root); }
};

void TestFileImport::addWrongNumbers()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("text") << QJsonValue(QStringLiteral("300"));
    QTest::newRow("bool") << QJsonValue(true);
    QTest::newRow("null") << QJsonValue(QJsonValue::Null);
    QTest::newRow("array") << QJsonValue(QJsonArray{300});
    QTest::newRow("object") << QJsonValue(QJsonObject{{"x", 300}});
}

void TestFileImport::scalesAloneReplaceTheLibrary()
{
    leaveTheStart();
    const Facts before = facts();
    import({{ scalesKey, QJsonArray { scaleObject("b", wholeTone, "Whole"), scaleObject("a", "", "") } }});
    QCOMPARE(catalogue(), (QStringList{"a: ", "b: " + wholeTone}));
    scale_data found;
    QVERIFY(library().getScaleData(wholeTone, found, DatabaseLibrary::LibraryRole));
    QCOMPARE(found.title, QStringLiteral("Whole"));
    QCOMPARE(found.abbr1, QStringLiteral("Who"));
    QCOMPARE(found.abbr2, QStringLiteral("le"));
    QCOMPARE(found.libBody, QStringLiteral("About Whole"));
    QVERIFY(!library().containsScale(ionian, DatabaseLibrary::LibraryRole));
    QCOMPARE(changesSince(before), QStringList{"catalogue"});
}

void TestFileImport::scaleWithoutAWordOrATitleMakesItsCategoryAlone_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("title");
    QTest::newRow("no word") << ""
                             << "Title";
    QTest::newRow("no title") << wholeTone << "";
    QTest::newRow("neither") << ""
                             << "";
}

void TestFileImport::scaleWithoutAWordOrATitleMakesItsCategoryAlone()
{
    QFETCH(QString, word);
    QFETCH(QString, title);
    import({{ scalesKey, QJsonArray { scaleObject("c", word, title) } }});
    QCOMPARE(catalogue(), QStringList{"c: "});
    QVERIFY(!library().containsScale(wholeTone, DatabaseLibrary::LibraryRole));
    QVERIFY(!library().containsScale(QString(), DatabaseLibrary::AnyRole));
}

void TestFileImport::lastOfTwoObjectsWithOneWordInACategoryCounts()
{
    import(
        {{ scalesKey,
           QJsonArray {
               scaleObject("c", wholeTone, "First"),
               scaleObject("c", lydian, "Other"),
               scaleObject("c", wholeTone, "Last")
           } }});
    QCOMPARE(catalogue(), QStringList{"c: " + wholeTone + " " + lydian});
    QCOMPARE(abbreviations(wholeTone), (QStringList{"Las", "t"}));
}

void TestFileImport::firstCategoryDecidesARecordInSeveral()
{
    import(
        {{ scalesKey,
           QJsonArray {
               scaleObject("b", wholeTone, "First"),
               scaleObject("a", wholeTone, "Last")
           } }});
    QCOMPARE(catalogue(), (QStringList{"a: " + wholeTone, "b: " + wholeTone}));
    QCOMPARE(abbreviations(wholeTone), (QStringList{"Las", "t"}));
}

void TestFileImport::categoryIsReadBackwards()
{
    import(
        {{ scalesKey,
           QJsonArray {
               scaleObject("c", wholeTone, "1"),
               scaleObject("c", lydian, "2"),
               scaleObject("c", ionian, "3")
           } }});
    QCOMPARE(library().scalesFromCategory(QStringLiteral("c")), (QStringList{ionian, lydian, wholeTone}));
}

void TestFileImport::emptyCategoryComesBack()
{
    library().insertCategory(QStringLiteral("none"));
    const QJsonObject root = exported();
    import({{ scalesKey, QJsonArray() }});
    QCOMPARE(library().categoryCount(), 0);
    import(root);
    QVERIFY(library().categories().contains(QStringLiteral("none")));
    QVERIFY(library().isEmptyCategory(QStringLiteral("none")));
}

void TestFileImport::namelessCategoryIsACategory()
{
    import(
        {{ scalesKey,
           QJsonArray {
               QJsonObject{{"Scale", wholeTone},
                           { "Title",
                             "t" }},
               QJsonObject(),
               5
           } }});
    QCOMPARE(catalogue(), QStringList{": " + wholeTone});
}

void TestFileImport::scalesOfAWrongTypeEmptyTheLibrary_data()
{
    addWrongNumbers();
    QTest::newRow("number") << QJsonValue(1);
}

void TestFileImport::scalesOfAWrongTypeEmptyTheLibrary()
{
    QFETCH(QJsonValue, value);
    if (value.isArray()) // its element is no object: a nameless category
        value = QJsonArray();
    import({{ scalesKey, value }});
    QCOMPARE(library().categoryCount(), 0);
    window->receiveMessage({0x90, 60, 64});
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x90, 60, 64}}));
}

void TestFileImport::playedScalesGoWithTheLibrary()
{
    setRecord(25, scaleRecord(unknownWord));
    record(25).scaleOn = false; // its record goes at the next look
    import({{ scalesKey, QJsonArray { scaleObject("c", ionian, "t") } }});
    QVERIFY(!library().containsScale(unknownWord, DatabaseLibrary::AnyRole));
}

// The selectors show the active one, as behind a recall: the next one would store them in it.
void TestFileImport::userStaysInTheCategoryOfThatName()
{
    const QJsonObject a = scaleObject("a", ionian, "1"), b = scaleObject("b", lydian, "2"),
                      c = scaleObject("c", wholeTone, "3");
    readRoot({{scalesKey, QJsonArray{b, c}}});
    library().setCurrentCategory(QStringLiteral("c"));
    readRoot({{scalesKey, QJsonArray{a, b, c}}});
    QCOMPARE(library().currentCategory(), QStringLiteral("c"));
    readRoot({{scalesKey, QJsonArray{a, b}}});
    QCOMPARE(library().currentCategory(), QStringLiteral("a")); // it is gone
}

void TestFileImport::presetsAloneChangeTheSelectorsWithThem()
{
    leaveTheStart();
    header_data data = fullRecord();
    data.tonicData = QStringLiteral("G");
    QJsonArray array;
    for (int i = 0; i < 36; ++i)
        array.append(headerObject(data));
    const Facts before = facts();
    import({{ headersKey, array }});
    QCOMPARE(changesSince(before), (QStringList{"anchors", "map", "presets", "scale", "tonic"}));
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("G"));
    QCOMPARE(anchors()->x(), 51.0);
    data.nameScenic1 = abbreviations(lydian).at(0);
    data.nameScenic2 = abbreviations(lydian).at(1);
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(asText(item->record), asText(data));
}

// The reader alone touches no selector.
void TestFileImport::presetsAreReadWithoutTheSelectors()
{
    leaveTheStart();
    const Facts before = facts();
    readRoot({{headersKey, QJsonArray{headerObject(fullRecord())}}});
    QCOMPARE(changesSince(before), QStringList{"presets"});
}

void TestFileImport::shortArrayChangesTheFirstPresets()
{
    const header_data third = record(27);
    import({{ headersKey, QJsonArray { headerObject(fullRecord()), headerObject(fullRecord()) } }});
    QCOMPARE(record(22).anchorPos, 51);
    QCOMPARE(record(25).anchorPos, 51);
    QCOMPARE(asText(record(27)), asText(third));
}

void TestFileImport::presetsBeyondTheLastAreDropped()
{
    QJsonArray array;
    for (int i = 0; i < 40; ++i) {
        header_data data = fullRecord();
        data.anchorPos = i;
        array.append(headerObject(data));
    }
    import({{ headersKey, array }});
    QCOMPARE(presets().headers.size(), 36);
    QCOMPARE(record(106).anchorPos, 35);
}

void TestFileImport::presetsOfAWrongTypeChangeNothing()
{
    leaveTheStart();
    const Facts before = facts();
    for (const QJsonValue& value :
         {QJsonValue(5), QJsonValue("x"), QJsonValue(true), QJsonValue(QJsonObject())})
        import({{ headersKey, value }});
    QCOMPARE(changesSince(before), QStringList());
}

void TestFileImport::presetWithoutMembersIsEmpty()
{
    setRecord(22, fullRecord());
    import({{ headersKey, QJsonArray { QJsonObject() } }});
    QCOMPARE(asText(record(22)), asText(header_data()));
    setRecord(22, fullRecord());
    import({{ headersKey, QJsonArray { QStringLiteral("no object") } }});
    QCOMPARE(asText(record(22)), asText(header_data()));
}

void TestFileImport::positionsNeverMoveAFlag()
{
    QJsonArray array = exportedHeaders();
    for (QJsonValueRef value : array) {
        QJsonObject header = value.toObject();
        header.insert(QStringLiteral("XPos"), 500);
        header.insert(QStringLiteral("YPos"), 1e308);
        value = header;
    }
    const QString before = facts().value(QStringLiteral("flags' places"));
    import({{ headersKey, array }});
    QCOMPARE(facts().value(QStringLiteral("flags' places")), before);
    header(25)->setPos(1, 2); // as it stands counts, not its home
    readRoot({{headersKey, array}});
    QCOMPARE(header(25)->pos(), QPointF(1, 2));
}

void TestFileImport::namesFollowTheLibraryOfTheFile()
{
    import({{headersKey,
             QJsonArray {
                 headerObject(scaleRecord(lydian)),
                 headerObject(scaleRecord(lydian, off))
             }},
            { scalesKey,
              QJsonArray {
                  scaleObject("c", lydian, "Lydia")
              } }});
    QCOMPARE(names(header(22)), (QStringList{"Lyd", "ia"}));
    QCOMPARE(names(header(25)), (QStringList{"", ""}));
    QCOMPARE(record(25).scaleData, lydian);
}

// From every place to every other one: flags overlap, and the button's own is passed over.
void TestFileImport::powerButtonGoesToEachOfItsPlaces()
{
    QMap<int, qreal> places;
    for (const HeaderItem* item : qAsConst(presets().headers))
        places.insert(key_roles::pitch(item), window->findInNote(key_roles::pitch(item))->x() - 4);
    for (const int from : places.keys())
        for (const int to : places.keys()) {
            readRoot({{powerPlaceKey, places.value(from)}});
            QCOMPARE(key_roles::pitch(power()), from);
            readRoot({{powerPlaceKey, places.value(to)}});
            QCOMPARE(key_roles::pitch(power()), to);
            QCOMPARE(power()->pos(), QPointF(places.value(to), 28));
        }
}

void TestFileImport::missingPowerPlaceLeavesTheButton()
{
    readRoot({{powerPlaceKey, 407}});
    const QPointF place = power()->pos();
    QVERIFY(place.x() > 400);
    import({{ anchorsPlaceKey, 17 }});
    QCOMPARE(power()->pos(), place);
}

// No flag stands over 0, so the button stays; read as the number that it looks like it would move.
void TestFileImport::powerPlaceOfAWrongTypeIsZero()
{
    QFETCH(QJsonValue, value);
    import({{ powerPlaceKey, 407 }});
    const QPointF place = power()->pos();
    QCOMPARE(key_roles::pitch(power()), 61);
    import({{ powerPlaceKey, 0 }});
    QCOMPARE(power()->pos(), place);
    import({{ powerPlaceKey, value }});
    QCOMPARE(power()->pos(), place);
    import({{ powerPlaceKey, 300 }});
    QVERIFY(power()->pos() != place);
}

void TestFileImport::powerButtonKeepsItsHeight()
{
    const qreal height = power()->y();
    import({{powerPlaceKey, 407}, { QStringLiteral("SorvanePowerButtonPositionY"), 3 }});
    QCOMPARE(power()->y(), height);
}

void TestFileImport::powerPlaceWithoutAFlagLeavesTheButton()
{
    const QPointF place = power()->pos();
    for (const double x : {5000.0, -5000.0, 1e308, -1e308}) {
        import({{ powerPlaceKey, x }});
        QCOMPARE(power()->pos(), place);
        QCOMPARE(key_roles::pitch(power()), powerKey);
    }
}

// By hand it would exchange two presets, activate one and switch on.
void TestFileImport::powerButtonMovesAlone()
{
    setRecord(powerKey, fullRecord());
    const qreal place = window->findInNote(61)->x() - 4;
    for (const bool power : {false, true}) {
        window->setPower(power);
        const Facts before = facts();
        readRoot({{powerPlaceKey, power ? 288 : place}});
        QCOMPARE(changesSince(before), QStringList("power's place"));
    }
}

void TestFileImport::powerButtonIsLookedUpAtItsHeight()
{
    const QPointF place = power()->pos();
    power()->setY(1000); // no flag hangs there
    readRoot({{powerPlaceKey, 407}});
    QCOMPARE(power()->pos(), place);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestFileImport::missingAnchorsPlaceLeavesThem()
{
    placeAnchors(34);
    import({{ powerPlaceKey, 407 }});
    QCOMPARE(anchors()->pos(), QPointF(34, 7));
}

void TestFileImport::anchorsGoToTheirPlaceAndKeepTheirHeight()
{
    placeAnchors(34);
    import({{ anchorsPlaceKey, -51.5 }});
    QCOMPARE(anchors()->pos(), QPointF(-51.5, 7));
}

void TestFileImport::anchorsPlaceOfAWrongTypeIsZero()
{
    QFETCH(QJsonValue, value);
    placeAnchors(34);
    import({{ anchorsPlaceKey, value }});
    QCOMPARE(anchors()->pos(), QPointF(0, 7));
}

void TestFileImport::anchorsBeyondTheBarAreDimmed()
{
    const QGraphicsItem* main = power()->mainAnchorIn;
    readRoot({{anchorsPlaceKey, 1700}});
    QVERIFY(main->opacity() < 0.1);
    readRoot({{anchorsPlaceKey, 17}});
    QCOMPARE(main->opacity(), 1.0);
}

void TestFileImport::rootWithoutTheFourKeysChangesNothing()
{
    leaveTheStart();
    const Facts before = facts();
    readRoot({});
    readRoot({{"sorvaneDefaultScalesArray", QJsonArray()}, {"SorvanePowerButtonPosition ", 407}});
    QCOMPARE(changesSince(before), QStringList());
}

// Were it the other way round, the presets' word would have a temporary record.
void TestFileImport::libraryComesBeforeThePresets()
{
    readRoot({{headersKey, QJsonArray{headerObject(scaleRecord(unknownWord))}},
              {scalesKey, QJsonArray{scaleObject("c", unknownWord, "Mine")}}});
    QCOMPARE(names(header(22)), (QStringList{"Min", "e"}));
    QVERIFY(library().containsScale(unknownWord, DatabaseLibrary::LibraryRole));
}

// The library that goes knows the word by other names.
void TestFileImport::presetsAreNamedByTheLibraryOfTheFileAlone()
{
    emptyHeaders(); // one that stays and holds the word would share its names
    readRoot({{headersKey, QJsonArray{headerObject(scaleRecord(lydian))}},
              {scalesKey, QJsonArray{scaleObject("c", ionian, "Mine")}}});
    QCOMPARE(names(header(22)), (QStringList{"Old1", "Old2"}));
}

void TestFileImport::presetsThatStayTakeTheNewNames()
{
    setRecord(22, scaleRecord(lydian));
    readRoot({{scalesKey, QJsonArray{scaleObject("c", lydian, "Mine")}}});
    QCOMPARE(names(header(22)), (QStringList{"Min", "e"}));
}

QTEST_MAIN(TestFileImport)
#include "test_file_import.moc"
