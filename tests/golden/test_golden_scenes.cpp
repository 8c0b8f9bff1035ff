// Every scene of the window against the picture of it that was looked at and committed. Run once for each
// device pixel ratio.

#include "GoldenStore.h"
#include "SceneBuilder.h"
#include "app/Application.h"
#include "keys/pictures.h"
#include "picture_comparison.h"

#include <QFontInfo>
#include <QPainter>
#include <QPushButton>

using namespace picture_comparison;

class TestGoldenScenes : public SceneBuilder
{
    Q_OBJECT

private slots:
    void initTestCase();

    void scene_data();
    void scene();
    void everyPictureHasItsScene();

    // That the golden pictures would tell
    void changedDigitIsSeen();
    void litKeyIsSeen_data();
    void litKeyIsSeen();
    void buttonMovedByOnePixelIsSeen_data();
    void buttonMovedByOnePixelIsSeen();

private:
    GoldenStore store() const
    {
        return {QStringLiteral(GOLDEN_PICTURES), QStringLiteral(GOLDEN_EVIDENCE), ratio()};
    }
    bool passes(const QString& scene) const
    {
        return compare(take(), store().golden(scene, baseOf(scene)), ratio()).isSmall();
    }
    QPixmap barWith(const degree_marks::Marks& marks, int top) const;

    const bool renewing = qEnvironmentVariableIsSet("SORVANE_RENEW_GOLDEN");
};

void TestGoldenScenes::initTestCase()
{
    const QString family = QFontInfo(QFont(QStringLiteral("Arial"))).family();
    QVERIFY2(family == QLatin1String("Liberation Sans"),
             qPrintable(QStringLiteral("The pictures are lettered in Liberation Sans, not in ") + family));
}

void TestGoldenScenes::scene_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : sceneNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestGoldenScenes::scene()
{
    QFETCH(QString, name);
    QVERIFY(baseOf(baseOf(name)).isEmpty()); // a base is whole
    const QImage now = pictureOf(name);
    QVERIFY(!now.isNull());
    QCOMPARE(now.size(), QSize(952, 480) * ratio());
    store().clearEvidence(name);
    if (renewing) {
        QVERIFY(store().renew(name, baseOf(name), now) && store().show(name, now));
        return;
    }
    const QImage golden = store().golden(name, baseOf(name));
    const Difference difference = compare(now, golden, ratio());
    if (difference.isSmall())
        return;
    const QString what =
        golden.isNull() ? QStringLiteral("there is no golden picture") : difference.inWords();
    const QString line =
        QStringLiteral("%1: %2. Look at %3.*.png; if the window is right, renew: %4")
            .arg(name, what, store().keepEvidence(name, now, golden), QStringLiteral(GOLDEN_RENEWAL));
    QFAIL(qPrintable(line));
}

void TestGoldenScenes::everyPictureHasItsScene()
{
    const QStringList strangers = store().strangers(sceneNames());
    if (renewing) {
        for (const QString& stranger : strangers)
            QVERIFY(store().remove(stranger));
        return;
    }
    QVERIFY2(strangers.isEmpty(), qPrintable(QStringLiteral("No scene has %1; remove: " GOLDEN_RENEWAL)
                                                 .arg(strangers.join(QStringLiteral(", ")))));
}

// As the program paints it.
QPixmap TestGoldenScenes::barWith(const degree_marks::Marks& marks, int top) const
{
    QPixmap face = pictures::load(QStringLiteral(":/Resources/INPUTanchorbar.png"));
    QPainter painter(&face);
    for (const degree_marks::Mark& mark : marks)
        painter.drawPixmap(mark.x, top, window->degreeDigits(mark.number));
    return face;
}

void TestGoldenScenes::changedDigitIsSeen()
{
    if (renewing)
        QSKIP("renewing");
    powerOn();
    QVERIFY(passes(QStringLiteral("power-on")));
    auto* bar = qgraphicsitem_cast<QGraphicsPixmapItem*>(power()->anchorBarIn);
    const QImage shown = bar->pixmap().toImage();
    const degree_marks::Marks right = power()->marksIn();
    int top = 0;
    while (top < 20 && barWith(right, top).toImage() != shown)
        ++top;
    QVERIFY(top < 20);
    for (const std::size_t changed : {20, 21, 22, 23, 24, 25, 26}) { // an octave of it
        degree_marks::Marks wrong = right;
        int& number = wrong.at(changed).number;
        number = number % 7 + 1;
        bar->setPixmap(barWith(wrong, top));
        QVERIFY2(!passes(QStringLiteral("power-on")), qPrintable(QString::number(number)));
    }
}

void TestGoldenScenes::litKeyIsSeen_data()
{
    QTest::addColumn<QString>("scene");
    QTest::addColumn<int>("note");
    QTest::newRow("white, power off") << QStringLiteral("power-off") << 60;
    QTest::newRow("black, power off") << QStringLiteral("power-off") << 61;
    QTest::newRow("lowest, power off") << QStringLiteral("power-off") << 21;
    QTest::newRow("highest, power off") << QStringLiteral("power-off") << 108;
    QTest::newRow("white, power on") << QStringLiteral("power-on") << 60;
}

void TestGoldenScenes::litKeyIsSeen()
{
    QFETCH(QString, scene);
    QFETCH(int, note);
    if (renewing)
        QSKIP("renewing");
    static_cast<void>(pictureOf(scene));
    QVERIFY(passes(scene));
    const ResizableItem* in = window->findInNote(note);
    const QPixmap idle = in->pixmap(), idleOut = static_cast<ResizableItem*>(in->pairedOutKey)->pixmap();
    holdNote(note);
    QVERIFY(!passes(scene));
    static_cast<QGraphicsPixmapItem*>(in->pairedOutKey)->setPixmap(idleOut); // the in key alone
    QVERIFY(!passes(scene));
    sendNote(note, 0);
    QTRY_VERIFY(!in->isPushed);
    QVERIFY(passes(scene));
}

void TestGoldenScenes::buttonMovedByOnePixelIsSeen_data()
{
    QTest::addColumn<QPoint>("step");
    QTest::newRow("left") << QPoint(-1, 0);
    QTest::newRow("right") << QPoint(1, 0);
    QTest::newRow("up") << QPoint(0, -1);
    QTest::newRow("down") << QPoint(0, 1);
}

void TestGoldenScenes::buttonMovedByOnePixelIsSeen()
{
    QFETCH(QPoint, step);
    if (renewing)
        QSKIP("renewing");
    const auto& ui = window->ui;
    for (QPushButton* button : {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual, ui.buttonExport,
                                ui.buttonImport, ui.buttonReset}) {
        const QPoint home = button->pos();
        button->move(home + step);
        QVERIFY2(!passes(QStringLiteral("power-off")), qPrintable(button->objectName()));
        button->move(home);
        QVERIFY2(passes(QStringLiteral("power-off")), qPrintable(button->objectName()));
    }
    const QPointF home = power()->pos();
    power()->setPos(home + step);
    QVERIFY(!passes(QStringLiteral("power-off")));
    power()->setPos(home);
    QVERIFY(passes(QStringLiteral("power-off")));
}

int main(int argc, char** argv)
{
    SceneBuilder::fixSurroundings();
    Application application(argc, argv);
    QApplication::setCursorFlashTime(0); // carets stand still
    TestGoldenScenes test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_golden_scenes.moc"
