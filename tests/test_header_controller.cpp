// The presets: which one is active, what passes between it and the selectors, the menu and the two questions.

#include "RecordingPort.h"
#include "RoadModel.h"
#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "headers/AnchorsGroup.h"
#include "headers/DiagramScene.h"
#include "headers/HeaderController.h"
#include "keys/PowerItem.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "library/default_tables.h"
#include "logging/categories.h"
#include "screen/CenterScreen.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QMessageBox>
#include <QTimer>
#include <QtTest>

#include <functional>
#include <thread>

namespace {

const QString ionian = QStringLiteral("xoxoxxoxoxox");
const QString lydian = QStringLiteral("xoxoxoxxoxox");
const QString wholeTone = QStringLiteral("xoxoxoxoxoxo");
const QString octaves = QStringLiteral("xooooooooooo");
const QString unknown = QStringLiteral("xxxooooooooo"); // in no category

constexpr bool on = true, off = false;
constexpr int firstActive = 63, powerKey = 49, lowest = 22, highest = 106;

QString asText(const header_data& d)
{
    return QStringLiteral("'%1' '%2' '%3' %4 '%5' %6 '%7' %8 %9")
        .arg(d.nameScenic1, d.nameScenic2, d.nameTonic, QString::number(d.tonicOn), d.tonicData,
             QString::number(d.scaleOn), d.scaleData, QString::number(d.anchorValid),
             QString::number(d.anchorPos));
}

header_data factoryRow(int index)
{
    return resetHeaderData.at(static_cast<std::size_t>(index));
}

/// A record that differs from the selectors' start in every field.
header_data fullRecord()
{
    header_data data(QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("E"), on, QStringLiteral("E"),
                     on, lydian);
    data.anchorValid = true;
    data.anchorPos = 51;
    return data;
}

bool shows(const QGraphicsPixmapItem* item, const QString& path)
{
    return item->pixmap().toImage() == pictures::load(path).toImage();
}

/// Lets the debug lines of the headers through as long as it lives.
struct HeaderLog
{
    HeaderLog() { category().setEnabled(QtDebugMsg, true); }
    ~HeaderLog() { category().setEnabled(QtDebugMsg, false); }
    static QLoggingCategory& category() { return const_cast<QLoggingCategory&>(lcHeaders()); }
};

void expectLine(const char* pattern)
{
    QTest::ignoreMessage(QtDebugMsg, QRegularExpression(QLatin1String(pattern)));
}

} // namespace

class TestHeaderController : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    // Creation
    void thirtySixHeadersStandOnTheBlackKeys();
    void headersStartWithTheFactoryRows();
    void headerWithoutControllerIsNotBuilt();

    // Recall
    void nullItemIsNoRecall();
    void openDialogStopsARecall();
    void recallOfTheActiveHeaderOnlyMatches();
    void storeSavesTheSelectors();
    void storeWithTheTonicOffKeepsThePitchPosition();
    void storeRefreshesTheHeaderThatIsLeft();
    void recallWithoutStoreMovesNothing();
    void recallWithoutStoreRefreshesTheHeaderThatIsLeft();
    void recallWithThePowerOffLoadsNothing();
    void recallLoadsTonicAndScale();
    void recallOfATonicAloneKeepsTheScale();
    void recallOfAScaleAloneKeepsTheTonic();
    void recallOfAnEmptyHeaderSwitchesBothOff();
    void recallOfATonicWithoutAWordStillMapsIt();
    void firstRecallSavesNowhere();
    void statusSaysWhichHeaderIsActive();
    void statusActiveRecallsWithoutStore();

    // Pitch position
    void storePitchPositionTruncates_data();
    void storePitchPositionTruncates();
    void invalidPitchPositionKeepsTheOldOne();
    void restorePitchPositionMovesRight();
    void recallMovesTheAnchors_data();
    void recallMovesTheAnchors();

    // Neighbours
    void walkVisitsEveryBlackKeyButThePowerButtons();
    void walkEndsAtTheOutermostHeaders();
    void walkEndsBeforeAPowerButtonAtTheEnd();
    void withoutAnActiveHeaderThereIsNoNeighbour();
    void controlArrowsRecallWithThePowerOn();

    // Finding and showing
    void findHeaderByKeyAndStatus();
    void headersAreShownButUnderThePowerButton();

    // Records
    void freeUserNumberIsTheSmallest();
    void onlyWholeUserNamesTakeANumber();
    void numbersEndAt108();
    void temporaryRecordLivesWithItsHeaders();
    void switchedOffScaleLetsItsRecordGo();
    void libraryRecordsNeverGo();
    void removalStepsOverMissingHeaders();
    void positionsAreReadAndWrittenInOrder();
    void recordsAreReadAndWrittenInOrder();
    void scenicsOfOneWordOrOfAll();

    // Menu
    void menuReads();
    void everyActionRunsItsSlot();
    void slotsWithoutAContextHeaderDoNothing();
    void copyTakesAllFieldsOnce();
    void pasteIntoAnotherHeaderLeavesTheSelectors();
    void pasteIntoTheActiveHeaderDrivesTheSelectors();
    void pasteOfSwitchedOffFieldsSwitchesOff();
    void locksOfTheActiveHeader();
    void locksOfAnotherHeader();
    void lockKeepsWhatTheOtherHeaderHeld();
    void lockWithThePowerOffStoresTheSelectors();
    void eraseOfAnotherHeader();
    void eraseOfTheActiveHeader();
    void resetOfAnotherHeaderTakesTheLibrarysNames();
    void resetOfTheActiveHeader();
    void resetBringsTheAnchorsHomeWithThePowerOn();
    void menuOpensOverTheHeader();
    void pasteIsOfferedAfterACopy();
    void clickInTheMenuActsAndGivesThePictureBack();
    void keysInTheMenu_data();
    void keysInTheMenu();

    // Questions
    void eraseAllAsks();
    void resetAllAsks();
    void answers_data();
    void answers();
    void spaceIsNoAnswer();
    void eraseAllClearsEverything();
    void controlRResets();
    void resetAllWritesTheFactoryRows();
    void resetAllPlacesThePowerButton();
    void resetAllLoadsTheActiveHeader_data();
    void resetAllLoadsTheActiveHeader();
    void resetAllWithoutAnActiveHeader();
    void resetAllKeepsThePower_data();
    void resetAllKeepsThePower();

    // Scale match
    void matchNeedsTheWholeWindow();
    void matchRefreshesTheActiveHeader();
    void matchKeepsACategoryThatHoldsTheWord();
    void matchTakesTheFirstCategoryElsewhere();
    void matchOfAnUnknownWordKeepsTheCategory();
    void hitAreasFollowTheSceneNumber_data();
    void hitAreasFollowTheSceneNumber();

    // The power button's place
    void powerFindsTheHeaderBelow();
    void powerGoesBackWithoutAHeaderBelow();
    void powerNeedsAScene();
    void swapOfOneItemIsNone();
    void powerOnAHeaderTakesItsPlace();
    void powerOnTheActiveHeaderKeepsThePresetActive_data();
    void powerOnTheActiveHeaderKeepsThePresetActive();
    void powerOnNoHeaderIsRefused();
    void headerOnNothingBecomesActive();
    void headerOnAHeaderSwaps();
    void headerOnAHeaderCopiesInCopyMode();
    void headerOnThePowerButtonTakesItsPlace();
    void headerOnOwnPowerButtonOrKeyIsRefused();
    void keyIsNeverDropped();

    // Playing
    void blackKeyRecallsWithThePowerOn();
    void blackKeyDoesNotRecallOtherwise();
    void powerKeyToggles();
    void powerKeyMovesWithTheButton();
    void learnModeStoresTheWordOfASwitchedOnScale();
    void clickRecalls();
    void clickDoesNotRecallOtherwise();
    void messagesBehindABlackKeyPlayTheNewMapping();
    void floodOfBlackKeysNeitherNestsNorLosesANote();

private:
    HeaderController& presets() const { return *window->headerController; }
    HeaderItem* header(int key) const { return presets().findHeader(key); }
    header_data& record(int key) const { return header(key)->record; }
    int active() const { return key_roles::pitch(presets().activeHeader); }
    PowerItem* power() const { return window->powerItem; }
    DiagramScene* scene() const;
    TonicKeyController& tonic() const { return *static_cast<TonicKeyController*>(window->tonicController); }
    ScaleKeyController& scale() const { return *static_cast<ScaleKeyController*>(window->scaleController); }
    int target(int note) const { return key_roles::target(window->findInNote(note)); }
    void recall(int key, bool store = true) const { presets().setActiveHeader(header(key), store); }
    void openMenuOn(int key) const { presets().contextHeader = header(key); }
    void setTonic(const char* name) const
    {
        QVERIFY(tonic().setTonicModifier(QLatin1String(name), true, true));
    }
    void setScale(const QString& word) const { QVERIFY(scale().setScaleModifier(word, true)); }
    void press(int note) const { window->pushKeySlot({0x90, note, 100}); }
    void release(int note) const { window->pushKeySlot({0x80, note, 0}); }
    void send(const std::vector<std::vector<unsigned char>>& messages) const;
    /// Everything that a preset or a selector may change.
    QStringList state() const;
    /// What `act` leaves of a window whose menu stands on a header, locked or not.
    QString outcome(const std::function<void()>& act, bool locked);
    /// Takes the factory's presets away, and the numbers that two of them carry.
    void emptyHeaders() const;
    /// Moves the power button; the active preset and the power stay.
    void movePower(int key) const { QVERIFY(scene()->swapHeader(header(key), power())); }
    void addAnchors(qreal x);
    void show() const;
    QPoint placeOf(int key) const;
    void openMenuByPointer(int key) const;
    /// Runs `look` once the widget that `find` gives is up; what it leaves open is closed for it.
    template <typename Widget>
    void whenUp(const std::function<Widget*()>& find, const std::function<void(Widget&)>& look);
    void whenAsked(const std::function<void(QMessageBox&)>& look);
    void whenMenuIsUp(const std::function<void(QMenu&)>& look);
    void answer(QMessageBox::ButtonRole role);

    std::unique_ptr<MainWnd> window;
    RecordingPort* port = nullptr; // owned by the window
    std::unique_ptr<AnchorsGroup> anchors;
    int seen = 0; // menus and questions
};

