// The descriptions of the factory scales: their form, and whether what they claim is true.

#include "claim_check.h"
#include "factory_rows.h"

#include <QRegularExpression>
#include <QtTest>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <set>
#include <vector>

namespace {

using scale_claims::Kind;

/// One of each kind, so that no check lets everything pass.
const std::vector<scale_claims::Claim> falseClaims = {
    {"No Such Scale", "", Kind::noteCount, {}, {7}},
    {"Lydian", "", Kind::modeOf, {"No Such Scale"}, {4}},
    {"Lydian", "", Kind::modeOf, {"Ionian"}, {5}},
    {"Lydian", "", Kind::otherModeOf, {"Lydian"}},
    {"Lydian", "", Kind::notModeOf, {"Ionian"}},
    {"Man Gong", "", Kind::omitting, {"Aeolian", "Ionian"}, {2, 5}},
    {"Lydian", "", Kind::altering, {"Ionian"}, {-4}},
    {"Ionian", "", Kind::altering, {"Ionian"}, {}},
    {"Blues", "", Kind::adding, {"Minor Pentatonic"}, {4}},
    {"Eight-tone Spanish", "", Kind::uniting, {"Locrian", "Phrygian"}},
    {"Aeolian", "", Kind::sameNotesOn, {"Ionian"}, {4}},
    {"Blues", "", Kind::partOf, {"Minor Pentatonic"}},
    {"Lydian", "", Kind::holdsAllOthers},
    {"Lydian", "", Kind::differsInOne, {"Aeolian"}},
    {"Lydian", "", Kind::sharesLetters, {"Ionian"}, {0, 6}},
    {"Lydian", "", Kind::palindrome},
    {"Lydian", "", Kind::transpositions, {}, {11}},
    {"Lydian", "", Kind::modes, {}, {6}},
    {"Harmonic Minor", "", Kind::modesFillBlock},
    {"Lydian", "", Kind::ownComplement},
    {"Lydian", "", Kind::noteCount, {}, {6}},
    {"Lydian", "", Kind::steps, {}, {2, 2, 2}},
    {"Lydian", "", Kind::firstSteps, {}, {2, 2, 1}},
    {"Lydian", "", Kind::stepAt, {}, {3, 1}},
    {"Lydian", "", Kind::stepCount, {}, {1, 1}},
    {"Lydian", "", Kind::exactly, {}, {0, 4, 7}},
    {"Lydian", "", Kind::holds, {}, {0, 5}},
    {"Lydian", "", Kind::lacks, {}, {5, 6}},
    {"Lydian", "", Kind::everyOther, {}, {0, 4, 7, 10}},
    {"Lydian", "", Kind::chordRoots, {}, {0, 2}, {0, 4, 7}},
    {"Lydian", "", Kind::alternateTriads, {}, {}, {0, 4, 7}},
    {"Lydian", "", Kind::onlyModeWith, {}, {3, 4}},
    {"Lydian", "", Kind::onlyModeLacking, {"Ionian"}, {7}},
    {"Phrygian", "", Kind::brightestWith, {}, {3}},
    {"Harmonic Minor", "", Kind::fifthsInARow},
    {"Ionian", "", Kind::partials, {}, {8, 9, 10, 11, 12, 13, 14}},
    {"Lydian", "", Kind::melakarta, {}, {29}},
};

/// Marks every place of `text` that a claim about `title` takes in.
QVector<bool> claimedPlaces(const QString& title, const QString& text)
{
    QVector<bool> claimed(text.size(), false);
    for (const scale_claims::Claim& claim : scale_claims::claims) {
        const QString phrase = QString::fromLatin1(claim.phrase);
        if (title != QLatin1String(claim.title))
            continue;
        for (int at = text.indexOf(phrase); at >= 0; at = text.indexOf(phrase, at + 1))
            std::fill_n(claimed.begin() + at, phrase.size(), true);
    }
    return claimed;
}

const char* ordinal(int number)
{
    constexpr const char* words[] = {"first", "second", "third", "fourth", "fifth", "sixth", "seventh"};
    return words[std::abs(number) - 1];
}

/// By its title, or by the name that musicians use for it in passing.
bool isNamedIn(const QString& phrase, const QString& title)
{
    static const std::map<QString, QString> otherNames = {
        {"Ionian", "major"}, {"Aeolian", "minor"}, {scale_claims::melodicMinor, "melodic minor"}};
    const auto other = otherNames.find(title);
    return phrase.contains(title) || (other != otherNames.end() && phrase.contains(other->second));
}

/// What a phrase must contain for its claim to be the one that it makes.
QStringList wordsWanted(const scale_claims::Claim& claim)
{
    const bool byDegree =
        claim.kind == Kind::modeOf || claim.kind == Kind::omitting || claim.kind == Kind::altering;
    QStringList wanted;
    for (const int number : byDegree ? claim.numbers : std::vector<int>()) {
        wanted << ordinal(number);
        if (claim.kind == Kind::altering && QString(claim.phrase).contains(QLatin1String("degree")))
            wanted << (number > 0 ? "raised" : "lowered");
    }
    if (claim.kind == Kind::modeOf)
        wanted << QStringLiteral("mode of");
    if (claim.kind == Kind::omitting)
        wanted << QStringLiteral("omitted");
    if (claim.kind == Kind::adding)
        wanted << QStringLiteral("added");
    return wanted;
}

/// The name of an added note.
const char* addedName(int semitones)
{
    static const std::map<int, const char*> names = {{4, "major third"},
                                                     {5, "perfect fourth"},
                                                     {6, "tritone"},
                                                     {7, "perfect fifth"},
                                                     {8, "between the fifth and the sixth degrees"},
                                                     {11, "major seventh"}};
    return names.at(semitones);
}

} // namespace

