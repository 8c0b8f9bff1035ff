// What the display looks like on a real screen: a picture of every scene, dialog and menu is kept in the
// build tree for the eye, and what can be told of them without one is checked. Run once more for a dense
// screen.

#include "RealWindow.h"
#include "SceneTable.h"
#include "app/vendor.h"
#include "app/version.h"
#include "in_real_window.h"
#include "keys/StageMenu.h"
#include "screen/AbstractDialog.h"
#include "screen/AlertWidget.h"
#include "screen/CenterScreen.h"
#include "screen/TicTacToe.h"

#include <QDir>
#include <QGraphicsProxyWidget>
#include <QTimer>
#include <QtTest>

#include <cmath>
#include <functional>

using namespace scene_table;

namespace {

// Of the stage.
constexpr QRect display(207, 167, 532, 117), creditsPane(343, 224, 264, 50);
constexpr QPoint gameCorner(721, 184);
constexpr qreal gameWidth = 66, gameHeight = 62, gameDegrees = 8;

/// Buttons of the library, and what comes up behind them.
struct Question
{
    const char* name;
    QPoint place;
};

constexpr Question questions[] = {
    {"new category", {317, 179}},          {"delete category", {335, 179}},
    {"rename category", {353, 179}},       {"add scale", {441, 179}},
    {"delete scale", {495, 179}},          {"edit title", {555, 179}},
    {"edit first short name", {643, 179}}, {"edit second short name", {687, 179}},
    {"edit description", {701, 201}},
};

/// The middle of a cell of the game, 0 to 8, as it stands on the stage.
QPoint cellPlace(int cell)
{
    const qreal x = gameWidth * (cell % 3 + 0.5) / 3, y = gameHeight * (cell / 3 + 0.5) / 3;
    const qreal angle = qDegreesToRadians(gameDegrees);
    return gameCorner + QPoint(qRound(x * std::cos(angle) - y * std::sin(angle)),
                               qRound(x * std::sin(angle) + y * std::cos(angle)));
}

QRect pixelsOf(const QRect& stage)
{
    const int factor = RealWindow::screenSize().width() / 952;
    return {stage.topLeft() * factor, stage.size() * factor};
}

} // namespace

class EndToEndScenePictures : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup() { window.close(); }

    void scenes_data();
    void scenes();
    void creditsScrollInTheirPane();
    void questionsComeAndGo_data();
    void questionsComeAndGo();
    void fieldErrorIsSeen();
    void otherSigns();
    void gameIsPlayedOnItsNote_data();
    void gameIsPlayedOnItsNote();

private:
    [[nodiscard]] bool goTo(Scene scene);
    [[nodiscard]] QImage take() const;
    [[nodiscard]] QImage keep(const QString& name) const;
    [[nodiscard]] AbstractDialog* openDialog() const;
    [[nodiscard]] QString board() const;
    /// Runs `look` as soon as a dialog or a menu is up, then presses Escape.
    void whenUp(const std::function<void()>& look);
    [[nodiscard]] static QRect differenceOf(const QImage& one, const QImage& other);

    RealWindow window;
    int asked = 0;
};

void EndToEndScenePictures::initTestCase()
{
    QVERIFY(QDir().mkpath(QStringLiteral(SCENE_PICTURES)));
}

void EndToEndScenePictures::init()
{
    QVERIFY(window.open());
    window->ui.versionLabel->setText(
        QStringLiteral("Sorvane %1, <a style=\"color: #575450\" href=\"%2\">%2</a>")
            .arg(sorvaneVersion, QLatin1String(vendor::site)));
    asked = 0;
}

bool EndToEndScenePictures::goTo(Scene scene)
{
    const Action* way = scene > plain ? actionNamed(QLatin1String(wayTo(scene))) : nullptr;
    return !way || (window.hand().click(way->place) && window.hand().rest());
}

QImage EndToEndScenePictures::take() const
{
    return window.picture();
}

