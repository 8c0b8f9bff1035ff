// Databases with the wrong things in them: types, numbers, words, names, nesting, encodings.

#include "HostileFixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

const QString scalesKey = QStringLiteral("SorvaneDefaultScalesArray");
const QString headersKey = QStringLiteral("SorvaneDefaultHeadersArray");

struct Level
{
    const char* name;
    QString array; ///< in the root, or "" for the root itself
};

const Level levels[] = {{"root", {}}, {"scale", scalesKey}, {"header", headersKey}};

/// The small database's object on a level: the root, its first scale, its first header.
QJsonObject objectOn(const Level& level, const QJsonObject& root)
{
    return level.array.isEmpty() ? root : root.value(level.array).toArray().first().toObject();
}

QJsonObject with(const QJsonObject& root, const Level& level, const QString& key, const QJsonValue& value)
{
    QJsonObject changed = objectOn(level, root);
    changed.insert(key, value);
    if (level.array.isEmpty())
        return changed;
    QJsonArray all = root.value(level.array).toArray();
    all.replace(0, changed);
    QJsonObject result = root;
    result.insert(level.array, all);
    return result;
}

QByteArray textOf(const QJsonObject& root)
{
    return QJsonDocument(root).toJson(QJsonDocument::Compact);
}

/// The small database with the text of one value replaced: for what no QJsonValue can hold.
QByteArray withText(const QJsonObject& root, const Level& level, const QString& key, const QByteArray& text)
{
    return textOf(with(root, level, key, QStringLiteral("@@"))).replace("\"@@\"", text);
}

QByteArray quoted(const QByteArray& text)
{
    return '"' + text + '"';
}

} // namespace

class TestHostileValues : public HostileFixture
{
    Q_OBJECT

private slots:
    void anotherTypeUnderAnyKey_data();
    void anotherTypeUnderAnyKey();
    void keyByItselfLeavesASoundState();
    void anotherTypeInPlaceOfARecord();
    void anotherTypeAtTheRootIsRefused();
    void strangeNumberUnderAnyKey_data();
    void strangeNumberUnderAnyKey();
    void strangeWord_data();
    void strangeWord();
    void strangeNameOfATonic_data();
    void strangeNameOfATonic();
    void strangeEncoding_data();
    void strangeEncoding();
    void deepNestingIsRefusedOrTaken_data();
    void deepNestingIsRefusedOrTaken();
    void keyGivenTwiceCountsOnce();
    void keysWithoutMeaningSurviveAndDoNoHarm();
    void headersInAnyNumberLeaveThirtySix_data();
    void headersInAnyNumberLeaveThirtySix();
    void everySceneNumberAndEveryHeaderNumber();
    void sameWordInManyRecordsIsListedOnce();
    void userNumbersInAnyDisorderStayDistinct();

private:
    /// Offers it to a window in the factory state; "" if it was taken and left a sound state.
    QString faultOf(const QByteArray& text) const
    {
        backToFactory();
        return faultOfGood(offer(text));
    }
    /// The same, where it may be refused too; then nothing changes.
    QString faultOfDoubtful(const QByteArray& text) const
    {
        backToFactory();
        const QString before = hostile_state::summary(*window);
        const Outcome outcome = offer(text);
        if (outcome.error.isEmpty())
            return faultOfGood(outcome);
        return hostile_state::summary(*window) == before ? faultAfter()
                                                         : QStringLiteral("it changed something");
    }
};

void TestHostileValues::anotherTypeUnderAnyKey_data()
{
    QTest::addColumn<QJsonValue>("value");
    QTest::newRow("null") << QJsonValue();
    QTest::newRow("true") << QJsonValue(true);
    QTest::newRow("false") << QJsonValue(false);
    QTest::newRow("zero") << QJsonValue(0);
    QTest::newRow("fraction") << QJsonValue(-12.75);
    QTest::newRow("empty text") << QJsonValue(QString());
    QTest::newRow("text") << QJsonValue(QStringLiteral("true"));
    QTest::newRow("number as text") << QJsonValue(QStringLiteral("63"));
    QTest::newRow("empty array") << QJsonValue(QJsonArray());
    QTest::newRow("array") << QJsonValue(QJsonArray{1, QStringLiteral("x"), QJsonObject()});
    QTest::newRow("empty object") << QJsonValue(QJsonObject());
    QTest::newRow("object") << QJsonValue(QJsonObject{{"Category", 1}, {"", QJsonValue()}});
}

