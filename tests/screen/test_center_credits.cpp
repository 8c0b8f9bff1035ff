// The credits on the display: where the lines stand, how they move, and that they go on for ever.

#include "CenterFixture.h"
#include "app/version.h"

#include <QPainter>

namespace {

constexpr qreal firstY = 100, lineDistance = 10, step = 0.6, vanishingY = 45.0;
constexpr qreal displayCentre = 452; // in the scene: the display reaches from 186 to 718
const QColor ink(0x57, 0x54, 0x50);

} // namespace

class TestCenterCredits : public CenterFixture
{
    Q_OBJECT

private slots:
    void everyLineHasItsItem();
    void linesWearTheirFontAndColour();
    void linesStandTenPixelsApart();
    void placesFollowTheScreensOwn();
    void linesAreCentredInTheDisplay_data();
    void linesAreCentredInTheDisplay();
    void longLineIsNotWrapped();
    void linesDoNotCatchThePointer();
    void withoutLinesNothingHappens();
    void shownTwiceTheyAreBuiltAnew();

    void eachStepIsSixTenths();
    void timerMovesThem();
    void lineBelowFortyFiveIsHidden();
    void hiddenLineStaysHiddenUntilTheReset();
    void lastLineBeginsAnew();
    void theyScrollForEver();
    void leavingStopsThem();
    void hiddenByHandTheyAreGone();
    void resetShowsEveryLine();
    void noLineIsSeenBehindTheVersion();
    void linesFadeInAndOut();

private:
    /// What one line paints when it stands alone: the smallest rectangle, in the scene.
    QRect painted(QGraphicsTextItem* line) const;
    QImage image() const;
    int stepsOfARound() const;
};