void TestHeaderController::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    port = new RecordingPort;
    window->outPorts[0] = port;
    window->midiOutOpen = true;
    seen = 0;
}

void TestHeaderController::cleanup()
{
    power()->anchorsGroup = nullptr;
    power()->mainAnchorIn = nullptr;
    anchors.reset();
    window.reset();
}

DiagramScene* TestHeaderController::scene() const
{
    return qobject_cast<DiagramScene*>(window->ui.inKeyboardGraphicsView->scene());
}

QStringList TestHeaderController::state() const
{
    QStringList lines;
    for (const HeaderItem* item : qAsConst(presets().headers))
        lines << asText(item->record) + QString::number(item->status());
    lines << QString::number(presets().headers.indexOf(presets().activeHeader));
    lines << QString::number(tonic().tonicModifierIndex()) << scale().scaleModifier();
    lines << QString::number(tonic().switchOn) << QString::number(scale().switchOn);
    lines << QString::number(power()->isSwitchOn()) << QString::number(key_roles::pitch(power()));
    return lines;
}

void TestHeaderController::emptyHeaders() const
{
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = {};
    presets().removeUnusedTempRecords();
}

void TestHeaderController::addAnchors(qreal x)
{
    anchors = std::make_unique<AnchorsGroup>();
    auto* main = new QGraphicsItemGroup;
    anchors->addToGroup(main);
    scene()->addItem(anchors.get());
    anchors->setPos(x, 7);
    power()->anchorsGroup = anchors.get();
    power()->mainAnchorIn = main;
}

void TestHeaderController::show() const
{
    window->move(0, -200); // so that the screen has room for a menu below a header
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

// The middle of the upper name box: no other flag reaches it.
QPoint TestHeaderController::placeOf(int key) const
{
    const QPointF box = QRectF(header(key)->nameRect1).center();
    return window->ui.inKeyboardGraphicsView->mapFromScene(header(key)->mapToScene(box));
}

void TestHeaderController::openMenuByPointer(int key) const
{
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    const QPoint pos = placeOf(key);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, viewport->mapToGlobal(pos));
    QCoreApplication::sendEvent(viewport, &event);
}

template <typename Widget>
void TestHeaderController::whenUp(const std::function<Widget*()>& find,
                                  const std::function<void(Widget&)>& look)
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this, poll, find, look] {
        Widget* widget = find();
        if (!widget || !widget->isVisible())
            return;
        poll->deleteLater();
        poll->stop();
        ++seen;
        QTimer::singleShot(3000, widget, &QWidget::close);
        look(*widget);
    });
    poll->start(1);
}

void TestHeaderController::whenAsked(const std::function<void(QMessageBox&)>& look)
{
    whenUp<QMessageBox>([] { return qobject_cast<QMessageBox*>(QApplication::activeModalWidget()); }, look);
}

void TestHeaderController::whenMenuIsUp(const std::function<void(QMenu&)>& look)
{
    whenUp<QMenu>([this] { return presets().menu; }, look);
}

void TestHeaderController::answer(QMessageBox::ButtonRole role)
{
    whenAsked([role](QMessageBox& box) {
        for (QAbstractButton* button : box.buttons())
            if (box.buttonRole(button) == role)
                button->click();
    });
}

void TestHeaderController::send(const std::vector<std::vector<unsigned char>>& messages) const
{
    std::thread midi([&] {
        for (std::vector<unsigned char> message : messages)
            window->inSigReceived(0.0, &message, nullptr);
    });
    midi.join();
}

void TestHeaderController::thirtySixHeadersStandOnTheBlackKeys()
{
    struct Flag
    {
        int key;
        header_type type;
        QPointF pos;
    };
    std::vector<Flag> flags{{22, header_a_sharp, {16, 1}}};
    for (int k = 0; k < 7; ++k)
        flags.insert(flags.end(), {{25 + 12 * k, header_c_sharp, QPointF(33 + 119 * k, 28)},
                                   {27 + 12 * k, header_d_sharp, QPointF(67 + 119 * k, 28)},
                                   {30 + 12 * k, header_f_sharp, QPointF(74 + 119 * k, 1)},
                                   {32 + 12 * k, header_g_sharp, QPointF(109 + 119 * k, 1)},
                                   {34 + 12 * k, header_a_sharp, QPointF(135 + 119 * k, 1)}});
    QCOMPARE(presets().headers.size(), 36);
    QCOMPARE(flags.size(), std::size_t(36));
    for (std::size_t i = 0; i < flags.size(); ++i) {
        const HeaderItem* item = presets().headers.at(static_cast<int>(i));
        QCOMPARE(item->type, flags[i].type);
        QCOMPARE(item->pos(), flags[i].pos);
        QCOMPARE(item->homePos, flags[i].pos);
        QCOMPARE(item->data(1).toString(), QStringLiteral("header"));
        QCOMPARE(item->data(2).toInt(), flags[i].key);
        QCOMPARE(item->data(3).toString(), QStringLiteral("#"));
        QCOMPARE(item->data(12).toInt(), flags[i].key);
        QCOMPARE(item->status(), flags[i].key == firstActive ? header_active : header_deactive);
        QCOMPARE(item->scene(), scene());
        QCOMPARE(item->controller, &presets());
        QVERIFY(key_roles::isBlack(window->findInNote(flags[i].key)));
    }
    QCOMPARE(active(), firstActive);
    QVERIFY(!presets().contextHeader);
    QVERIFY(!presets().hasCopy);
}

// Two rows hold words that the library does not load: these get numbers.
void TestHeaderController::headersStartWithTheFactoryRows()
{
    int users = 0;
    for (int i = 0; i < 36; ++i) {
        header_data wanted = factoryRow(i);
        scale_data names;
        const QString& word = wanted.scaleData;
        if (wanted.scaleOn && !window->library.getScaleData(word, names, DatabaseLibrary::LibraryRole)) {
            names.abbr1 = QStringLiteral("User");
            names.abbr2 = QString::number(++users);
        }
        wanted.nameScenic1 = names.abbr1;
        wanted.nameScenic2 = names.abbr2;
        QCOMPARE(asText(presets().headers.at(i)->record), asText(wanted));
    }
    QCOMPARE(users, 2);
}

void TestHeaderController::headerWithoutControllerIsNotBuilt()
{
    const int items = scene()->items().size();
    HeaderController* controller = window->headerController;
    window->headerController = nullptr;
    {
        const HeaderLog log;
        expectLine("^HeaderController must be initialized before creating any Header$");
        window->createHeaderItem(QStringLiteral("header"), 25, 1, header_c_sharp, {1, 2}, header_active);
    }
    window->headerController = controller;
    QCOMPARE(scene()->items().size(), items);
    QCOMPARE(presets().headers.size(), 36);
}

void TestHeaderController::nullItemIsNoRecall()
{
    window->setPower(true);
    const QStringList before = state();
    presets().setActiveHeader(nullptr, true);
    presets().setActiveHeader(nullptr, false);
    QCOMPARE(state(), before);
}

void TestHeaderController::openDialogStopsARecall()
{
    window->setPower(true);
    window->dialogOpen = true;
    const QStringList before = state();
    recall(25, true);
    recall(25, false);
    QCOMPARE(state(), before);
}

void TestHeaderController::recallOfTheActiveHeaderOnlyMatches()
{
    window->setPower(true);
    record(firstActive) = fullRecord();
    const QString category = window->library.currentCategory();
    window->library.setCurrentScaleIndex(category, -1);
    recall(firstActive);
    // The names are mended; the other fields are neither saved nor loaded.
    header_data wanted = fullRecord();
    wanted.nameScenic1 = QStringLiteral("MAJOR");
    wanted.nameScenic2 = QStringLiteral("Lydian");
    QCOMPARE(asText(record(firstActive)), asText(wanted));
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(window->library.currentScale(), ionian);
}

void TestHeaderController::storeSavesTheSelectors()
{
    addAnchors(34);
    setTonic("D");
    setScale(wholeTone);
    record(firstActive) = {};
    recall(25);
    header_data wanted = {
        QStringLiteral("SYMM"), QStringLiteral("WholeT."), QString(), on, QStringLiteral("D"), on, wholeTone};
    wanted.anchorValid = true;
    wanted.anchorPos = 34;
    QCOMPARE(asText(record(firstActive)), asText(wanted));
}

void TestHeaderController::storeWithTheTonicOffKeepsThePitchPosition()
{
    addAnchors(34);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    record(firstActive) = fullRecord();
    recall(25);
    const header_data& left = record(firstActive);
    QVERIFY(!left.tonicOn);
    QCOMPARE(left.tonicData, QString());
    QVERIFY(!left.anchorValid);
    QCOMPARE(left.anchorPos, 51);
    QVERIFY(!left.scaleOn);
    QCOMPARE(left.scaleData, ionian);
}

void TestHeaderController::storeRefreshesTheHeaderThatIsLeft()
{
    emptyHeaders();
    setScale(unknown);
    recall(25);
    QCOMPARE(record(firstActive).nameScenic1, QStringLiteral("User"));
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("1"));
    QVERIFY(window->library.isCustomScale(unknown));
}

void TestHeaderController::recallWithoutStoreMovesNothing()
{
    addAnchors(34);
    window->setPower(true);
    record(25) = fullRecord();
    const QString before = asText(record(firstActive));
    recall(25, false);
    QCOMPARE(active(), 25);
    QCOMPARE(asText(record(firstActive)), before);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(anchors->pos(), QPointF(34, 7));
}