void TestHostileValues::anotherTypeUnderAnyKey()
{
    QFETCH(QJsonValue, value);
    const QJsonObject root = smallDatabase();
    for (const Level& level : levels) {
        const QStringList keys = objectOn(level, root).keys();
        for (const QString& key : keys)
            QCOMPARE(key + faultOf(textOf(with(root, level, key, value))), key);
    }
}

// A file of one key changes one thing; what hangs on it must follow, whatever the power is.
void TestHostileValues::keyByItselfLeavesASoundState()
{
    const QJsonObject root = smallDatabase();
    for (auto member = root.begin(); member != root.end(); ++member)
        for (const bool power : {false, true}) {
            backToFactory();
            window->setPower(power);
            QCOMPARE(member.key() + faultOfGood(offer(textOf({{member.key(), member.value()}}))),
                     member.key());
        }
}

void TestHostileValues::anotherTypeInPlaceOfARecord()
{
    const QJsonArray things = {QJsonValue(), true, 7, QStringLiteral("x"), QJsonArray{1}, QJsonObject()};
    for (const QString& array : {scalesKey, headersKey})
        QCOMPARE(faultOf(textOf({{array, things}, {"PowerOnState", true}})), QString());
    // Each is a record without a field: one category without a name, and presets without content.
    QCOMPARE(header(lowest)->record.scaleOn, off);
}

void TestHostileValues::anotherTypeAtTheRootIsRefused()
{
    const QString before = hostile_state::summary(*window);
    for (const char* text : {"[]", "[{}]", "\"text\"", "1", "true", "null", "", " ", "{", "}", "{]", "x",
                             "{}{}", "{},", "{\"a\":}", "{'a':1}", "{\"a\":1,}", "//\n{}", "{\"a\":nan}"})
        QVERIFY2(!offer(text).error.isEmpty(), text);
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(offer("{}").error, QString());
    QCOMPARE(hostile_state::summary(*window), before);
    QCOMPARE(faultAfter(), QString());
}

void TestHostileValues::strangeNumberUnderAnyKey_data()
{
    QTest::addColumn<QByteArray>("text");
    for (const char* number : {"1e300",
                               "-1e300",
                               "1e400",
                               "-1e400",
                               "1e-400",
                               "2147483647",
                               "2147483648",
                               "-2147483648",
                               "-2147483649",
                               "4294967296",
                               "9223372036854775807",
                               "9223372036854775808",
                               "-9223372036854775808",
                               "-0",
                               "-0.0",
                               "0.49999999999999994",
                               "1000000",
                               "1000001",
                               "-17",
                               "17.5",
                               "62.9999999",
                               "106",
                               "107",
                               "1e2"}) {
        QTest::addRow("%s", number) << QByteArray(number);
        QTest::addRow("\"%s\"", number) << quoted(number);
    }
    for (const char* word :
         {"nan", "-nan", "inf", "-inf", "infinity", "NaN", "0x3F", "6 3", "1,5", "1e", "-"})
        QTest::addRow("\"%s\"", word) << quoted(word);
}

void TestHostileValues::strangeNumberUnderAnyKey()
{
    QFETCH(QByteArray, text);
    const QJsonObject root = smallDatabase();
    const std::pair<Level, QStringList> places[] = {
        {levels[0],
         {"SorvanePowerButtonPosition", "SorvaneAnchorPosition", "AnchorPosX", "ActiveHeader", "CurrentScene",
          "PowerOnState"}},
        {levels[2], {"AnchorPos", "XPos", "YPos"}}};
    for (const auto& [level, keys] : places)
        for (const QString& key : keys)
            QCOMPARE(key + faultOfDoubtful(withText(root, level, key, text)), key);
}

