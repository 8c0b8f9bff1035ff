// The ring around what has the keyboard's focus: when it shows, where, and that it can be told from its
// ground.

#include "AccessFixture.h"
#include "screen/AbstractDialog.h"
#include "tools/pictures/palette.h"

#include <cmath>

class TestFocusRing : public AccessFixture
{
    Q_OBJECT

private slots:
    void showsFromTheFirstKeyUntilTheMouse();
    void codeMovesTheFocusUnseen();
    void focusThatIsTakenAwayWakesNothing();
    void followsWhatItEncloses();
    void enclosesTheFieldOfADialog();
    void liesOverWhatComesUp();
    void pointerMeansWhatLiesBelow();
    void standsOutFromAnyGround();
    void isOfTheInstrumentsColours();
};

namespace {

qreal luminance(const QColor& colour)
{
    const auto linear = [](qreal c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

qreal contrast(qreal a, qreal b)
{
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

} // namespace

void TestFocusRing::showsFromTheFirstKeyUntilTheMouse()
{
    QVERIFY(!ring().isVisible() && !ring().isAwake());
    type(Qt::Key_A);
    type(Qt::Key_Space);
    QVERIFY(!ring().isVisible());
    type(Qt::Key_Tab);
    QVERIFY(ring().isVisible());
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(940, 150));
    QVERIFY(!ring().isVisible() && !ring().isAwake());
    window->focusInKeyboard();
    type(Qt::Key_Down);
    QVERIFY(ring().isVisible());
}

void TestFocusRing::codeMovesTheFocusUnseen()
{
    window->ui.buttonCredits->setFocus();
    QVERIFY(!ring().isVisible());
    showScene(3, false);
    screen().inPortList->setFocus();
    type(Qt::Key_Down); // the row's own mark shows it
    QVERIFY(!ring().isVisible());
}

void TestFocusRing::focusThatIsTakenAwayWakesNothing()
{
    showScene(5, true);
    categoryList().setFocus();
    window->setPower(false);
    QVERIFY(!categoryList().isVisible() && !categoryList().hasFocus());
    QVERIFY(!ring().isAwake() && !ring().isVisible());
    heard();
    window->focusInKeyboard();
    type(Qt::Key_Return);
    QCOMPARE(heard(), QList<QList<int>>());
}

void TestFocusRing::followsWhatItEncloses()
{
    window->setPower(true);
    QVERIFY(tabTo(QStringLiteral("C4, white key, plays C4")));
    type(Qt::Key_Down);
    const QRect before = ring().geometry();
    placeAnchors(119);
    QTRY_VERIFY(ring().geometry() != before);
    QCOMPARE(ring().geometry().x() - before.x(), 119);
}

void TestFocusRing::enclosesTheFieldOfADialog()
{
    whenOpen<AbstractDialog>([this](AbstractDialog& dialog) {
        QVERIFY(!ring().isVisible());
        for (int i = 0; i < 3; ++i) {
            type(Qt::Key_Tab);
            const QWidget* field = QApplication::focusWidget();
            QVERIFY(dialog.isAncestorOf(field));
            QVERIFY(ring().isVisible());
            const QRect place(field->mapTo(window.get(), QPoint()), field->size());
            QVERIFY(ring().geometry().contains(place));
        }
    });
    window->setPower(true);
    screen().appendScale(1);
    QCOMPARE(seen, 1);
}

// A dialog is raised behind the focus that it takes.
void TestFocusRing::liesOverWhatComesUp()
{
    const auto uppermost = [this] {
        return window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly).last();
    };
    type(Qt::Key_Tab);
    QVERIFY(ring().isVisible());
    QWidget cover(window.get());
    cover.show();
    QCOMPARE(uppermost(), &cover);
    QEvent painted(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window.get(), &painted);
    QCOMPARE(uppermost(), static_cast<QWidget*>(&ring()));
}

void TestFocusRing::pointerMeansWhatLiesBelow()
{
    type(Qt::Key_Tab);
    QVERIFY(ring().isVisible());
    QVERIFY(window->childAt(ring().geometry().center()) != &ring());
    QVERIFY(window->childAt(ring().geometry().topLeft()) != &ring());
}

void TestFocusRing::standsOutFromAnyGround()
{
    type(Qt::Key_Tab);
    const QImage picture = ring().grab().toImage();
    const int middle = picture.height() / 2;
    QList<qreal> lines;
    for (int x = 0; x < FocusRing::thickness; ++x)
        lines << luminance(picture.pixelColor(x * qRound(picture.devicePixelRatio()), middle));
    for (int ground = 0; ground <= 255; ++ground) {
        const qreal below = luminance(QColor(ground, ground, ground));
        qreal best = 0;
        for (const qreal line : qAsConst(lines))
            best = qMax(best, contrast(line, below));
        QVERIFY2(best >= 3, qPrintable(QStringLiteral("%1: %2").arg(ground).arg(best)));
    }
}

void TestFocusRing::isOfTheInstrumentsColours()
{
    type(Qt::Key_Tab);
    const QImage picture = ring().grab().toImage();
    const auto colourAt = [&](int x) {
        return picture.pixelColor(x * qRound(picture.devicePixelRatio()), picture.height() / 2);
    };
    QCOMPARE(colourAt(0), palette::well);
    QCOMPARE(colourAt(1), palette::blueLight);
    QCOMPARE(colourAt(2), palette::blueLight);
    QCOMPARE(colourAt(3), palette::well);
}

QTEST_MAIN(TestFocusRing)
#include "test_focus_ring.moc"