void TestHeaderController::recallWithoutStoreRefreshesTheHeaderThatIsLeft()
{
    record(firstActive) = fullRecord();
    recall(25, false);
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(header(firstActive)->status(), header_deactive);
}

void TestHeaderController::recallWithThePowerOffLoadsNothing()
{
    addAnchors(34);
    record(25) = fullRecord();
    recall(25);
    QCOMPARE(active(), 25);
    QCOMPARE(record(firstActive).scaleData, ionian); // saved all the same
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(anchors->pos(), QPointF(34, 7));
}

void TestHeaderController::recallLoadsTonicAndScale()
{
    window->setPower(true);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    record(25) = fullRecord();
    record(25).nameTonic.clear();
    recall(25);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(record(25).nameTonic, QStringLiteral("E"));
    QCOMPARE(target(60), 64);
    QCOMPARE(target(65), 64 + 6); // the fourth white key plays the raised fourth
}

void TestHeaderController::recallOfATonicAloneKeepsTheScale()
{
    window->setPower(true);
    record(25) = {QString(), QString(), QStringLiteral("G"), on, QStringLiteral("G"), off, lydian};
    recall(25);
    QVERIFY(tonic().switchOn && !scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("G"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(target(60), 67);
}

void TestHeaderController::recallOfAScaleAloneKeepsTheTonic()
{
    window->setPower(true);
    setTonic("D");
    record(25) = {QString(), QString(), QStringLiteral("G"), off, QStringLiteral("G"), on, lydian};
    recall(25);
    QVERIFY(!tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(target(60), 62);
    QCOMPARE(target(65), 62 + 6);
}

void TestHeaderController::recallOfAnEmptyHeaderSwitchesBothOff()
{
    window->setPower(true);
    setTonic("D");
    record(25) = {};
    recall(25);
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(tonic().tonicModifierIndex(), 2);
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(asText(record(25)), asText({}));
}

void TestHeaderController::recallOfATonicWithoutAWordStillMapsIt()
{
    window->setPower(true);
    record(25) = {QString(), QString(), QStringLiteral("F"), on, QStringLiteral("F"), on, QString()};
    recall(25);
    QCOMPARE(scale().scaleModifier(), ionian);
    QCOMPARE(target(60), 65);
}

void TestHeaderController::firstRecallSavesNowhere()
{
    addAnchors(34);
    window->setPower(true);
    presets().activeHeader = nullptr;
    record(25) = fullRecord();
    const QString before = asText(record(firstActive));
    recall(25);
    QCOMPARE(active(), 25);
    QCOMPARE(asText(record(firstActive)), before);
    QCOMPARE(anchors->x(), 34.0 + 51); // the remembered offset is 0
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
}

void TestHeaderController::statusSaysWhichHeaderIsActive()
{
    for (const int key : {25, highest, lowest, firstActive}) {
        recall(key);
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->status(), item == header(key) ? header_active : header_deactive);
    }
}

void TestHeaderController::statusActiveRecallsWithoutStore()
{
    window->setPower(true);
    record(25) = fullRecord();
    header(25)->setStatus(header_active);
    QCOMPARE(active(), 25);
    QCOMPARE(header(firstActive)->status(), header_deactive);
    QCOMPARE(scale().scaleModifier(), ionian);
}

void TestHeaderController::storePitchPositionTruncates_data()
{
    QTest::addColumn<qreal>("x");
    QTest::addColumn<int>("wanted");
    QTest::newRow("whole") << 34.0 << 34;
    QTest::newRow("right") << 34.9 << 34;
    QTest::newRow("left") << -17.9 << -17;
    QTest::newRow("home") << 0.0 << 0;
}

void TestHeaderController::storePitchPositionTruncates()
{
    QFETCH(qreal, x);
    addAnchors(x);
    header_data data;
    data.anchorPos = 999;
    presets().storePitchPosition(data, true);
    QVERIFY(data.anchorValid);
    QTEST(data.anchorPos, "wanted");
}

void TestHeaderController::invalidPitchPositionKeepsTheOldOne()
{
    addAnchors(34);
    header_data data = fullRecord();
    presets().storePitchPosition(data, false);
    QVERIFY(!data.anchorValid);
    QCOMPARE(data.anchorPos, 51);
}

void TestHeaderController::restorePitchPositionMovesRight()
{
    addAnchors(10);
    header_data data = fullRecord();
    presets().restorePitchPosition(data);
    QCOMPARE(anchors->pos(), QPointF(61, 7));
    data.anchorPos = -17;
    presets().restorePitchPosition(data);
    QCOMPARE(anchors->pos(), QPointF(44, 7));
    data.anchorValid = false;
    presets().restorePitchPosition(data);
    QCOMPARE(anchors->pos(), QPointF(44, 7));
}

void TestHeaderController::recallMovesTheAnchors_data()
{
    QTest::addColumn<bool>("oldTonic");
    QTest::addColumn<bool>("newTonic");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<qreal>("before");
    QTest::addColumn<qreal>("after");
    QTest::newRow("to the stored place") << on << on << true << 34.0 << 51.0;
    QTest::newRow("truncated offset") << on << on << true << 34.5 << 51.5;
    QTest::newRow("left of home") << on << on << true << -34.5 << 50.5;
    QTest::newRow("nothing stored: home") << on << on << false << 34.0 << 0.0;
    QTest::newRow("offset counts with the old tonic off") << off << on << true << 34.0 << 51.0;
    QTest::newRow("new tonic off: stays") << on << off << true << 34.0 << 34.0;
}

void TestHeaderController::recallMovesTheAnchors()
{
    QFETCH(bool, oldTonic);
    QFETCH(qreal, before);
    window->setPower(true);
    addAnchors(before);
    if (!oldTonic)
        tonic().setSwitchOff(false);
    record(25) = fullRecord();
    record(25).tonicOn = *static_cast<bool*>(QTest::qData("newTonic", QMetaType::Bool));
    record(25).anchorValid = *static_cast<bool*>(QTest::qData("valid", QMetaType::Bool));
    recall(25);
    QTEST(anchors->x(), "after");
    QCOMPARE(anchors->y(), 7.0);
    QCOMPARE(record(firstActive).anchorValid, oldTonic);
    if (oldTonic)
        QCOMPARE(record(firstActive).anchorPos, static_cast<int>(before));
}

void TestHeaderController::walkVisitsEveryBlackKeyButThePowerButtons()
{
    QList<int> keys, visited;
    for (int key = lowest; key <= highest; ++key)
        if (!isWhite(key) && key != powerKey)
            keys << key;
    recall(lowest);
    for (int i = 0; i < keys.size(); ++i, presets().setActiveHeaderNext())
        visited << active();
    QCOMPARE(visited, keys);
    visited.clear();
    for (int i = 0; i < keys.size(); ++i, presets().setActiveHeaderPrev())
        visited.prepend(active());
    QCOMPARE(visited, keys);
}

void TestHeaderController::walkEndsAtTheOutermostHeaders()
{
    recall(lowest);
    const QStringList atLowest = state();
    presets().setActiveHeaderPrev();
    QCOMPARE(state(), atLowest);
    recall(highest);
    const QStringList atHighest = state();
    presets().setActiveHeaderNext();
    QCOMPARE(state(), atHighest);
}

void TestHeaderController::walkEndsBeforeAPowerButtonAtTheEnd()
{
    key_roles::setPitch(power(), lowest);
    recall(25);
    presets().setActiveHeaderPrev();
    QCOMPARE(active(), 25);
    key_roles::setPitch(power(), highest);
    recall(104);
    presets().setActiveHeaderNext();
    QCOMPARE(active(), 104);
}

void TestHeaderController::withoutAnActiveHeaderThereIsNoNeighbour()
{
    presets().activeHeader = nullptr;
    presets().setActiveHeaderPrev();
    presets().setActiveHeaderNext();
    QVERIFY(!presets().activeHeader);
}

void TestHeaderController::controlArrowsRecallWithThePowerOn()
{
    show();
    const auto arrow = [this](Qt::Key key) { QTest::keyClick(window.get(), key, Qt::ControlModifier); };
    arrow(Qt::Key_Left);
    QCOMPARE(active(), firstActive); // the power is off
    window->setPower(true);
    arrow(Qt::Key_Left);
    QCOMPARE(active(), 61);
    arrow(Qt::Key_Right);
    arrow(Qt::Key_Right);
    QCOMPARE(active(), 66);
    window->dialogOpen = true;
    arrow(Qt::Key_Left);
    QCOMPARE(active(), 66);
}

void TestHeaderController::findHeaderByKeyAndStatus()
{
    QCOMPARE(presets().findHeader(lowest), presets().headers.first());
    QCOMPARE(presets().findHeader(highest), presets().headers.last());
    for (const int none : {-1, 0, 21, 60, 108, 109})
        QVERIFY(!presets().findHeader(none));
    QCOMPARE(presets().findHeader(header_active), header(firstActive));
    QCOMPARE(presets().findHeader(header_deactive), presets().headers.first());
    QVERIFY(!presets().findHeader(header_switch));
    header(54)->setStatus(header_switch);
    header(51)->setStatus(header_switch);
    QCOMPARE(presets().findHeader(header_switch), header(51)); // the first in the list
}

void TestHeaderController::headersAreShownButUnderThePowerButton()
{
    for (const HeaderItem* item : qAsConst(presets().headers))
        QVERIFY(!item->isVisible()); // the power is off
    for (const int key : {powerKey, 61}) {
        key_roles::setPitch(power(), key);
        presets().setHeadersStatus(true);
        for (const HeaderItem* item : qAsConst(presets().headers))
            QCOMPARE(item->isVisible(), item != header(key));
    }
    presets().setHeadersStatus(false);
    for (const HeaderItem* item : qAsConst(presets().headers))
        QVERIFY(!item->isVisible());
}

void TestHeaderController::freeUserNumberIsTheSmallest()
{
    emptyHeaders();
    QCOMPARE(presets().findMinUserNum(), 1);
    const auto take = [this](int key, int number) {
        record(key).nameScenic1 = QStringLiteral("User");
        record(key).nameScenic2 = QString::number(number);
    };
    take(25, 2);
    QCOMPARE(presets().findMinUserNum(), 1);
    take(106, 1);
    QCOMPARE(presets().findMinUserNum(), 3);
    take(27, 4);
    take(30, 3);
    QCOMPARE(presets().findMinUserNum(), 5);
    take(106, 200);
    QCOMPARE(presets().findMinUserNum(), 1);
}

void TestHeaderController::onlyWholeUserNamesTakeANumber()
{
    emptyHeaders();
    for (const char* name : {"user", "USER", "User ", "", "Users"}) {
        record(25).nameScenic1 = QLatin1String(name);
        record(25).nameScenic2 = QStringLiteral("1");
        QCOMPARE(presets().findMinUserNum(), 1);
    }
    record(25).nameScenic1 = QStringLiteral("User");
    for (const char* number : {"", "one", "0x1", "1a", "1.0", "-1", "99999999999"}) {
        record(25).nameScenic2 = QLatin1String(number);
        QCOMPARE(presets().findMinUserNum(), 1);
    }
    record(25).nameScenic2 = QStringLiteral("1");
    QCOMPARE(presets().findMinUserNum(), 2);
}

// More headers than the stage has: 108 with a name each, and one that asks for one.
void TestHeaderController::numbersEndAt108()
{
    emptyHeaders();
    std::vector<std::unique_ptr<HeaderItem>> more;
    const QList<HeaderItem*> onStage = presets().headers;
    while (presets().headers.size() < 109) {
        more.push_back(std::make_unique<HeaderItem>(&presets(), header_c_sharp, header_data()));
        presets().headers.append(more.back().get());
    }
    for (int n = 1; n <= 108; ++n) {
        presets().headers.at(n - 1)->record.nameScenic1 = QStringLiteral("User");
        presets().headers.at(n - 1)->record.nameScenic2 = QString::number(n);
    }
    const int whenFull = presets().findMinUserNum();
    HeaderItem& last = *more.back();
    last.record.scaleOn = true;
    last.record.scaleData = unknown;
    last.updateScenic();
    presets().headers.at(107)->record.nameScenic2.clear();
    const int whenOneLeft = presets().findMinUserNum();
    presets().headers = onStage;
    QCOMPARE(whenFull, 0);
    QCOMPARE(whenOneLeft, 108);
    QCOMPARE(last.record.nameScenic1, QStringLiteral("User"));
    QCOMPARE(last.record.nameScenic2, QStringLiteral("0"));
}

void TestHeaderController::temporaryRecordLivesWithItsHeaders()
{
    emptyHeaders();
    for (const int key : {25, 27}) {
        record(key) = {QString(), QString(), QString(), off, QString(), on, unknown};
        header(key)->updateScenic();
        QCOMPARE(record(key).nameScenic2, QStringLiteral("1")); // they share the record
    }
    QCOMPARE(window->library.customScales(), QList<QString>{unknown});
    scale_data made;
    QVERIFY(window->library.getScaleData(unknown, made, DatabaseLibrary::CustomRole));
    QCOMPARE(made.title, QStringLiteral("User 1"));
    record(25) = {};
    header(highest)->updateScenic();
    QVERIFY(window->library.isCustomScale(unknown)); // 27 still holds it
    record(27) = {};
    header(highest)->updateScenic();
    QVERIFY(!window->library.containsScale(unknown, DatabaseLibrary::AnyRole));
}

void TestHeaderController::switchedOffScaleLetsItsRecordGo()
{
    setScale(unknown);
    scale().setSwitchOn(true);
    QVERIFY(window->library.isCustomScale(unknown));
    scale().setSwitchOff(true);
    QCOMPARE(record(firstActive).scaleData, unknown); // still held, but off
    header(highest)->updateScenic();
    QVERIFY(!window->library.isCustomScale(unknown));
}

void TestHeaderController::libraryRecordsNeverGo()
{
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = {};
    const auto categories = window->library.categories();
    QList<QString> words;
    for (const QString& category : categories)
        words += window->library.scalesFromCategory(category);
    presets().removeUnusedTempRecords();
    for (const QString& word : qAsConst(words))
        QVERIFY(window->library.containsScale(word, DatabaseLibrary::LibraryRole));
    QVERIFY(words.contains(lydian));
}

void TestHeaderController::removalStepsOverMissingHeaders()
{
    record(25) = {QString(), QString(), QString(), off, QString(), on, unknown};
    header(25)->updateScenic();
    presets().headers.prepend(nullptr);
    presets().removeUnusedTempRecords();
    const bool kept = window->library.isCustomScale(unknown);
    presets().headers.removeFirst();
    QVERIFY(kept);
}

void TestHeaderController::positionsAreReadAndWrittenInOrder()
{
    QList<QPointF> homes, moved;
    presets().getHeadersPosition(homes);
    QCOMPARE(homes.size(), 36);
    QCOMPARE(homes.first(), QPointF(16, 1));
    for (int i = 0; i < 40; ++i)
        moved << QPointF(i, 2 * i);
    presets().updatePostions(moved.mid(0, 3));
    for (int i = 0; i < 36; ++i)
        QCOMPARE(presets().headers.at(i)->pos(), i < 3 ? moved.at(i) : homes.at(i));
    presets().updatePostions({});
    QCOMPARE(presets().headers.first()->pos(), moved.first());
    presets().updatePostions(moved); // four too many
    QCOMPARE(presets().headers.last()->pos(), moved.at(35));
}

void TestHeaderController::recordsAreReadAndWrittenInOrder()
{
    QList<header_data> before, after;
    presets().getHeadersData(before);
    QCOMPARE(before.size(), 36);
    header_data wanted = fullRecord();
    presets().reloadHeaders({wanted, wanted});
    wanted.nameScenic1 = QStringLiteral("MAJOR"); // the library's names win
    wanted.nameScenic2 = QStringLiteral("Lydian");
    presets().getHeadersData(after);
    for (int i = 0; i < 36; ++i)
        QCOMPARE(asText(after.at(i)), asText(i < 2 ? wanted : before.at(i)));
    presets().reloadHeaders({});
    QCOMPARE(asText(presets().headers.first()->record), asText(wanted));
    presets().reloadHeaders(after + before); // twice too many
    QCOMPARE(asText(presets().headers.last()->record), asText(before.last()));
}

void TestHeaderController::scenicsOfOneWordOrOfAll()
{
    emptyHeaders();
    for (const int key : {25, 27, 30})
        record(key) = {QStringLiteral("old"), QStringLiteral("old"), QString(), off, QString(), on, lydian};
    record(30).scaleData = wholeTone;
    presets().updateHeaderScenics(lydian);
    QCOMPARE(record(25).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(27).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(30).nameScenic2, QStringLiteral("old"));
    presets().updateHeaderScenics(unknown);
    QCOMPARE(record(30).nameScenic2, QStringLiteral("old"));
    record(30).scaleData = unknown;
    presets().updateHeaderScenics(unknown); // that the library lacks it does not matter
    QCOMPARE(record(30).nameScenic2, QStringLiteral("1"));
    for (HeaderItem* item : qAsConst(presets().headers)) {
        item->record.scaleOn = false;
        item->setNameScenic1(QStringLiteral("old"));
    }
    presets().updateHeaderScenics({});
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->record.nameScenic1, QString());
}

void TestHeaderController::menuReads()
{
    QStringList texts;
    for (const QAction* action : presets().menu->actions())
        texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
    QCOMPARE(
        texts.join(QLatin1Char('|')),
        QStringLiteral("Copy Header|Paste Header|-|Lock: Tonic|Lock: Scale|Unlock: Tonic|Unlock: Scale|-|"
                       "Lock: Both|Unlock: Both|-|Reset: C/Ionian|Empty: Intervals|-|Erase all"));
    QCOMPARE(presets().actions.size(), 11);
}

QString TestHeaderController::outcome(const std::function<void()>& act, bool locked)
{
    cleanup();
    init();
    window->setPower(true);
    setTonic("D");
    presets().copyData = fullRecord();
    record(25) = {QString(), QString(), QStringLiteral("G"), locked, QStringLiteral("G"), locked, wholeTone};
    openMenuOn(25);
    act();
    return state().join(QLatin1Char('|')) + asText(presets().copyData);
}

// What a slot does stands in the tests of the slots; here an action must leave what its slot leaves.
void TestHeaderController::everyActionRunsItsSlot()
{
    using Slot = void (HeaderController::*)();
    static constexpr Slot wanted[] = {&HeaderController::copyHdr,     &HeaderController::pasteHdr,
                                      &HeaderController::lockTonic,   &HeaderController::lockScale,
                                      &HeaderController::unlockTonic, &HeaderController::unlockScale,
                                      &HeaderController::lockBoth,    &HeaderController::unlockBoth,
                                      &HeaderController::resetHdr,    &HeaderController::eraseHdr};
    QSet<QString> outcomes;
    for (int i = 0; i < 10; ++i) {
        QString both;
        for (const bool locked : {false, true}) {
            const QString bySlot = outcome([&] { (presets().*wanted[i])(); }, locked);
            QCOMPARE(outcome([&] { presets().actions.at(i)->trigger(); }, locked), bySlot);
            both += bySlot;
        }
        outcomes << both;
    }
    QCOMPARE(outcomes.size(), 10); // they can be told apart by what they leave
    whenAsked([](QMessageBox& box) { box.reject(); });
    presets().actions.at(10)->trigger();
    QCOMPARE(seen, 1);
}

void TestHeaderController::slotsWithoutAContextHeaderDoNothing()
{
    window->setPower(true);
    presets().copyData = fullRecord();
    const QStringList before = state();
    for (int i = 0; i < 10; ++i) {
        presets().actions.at(i)->trigger();
        QCOMPARE(state(), before);
    }
    QVERIFY(!presets().hasCopy);
    QCOMPARE(asText(presets().copyData), asText(fullRecord()));
}

void TestHeaderController::copyTakesAllFieldsOnce()
{
    record(25) = fullRecord();
    openMenuOn(25);
    presets().copyHdr();
    record(25) = {};
    QVERIFY(presets().hasCopy);
    QCOMPARE(asText(presets().copyData), asText(fullRecord()));
    for (const int key : {27, 30}) { // any number of pastes
        openMenuOn(key);
        presets().pasteHdr();
        QCOMPARE(asText(record(key)), asText(fullRecord()));
    }
    QVERIFY(presets().hasCopy);
}

void TestHeaderController::pasteIntoAnotherHeaderLeavesTheSelectors()
{
    window->setPower(true);
    presets().copyData = fullRecord();
    openMenuOn(25);
    QStringList wanted = state();
    wanted[1] = asText(fullRecord()) + QString::number(header_deactive);
    presets().pasteHdr();
    QCOMPARE(state(), wanted);
}

void TestHeaderController::pasteIntoTheActiveHeaderDrivesTheSelectors()
{
    window->setPower(true);
    addAnchors(34);
    tonic().setSwitchOff(false);
    scale().setSwitchOff(false);
    presets().copyData = fullRecord();
    openMenuOn(firstActive);
    presets().pasteHdr();
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("E"));
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(anchors->x(), 34.0); // the pitch position is copied, not applied
    header_data wanted = fullRecord();
    wanted.nameScenic1 = QStringLiteral("MAJOR");
    wanted.nameScenic2 = QStringLiteral("Lydian");
    QCOMPARE(asText(record(firstActive)), asText(wanted));
    QCOMPARE(window->library.currentScale(), lydian);
}