void TestHostileValues::strangeWord_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("one letter") << "x";
    QTest::newRow("eleven letters") << "xoxoxxoxoxo";
    QTest::newRow("thirteen letters") << "xoxoxxoxoxoxo";
    QTest::newRow("ten thousand letters") << QStringLiteral("xo").repeated(5000);
    QTest::newRow("ten thousand wrong letters") << QStringLiteral("?").repeated(10000);
    QTest::newRow("no tonic") << "oxoxxoxoxoxo";
    QTest::newRow("capitals") << "XOXOXXOXOXOX";
    QTest::newRow("wrong in the middle") << "xoxoxyxoxoxo";
    QTest::newRow("wrong at the end") << "xxxxxxxxxxxz";
    QTest::newRow("blanks") << QStringLiteral(" ").repeated(12);
    QTest::newRow("zeros and ones") << "101011010101";
    QTest::newRow("other alphabets") << QString::fromUtf8("хохоххохохох");
    QTest::newRow("beyond the basic plane") << QString::fromUtf8("𝄞𝄞𝄞𝄞𝄞𝄞");
    QTest::newRow("no bit at all") << QString(12, QChar(0));
    QTest::newRow("half a letter") << QString(12, QChar(0xD800));
    QTest::newRow("mark-up") << "<b>xoxox</b>";
    QTest::newRow("percent") << "%1%2%3%4%5%6";
}

void TestHostileValues::strangeWord()
{
    QFETCH(QString, word);
    const QJsonObject root = smallDatabase();
    const QJsonObject odd[] = {with(root, levels[0], "ScaleModifier", word),
                               with(root, levels[1], "Scale", word),
                               with(root, levels[2], "ScaleData", word)};
    for (const QJsonObject& one : odd)
        QCOMPARE(faultOf(textOf(one)), QString());
    // All three, on the preset that is recalled
    QJsonObject all = with(with(odd[0], levels[1], "Scale", word), levels[2], "ScaleData", word);
    all.insert("ActiveHeader", lowest);
    QCOMPARE(faultOf(textOf(all)), QString());
    QVERIFY(!exported().isEmpty());
    QCOMPARE(offer(exported()).error, QString());
    QCOMPARE(faultAfter(), QString());
}

void TestHostileValues::strangeNameOfATonic_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"", "c", "H", "Db", "C##", "E#", " C", "C ", "#", "M2", "P1", "0", "<b>C</b>", "%1"})
        QTest::addRow("\"%s\"", name) << QString::fromLatin1(name);
    QTest::newRow("long") << QStringLiteral("C").repeated(10000);
}

void TestHostileValues::strangeNameOfATonic()
{
    QFETCH(QString, name);
    const QJsonObject root = smallDatabase();
    for (const char* key : {"TonicModifier", "TonicKeyBehindSwitch"})
        QCOMPARE(faultOf(textOf(with(root, levels[0], key, name))), QString());
    for (const char* key : {"TonicData", "NameTonic"}) {
        QJsonObject odd = with(root, levels[2], key, name);
        odd.insert("ActiveHeader", lowest);
        QCOMPARE(faultOf(textOf(odd)), QString());
    }
}

void TestHostileValues::strangeEncoding_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("taken");
    const QByteArray small = textOf(smallDatabase());
    const QString wide = QString::fromUtf8(small);
    const auto named = [&](const QByteArray& title) {
        return withText(smallDatabase(), levels[1], "Title", quoted(title));
    };
    QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + small << true;
    QTest::newRow("two byte order marks") << "\xEF\xBB\xBF\xEF\xBB\xBF" + small << false;
    QTest::newRow("half a byte order mark") << "\xEF\xBB" + small << false;
    QTest::newRow("16 bits a letter")
        << QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * 2) << false;
    QTest::newRow("16 bits with a mark")
        << "\xFF\xFE" + QByteArray(reinterpret_cast<const char*>(wide.utf16()), wide.size() * 2) << false;
    QTest::newRow("no bits at the end") << small + QByteArray(16, '\0') << false;
    QTest::newRow("no bits at the start") << QByteArray(16, '\0') + small << false;
    QTest::newRow("lone high surrogate") << named("\\ud800") << true;
    QTest::newRow("lone low surrogate") << named("a\\udc00b") << true;
    QTest::newRow("surrogates turned round") << named("\\udc00\\ud800") << true;
    QTest::newRow("escaped zero") << named("a\\u0000b") << true;
    QTest::newRow("plain zero") << named(QByteArray("a\0b", 3)) << true;
    QTest::newRow("controls") << named("\x01\x07\x1b[31m\x7f") << true;
    QTest::newRow("Latin 1") << named("caf\xE9") << false;
    QTest::newRow("overlong letter") << named("\xC0\xAF") << false;
    QTest::newRow("surrogate in bytes") << named("\xED\xA0\x80") << false;
    QTest::newRow("beyond the last letter") << named("\xF4\x90\x80\x80") << false;
    QTest::newRow("letter cut short") << named("\xE2\x82") << false;
    QTest::newRow("unfinished escape") << named("\\u12") << false;
    QTest::newRow("unknown escape") << named("\\q") << true;
    QTest::newRow("right to left") << named("\xE2\x80\xAE"
                                            "evil")
                                   << true;
    QTest::newRow("many marks on one letter") << named("a" + QByteArray("\xCC\x81").repeated(2000)) << true;
}

