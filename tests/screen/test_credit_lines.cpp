// How the text of the credits becomes lines, and whether the text itself is fit for the display.

#include "screen/credit_lines.h"

#include <QFile>
#include <QFont>
#include <QFontMetricsF>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

namespace {

constexpr int tooLong = 46;     // characters
constexpr qreal roomWide = 265; // pixels between the walls of the display
constexpr int texts = 6000;     // random ones

QString run(char16_t letter, int length)
{
    return QString(length, QChar(letter));
}

/// What the random texts have met.
struct Met
{
    int whole = 0, joined = 0, lost = 0, emptyFirst = 0, blanksDropped = 0, blanksKept = 0, overlong = 0,
        nothing = 0;
};

/// The rule in other words: pieces are dealt into groups, and a group is written as its pieces with commas
/// between.
QStringList dealtLine(const QString& line, Met& met)
{
    const QStringList pieces =
        line.split(QRegularExpression(QStringLiteral("(\\,)|(\\.)|(\\;)")), Qt::SkipEmptyParts);
    QList<QStringList> groups{QStringList()};
    bool lastHasRoom = false;
    for (const QString& piece : pieces) {
        lastHasRoom = (groups.last() + QStringList(piece)).join(',').size() < tooLong;
        if (!lastHasRoom)
            groups.append(QStringList());
        groups.last().append(piece);
    }
    const QString last = groups.takeLast().join(',');
    QStringList lines;
    for (const QStringList& group : groups) {
        const QString text = group.isEmpty() ? QString() : group.join(',') + ',';
        const bool blank = text.startsWith(' ');
        lines.append(blank ? text.mid(1) : text);
        met.blanksDropped += blank;
        met.emptyFirst += group.isEmpty();
        met.joined += group.size() > 1;
        met.overlong += lines.last().size() > tooLong;
    }
    if (lastHasRoom)
        lines.append(last);
    met.blanksKept += lastHasRoom && last.startsWith(' ');
    met.lost += !pieces.isEmpty() && !lastHasRoom;
    met.nothing += pieces.isEmpty();
    return lines;
}

QStringList modelOf(const QString& text, Met& met)
{
    QStringList lines;
    const QRegularExpression lineEnd(QStringLiteral("(\r\n)|(\n\r)|\r|\n"));
    for (const QString& line : text.split(lineEnd, Qt::SkipEmptyParts)) {
        if (line.size() >= tooLong) {
            lines += dealtLine(line, met);
            continue;
        }
        lines.append(line);
        ++met.whole;
    }
    return lines;
}

/// Of pieces around every limit, with blanks, empty pieces and letters of one to four bytes.
QString randomLine(QRandomGenerator& random)
{
    static const QStringList letter{"a", "W", " ", "'", u8"é", u8"♯", u8"𝄞"},
        mark{",", ".", ";", ",,", ". ", "; .", " , "};
    QString line;
    for (int pieces = random.bounded(1, 8); pieces > 0; --pieces) {
        const int length = random.bounded(10) == 0 ? random.bounded(40, 60) : random.bounded(0, 24);
        for (int i = 0; i < length; ++i)
            line += letter[random.bounded(8) == 0 ? random.bounded(letter.size()) : 0];
        if (pieces > 1 || random.bounded(2) == 0)
            line += mark[random.bounded(mark.size())];
    }
    return random.bounded(12) == 0 ? QString(random.bounded(44, 60), ';') : line;
}

QString randomText(QRandomGenerator& random)
{
    static const QStringList lineEnd{"\n", "\r", "\r\n", "\n\r", "\n\n", "\r\r\n", "\n\r\n\r"};
    QString text;
    for (int lines = random.bounded(0, 5); lines > 0; --lines)
        text += randomLine(random) + lineEnd[random.bounded(lineEnd.size())];
    return random.bounded(2) == 0 ? text.trimmed() : text;
}

} // namespace

class TestCreditLines : public QObject
{
    Q_OBJECT

private slots:
    // The rule
    void textBecomesItsLines_data();
    void textBecomesItsLines();
    void randomTextsFollowTheRule();

    // The program's own text
    void ownTextIsNotRewrapped();
    void ownTextFitsTheDisplay();
    void ownTextNamesWhatTheProgramIsBuiltOf();
    void ownTextLeavesTheVersionToTheBuild();

private:
    static QString ownText();
};