void TestHeaderController::pasteOfSwitchedOffFieldsSwitchesOff()
{
    window->setPower(true);
    presets().copyData = {QString(), QString(), QStringLiteral("E"), off, QStringLiteral("E"), off, lydian};
    openMenuOn(firstActive);
    presets().pasteHdr();
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(scale().scaleModifier(), lydian); // the word is forced
    QVERIFY(!record(firstActive).tonicOn);
    QVERIFY(!record(firstActive).scaleOn);
    QCOMPARE(record(firstActive).nameScenic1, QString());
}

void TestHeaderController::locksOfTheActiveHeader()
{
    window->setPower(true);
    setTonic("D");
    openMenuOn(firstActive);
    const header_data& data = record(firstActive);
    presets().unlockTonic();
    QVERIFY(!tonic().switchOn && scale().switchOn);
    QVERIFY(!data.tonicOn);
    QCOMPARE(data.nameTonic, QString());
    presets().lockTonic();
    QVERIFY(tonic().switchOn && data.tonicOn);
    QCOMPARE(data.nameTonic, QStringLiteral("D"));
    presets().unlockScale();
    QVERIFY(tonic().switchOn && !scale().switchOn);
    QVERIFY(!data.scaleOn);
    QCOMPARE(data.nameScenic2, QString());
    presets().lockScale();
    QVERIFY(scale().switchOn && data.scaleOn);
    QCOMPARE(data.scaleData, ionian);
    QCOMPARE(data.nameScenic2, QStringLiteral("Ionian"));
    presets().unlockBoth();
    QVERIFY(!tonic().switchOn && !scale().switchOn && !data.tonicOn && !data.scaleOn);
    presets().lockBoth();
    QVERIFY(tonic().switchOn && scale().switchOn && data.tonicOn && data.scaleOn);
    QCOMPARE(active(), firstActive);
}