QImage TestCenterCredits::image() const
{
    QImage picture(centre().sceneRect().size().toSize(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    centre().render(&painter, QRectF(picture.rect()), centre().sceneRect());
    return picture;
}

QRect TestCenterCredits::painted(QGraphicsTextItem* line) const
{
    for (QGraphicsTextItem* other : screen().creditItems)
        other->setVisible(false);
    const QImage without = image();
    line->setVisible(true);
    const QImage with = image();
    QRect found;
    for (int y = 0; y < with.height(); ++y)
        for (int x = 0; x < with.width(); ++x)
            if (with.pixel(x, y) != without.pixel(x, y))
                found |= QRect(x, y, 1, 1);
    return found;
}

// Counted in steps as they add up, not divided: the last one may end on the edge.
int TestCenterCredits::stepsOfARound() const
{
    int steps = 0;
    for (qreal y = firstY + lineDistance * (screen().creditLines.size() - 1); y >= vanishingY; y -= step)
        ++steps;
    return steps;
}

void TestCenterCredits::everyLineHasItsItem()
{
    call(to_credits);
    QStringList texts;
    for (const QGraphicsTextItem* item : screen().creditItems)
        texts << item->toPlainText();
    QCOMPARE(texts, screen().creditLines);
    QCOMPARE(creditsInScene().size(), texts.size());
}

void TestCenterCredits::linesWearTheirFontAndColour()
{
    call(to_credits);
    for (const QGraphicsTextItem* item : screen().creditItems) {
        QCOMPARE(item->font().family(), QStringLiteral("Arial"));
        QCOMPARE(item->font().pixelSize(), 10);
        QCOMPARE(item->defaultTextColor(), ink);
        QCOMPARE(item->textWidth(), 0.0);
        QCOMPARE(item->document()->defaultTextOption().alignment(), Qt::Alignment(0x84));
    }
}

void TestCenterCredits::linesStandTenPixelsApart()
{
    call(to_credits);
    for (int i = 0; i < screen().creditItems.size(); ++i) {
        QCOMPARE(screen().creditItems.at(i)->x(), centre().width() / 2 - 145);
        QCOMPARE(screen().creditItems.at(i)->y(), firstY + lineDistance * i);
        QVERIFY(screen().creditItems.at(i)->isVisible());
    }
}

void TestCenterCredits::placesFollowTheScreensOwn()
{
    screen().move(7, 11);
    call(to_credits);
    QCOMPARE(screen().creditItems.at(2)->pos(), QPointF(7 + 450 - 145, 11 + 120));
    screen().moveCreditsText();
    screen().resetCreditText();
    QCOMPARE(screen().creditItems.at(2)->pos(), QPointF(7 + 450 - 145, 11 + 120));
}

void TestCenterCredits::linesAreCentredInTheDisplay_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("short") << "Hi";
    QTest::newRow("one letter") << "M";
    QTest::newRow("middling") << "Written by the Sorvane engineers";
    QTest::newRow("as wide as the place between the buttons") << QString(30, QLatin1Char('m'));
    QTest::newRow("narrow") << QString(45, QLatin1Char('i'));
    QTest::newRow("a long word") << QString(45, QLatin1Char('x'));
}

void TestCenterCredits::linesAreCentredInTheDisplay()
{
    QFETCH(QString, line);
    screen().creditLines = QStringList{line, line};
    call(to_credits);
    for (QGraphicsTextItem* item : screen().creditItems) {
        item->setY(60);
        const QRect place = painted(item);
        QVERIFY(!place.isEmpty());
        const qreal middle = place.left() + place.width() / 2.0;
        QVERIFY2(qAbs(middle - displayCentre) <= 2.5, qPrintable(QString::number(middle)));
        QVERIFY(place.top() >= 60 && place.bottom() < 60 + 20);
    }
}

void TestCenterCredits::longLineIsNotWrapped()
{
    screen().creditLines =
        QStringList{QStringLiteral("a line of many words that must stay one"), QStringLiteral("word")};
    call(to_credits);
    QList<int> heights, widths;
    for (QGraphicsTextItem* item : screen().creditItems) {
        item->setY(60);
        heights << painted(item).height();
        widths << painted(item).width();
    }
    QVERIFY(heights.at(0) < 14 && heights.at(1) < 14);
    QVERIFY(widths.at(0) > 5 * widths.at(1));
}

void TestCenterCredits::linesDoNotCatchThePointer()
{
    call(to_credits);
    for (const QGraphicsTextItem* item : screen().creditItems) {
        QCOMPARE(item->acceptedMouseButtons(), Qt::NoButton);
        QVERIFY(!item->hasFocus());
    }
}

void TestCenterCredits::withoutLinesNothingHappens()
{
    screen().creditLines.clear();
    call(to_credits);
    screen().moveCreditsText();
    screen().resetCreditText();
    screen().hideCreditText();
    QVERIFY(creditsInScene().isEmpty());
    QCOMPARE(screen().currentScene, 4);
}

void TestCenterCredits::shownTwiceTheyAreBuiltAnew()
{
    call(to_credits);
    for (int i = 0; i < 50; ++i)
        screen().moveCreditsText();
    call(to_credits);
    QCOMPARE(creditsInScene().size(), screen().creditLines.size());
    QCOMPARE(screen().creditItems.size(), screen().creditLines.size());
    linesStandTenPixelsApart();
    QVERIFY(screen().creditTimer->isActive());
}

void TestCenterCredits::eachStepIsSixTenths()
{
    call(to_credits);
    for (int i = 1; i <= 20; ++i) {
        screen().moveCreditsText();
        for (int line = 0; line < screen().creditItems.size(); ++line)
            QVERIFY(qAbs(screen().creditItems.at(line)->y() - (firstY + lineDistance * line - step * i)) <
                    1e-6);
    }
}

void TestCenterCredits::timerMovesThem()
{
    call(to_credits);
    const QGraphicsTextItem* last = screen().creditItems.last();
    const qreal before = last->y();
    QTRY_VERIFY_WITH_TIMEOUT(last->y() <= before - 2 * step + 1e-6, 5000);
}

void TestCenterCredits::lineBelowFortyFiveIsHidden()
{
    screen().creditLines = QStringList{QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three"),
                                       QStringLiteral("last")};
    call(to_credits);
    const auto& items = screen().creditItems;
    items.at(0)->setY(45.7); // comes to 45.1
    items.at(1)->setY(45.5); // comes to 44.9
    items.at(2)->setY(44.0);
    screen().moveCreditsText();
    QVERIFY(items.at(0)->isVisible());
    QVERIFY(!items.at(1)->isVisible());
    QVERIFY(!items.at(2)->isVisible());
    QVERIFY(items.at(3)->isVisible());
    // Exactly there it still shows.
    items.at(0)->setY(vanishingY + step);
    screen().moveCreditsText();
    QCOMPARE(items.at(0)->isVisible(), !(vanishingY + step - step < vanishingY));
}

void TestCenterCredits::hiddenLineStaysHiddenUntilTheReset()
{
    call(to_credits);
    const auto& items = screen().creditItems;
    while (items.first()->isVisible())
        screen().moveCreditsText();
    QVERIFY(items.first()->y() < vanishingY && items.first()->y() >= vanishingY - step - 1e-6);
    for (int i = 0; i < 30; ++i) {
        screen().moveCreditsText();
        QVERIFY(!items.first()->isVisible());
    }
    QVERIFY(items.last()->isVisible());
}

void TestCenterCredits::lastLineBeginsAnew()
{
    call(to_credits);
    const auto& items = screen().creditItems;
    for (int i = 1; i < stepsOfARound(); ++i)
        screen().moveCreditsText();
    QVERIFY(items.last()->isVisible());
    QVERIFY(items.last()->y() < vanishingY + step + 1e-6);
    QVERIFY(!items.at(items.size() - 2)->isVisible());
    screen().moveCreditsText();
    linesStandTenPixelsApart();
}

void TestCenterCredits::theyScrollForEver()
{
    call(to_credits);
    const QList<QGraphicsTextItem*> items = screen().creditItems;
    for (int round = 0; round < 5; ++round) {
        int steps = 0;
        do {
            screen().moveCreditsText();
            ++steps;
        } while (items.first()->y() != firstY && steps < 10000);
        QCOMPARE(steps, stepsOfARound());
    }
    QCOMPARE(screen().creditItems, items);
    QVERIFY(screen().creditTimer->isActive());
}

void TestCenterCredits::leavingStopsThem()
{
    for (int setter = to_default; setter <= to_library; ++setter) {
        if (setter == to_credits)
            continue;
        call(to_credits);
        call(setter);
        QVERIFY(!screen().creditTimer->isActive());
        screen().moveCreditsText(); // one that was due
        QVERIFY(creditsInScene().isEmpty());
    }
}

void TestCenterCredits::hiddenByHandTheyAreGone()
{
    call(to_credits);
    screen().hideCreditText();
    QVERIFY(screen().creditItems.isEmpty());
    QVERIFY(creditsInScene().isEmpty());
    screen().hideCreditText();
}

void TestCenterCredits::resetShowsEveryLine()
{
    call(to_credits);
    for (int i = 0; i < 400; ++i)
        screen().moveCreditsText();
    QVERIFY(!screen().creditItems.first()->isVisible());
    screen().resetCreditText();
    linesStandTenPixelsApart();
}

// Lines still show for a while where the version stands; they pass behind it.
void TestCenterCredits::noLineIsSeenBehindTheVersion()
{
    form().versionLabel->setText(
        QStringLiteral("Sorvane %1, <a href=\"https://sorvane.example/\">https://sorvane.example/</a>")
            .arg(QLatin1String(sorvaneVersion)));
    show();
    screen().creditLines = QStringList(QString(40, QLatin1Char('W')));
    call(to_credits);
    screen().creditTimer->stop();
    const QRect place = form().versionLabel->geometry() | form().hiddenLayer->geometry();
    QGraphicsTextItem* line = screen().creditItems.first();
    line->hide();
    const QImage bare = window->grab(place).toImage();
    line->show();
    for (const qreal y : {45.0, 48.0, 51.0, 54.0, 57.0}) {
        line->setY(y);
        QCOMPARE(window->grab(place).toImage(), bare);
    }
    line->setY(70); // free of it
    const QRect below = place.translated(0, 12);
    const QImage seenLine = window->grab(below).toImage();
    line->hide();
    QVERIFY(window->grab(below).toImage() != seenLine);
}

// The labels of the form cut a line off: it must be pale when it gets there.
void TestCenterCredits::linesFadeInAndOut()
{
    constexpr qreal labelAbove = 224 - 152, labelBelow = 274 - 152; // of the form, in the scene
    constexpr qreal capitals = 6, baseline = 13, pale = 0.4;        // of a line's letters, in its item
    screen().creditLines = QStringList{"one", "two", "three", "four"};
    call(to_credits);
    screen().creditTimer->stop();
    const QGraphicsTextItem* line = screen().creditItems.last();
    QCOMPARE(line->opacity(), 0.0);
    qreal before = 0, most = 0;
    for (; line->y() >= vanishingY + step; screen().moveCreditsText()) {
        const qreal now = line->opacity(), top = line->y() + capitals, bottom = line->y() + baseline;
        QVERIFY(top + bottom > labelAbove + labelBelow ? now >= before : now <= before);
        QVERIFY2((top >= labelAbove && bottom <= labelBelow) || now <= pale,
                 qPrintable(QString::number(line->y())));
        before = now;
        most = qMax(most, now);
    }
    QCOMPARE(most, 1.0);
    QCOMPARE(before, 0.0);
}

QTEST_MAIN(TestCenterCredits)

#include "test_center_credits.moc"