QImage EndToEndScenePictures::keep(const QString& name) const
{
    const QImage picture = take();
    const QString dense = qApp->devicePixelRatio() > 1 ? QStringLiteral("@2x") : QString();
    picture.save(QStringLiteral(SCENE_PICTURES "/%1%2.png")
                     .arg(QString(name).replace(QLatin1Char(' '), QLatin1Char('-')), dense));
    return picture;
}

AbstractDialog* EndToEndScenePictures::openDialog() const
{
    const auto dialogs = window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly);
    for (AbstractDialog* dialog : dialogs)
        if (dialog->isVisible())
            return dialog;
    return nullptr;
}

void EndToEndScenePictures::whenUp(const std::function<void()>& look)
{
    auto* poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, [this, poll, look] {
        if (!openDialog() && !QApplication::activePopupWidget())
            return;
        poll->stop();
        poll->deleteLater();
        ++asked;
        window.hand().rest();
        look();
        window.hand().key(QStringLiteral("Escape"));
    });
    poll->start(5);
}

void EndToEndScenePictures::scenes_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<bool>("power");
    for (const Look& look : looks)
        for (const bool power : {false, true})
            if (power || look.scene != library)
                QTest::addRow("%s, power %s", look.name, power ? "on" : "off") << int(look.scene) << power;
}

// A scene changes the display and leaves the keyboards alone.
void EndToEndScenePictures::scenes()
{
    QFETCH(int, scene);
    QFETCH(bool, power);
    if (power)
        QVERIFY(window.hand().key(QStringLiteral("space")));
    const QImage before = take();
    QVERIFY(goTo(Scene(scene)));
    const QImage picture = keep(QStringLiteral("scene %1 power %2")
                                    .arg(QLatin1String(lookOf(Scene(scene)).name),
                                         power ? QStringLiteral("on") : QStringLiteral("off")));
    QCOMPARE(picture.size(), RealWindow::screenSize());
    if (scene != plain)
        QVERIFY(picture.copy(pixelsOf(display)) != before.copy(pixelsOf(display)));
    const QRect aboveDisplay(0, 0, 952, 150), belowDisplay(0, 300, 952, 180);
    for (const QRect& rest : {aboveDisplay, belowDisplay})
        QCOMPARE(picture.copy(pixelsOf(rest)), before.copy(pixelsOf(rest)));
}

// A line of the credits shows in its pane only: below the version line, above the shade of the display.
void EndToEndScenePictures::creditsScrollInTheirPane()
{
    QVERIFY(goTo(credits));
    CenterScreen& screen = *window->centerScreen;
    screen.creditTimer->stop(); // from here on the test moves them
    for (QGraphicsItem* line : qAsConst(screen.creditItems))
        line->setOpacity(0);
    const QImage bare = take();
    for (QGraphicsItem* line : qAsConst(screen.creditItems))
        line->setOpacity(1);
    for (int step = 0; step < 120; ++step) {
        screen.moveCreditsText();
        const QImage now = take();
        const QRect ink = differenceOf(bare, now);
        QVERIFY(pixelsOf(creditsPane).contains(ink));
        if (step % 40 == 20)
            static_cast<void>(keep(QStringLiteral("credits after %1 steps").arg(step)));
    }
}

// Where two pictures differ, in their pixels.
QRect EndToEndScenePictures::differenceOf(const QImage& one, const QImage& other)
{
    QRect differing;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y))
                differing |= QRect(x, y, 1, 1);
    return differing;
}

void EndToEndScenePictures::questionsComeAndGo_data()
{
    QTest::addColumn<QPoint>("place");
    for (const Question& question : questions)
        QTest::newRow(question.name) << question.place;
}

// A dialog covers the window and leaves it as it was.
void EndToEndScenePictures::questionsComeAndGo()
{
    QFETCH(QPoint, place);
    QVERIFY(window.hand().key(QStringLiteral("space")) && goTo(library));
    const QImage before = take();
    QImage during;
    whenUp([&] { during = keep(QStringLiteral("dialog ") + QLatin1String(QTest::currentDataTag())); });
    QVERIFY(window.hand().click(place) && window.hand().rest());
    QTRY_COMPARE(asked, 1);
    QTRY_VERIFY(!window->dialogOpen);
    QVERIFY(qGray(during.pixel(2, 2)) < qGray(before.pixel(2, 2)));
    QCOMPARE(take(), before);
}