// An empty header takes what the selectors hold, and the active one comes back as it was.
void TestHeaderController::locksOfAnotherHeader()
{
    window->setPower(true);
    setTonic("D");
    setScale(wholeTone);
    record(25) = {};
    openMenuOn(25);
    const header_data& data = record(25);
    presets().lockTonic();
    QVERIFY(data.tonicOn && !data.scaleOn);
    QCOMPARE(data.nameTonic, QStringLiteral("D"));
    QCOMPARE(data.tonicData, QStringLiteral("D"));
    presets().lockScale();
    QVERIFY(data.tonicOn && data.scaleOn);
    QCOMPARE(data.scaleData, wholeTone);
    QCOMPARE(data.nameScenic2, QStringLiteral("WholeT."));
    presets().unlockTonic();
    QVERIFY(!data.tonicOn && data.scaleOn);
    QCOMPARE(data.nameTonic, QString());
    presets().unlockScale();
    QVERIFY(!data.tonicOn && !data.scaleOn);
    QCOMPARE(data.nameScenic2, QString());
    presets().lockBoth();
    QVERIFY(data.tonicOn && data.scaleOn);
    presets().unlockBoth();
    QVERIFY(!data.tonicOn && !data.scaleOn);
    QCOMPARE(active(), firstActive);
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(header(firstActive)->status(), header_active);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
}

// Kept: going back saves the selectors as a whole, so what was neither locked nor loaded is lost.
void TestHeaderController::lockKeepsWhatTheOtherHeaderHeld()
{
    window->setPower(true);
    const header_data unlocked{QString(), QString(), QString(), off, QStringLiteral("E"), off, lydian};
    openMenuOn(25);
    record(25) = unlocked;
    presets().lockTonic();
    QCOMPARE(asText(record(25)).section(QLatin1Char(' '), 2, 6),
             QStringLiteral("'E' 1 'E' 0 '%1'").arg(ionian));
    record(25) = unlocked;
    presets().lockScale();
    QCOMPARE(asText(record(25)), asText({QStringLiteral("MAJOR"), QStringLiteral("Lydian"), QString(), off,
                                         QString(), on, lydian}));
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
}

// Kept: going back saves the selectors, which the other header did not load.
void TestHeaderController::lockWithThePowerOffStoresTheSelectors()
{
    setTonic("D");
    record(25) = fullRecord();
    openMenuOn(25);
    presets().unlockTonic();
    QVERIFY(record(25).tonicOn);
    QCOMPARE(record(25).nameTonic, QStringLiteral("D"));
    QCOMPARE(record(25).tonicData, QStringLiteral("D"));
    QCOMPARE(record(25).scaleData, ionian);
    QCOMPARE(active(), firstActive);
}

void TestHeaderController::eraseOfAnotherHeader()
{
    window->setPower(true);
    record(25) = fullRecord();
    openMenuOn(25);
    QStringList wanted = state();
    presets().eraseHdr();
    header_data erased;
    erased.erase();
    wanted[1] = asText(erased) + QString::number(header_deactive);
    QCOMPARE(state(), wanted);
}

void TestHeaderController::eraseOfTheActiveHeader()
{
    emptyHeaders();
    window->setPower(true);
    setTonic("D");
    tonic().setSwitchOff(true);
    scale().setSwitchOff(true);
    openMenuOn(firstActive);
    presets().eraseHdr();
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), octaves);
    QVERIFY(tonic().switchOn && scale().switchOn);
    // No category holds the single note.
    QCOMPARE(asText(record(firstActive)),
             asText({QStringLiteral("User"), QStringLiteral("1"), QStringLiteral("C"), on,
                     QStringLiteral("C"), on, octaves}));
    QCOMPARE(target(62), 72);
}

void TestHeaderController::resetOfAnotherHeaderTakesTheLibrarysNames()
{
    window->setPower(true);
    openMenuOn(25);
    QStringList wanted = state();
    presets().resetHdr();
    wanted[1] = asText({QStringLiteral("MAJOR"), QStringLiteral("Ionian"), QStringLiteral("C"), on,
                        QStringLiteral("C"), on, ionian}) +
                QString::number(header_deactive);
    QCOMPARE(state(), wanted);
    window->library.clear(); // now its own names stay
    presets().resetHdr();
    QCOMPARE(record(25).nameScenic1, QStringLiteral("ION"));
    QCOMPARE(record(25).nameScenic2, QStringLiteral("Major"));
}

void TestHeaderController::resetOfTheActiveHeader()
{
    window->setPower(true);
    setTonic("D");
    setScale(wholeTone);
    tonic().setSwitchOff(true);
    scale().setSwitchOff(true);
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("C"));
    QCOMPARE(scale().scaleModifier(), ionian);
    QVERIFY(tonic().switchOn && scale().switchOn);
    QCOMPARE(asText(record(firstActive)), asText({QStringLiteral("MAJOR"), QStringLiteral("Ionian"),
                                                  QStringLiteral("C"), on, QStringLiteral("C"), on, ionian}));
    QCOMPARE(target(62), 62);
}

void TestHeaderController::resetBringsTheAnchorsHomeWithThePowerOn()
{
    addAnchors(-34);
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(anchors->pos(), QPointF(-34, 7)); // the power is off
    window->setPower(true);
    QCOMPARE(target(60), 64);
    openMenuOn(25);
    presets().resetHdr();
    QCOMPARE(anchors->pos(), QPointF(-34, 7)); // not the active header
    openMenuOn(firstActive);
    presets().resetHdr();
    QCOMPARE(anchors->pos(), QPointF(0, 7));
    QCOMPARE(target(60), 60);
}

void TestHeaderController::menuOpensOverTheHeader()
{
    show();
    window->setPower(true);
    for (const int key : {25, firstActive}) {
        const QImage before = header(key)->pixmap().toImage();
        whenMenuIsUp([&](QMenu& menu) {
            QCOMPARE(presets().contextHeader, header(key));
            QCOMPARE(menu.pos(), window->ui.inKeyboardGraphicsView->viewport()->mapToGlobal(placeOf(key)));
            QVERIFY(header(key)->pixmap().toImage() != before);
            QCOMPARE(header(key)->savedPixmap.toImage(), before);
            menu.close();
        });
        openMenuByPointer(key);
        QCOMPARE(header(key)->pixmap().toImage(), before);
    }
    QCOMPARE(seen, 2);
}