void TestHostileValues::strangeEncoding()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, taken);
    const QString before = hostile_state::summary(*window);
    const Outcome outcome = offer(text);
    QCOMPARE(outcome.error.isEmpty(), taken);
    if (taken)
        QCOMPARE(faultOfGood(outcome), QString());
    else
        QCOMPARE(hostile_state::summary(*window), before);
    QVERIFY(!window->grab().isNull());
    const QByteArray again = exported();
    QVERIFY(!again.isEmpty());
    QCOMPARE(offer(again).error, QString());
    QCOMPARE(faultAfter(), QString());
}

void TestHostileValues::deepNestingIsRefusedOrTaken_data()
{
    QTest::addColumn<int>("depth");
    for (const int depth : {10, 500, 1000, 1024, 1100, 100000, 5000000})
        QTest::addRow("%d levels", depth) << depth;
}

void TestHostileValues::deepNestingIsRefusedOrTaken()
{
    QFETCH(int, depth);
    const QByteArray arrays = QByteArray(depth, '[') + QByteArray(depth, ']');
    const QByteArray objects = QByteArray("{\"a\":").repeated(depth) + '0' + QByteArray(depth, '}');
    for (const QByteArray& nest :
         {arrays, objects, QByteArray(depth, '['), QByteArray("{\"a\":").repeated(depth)}) {
        for (const QString& key :
             {QStringLiteral("Unknown"), scalesKey, headersKey, QStringLiteral("PowerOnState")})
            QCOMPARE(faultOfDoubtful(withText(smallDatabase(), levels[0], key, nest)), QString());
        QCOMPARE(faultOfDoubtful(withText(smallDatabase(), levels[1], "Title", nest)), QString());
        QCOMPARE(faultOfDoubtful(withText(smallDatabase(), levels[2], "ScaleData", nest)), QString());
        QVERIFY(!offer(arrays).error.isEmpty());
    }
    QVERIFY(!exported().isEmpty());
    QCOMPARE(offer(R"({"Unknown": 0})").error, QString());
}

void TestHostileValues::keyGivenTwiceCountsOnce()
{
    QByteArray text = textOf(smallDatabase());
    text.chop(1);
    QCOMPARE(faultOf(text + R"(,"TonicModifier":"A","ScaleModifier":"x"})"), QString());
    backToFactory();
    QCOMPARE(offer(text + R"(,"TonicModifier":"A","TonicKeyBehindSwitch":"A"})").error, QString());
    QVERIFY(QStringList({"A", "F#"}).contains(tonic().tonicModifier()));
    if (slowness() == 1) // the JSON reader itself does not free an array that another replaces
        QCOMPARE(faultOf(text + ',' + text.mid(1) + '}'), QString());
}