class TestScaleClaims : public QObject
{
    Q_OBJECT

private slots:
    // The descriptions
    void manGongIsDescribedAsGiven();
    void lengthOfDescription_data() { addDescriptions(); }
    void lengthOfDescription();
    void descriptionIsOneParagraphOfAscii_data() { addDescriptions(); }
    void descriptionIsOneParagraphOfAscii();
    void descriptionBeginsWithItsTitle_data() { addDescriptions(); }
    void descriptionBeginsWithItsTitle();
    void descriptionEndsWithExamples_data() { addDescriptions(); }
    void descriptionEndsWithExamples();

    // What they claim
    void claimIsTrue_data();
    void claimIsTrue();
    void claimIsTheOneOfItsPhrase_data() { claimIsTrue_data(); }
    void claimIsTheOneOfItsPhrase();
    void everyEquivalenceIsClaimed_data() { addDescriptions(); }
    void everyEquivalenceIsClaimed();
    void falseClaimsAreRefused();
};

// Their form

void TestScaleClaims::manGongIsDescribedAsGiven()
{
    QCOMPARE(tableRow(4, 1).libBody,
             QString::fromLatin1(
                 "The Man Gong scale, also known as the Phrygian Pentatonic scale, is the third mode of the "
                 "Major Pentatonic scale. It is equivalent to an Aeolian, Phrygian, or Locrian scale with "
                 "the second and fifth degrees omitted. This is a rarely-used scale which originated in "
                 "China in the 15th century. Its rarity may be attributable to the fact that it is the only "
                 "mode of the Major Pentatonic which lacks a perfect fifth above the tonic, making the tonic "
                 "more difficult to establish. The tonic has a tendency to be heard as the dominant of a "
                 "Minor Pentatonic scale instead. Example: Huo Lin (traditional)"));
}

void TestScaleClaims::lengthOfDescription()
{
    QFETCH(QString, text);
    QVERIFY2(text.size() >= 338 && text.size() <= 933, qPrintable(QString::number(text.size())));
}