void TestHeaderController::pasteIsOfferedAfterACopy()
{
    show();
    window->setPower(true);
    QVector<bool> offered;
    for (int i = 0; i < 3; ++i) {
        whenMenuIsUp([&](QMenu& menu) {
            offered << presets().actions.at(1)->isEnabled();
            menu.close();
            presets().hasCopy = i == 0;
        });
        openMenuByPointer(25);
    }
    QCOMPARE(offered, (QVector<bool>{false, true, false}));
}

void TestHeaderController::clickInTheMenuActsAndGivesThePictureBack()
{
    show();
    window->setPower(true);
    setTonic("D");
    record(25) = {};
    whenMenuIsUp([this](QMenu& menu) {
        QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(presets().actions.at(2)).center());
    });
    openMenuByPointer(25); // locks the tonic: the header is active for a moment
    QCOMPARE(seen, 1);
    QVERIFY(record(25).tonicOn);
    QCOMPARE(record(25).nameTonic, QStringLiteral("D"));
    QVERIFY(shows(header(25), QStringLiteral(":/Resources/Headers/Header1sharp_deactive.png")));
    QCOMPARE(active(), firstActive);
}

void TestHeaderController::keysInTheMenu_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("onAction");
    QTest::addColumn<bool>("acts");
    QTest::newRow("Escape") << int(Qt::Key_Escape) << true << false;
    QTest::newRow("Enter") << int(Qt::Key_Enter) << true << true;
    QTest::newRow("Return") << int(Qt::Key_Return) << true << true;
    QTest::newRow("Enter on nothing") << int(Qt::Key_Enter) << false << false;
}

// The window's filter takes these keys before the menu: they work all the same.
void TestHeaderController::keysInTheMenu()
{
    QFETCH(int, key);
    QFETCH(bool, onAction);
    show();
    window->setPower(true);
    whenMenuIsUp([&](QMenu& menu) {
        menu.setActiveAction(onAction ? presets().actions.at(9) : nullptr);
        QTest::keyClick(&menu, static_cast<Qt::Key>(key));
        QVERIFY(!menu.isVisible());
    });
    openMenuByPointer(25);
    QCOMPARE(seen, 1);
    QTEST(record(25).scaleData == octaves, "acts");
    QVERIFY(shows(header(25), QStringLiteral(":/Resources/Headers/Header1sharp_deactive.png")));
}

void TestHeaderController::eraseAllAsks()
{
    whenAsked([this](QMessageBox& box) {
        QCOMPARE(box.text(),
                 QStringLiteral("<h4>Are you sure you want to permanently erase the settings in all "
                                "Headers?</h4><h6>You can't undo this operation.</h6>"));
        QCOMPARE(box.buttons().size(), 2);
        QVERIFY(window->dialogOpen);
        for (const QAbstractButton* button : box.buttons())
            QCOMPARE(button->text(),
                     box.buttonRole(const_cast<QAbstractButton*>(button)) == QMessageBox::AcceptRole
                         ? QStringLiteral("Erase All")
                         : QStringLiteral("Cancel"));
        box.reject();
    });
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QVERIFY(!window->dialogOpen);
}

void TestHeaderController::resetAllAsks()
{
    whenAsked([this](QMessageBox& box) {
        QCOMPARE(box.text(),
                 QStringLiteral("<h4>Are you sure you want to reset Sorvane?</h4><h6>You can't undo "
                                "this operation.</h6>"));
        QCOMPARE(box.buttons().size(), 2);
        QVERIFY(window->dialogOpen);
        for (const QAbstractButton* button : box.buttons())
            QCOMPARE(button->text(),
                     box.buttonRole(const_cast<QAbstractButton*>(button)) == QMessageBox::AcceptRole
                         ? QStringLiteral("Reset to Default")
                         : QStringLiteral("Cancel"));
        box.reject();
    });
    presets().resetAll();
    QCOMPARE(seen, 1);
    QVERIFY(!window->dialogOpen);
}

void TestHeaderController::answers_data()
{
    QTest::addColumn<QVector<int>>("keys");
    QTest::addColumn<bool>("accepted");
    QTest::newRow("Escape") << QVector<int>{Qt::Key_Escape} << false;
    QTest::newRow("Enter takes Cancel") << QVector<int>{Qt::Key_Enter} << false;
    QTest::newRow("Return takes Cancel") << QVector<int>{Qt::Key_Return} << false;
    QTest::newRow("Enter on the other button") << QVector<int>{Qt::Key_Tab, Qt::Key_Enter} << true;
    QTest::newRow("Return on the other button") << QVector<int>{Qt::Key_Tab, Qt::Key_Return} << true;
    QTest::newRow("Escape on the other button") << QVector<int>{Qt::Key_Tab, Qt::Key_Escape} << false;
}

void TestHeaderController::answers()
{
    QFETCH(QVector<int>, keys);
    QFETCH(bool, accepted);
    show();
    record(25) = fullRecord();
    const auto reply = [&](QMessageBox& box) {
        QVERIFY(QTest::qWaitForWindowActive(&box));
        for (const int key : keys)
            QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, static_cast<Qt::Key>(key));
        QVERIFY(!box.isVisible());
    };
    whenAsked(reply);
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QCOMPARE(record(25).scaleOn, !accepted);
    QVERIFY(!window->dialogOpen);
    QVERIFY(window->isVisible()); // the key did not reach it
}

void TestHeaderController::spaceIsNoAnswer()
{
    show();
    record(25) = fullRecord();
    whenAsked([this](QMessageBox& box) {
        QVERIFY(QTest::qWaitForWindowActive(&box));
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
        QVERIFY(!power()->isSwitchOn());
        QVERIFY(box.isVisible());
        box.reject();
    });
    presets().eraseAll();
    QCOMPARE(seen, 1);
    QVERIFY(record(25).scaleOn);
    QTest::keyClick(window.get(), Qt::Key_Space);
    QVERIFY(power()->isSwitchOn());
}

void TestHeaderController::eraseAllClearsEverything()
{
    window->setPower(true);
    setScale(lydian);
    record(25) = fullRecord();
    answer(QMessageBox::AcceptRole);
    presets().eraseAll(); // needs no context header
    QVERIFY(!tonic().switchOn && !scale().switchOn);
    QCOMPARE(scale().scaleModifier(), lydian);
    header_data cleared;
    cleared.clearNames();
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(asText(item->record), asText(cleared));
    QCOMPARE(active(), firstActive);
}

void TestHeaderController::controlRResets()
{
    show();
    record(lowest) = fullRecord();
    answer(QMessageBox::AcceptRole);
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 1);
    QCOMPARE(asText(record(lowest)), asText(factoryRow(0)));
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    answer(QMessageBox::RejectRole);
    record(lowest) = fullRecord();
    QTest::keyClick(window.get(), Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(seen, 2);
    QCOMPARE(asText(record(lowest)), asText(fullRecord()));
}

void TestHeaderController::resetAllWritesTheFactoryRows()
{
    QStringList fresh;
    for (const HeaderItem* item : qAsConst(presets().headers))
        fresh << asText(item->record);
    const auto categories = window->library.categories();
    movePower(61);
    window->library.clear();
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = fullRecord();
    answer(QMessageBox::AcceptRole);
    presets().resetAll();
    for (int i = 0; i < 36; ++i)
        QCOMPARE(asText(presets().headers.at(i)->record), fresh.at(i));
    QCOMPARE(window->library.categories(), categories);
}

// The button is placed as if the preset had been dropped on it: that turns the power on.
void TestHeaderController::resetAllPlacesThePowerButton()
{
    for (int i = 0; i < 2; ++i) { // the second time it is there already
        power()->setPos(0, 0);
        answer(QMessageBox::AcceptRole);
        presets().resetAll();
        QCOMPARE(key_roles::pitch(power()), 61); // the key below the point (407, 28)
        QCOMPARE(power()->pos(), window->findInNote(61)->pos() + QPointF(-4, -18));
        QCOMPARE(active(), powerKey);
        QVERIFY(power()->isSwitchOn());
    }
}

void TestHeaderController::resetAllLoadsTheActiveHeader_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("both") << 75;        // D sharp, Iwato
    QTest::newRow("tonic alone") << 51; // D sharp
    QTest::newRow("scale alone") << 66; // Aeolian
    QTest::newRow("neither") << 63;
}

void TestHeaderController::resetAllLoadsTheActiveHeader()
{
    QFETCH(int, key);
    const header_data row = factoryRow(PresetModel::indexOf(key));
    window->setPower(true);
    movePower(61);
    addAnchors(34.5);
    power()->mainAnchorIn->setOpacity(0.01);
    recall(key, false);
    setTonic("D");
    setScale(wholeTone);
    answer(QMessageBox::AcceptRole);
    presets().resetAll();
    QCOMPARE(active(), key);
    QCOMPARE(tonic().switchOn, row.tonicOn);
    QCOMPARE(scale().switchOn, row.scaleOn);
    QCOMPARE(tonic().tonicModifierIndex(), row.tonicOn ? 3 : 2);
    QCOMPARE(scale().scaleModifier(), row.scaleOn ? row.scaleData : wholeTone);
    QCOMPARE(target(60), row.tonicOn ? 63 : 62);
    QCOMPARE(window->library.currentScale(), scale().scaleModifier());
    QCOMPARE(anchors->pos(), QPointF(0, 7));
    QCOMPARE(power()->mainAnchorIn->opacity(), 1.0); // refreshed
}

