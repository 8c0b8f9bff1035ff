// The library's thirteen buttons: where they stand, how they look and what they say.

#include "LibraryButtonFixture.h"

#include <QStyleOptionGraphicsItem>
#include <QtTest>

using namespace library_button_table;

namespace {

int strongestAlpha(const QImage& image)
{
    int most = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            most = qMax(most, qAlpha(image.pixel(x, y)));
    return most;
}

} // namespace

class TestLibraryButtons : public LibraryButtonFixture
{
    Q_OBJECT

private slots:
    void init() { openForButtons(); }

    void codeCountsFromOne_data() { addCodes(); }
    void codeCountsFromOne();
    void standsInItsPlaceWithItsPicture_data() { addCodes(); }
    void standsInItsPlaceWithItsPicture();
    void saysWhatItIsFor_data() { addCodes(); }
    void saysWhatItIsFor();
    void standsInThePaneThatItWorksOn();
    void neverLiesOnAnother();
    void defaultSceneMakesAllPlain();

    void ghostIsFaintAndBlind_data();
    void ghostIsFaintAndBlind();
    void ghostsWithoutAScale();
    void lettersOfItsPlateAreItsText();
};

void TestLibraryButtons::codeCountsFromOne()
{
    const auto code = fetchedCode();
    QCOMPARE(static_cast<int>(button(code).code), static_cast<int>(code));
    QCOMPARE(LibraryButton::codes, 13);
}

void TestLibraryButtons::standsInItsPlaceWithItsPicture()
{
    const auto code = fetchedCode();
    reach(code);
    QVERIFY(button(code).isVisible());
    QCOMPARE(button(code).sceneBoundingRect(), QRectF(rowOf(code).place));
    QVERIFY(looksLike(button(code), pictureOf(rowOf(code), "neutral")));
}

void TestLibraryButtons::saysWhatItIsFor()
{
    const auto code = fetchedCode();
    QCOMPARE(button(code).toolTip(), QString::fromLatin1(rowOf(code).tip));
}

void TestLibraryButtons::standsInThePaneThatItWorksOn()
{
    const QRectF categoryHead(284, 19, 58, 17), scaleHead(408, 19, 74, 17), page(488, 38, 202, 83),
        pageHead(488, 19, 202, 17), metal(719, 15, 80, 116);
    const QRectF strips[] = {categoryHead, categoryHead, categoryHead, scaleHead, scaleHead,
                             scaleHead,    scaleHead,    pageHead,     pageHead,  metal,
                             metal,        pageHead,     page};
    for (const Row& row : rowsOfTable)
        QVERIFY2(strips[row.code - 1].contains(button(row.code).sceneBoundingRect()), row.tip);
}

void TestLibraryButtons::neverLiesOnAnother()
{
    for (const Row& a : rowsOfTable)
        for (const Row& b : rowsOfTable)
            if (a.code < b.code && button(a.code).isVisible() && button(b.code).isVisible())
                QVERIFY(!button(a.code).sceneBoundingRect().intersects(button(b.code).sceneBoundingRect()));
}

void TestLibraryButtons::defaultSceneMakesAllPlain()
{
    window->showLibraryScreen(false);
    pressOn(LibraryButton::open_library); // which stays, unlike the others
    QVERIFY(button(LibraryButton::open_library).isPressed());
    screen().setSceneDefault();
    QVERIFY(!button(LibraryButton::open_library).isPressed());
    QVERIFY(looksLike(button(LibraryButton::open_library), pictureOf(rowOf(10), "neutral")));
}

void TestLibraryButtons::ghostIsFaintAndBlind_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {5, 6, 7})
        QTest::addRow("%d", code) << code;
}

void TestLibraryButtons::ghostIsFaintAndBlind()
{
    const auto code = fetchedCode();
    const QImage neutral = pictureOf(rowOf(code), "neutral").toImage();
    screen().setGhostCopyButtonsEnabled(false);
    const QImage ghost = button(code).pixmap().toImage();
    QCOMPARE(ghost.size(), neutral.size());
    const int share = 100 * strongestAlpha(ghost) / strongestAlpha(neutral);
    QVERIFY2(share >= 20 && share <= 50, QByteArray::number(share).constData());
    const QString opened = whatOpens([&] {
        pressOn(code);
        QVERIFY(!button(code).isPressed());
        QCOMPARE(button(code).pixmap().toImage(), ghost);
        releaseOn(code);
    });
    QCOMPARE(opened, QString());
    screen().setGhostCopyButtonsEnabled(true);
    QVERIFY(looksLike(button(code), pictureOf(rowOf(code), "neutral")));
}

void TestLibraryButtons::ghostsWithoutAScale()
{
    for (const bool selected : {true, false, true}) {
        library().setCurrentScaleIndex(library().currentCategory(), selected ? 0 : -1);
        screen().refreshBrowser();
        for (const Row& row : rowsOfTable) {
            const bool works = row.code == 5 || row.code == 6 || row.code == 7;
            QCOMPARE(button(row.code).isEnabled(), selected || !works);
        }
    }
}

// In the plate's own picture nothing is written.
void TestLibraryButtons::lettersOfItsPlateAreItsText()
{
    auto& plate = button(LibraryButton::edit_abbr1);
    const auto painted = [&] {
        QImage image(42, 16, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        const QStyleOptionGraphicsItem option;
        plate.paint(&painter, &option, nullptr);
        return image;
    };
    plate.setText(QString());
    const QImage bare = painted();
    plate.setText(QStringLiteral("User"));
    QCOMPARE(plate.text(), QStringLiteral("User"));
    const QImage written = painted();
    QVERIFY(written != bare);
    int left = 42, right = -1;
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 42; ++x)
            if (written.pixel(x, y) != bare.pixel(x, y)) {
                left = qMin(left, x);
                right = qMax(right, x);
            }
    QVERIFY2(qAbs(left - (41 - right)) <= 3, "in the middle");
}

QTEST_MAIN(TestLibraryButtons)
#include "test_library_buttons.moc"