void TestHostileValues::keysWithoutMeaningSurviveAndDoNoHarm()
{
    QJsonObject root = smallDatabase();
    const QJsonObject odd = {{"", QStringLiteral("no name")},
                             {"Unknown", QJsonObject{{"a", QJsonArray{1, QJsonValue(), true}}}},
                             {"MidiInPort-", 7},
                             {"MidiOutPort-nobody", QStringLiteral("perhaps")},
                             {QString(100000, QChar('k')), 1}};
    for (auto member = odd.begin(); member != odd.end(); ++member)
        root.insert(member.key(), member.value());
    QCOMPARE(faultOf(textOf(root)), QString());
    const QJsonObject again = QJsonDocument::fromJson(exported()).object();
    for (auto member = odd.begin(); member != odd.end(); ++member)
        QCOMPARE(again.value(member.key()), member.value());
}

void TestHostileValues::headersInAnyNumberLeaveThirtySix_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 35, 36, 37, 1000})
        QTest::addRow("%d", count) << count;
}

void TestHostileValues::headersInAnyNumberLeaveThirtySix()
{
    QFETCH(int, count);
    QJsonObject root = smallDatabase();
    const QJsonValue one = root.value(headersKey).toArray().last();
    QJsonArray many;
    for (int i = 0; i < count; ++i)
        many.append(one);
    root.insert(headersKey, many);
    QCOMPARE(faultOf(textOf(root)), QString());
    backToFactory();
    const QString untouched = asText(header(highest)->record);
    root.remove("SorvanePowerButtonPosition");
    root.remove("ActiveHeader");
    QCOMPARE(offer(textOf(root)).error, QString());
    QCOMPARE(asText(header(highest)->record) == untouched, count < 36);
}

void TestHostileValues::everySceneNumberAndEveryHeaderNumber()
{
    QJsonObject root = smallDatabase();
    for (int number = -1; number <= 6; ++number) {
        root.insert("CurrentScene", number);
        root.insert("LibViewOpened", false);
        QCOMPARE(faultOf(textOf(root)), QString());
        QCOMPARE(screen().currentScene, number >= 1 && number <= 4 ? number : 1);
    }
    // A key without a preset recalls none; neither does a number below the lowest.
    root = {{"PowerOnState", true}};
    for (int key = -1; key <= 129; ++key) {
        root.insert("ActiveHeader", key);
        QCOMPARE(faultOf(textOf(root)), QString());
        backToFactory();
        QCOMPARE(offer(textOf(root)).error, QString());
        QCOMPARE(active(), header(key) ? key : firstActive);
    }
}

void TestHostileValues::sameWordInManyRecordsIsListedOnce()
{
    QJsonArray many;
    for (int i = 0; i < 1000; ++i)
        many.append(QJsonObject{
            {"Category", i % 2 ? "odd" : "even"}, {"Title", QString::number(i)}, {"Scale", "xoxoxxoxoxox"}});
    QCOMPARE(faultOf(textOf({{scalesKey, many}})), QString());
    QCOMPARE(library().scalesFromCategory("odd"), QList<QString>{"xoxoxxoxoxox"});
    QCOMPARE(library().categoryCount(), 2);
}

void TestHostileValues::userNumbersInAnyDisorderStayDistinct()
{
    QJsonArray presetsOfFile;
    for (int i = 0; i < 36; ++i) {
        QString word(12, QLatin1Char('o'));
        for (int bit = 0; bit < 6; ++bit)
            if (i / 2 & (1 << bit))
                word[bit + 4] = QLatin1Char('x');
        word[0] = word[1] = word[2] = word[3] = QLatin1Char('x');
        presetsOfFile.append(QJsonObject{{"NameScenic1", "User"},
                                         {"NameScenic2", QString::number(i % 7 * (i % 3 ? 1 : 50) - 3)},
                                         {"ScaleOn", true},
                                         {"ScaleData", word}});
    }
    QCOMPARE(faultOf(textOf({{headersKey, presetsOfFile}})), QString());
    QMap<QString, QString> numberOf;
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const header_data& data = item->record;
        const int number = data.nameScenic2.toInt();
        if (!data.scaleOn || data.nameScenic1 != QLatin1String("User") || number < 1 || number > 108)
            continue;
        QCOMPARE(numberOf.value(data.nameScenic2, data.scaleData), data.scaleData);
        numberOf[data.nameScenic2] = data.scaleData;
    }
    QVERIFY(numberOf.size() >= 3);
}

QTEST_MAIN(TestHostileValues)
#include "test_hostile_values.moc"