void TestHeaderController::resetAllWithoutAnActiveHeader()
{
    window->setPower(true);
    movePower(61);
    addAnchors(34);
    setTonic("D");
    setScale(wholeTone);
    header(firstActive)->setStatus(header_deactive);
    presets().activeHeader = nullptr;
    record(lowest) = fullRecord();
    answer(QMessageBox::AcceptRole);
    presets().resetAll();
    QCOMPARE(asText(record(lowest)), asText(factoryRow(0)));
    QCOMPARE(tonic().tonicModifier(), QStringLiteral("D"));
    QCOMPARE(scale().scaleModifier(), wholeTone);
    QCOMPARE(anchors->x(), 0.0);
}

void TestHeaderController::resetAllKeepsThePower_data()
{
    QTest::addColumn<bool>("powered");
    QTest::newRow("off") << false;
    QTest::newRow("on") << true;
}

void TestHeaderController::resetAllKeepsThePower()
{
    QFETCH(bool, powered);
    window->setPower(powered);
    movePower(61); // shows the button as on
    addAnchors(-34);
    answer(QMessageBox::AcceptRole);
    presets().resetAll();
    QCOMPARE(power()->isSwitchOn(), powered);
    QVERIFY(shows(power(), powered ? QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")
                                   : QStringLiteral(":/Resources/Power/POWERBUTTONOff.png")));
    for (const HeaderItem* item : qAsConst(presets().headers))
        QCOMPARE(item->isVisible(), powered && item != header(61));
    QCOMPARE(target(60), 60);
    QCOMPARE(target(61), powered ? -1 : 61);
}

// The calls during construction.
void TestHeaderController::matchNeedsTheWholeWindow()
{
    record(firstActive) = fullRecord();
    const QString before = asText(record(firstActive));
    auto* centre = window->centerScreen;
    window->centerScreen = nullptr;
    window->checkScaleMatches(true);
    window->centerScreen = centre;
    auto* controller = window->headerController;
    window->headerController = nullptr;
    window->checkScaleMatches(true);
    window->headerController = controller;
    auto* selector = window->scaleController;
    window->scaleController = nullptr;
    window->checkScaleMatches(true);
    window->scaleController = selector;
    QCOMPARE(asText(record(firstActive)), before);
    window->checkScaleMatches(true);
    QVERIFY(asText(record(firstActive)) != before);
}

void TestHeaderController::matchRefreshesTheActiveHeader()
{
    record(firstActive) = fullRecord();
    record(25) = fullRecord();
    window->checkScaleMatches(false);
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(25).nameScenic2, QStringLiteral("b")); // the others stay
    presets().activeHeader = nullptr;
    window->checkScaleMatches(true);
}

void TestHeaderController::matchKeepsACategoryThatHoldsTheWord()
{
    DatabaseLibrary& library = window->library;
    const QString first = library.findCategoriesWithScale(ionian).first();
    const QString second = library.findCategoriesWithScale(wholeTone).first();
    QVERIFY(first != second);
    const int index = library.appendScaleToCategory(second, ionian);
    library.setCurrentCategory(second);
    window->checkScaleMatches(true);
    QCOMPARE(library.currentCategory(), second);
    QCOMPARE(library.currentScaleIndex(second), index);
}

void TestHeaderController::matchTakesTheFirstCategoryElsewhere()
{
    DatabaseLibrary& library = window->library;
    const QString before = library.currentCategory();
    setScale(wholeTone);
    const QList<QString> others = library.findCategoriesWithScale(wholeTone);
    QVERIFY(!others.contains(before));
    window->checkScaleMatches(true);
    QCOMPARE(library.currentCategory(), others.first());
    QCOMPARE(library.currentScale(), wholeTone);
    QCOMPARE(library.currentScaleIndex(before), -1);
}

void TestHeaderController::matchOfAnUnknownWordKeepsTheCategory()
{
    DatabaseLibrary& library = window->library;
    window->checkScaleMatches(true);
    const QString before = library.currentCategory();
    QCOMPARE(library.currentScale(), ionian);
    setScale(unknown);
    window->checkScaleMatches(true);
    QCOMPARE(library.currentCategory(), before);
    QCOMPARE(library.currentScaleIndex(before), -1);
}

void TestHeaderController::hitAreasFollowTheSceneNumber_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("default") << 1 << 1 << -1;
    QTest::newRow("clean") << 2 << 1 << 1;
    QTest::newRow("ports") << 3 << -1 << -1;
    QTest::newRow("credits") << 4 << -1 << -1;
    QTest::newRow("none") << 0 << 0 << 0;
    QTest::newRow("past the last") << 5 << 0 << 0;
}

// Above the logo after a raise, below the background after a lower, between them if left alone.
void TestHeaderController::hitAreasFollowTheSceneNumber()
{
    QFETCH(int, scene);
    auto& ui = window->ui;
    ui.scene1Button->raise();
    ui.scene2Button->raise();
    ui.centerLogo->raise();
    ui.backgroundGraphicsView->lower();
    window->centerScreen->currentScene = scene;
    window->didCenterSceneChange();
    const auto height = [&](QWidget* area) {
        const QObjectList& stack = area->parent()->children();
        const int at = stack.indexOf(area);
        return at > stack.indexOf(ui.centerLogo) ? 1 : at < stack.indexOf(ui.backgroundGraphicsView) ? -1 : 0;
    };
    QTEST(height(ui.scene1Button), "first");
    QTEST(height(ui.scene2Button), "second");
}

void TestHeaderController::powerFindsTheHeaderBelow()
{
    window->setPower(true);
    record(51) = fullRecord();
    header_data& under = record(powerKey);
    under = {};
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^findPowerItemPosition found and swap$");
    QVERIFY(window->findPowerItemPosition(window->findInNote(51)->pos() + QPointF(-4, -18)));
    QCOMPARE(key_roles::pitch(power()), 51);
    QCOMPARE(power()->pos(), window->findInNote(51)->pos() + QPointF(-4, -18));
    QCOMPARE(under.scaleData, lydian);
    QCOMPARE(asText(record(51)), asText({}));
}

void TestHeaderController::powerGoesBackWithoutAHeaderBelow()
{
    window->setPower(true);
    const QPointF home = power()->pos();
    const QStringList before = state();
    for (const QPointF& place : {home, QPointF(3000, 28), QPointF(400, 3000)}) {
        power()->setPos(500, 28);
        const HeaderLog log;
        expectLine("^findPowerItemPosition not found$");
        QVERIFY(!window->findPowerItemPosition(place));
        QCOMPARE(power()->pos(), home);
    }
    QCOMPARE(state(), before);
    QVERIFY(header(51)->isVisible());
}

void TestHeaderController::powerNeedsAScene()
{
    PowerItem* item = window->powerItem;
    window->powerItem = nullptr;
    const bool withoutPower = window->findPowerItemPosition({407, 28});
    window->powerItem = item;
    DiagramScene* in = scene();
    window->ui.inKeyboardGraphicsView->setScene(nullptr);
    const bool withoutScene = window->findPowerItemPosition({407, 28});
    window->ui.inKeyboardGraphicsView->setScene(in);
    QVERIFY(!withoutPower);
    QVERIFY(!withoutScene);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestHeaderController::swapOfOneItemIsNone()
{
    const QStringList before = state();
    const QPixmap picture = power()->pixmap();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(power(), power()));
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(header(25), header(25)));
    expectLine("^DiagramScene::swapHeader$");
    QVERIFY(!scene()->swapHeader(nullptr, nullptr));
    QCOMPARE(state(), before);
    QCOMPARE(power()->pixmap().cacheKey(), picture.cacheKey());
}

void TestHeaderController::powerOnAHeaderTakesItsPlace()
{
    record(25) = fullRecord();
    record(powerKey) = {};
    QVERIFY(scene()->swapHeader(header(25), power()));
    QCOMPARE(record(powerKey).scaleData, lydian);
    QCOMPARE(record(powerKey).anchorPos, 51);
    QCOMPARE(asText(record(25)), asText({}));
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(header(powerKey)->status(), header_deactive);
    QCOMPARE(active(), firstActive);
    QCOMPARE(key_roles::pitch(power()), 25);
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
    QVERIFY(!power()->isSwitchOn());
    const QPointF place = window->findInNote(25)->pos() + QPointF(-4, -18);
    QCOMPARE(power()->pos(), place);
    power()->setPos(0, 0);
    power()->restorePos();
    QCOMPARE(power()->pos(), place);
}

void TestHeaderController::powerOnTheActiveHeaderKeepsThePresetActive_data()
{
    QTest::addColumn<int>("status");
    QTest::newRow("active") << int(header_active);
    QTest::newRow("lit as a target") << int(header_switch_active);
}

void TestHeaderController::powerOnTheActiveHeaderKeepsThePresetActive()
{
    QFETCH(int, status);
    record(firstActive) = fullRecord();
    header(firstActive)->setStatus(static_cast<header_status>(status));
    QVERIFY(scene()->swapHeader(header(firstActive), power()));
    QCOMPARE(active(), powerKey);
    QCOMPARE(header(powerKey)->status(), header_active);
    QCOMPARE(header(firstActive)->status(), header_deactive);
    QCOMPARE(record(powerKey).scaleData, lydian);
}

void TestHeaderController::powerOnNoHeaderIsRefused()
{
    const QStringList before = state();
    const HeaderLog log;
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header the same exception$");
    QVERIFY(!scene()->swapHeader(header(powerKey), power()));
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header exception:.*null prev");
    QVERIFY(!scene()->swapHeader(nullptr, power()));
    expectLine("^DiagramScene::swapHeader$");
    expectLine("^swap power and header exception:.*in");
    QVERIFY(!scene()->swapHeader(window->findInNote(60), power()));
    QCOMPARE(state(), before);
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
}

void TestHeaderController::headerOnNothingBecomesActive()
{
    QVERIFY(!scene()->swapHeader(nullptr, header(25)));
    QCOMPARE(active(), 25);
    QCOMPARE(header(25)->status(), header_active);
}