void TestScaleClaims::descriptionIsOneParagraphOfAscii()
{
    QFETCH(QString, text);
    for (const QChar c : text)
        QVERIFY2(c >= QLatin1Char(' ') && c <= QLatin1Char('~'), qPrintable(text));
    QCOMPARE(text, text.simplified()); // a doubled blank is a slip where two literals meet
}

void TestScaleClaims::descriptionBeginsWithItsTitle()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    QVERIFY2(text.startsWith(QStringLiteral("The %1 scale").arg(title)), qPrintable(text));
}

void TestScaleClaims::descriptionEndsWithExamples()
{
    QFETCH(QString, text);
    const QRegularExpression closing(QStringLiteral("\\. Examples?: (\\S.*)$"));
    const auto found = closing.match(text);
    QVERIFY2(found.hasMatch(), qPrintable(text));
    QCOMPARE(text.count(QRegularExpression(QStringLiteral("Examples?:"))), 1);
    QVERIFY2(found.capturedStart() > text.size() / 2, qPrintable(text));
}

// What they claim

void TestScaleClaims::claimIsTrue_data()
{
    QTest::addColumn<int>("index");
    int index = 0;
    for (const scale_claims::Claim& claim : scale_claims::claims) {
        QTest::addRow("%d %s: %s", index, claim.title, claim.phrase) << index;
        ++index;
    }
}

void TestScaleClaims::claimIsTrue()
{
    QFETCH(int, index);
    const scale_claims::Claim& claim = scale_claims::claims.at(static_cast<std::size_t>(index));
    const scale_data* row = scale_claims::rowOf(claim.title);
    QVERIFY(row);
    QVERIFY2(row->libBody.contains(QLatin1String(claim.phrase)), "the description does not say this");
    QVERIFY2(scale_claims::holds(claim), "the words of the scales do not bear this out");
}

void TestScaleClaims::claimIsTheOneOfItsPhrase()
{
    QFETCH(int, index);
    const scale_claims::Claim& claim = scale_claims::claims.at(static_cast<std::size_t>(index));
    const QString phrase = QString::fromLatin1(claim.phrase);
    for (const QString& word : wordsWanted(claim))
        QVERIFY2(phrase.contains(word), qPrintable(word));
    for (const char* title : claim.of)
        QVERIFY2(isNamedIn(phrase, title), title);
    if (claim.kind == scale_claims::Kind::adding)
        QVERIFY2(phrase.contains(addedName(claim.numbers.at(0))), addedName(claim.numbers.at(0)));
}

// A sentence that compares scales and that no claim takes in would go unchecked.
void TestScaleClaims::everyEquivalenceIsClaimed()
{
    QFETCH(QString, title);
    QFETCH(QString, text);
    const QVector<bool> claimed = claimedPlaces(title, text);
    const QRegularExpression comparing(
        QStringLiteral("mode of|omitted|raised|lowered|added|equivalent to|transpositions|the same notes"
                       "|the notes of|read the same|of three semitones|differs from|partials"));
    for (auto it = comparing.globalMatch(text); it.hasNext();) {
        const auto match = it.next();
        for (int at = match.capturedStart(); at < match.capturedEnd(); ++at)
            QVERIFY2(claimed.at(at), qPrintable(text.mid(qMax(0, at - 40), 80)));
    }
}

void TestScaleClaims::falseClaimsAreRefused()
{
    std::set<scale_claims::Kind> kinds, refused;
    for (const scale_claims::Claim& claim : scale_claims::claims)
        kinds.insert(claim.kind);
    for (std::size_t i = 0; i < falseClaims.size(); ++i) {
        QVERIFY2(!scale_claims::holds(falseClaims[i]), qPrintable(QString::number(i)));
        refused.insert(falseClaims[i].kind);
    }
    QVERIFY(std::includes(refused.begin(), refused.end(), kinds.begin(), kinds.end()));
}

QTEST_MAIN(TestScaleClaims)
#include "test_scale_claims.moc"