void EndToEndScenePictures::fieldErrorIsSeen()
{
    QVERIFY(window.hand().key(QStringLiteral("space")) && goTo(library));
    whenUp([&] {
        static_cast<void>(keep(QStringLiteral("dialog focus on the first short name")));
        window.hand().key(QStringLiteral("shift+underscore"));
        static_cast<void>(keep(QStringLiteral("dialog field error")));
    });
    QVERIFY(window.hand().click({643, 179}) && window.hand().rest());
    QTRY_COMPARE(asked, 1);
}

// What no click brings up in a moment: the alert of a port, the sign of an unknown scale, the menu of a copy.
void EndToEndScenePictures::otherSigns()
{
    AlertWidget alert(QString(), MainWnd::portErrorText(QStringLiteral("The port is gone.")),
                      QStringLiteral("  OK  "), QString(), alert_error, &*window);
    alert.resize(window->size());
    alert.show();
    static_cast<void>(keep(QStringLiteral("dialog port error")));
    alert.reject();
    QVERIFY(window.hand().key(QStringLiteral("space")) && goTo(library));
    whenUp([&] { static_cast<void>(keep(QStringLiteral("library copy menu"))); });
    QVERIFY(window.hand().click({459, 179}));
    QTRY_COMPARE(asked, 1);
    for (const int x : {824, 858}) // two degrees less make a scale that nobody knows
        QVERIFY(window.hand().click({x, 238}));
    QVERIFY(window.hand().rest());
    QTRY_VERIFY(!window->centerScreen->isMatches());
    static_cast<void>(keep(QStringLiteral("library unknown scale")));
}

QString EndToEndScenePictures::board() const
{
    const QList<QGraphicsItem*> items = window->ui.centerGraphicsView->scene()->items();
    for (const QGraphicsItem* item : items)
        if (item->type() == QGraphicsProxyWidget::Type)
            if (const auto* game =
                    qobject_cast<TicTacToe*>(static_cast<const QGraphicsProxyWidget*>(item)->widget()))
                return game->state();
    return {};
}

void EndToEndScenePictures::gameIsPlayedOnItsNote_data()
{
    scenes_data();
}

// Through the rotation, and whatever the scene lays around it.
void EndToEndScenePictures::gameIsPlayedOnItsNote()
{
    QFETCH(int, scene);
    QFETCH(bool, power);
    if (power)
        QVERIFY(window.hand().key(QStringLiteral("space")));
    QVERIFY(goTo(Scene(scene)));
    QString expected = QStringLiteral("---------");
    const QList<int> order{4, 0, 2, 6, 3, 5, 1, 7, 8};
    for (int turn = 0; turn < order.size(); ++turn) {
        QVERIFY(window.hand().click(cellPlace(order.at(turn))));
        expected.replace(order.at(turn), 1, turn % 2 == 0 ? QLatin1Char('X') : QLatin1Char('O'));
        QCOMPARE(board(), expected);
        if (turn == 4 && scene == plain)
            static_cast<void>(keep(QStringLiteral("game half played power %1").arg(power)));
    }
    QVERIFY(window.hand().rest());
    static_cast<void>(keep(
        QStringLiteral("game full %1 power %2").arg(QLatin1String(lookOf(Scene(scene)).name)).arg(power)));
    QVERIFY(window.hand().click(cellPlace(8)));
    QCOMPARE(board(), QStringLiteral("---------"));
    QCOMPARE(window->centerScreen->currentScene, scene == library ? int(plain) : scene);
}

int main(int argc, char** argv)
{
    return runInRealWindow<EndToEndScenePictures, QApplication>(argc, argv);
}

#include "e2e_scene_pictures.moc"