void TestHeaderController::headerOnAHeaderSwaps()
{
    record(25) = fullRecord();
    record(27) = {QString(), QString(), QString(), off, QString(), on, wholeTone};
    QVERIFY(scene()->swapHeader(header(25), header(27)));
    QCOMPARE(record(27).scaleData, lydian);
    QCOMPARE(record(27).anchorPos, 51);
    QCOMPARE(record(25).scaleData, wholeTone);
    QCOMPARE(record(25).nameScenic2, QStringLiteral("WholeT."));
    QCOMPARE(active(), 25);
    QCOMPARE(header(27)->status(), header_deactive);
    QCOMPARE(key_roles::pitch(power()), powerKey);
}

void TestHeaderController::headerOnAHeaderCopiesInCopyMode()
{
    scene()->headerCopyMode = true;
    record(25) = {};
    record(27) = fullRecord();
    record(27).nameScenic1 = QStringLiteral("MAJOR");
    record(27).nameScenic2 = QStringLiteral("Lydian");
    const QString source = asText(record(27));
    QVERIFY(scene()->swapHeader(header(25), header(27)));
    QCOMPARE(asText(record(25)), source);
    QCOMPARE(asText(record(27)), source);
    QCOMPARE(active(), 25);
    QCOMPARE(header(27)->status(), header_deactive);
}

void TestHeaderController::headerOnThePowerButtonTakesItsPlace()
{
    record(25) = fullRecord();
    record(powerKey) = {};
    QVERIFY(scene()->swapHeader(power(), header(25)));
    QCOMPARE(record(powerKey).scaleData, lydian);
    QCOMPARE(asText(record(25)), asText({}));
    QCOMPARE(active(), powerKey);
    QCOMPARE(header(25)->status(), header_deactive);
    QCOMPARE(key_roles::pitch(power()), 25);
    QVERIFY(power()->isSwitchOn());
    QVERIFY(shows(power(), QStringLiteral(":/Resources/Power/POWERBUTTONOn.png")));
    const QPointF place = window->findInNote(25)->pos() + QPointF(-4, -18);
    power()->setPos(0, 0);
    power()->restorePos();
    QCOMPARE(power()->pos(), place);
}

void TestHeaderController::headerOnOwnPowerButtonOrKeyIsRefused()
{
    const QStringList before = state();
    QVERIFY(!scene()->swapHeader(power(), header(powerKey)));
    QVERIFY(!scene()->swapHeader(window->findInNote(61), header(25)));
    QCOMPARE(state(), before);
}

void TestHeaderController::keyIsNeverDropped()
{
    const QStringList before = state();
    for (ResizableItem* prev : {static_cast<ResizableItem*>(header(25)), static_cast<ResizableItem*>(power()),
                                static_cast<ResizableItem*>(nullptr)})
        QVERIFY(!scene()->swapHeader(prev, window->findInNote(60)));
    QVERIFY(!scene()->swapHeader(header(25), nullptr));
    QCOMPARE(state(), before);
}

void TestHeaderController::blackKeyRecallsWithThePowerOn()
{
    window->setPower(true);
    record(61) = fullRecord();
    press(61);
    QCOMPARE(active(), 61);
    QCOMPARE(scale().scaleModifier(), lydian);
    QCOMPARE(record(firstActive).scaleData, ionian); // with store
    release(61);
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        if (key == powerKey)
            continue;
        press(key);
        release(key);
        QCOMPARE(active(), key);
    }
    QVERIFY(port->messages().empty()); // a recall makes no sound
}

void TestHeaderController::blackKeyDoesNotRecallOtherwise()
{
    press(61); // the power is off
    release(61);
    QCOMPARE(active(), firstActive);
    QCOMPARE(port->takeLists(), (QList<QList<int>>{{0x90, 61, 100}, {0x80, 61, 0}}));
    window->setPower(true);
    press(60); // a white key
    release(60);
    QCOMPARE(active(), firstActive);
    window->dialogOpen = true;
    press(61);
    release(61);
    QCOMPARE(active(), firstActive);
    window->dialogOpen = false;
    window->learnTonic = true;
    press(61);
    release(61);
    QCOMPARE(active(), firstActive);
}

void TestHeaderController::powerKeyToggles()
{
    for (const bool wanted : {true, false, true}) {
        press(powerKey);
        release(powerKey);
        QCOMPARE(power()->isSwitchOn(), wanted);
        QCOMPARE(header(51)->isVisible(), wanted);
        QVERIFY(!header(powerKey)->isVisible());
    }
    QCOMPARE(active(), firstActive);
    QVERIFY(port->messages().empty());
}

void TestHeaderController::powerKeyMovesWithTheButton()
{
    window->setPower(true);
    QVERIFY(scene()->swapHeader(header(61), power()));
    press(powerKey);
    release(powerKey);
    QVERIFY(power()->isSwitchOn());
    QCOMPARE(active(), powerKey); // it is a preset like any other now
    press(61);
    release(61);
    QVERIFY(!power()->isSwitchOn());
    QCOMPARE(active(), powerKey);
}

void TestHeaderController::learnModeStoresTheWordOfASwitchedOnScale()
{
    window->setPower(true);
    for (const bool scaleOn : {true, false}) {
        setScale(ionian);
        record(firstActive) = {QString(), QString(), QString(), off, QString(), scaleOn, wholeTone};
        window->learnScale = true;
        window->findInNote(62)->pushKey(); // takes the second degree out
        window->findInNote(62)->releaseKey();
        window->learnScale = false;
        QCOMPARE(scale().scaleModifier(), QStringLiteral("xoooxxoxoxox"));
        QCOMPARE(record(firstActive).scaleData, scaleOn ? scale().scaleModifier() : wholeTone);
        QCOMPARE(record(firstActive).nameScenic1, scaleOn ? QStringLiteral("User") : QString());
    }
}

void TestHeaderController::clickRecalls()
{
    show();
    window->setPower(true);
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    for (HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        if (key == powerKey)
            continue;
        item->record = fullRecord();
        setScale(ionian);
        QTest::mouseClick(viewport, Qt::LeftButton, {}, placeOf(key));
        QCOMPARE(active(), key);
        QCOMPARE(scale().scaleModifier(), lydian);
        QCOMPARE(item->pos(), item->homePos);
    }
}

void TestHeaderController::clickDoesNotRecallOtherwise()
{
    show();
    window->setPower(true);
    QWidget* viewport = window->ui.inKeyboardGraphicsView->viewport();
    const auto click = [&](Qt::MouseButton button) {
        QTest::mouseClick(viewport, button, {}, placeOf(25));
        return active();
    };
    QCOMPARE(click(Qt::RightButton), firstActive);
    QCOMPARE(click(Qt::MiddleButton), firstActive);
    window->dialogOpen = true;
    QCOMPARE(click(Qt::LeftButton), firstActive);
    window->dialogOpen = false;
    window->setPower(false); // the headers are hidden
    QCOMPARE(click(Qt::LeftButton), firstActive);
    window->setPower(true);
    QCOMPARE(click(Qt::LeftButton), 25);
}

// The event loop runs within a recall. What it delivers must wait for the new mapping, in its order.
void TestHeaderController::messagesBehindABlackKeyPlayTheNewMapping()
{
    window->setPower(true);
    record(61) = {QString(), QString(), QString(), on, QStringLiteral("D"), on, ionian};
    record(66) = {QString(), QString(), QString(), on, QStringLiteral("E"), on, ionian};
    send({{0x90, 61, 100},
          {0x90, 60, 1},
          {0xB0, 1, 2},
          {0x80, 60, 0},
          {0x80, 61, 0},
          {0x90, 66, 100},
          {0x90, 60, 3},
          {0x80, 60, 0},
          {0xB0, 1, 4}});
    QTRY_COMPARE_WITH_TIMEOUT(port->messages().size(), std::size_t(6), 5000);
    QCOMPARE(port->takeLists(),
             (QList<QList<int>>{
                 {0x90, 62, 1}, {0xB0, 1, 2}, {0x80, 62, 0}, {0x90, 64, 3}, {0x80, 64, 0}, {0xB0, 1, 4}}));
    QCOMPARE(active(), 66);
}

// Each press runs the event loop, and the loop delivers the next press.
void TestHeaderController::floodOfBlackKeysNeitherNestsNorLosesANote()
{
    std::vector<std::vector<unsigned char>> messages{{0x90, powerKey, 1}, {0x80, powerKey, 0}};
    const int whites[] = {60, 62, 64, 65, 67, 21, 108};
    for (int i = 0; i < 20000; ++i) {
        const int preset = PresetModel::keyOf(i * 7 % PresetModel::count);
        const auto black = static_cast<unsigned char>(preset == powerKey ? 51 : preset);
        const auto white = static_cast<unsigned char>(whites[i % 7]);
        messages.insert(messages.end(), {{0x90, black, 1},
                                         {0x90, white, static_cast<unsigned char>(1 + i % 127)},
                                         {0x80, white, 0},
                                         {0x80, black, 0}});
    }
    RoadModel model;
    for (const auto& message : messages)
        model.receive({message.begin(), message.end()});

    const auto depth = [] { return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0)); };
    const std::uintptr_t here = depth();
    std::uintptr_t deepest = here;
    connect(
        window.get(), &MainWnd::signalKey, this, [&] { deepest = std::min(deepest, depth()); },
        Qt::QueuedConnection);
    std::thread midi([&] {
        for (auto& message : messages)
            window->inSigReceived(0.0, &message, nullptr);
    });
    const auto done = [&] { return port->messages().size() >= model.sent.size(); };
    const bool all = QTest::qWaitFor(done, 200000);
    midi.join();
    QVERIFY(all);
    QCoreApplication::processEvents();
    QVERIFY(port->messages() == model.sent);
    QVERIFY(model.sent.size() > 20000);
    QCOMPARE(active(), PresetModel::keyOf(model.presets.active));
    QVERIFY2(here - deepest < 256 * 1024, qPrintable(QString::number(here - deepest)));
}

QTEST_MAIN(TestHeaderController)
#include "test_header_controller.moc"