void TestCreditLines::textBecomesItsLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("lines");
    const auto row = [](const char* name, const QString& text, const QStringList& lines) {
        QTest::newRow(name) << text << lines;
    };
    const QString a20 = run('a', 20), b20 = run('b', 20), a22 = run('a', 22), b22 = run('b', 22),
                  a40 = run('a', 40), b40 = run('b', 40), a45 = run('a', 45), a46 = run('a', 46),
                  b50 = run('b', 50);

    row("no text", "", {});
    row("no text but line ends", "\n\r\n\r\r\n\n", {});
    row("line feeds", "one\ntwo\n", {"one", "two"});
    row("carriage returns", "one\rtwo\r", {"one", "two"});
    row("return and feed", "one\r\ntwo\r\n", {"one", "two"});
    row("feed and return", "one\n\rtwo\n\rthree", {"one", "two", "three"});
    row("empty lines", "\none\n\n\r\rtwo\r\n\r\nthree\n\r\n\rfour", {"one", "two", "three", "four"});
    row("a line of blanks", "one\n  \ntwo", {"one", "  ", "two"});
    row("other controls end no line", u8"one\ttwo\v\u2028three", {u8"one\ttwo\v\u2028three"});

    row("45 stay whole", a20 + ".,;" + run('b', 22), {a20 + ".,;" + run('b', 22)});
    row("45 with blanks around", ' ' + run('a', 43) + ' ', {' ' + run('a', 43) + ' '});
    row("45 marks stay", run(',', 45), {run(',', 45)});
    row("46 marks are nothing", run(',', 46), {});
    row("46 are re-wrapped", a22 + '.' + b22 + '.', {a22 + ',' + b22});
    row("46 lose a last piece", a22 + '.' + run('b', 23), {a22 + ','});
    row("46 of one piece", a46, {""});
    row("45 and a mark", a45 + '.', {a45});
    row("a mark and 45", '.' + a45, {a45});

    row("each mark becomes a comma", "a,b.c;d." + a40, {"a,b,c,d,"});
    row("other punctuation stays", "a:b!c?d-e " + run('a', 32) + ",bc..",
        {"a:b!c?d-e " + run('a', 32) + ",bc"});
    row("marks in a row are one", a20 + ",,;." + b20 + "....", {a20 + ',' + b20});
    row("a line that ends early", a40 + ',' + b40 + ",c", {a40 + ',', b40 + ",c"});
    row("the comma is the 46th", a45 + ",b,c", {a45 + ',', "b,c"});
    row("the last piece fits by one", a40 + '.' + b40 + ".cccc", {a40 + ',', b40 + ",cccc"});
    row("the last piece is lost by one", a40 + '.' + b40 + ".ccccc", {a40 + ',', b40 + ','});
    row("the first piece is too long", a46 + ",b", {"", a46 + ','});
    row("a middle piece is too long", "a," + b50 + ",c", {"a,", b50 + ','});

    row("a blank goes from a line that ends early", ' ' + a20 + ", " + b20 + ", " + a20,
        {a20 + ", " + b20 + ','});
    row("one blank of two; none of the last line", "  " + a40 + ".  " + b40 + ". c",
        {' ' + a40 + ',', "  " + b40 + ", c"});
    row("a tabulator is no blank", '\t' + a40 + '.' + b40 + ".c", {'\t' + a40 + ',', b40 + ",c"});
    row("a blank alone", " ." + a45 + ".b,", {",", a45 + ','});

    row("letters beyond ASCII count once", run(u'é', 45), {run(u'é', 45)});
    row("46 letters beyond ASCII", run(u'é', 22) + '.' + run(u'♯', 22) + '.',
        {run(u'é', 22) + ',' + run(u'♯', 22)});
    row("letters of two units count twice", QString(u8"𝄞").repeated(22) + 'a',
        {QString(u8"𝄞").repeated(22) + 'a'});
    row("46 units", QString(u8"𝄞").repeated(23), {""});
    row("half a letter", QString(QChar(0xd834)) + "\nb", {QString(QChar(0xd834)), "b"});
    row("each line for itself", a22 + '.' + b22 + ".\nshort.\r" + a46, {a22 + ',' + b22, "short.", ""});
}

void TestCreditLines::textBecomesItsLines()
{
    QFETCH(QString, text);
    QFETCH(QStringList, lines);
    QCOMPARE(wrappedCreditLines(text), lines);
}

void TestCreditLines::randomTextsFollowTheRule()
{
    QRandomGenerator random(46);
    Met met;
    for (int i = 0; i < texts; ++i) {
        const QString text = randomText(random);
        const QStringList expected = modelOf(text, met), lines = wrappedCreditLines(text);
        QVERIFY2(lines == expected,
                 qPrintable(text + "\nbecame\n" + lines.join('|') + "\nnot\n" + expected.join('|')));
    }
    for (const int times : {met.whole, met.joined, met.lost, met.emptyFirst, met.blanksDropped,
                            met.blanksKept, met.overlong, met.nothing})
        QVERIFY2(times > 50, "the texts leave a case out");
}

QString TestCreditLines::ownText()
{
    QFile file(QStringLiteral(":/Resources/CreditsScreen/CreditsData.txt"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TestCreditLines::ownTextIsNotRewrapped()
{
    const QStringList lines = ownText().split('\n', Qt::SkipEmptyParts);
    QVERIFY(lines.size() >= 25 && lines.size() <= 40); // two turns a minute
    for (const QString& line : lines)
        QVERIFY2(line.size() < tooLong && line == line.trimmed(), qPrintable(line));
    QCOMPARE(wrappedCreditLines(ownText()), lines);
}

void TestCreditLines::ownTextFitsTheDisplay()
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(10);
    const QFontMetricsF metrics(font);
    QVERIFY(metrics.horizontalAdvance(run('W', 45)) > roomWide); // the letters have a width
    for (const QString& line : wrappedCreditLines(ownText())) {
        QVERIFY2(metrics.horizontalAdvance(line) < roomWide, qPrintable(line));
        for (const QChar letter : line)
            QVERIFY2(metrics.inFont(letter), qPrintable(line));
    }
}

void TestCreditLines::ownTextNamesWhatTheProgramIsBuiltOf()
{
    const QString text = ownText();
    for (const char* name : {"Sorvane", "MIT License", "Qt 5", "LGPL 3", "RtMidi", "JACK", "LGPL 2.1", "ALSA",
                             "PipeWire", "Liberation Sans"})
        QVERIFY2(text.contains(QLatin1String(name)), name);
}

void TestCreditLines::ownTextLeavesTheVersionToTheBuild()
{
    QCOMPARE(ownText().count(QStringLiteral("@VERSION@")), 1);
    QVERIFY(!ownText().contains(QRegularExpression(QStringLiteral("\\d+\\.\\d+\\.\\d+"))));
}

QTEST_MAIN(TestCreditLines)

#include "test_credit_lines.moc"
