// The presets on the stage: the record of one, and the item that shows it.

#include "app/MainWnd.h"
#include "app/MidiService.h"
#include "headers/HeaderController.h"
#include "keys/ScaleKeyController.h"
#include "keys/TonicKeyController.h"
#include "keys/key_roles.h"
#include "keys/pictures.h"
#include "library/default_tables.h"
#include "logging/categories.h"

#include <QGraphicsSceneContextMenuEvent>
#include <QGraphicsSceneHoverEvent>
#include <QGraphicsView>
#include <QMenu>
#include <QPaintEvent>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTextDocumentFragment>
#include <QtTest>

#include <algorithm>

namespace {

const QString ionian = QStringLiteral("xoxoxxoxoxox"), lydian = QStringLiteral("xoxoxoxxoxox");
const QString unknown = QStringLiteral("xxxxooooooox"), otherUnknown = QStringLiteral("xoooooooxxxx");
const QSize canvas(60, 100);

header_data scaleRecord(const QString& word, bool on = true)
{
    return {"Old1", "Old2", "F#", true, "F#", on, word};
}

QStringList fields(const header_data& d)
{
    const auto flag = [](bool on) { return QString(on ? QStringLiteral("on") : QStringLiteral("off")); };
    return {d.nameScenic1,   d.nameScenic2,       d.nameTonic,
            flag(d.tonicOn), d.tonicData,         flag(d.scaleOn),
            d.scaleData,     flag(d.anchorValid), QString::number(d.anchorPos)};
}

QStringList names(const HeaderItem* header)
{
    return {header->record.nameScenic1, header->record.nameScenic2};
}

QImage blankImage()
{
    QImage image(canvas, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    return image;
}

QImage painted(HeaderItem& header)
{
    QImage image = blankImage();
    QPainter painter(&image);
    const QStyleOptionGraphicsItem option;
    header.paint(&painter, &option, nullptr);
    return image;
}

/// The picture with a text in the middle of a rectangle, drawn without the item.
QImage drawn(const QPixmap& picture, const QString& text, const QRect& place, QRgb colour)
{
    QImage image = blankImage();
    QPainter painter(&image);
    painter.drawPixmap(0, 0, picture);
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(8);
    painter.setFont(font);
    painter.setPen(QColor(colour));
    painter.drawText(place, Qt::AlignHCenter | Qt::AlignVCenter, text);
    return image;
}

QPixmap picture(int type, const char* suffix)
{
    return pictures::load(
        QStringLiteral(":/Resources/Headers/Header%1sharp_%2.png").arg(type + 1).arg(QLatin1String(suffix)));
}

bool isSame(const QPixmap& a, const QPixmap& b)
{
    return !a.isNull() && a.cacheKey() == b.cacheKey();
}

/// A tool tip's text as it comes to the eye, whether it is plain or rich.
QString asRead(const QString& toolTip)
{
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip;
}

/// A header outside the controller's list. It takes itself back when it was made the active one.
class LooseHeader : public HeaderItem
{
public:
    explicit LooseHeader(const header_data& data, header_type headerType = header_c_sharp)
        : HeaderItem(nullptr, headerType, data)
    {
    }
    ~LooseHeader() override
    {
        if (mainWnd && mainWnd->headerController && mainWnd->headerController->activeHeader == this)
            mainWnd->headerController->activeHeader = nullptr;
    }
};

/// A window of its own that tells which area of one item is painted again.
class RepaintWatch : public QGraphicsView
{
public:
    explicit RepaintWatch(QGraphicsItem& watched) : item(watched)
    {
        setFrameShape(QFrame::NoFrame);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setOptimizationFlag(DontAdjustForAntialiasing);
        setScene(&stage);
        stage.setSceneRect(QRect({}, canvas));
        stage.addItem(&item);
        setFixedSize(canvas);
        show();
        static_cast<void>(QTest::qWaitForWindowExposed(this));
        static_cast<void>(take());
    }
    ~RepaintWatch() override { stage.removeItem(&item); }

    /// In the item's coordinates; empty if nothing was painted.
    QRect take()
    {
        for (int round = 0; round < 3; ++round) // the scene collects, the view asks, the window paints
            QCoreApplication::processEvents();
        return std::exchange(area, QRect());
    }
    /// The same, up to the pixel that a view adds around what it is asked for.
    bool tookOnly(const QRect& expected)
    {
        const QRect painted = take();
        return painted.contains(expected) && expected.adjusted(-2, -2, 2, 2).contains(painted);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        area = area.united(event->region().boundingRect());
        QGraphicsView::paintEvent(event);
    }

private:
    QGraphicsScene stage;
    QGraphicsItem& item;
    QRect area;
};

/// Debug lines of the room, for a test that expects one.
class DebugLines
{
public:
    DebugLines() : category(const_cast<QLoggingCategory&>(lcHeaders())), before(category.isDebugEnabled())
    {
        category.setEnabled(QtDebugMsg, true);
    }
    ~DebugLines() { category.setEnabled(QtDebugMsg, before); }

private:
    QLoggingCategory& category;
    const bool before;
};

} // namespace

class TestHeaders : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    // The record
    void defaultRecordIsEmpty();
    void constructorTakesSevenFieldsAndNoPosition();
    void overwritesSetAllNineFields_data();
    void overwritesSetAllNineFields();

    // Construction
    void freshHeaderIsDeactiveAndWithoutAKey();
    void libraryNamesWinOverGivenOnes();
    void libraryNamesWinEvenWithTheScaleOff();
    void unknownWordKeepsTheGivenNamesWithoutAController();
    void unknownWordMakesATemporaryRecordAtBirth();
    void headerIsBuiltWithoutAWindow();
    void factoryHeadersStandInKeyOrderWithTheirRoles();
    void factoryHeadersCarryTheirRecords();
    void headerIsNotBuiltWithoutItsController();

    // Status, layout, picture
    void statusValuesAndTypesAreFixed();
    void layoutFollowsTheType_data();
    void layoutFollowsTheType();
    void pictureFollowsTypeAndStatus_data();
    void pictureFollowsTypeAndStatus();
    void sameStatusRepaintsNothing();
    void sameStatusLoadsNoPicture();
    void activeStatusGoesToTheController();
    void activeStatusStoresNoSelector();
    void otherStatusesLeaveTheControllerAlone();

    // Paint
    void tonicIsPaintedInTheStatusColour_data();
    void tonicIsPaintedInTheStatusColour();
    void blankTonicPaintsThePictureAlone_data();
    void blankTonicPaintsThePictureAlone();
    void namesNeverShow();

    // Names and the library
    void namesRepaintTheirRectangleOnly();
    void scenicWaitsForTheController();
    void scaleOffEmptiesBothNames();
    void emptyScaleEmptiesBothNames();
    void knownScaleTakesItsAbbreviations();
    void newNamesRepaintTheirRectangles();
    void unknownScaleMakesATemporaryRecord_data();
    void unknownScaleMakesATemporaryRecord();
    void userNumbersCountUpAndFillGaps();
    void ownNumberDoesNotCountAsTaken();
    void twoHeadersShareOneTemporaryRecord();
    void temporaryRecordGoesWithItsLastHolder();
    void scenicNeverTouchesTheTonic();

    // Copy and swap
    void copyTakesNamesAlwaysAndTheRestIfOn_data() { addSwitchPairs(); }
    void copyTakesNamesAlwaysAndTheRestIfOn();
    void copyRepaintsTheThreeTexts();
    void copySaysSo();
    void copyFromItselfChangesNothing();
    void swapExchangesNineFieldsAndNamesThemAnew_data() { addSwitchPairs(); }
    void swapExchangesNineFieldsAndNamesThemAnew();
    void swapNamesThisHeaderFirst();
    void swapLeavesStatusAndPicture();
    void swapWithItselfDoesNothing();
    void swapStatusExchangesBareValues();
    void swapStatusWithItselfDoesNothing();

    // Menu, home, tool tip
    void overlayLiesOnThePicture_data() { addTypes(); }
    void overlayLiesOnThePicture();
    void overlayOffTwiceRestoresTheSamePicture();
    void overlayOffAloneChangesNothing();
    void contextMenuGoesToTheController();
    void contextMenuWithoutControllerDoesNothing();
    void restorePosGoesHomeAndSaysSo();
    void toolTipIsMadeWhenThePointerComes();
    void toolTipShowsMarksInATitleAsTheyAre();
    void toolTipTellsTheRecord();

    // Place and shape
    void shapeIsTheFlagNotItsCorners_data() { addTypes(); }
    void shapeIsTheFlagNotItsCorners();
    void polesStandOnTheMiddleOfTheirKeys();
    void headsOfOneRowDoNotOverlap();
    void wholeHeadBelongsToItsHeader();

private:
    static void addTypes();
    static void addSwitchPairs();
    HeaderController* controller() const { return window->headerController; }
    HeaderItem* header(int index) const { return controller()->headers.at(index); }
    DatabaseLibrary& library() const { return window->library; }
    /// Empties all records, so that no temporary scale is left.
    void blankAll() const;
    void setRecord(int index, const header_data& data) const;
    QStringList abbreviations(const QString& word) const;
    const HeaderItem* topHeader(QPointF place) const;

    std::unique_ptr<MainWnd> window;
};

void TestHeaders::init()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    for (const QString& word : {unknown, otherUnknown})
        QVERIFY(!library().containsScale(word, DatabaseLibrary::AnyRole));
}

void TestHeaders::addTypes()
{
    QTest::addColumn<int>("type");
    for (const int type : {0, 1, 2, 3, 4})
        QTest::addRow("type %d", type) << type;
}

void TestHeaders::addSwitchPairs()
{
    QTest::addColumn<bool>("sourceTonic");
    QTest::addColumn<bool>("sourceScale");
    QTest::addColumn<bool>("targetTonic");
    QTest::addColumn<bool>("targetScale");
    const auto word = [](int bit) { return bit ? "on" : "off"; };
    for (int bits = 0; bits < 16; ++bits)
        QTest::addRow("source %s %s, target %s %s", word(bits & 1), word(bits & 2), word(bits & 4),
                      word(bits & 8))
            << bool(bits & 1) << bool(bits & 2) << bool(bits & 4) << bool(bits & 8);
}

void TestHeaders::blankAll() const
{
    for (HeaderItem* item : qAsConst(controller()->headers))
        item->record = {};
    controller()->removeUnusedTempRecords();
    QVERIFY(library().customScales().isEmpty());
}

void TestHeaders::setRecord(int index, const header_data& data) const
{
    header(index)->record = data;
    header(index)->updateScenic();
}

QStringList TestHeaders::abbreviations(const QString& word) const
{
    scale_data scale;
    if (!library().getScaleData(word, scale, DatabaseLibrary::AnyRole))
        return {QStringLiteral("no"), QStringLiteral("record")};
    return {scale.abbr1, scale.abbr2};
}

const HeaderItem* TestHeaders::topHeader(QPointF place) const
{
    const auto items = header(0)->scene()->items(place);
    const auto found = std::find_if(items.begin(), items.end(), key_roles::isHeader);
    return found == items.end() ? nullptr : static_cast<const HeaderItem*>(*found);
}

void TestHeaders::defaultRecordIsEmpty()
{
    QCOMPARE(fields(header_data()), (QStringList{"", "", "", "off", "", "off", "", "off", "0"}));
}

void TestHeaders::constructorTakesSevenFieldsAndNoPosition()
{
    const header_data data("1", "2", "3", true, "4", false, "5");
    QCOMPARE(fields(data), (QStringList{"1", "2", "3", "on", "4", "off", "5", "off", "0"}));
    const header_data other("a", "b", "c", false, "d", true, "e");
    QCOMPARE(fields(other), (QStringList{"a", "b", "c", "off", "d", "on", "e", "off", "0"}));
}

using Overwrite = void (header_data::*)();
Q_DECLARE_METATYPE(Overwrite)

void TestHeaders::overwritesSetAllNineFields_data()
{
    QTest::addColumn<Overwrite>("overwrite");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("reset") << &header_data::reset
                           << QStringList{"ION", "Major", "C", "on", "C", "on", ionian, "off", "0"};
    QTest::newRow("erase") << &header_data::erase
                           << QStringList{"", "", "C", "on", "C", "on", "xooooooooooo", "off", "0"};
    QTest::newRow("clearNames") << &header_data::clearNames
                                << QStringList{"", "", "C", "off", "C", "off", ionian, "off", "0"};
}

void TestHeaders::overwritesSetAllNineFields()
{
    QFETCH(Overwrite, overwrite);
    QFETCH(QStringList, expected);
    for (const bool on : {true, false}) {
        header_data data("Old1", "Old2", "F#", on, "G", on, lydian);
        data.anchorValid = true;
        data.anchorPos = -34;
        (data.*overwrite)();
        QCOMPARE(fields(data), expected);
    }
}

void TestHeaders::freshHeaderIsDeactiveAndWithoutAKey()
{
    header_data data = scaleRecord(ionian);
    data.anchorValid = true;
    data.anchorPos = 51;
    LooseHeader item(data, header_f_sharp);
    QCOMPARE(item.status(), header_deactive);
    QCOMPARE(item.type, header_f_sharp);
    QVERIFY(!item.controller);
    QCOMPARE(key_roles::pitch(&item), -1);
    QVERIFY(!item.isPushed && !item.mouseHeld);
    QCOMPARE(item.homePos, QPointF());
    QVERIFY(item.savedPixmap.isNull());
    QVERIFY(isSame(item.pixmap(), picture(2, "deactive")));
    QCOMPARE(fields(item.record).mid(2), fields(data).mid(2)); // all but the two names
    QCOMPARE(header(0)->controller, controller());
}

void TestHeaders::libraryNamesWinOverGivenOnes()
{
    const LooseHeader item(scaleRecord(lydian));
    QCOMPARE(names(&item), (QStringList{"MAJOR", "Lydian"}));
    QCOMPARE(names(&item), abbreviations(lydian));
}

// Without a controller the names are looked up once and not brought up to date afterwards.
void TestHeaders::libraryNamesWinEvenWithTheScaleOff()
{
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    const LooseHeader early(scaleRecord(lydian, false));
    window->headerController = kept;
    QCOMPARE(names(&early), abbreviations(lydian));
    const LooseHeader late(scaleRecord(lydian, false));
    QCOMPARE(names(&late), (QStringList{"", ""}));
    QCOMPARE(late.record.scaleData, lydian);
}

void TestHeaders::unknownWordKeepsTheGivenNamesWithoutAController()
{
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    const LooseHeader item(scaleRecord(unknown));
    window->headerController = kept;
    QCOMPARE(names(&item), (QStringList{"Old1", "Old2"}));
    QVERIFY(!library().containsScale(unknown, DatabaseLibrary::AnyRole));
}

void TestHeaders::unknownWordMakesATemporaryRecordAtBirth()
{
    blankAll();
    const LooseHeader item(scaleRecord(unknown));
    QCOMPARE(names(&item), (QStringList{"User", "1"}));
    QCOMPARE(library().customScales(), QList<QString>{unknown});
}

void TestHeaders::headerIsBuiltWithoutAWindow()
{
    window.reset();
    mainWnd = nullptr;
    LooseHeader item(scaleRecord(ionian));
    item.setStatus(header_active);
    item.updateScenic();
    QCOMPARE(names(&item), (QStringList{"Old1", "Old2"}));
    QCOMPARE(item.status(), header_active);
}

void TestHeaders::factoryHeadersStandInKeyOrderWithTheirRoles()
{
    static const QMap<int, header_type> types = {{1, header_c_sharp},
                                                 {3, header_d_sharp},
                                                 {6, header_f_sharp},
                                                 {8, header_g_sharp},
                                                 {10, header_a_sharp}};
    int index = 0;
    for (int note = 21; note <= 108; ++note) {
        if (!types.contains(note % 12))
            continue;
        const HeaderItem* item = header(index++);
        QCOMPARE(item->type, types.value(note % 12));
        QCOMPARE(key_roles::pitch(item), note);
        QCOMPARE(key_roles::headerSlot(item), note);
        QVERIFY(key_roles::isHeader(item) && key_roles::isBlack(item));
        QCOMPARE(item->status(), note == 63 ? header_active : header_deactive);
        QCOMPARE(item->pos(), item->homePos);
    }
    QCOMPARE(index, 36);
    QCOMPARE(controller()->headers.size(), 36);
}

void TestHeaders::factoryHeadersCarryTheirRecords()
{
    for (int i = 0; i < 36; ++i) {
        const header_data& row = resetHeaderData.at(static_cast<std::size_t>(i));
        const header_data& data = header(i)->record;
        QCOMPARE(fields(data).mid(2), fields(row).mid(2));
        const bool named = row.scaleOn && !row.scaleData.isEmpty();
        QCOMPARE(names(header(i)), named ? abbreviations(row.scaleData) : (QStringList{"", ""}));
    }
}

void TestHeaders::headerIsNotBuiltWithoutItsController()
{
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    const int before = window->ui.inKeyboardGraphicsView->scene()->items().size();
    {
        const DebugLines on;
        QTest::ignoreMessage(QtDebugMsg, "HeaderController must be initialized before creating any Header");
        window->createHeaderItem(QStringLiteral("header"), 22, 0, header_a_sharp, {}, header_deactive);
    }
    window->headerController = kept;
    QCOMPARE(window->ui.inKeyboardGraphicsView->scene()->items().size(), before);
    QCOMPARE(controller()->headers.size(), 36);
}

void TestHeaders::statusValuesAndTypesAreFixed()
{
    const QList<int> statuses = {header_deactive, header_active, header_active_shadow, header_switch,
                                 header_switch_active};
    QCOMPARE(statuses, (QList<int>{0, 1, 2, 3, 4}));
    const QList<int> types = {header_c_sharp, header_d_sharp, header_f_sharp, header_g_sharp, header_a_sharp};
    QCOMPARE(types, (QList<int>{0, 1, 2, 3, 4}));
}

void TestHeaders::layoutFollowsTheType_data()
{
    QTest::addColumn<QVector<int>>("edges"); // left, top, right, bottom of three rectangles, then the point
    QTest::newRow("0") << QVector<int>{2, 3, 31, 13, 2, 13, 31, 23, 19, 40, 32, 53, 25, 60};
    QTest::newRow("1") << QVector<int>{2, 3, 31, 13, 2, 13, 31, 23, 2, 40, 15, 53, 8, 60};
    QTest::newRow("2") << QVector<int>{2, 3, 33, 13, 2, 13, 33, 23, 29, 67, 42, 80, 35, 87};
    QTest::newRow("3") << QVector<int>{2, 3, 33, 13, 2, 13, 33, 23, 11, 67, 24, 80, 17, 87};
    QTest::newRow("4") << QVector<int>{11, 3, 41, 13, 11, 13, 41, 23, 2, 67, 15, 80, 8, 87};
}

void TestHeaders::layoutFollowsTheType()
{
    QFETCH(QVector<int>, edges);
    LooseHeader item({}, static_cast<header_type>(QByteArray(QTest::currentDataTag()).toInt()));
    for (const header_status status : {header_active_shadow, header_switch, header_active}) {
        item.nameRect1 = item.nameRect2 = item.tonicRect = {}; // a change of status writes the row anew
        item.powerPoint = {};
        item.setStatus(status);
        QVector<int> found;
        for (const QRect& r : {item.nameRect1, item.nameRect2, item.tonicRect}) {
            QCOMPARE(r.width(), 1 + r.right() - r.left());
            found << r.left() << r.top() << r.right() << r.bottom();
        }
        found << qRound(item.powerPoint.x()) << qRound(item.powerPoint.y());
        QCOMPARE(found, edges);
    }
}

void TestHeaders::pictureFollowsTypeAndStatus_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<QByteArray>("suffix");
    QTest::newRow("deactive") << 0 << QByteArray("deactive");
    QTest::newRow("active") << 1 << QByteArray("active");
    QTest::newRow("active shadow") << 2 << QByteArray("ActiveDropShadow");
    QTest::newRow("switch") << 3 << QByteArray("Switch");
    QTest::newRow("switch active") << 4 << QByteArray("Switch");
}

void TestHeaders::pictureFollowsTypeAndStatus()
{
    QFETCH(int, status);
    QFETCH(QByteArray, suffix);
    for (int type = 0; type < 5; ++type) {
        LooseHeader item({}, static_cast<header_type>(type));
        item.setStatus(status == header_active ? header_deactive : header_active); // away first, then there
        item.setStatus(static_cast<header_status>(status));
        QCOMPARE(item.status(), static_cast<header_status>(status));
        QVERIFY(isSame(item.pixmap(), picture(type, suffix.constData())));
    }
}

void TestHeaders::sameStatusRepaintsNothing()
{
    LooseHeader item({});
    RepaintWatch watch(item);
    item.setStatus(header_deactive);
    QVERIFY(watch.take().isEmpty());
    item.setStatus(header_switch);
    QVERIFY(watch.take().contains(item.boundingRect().toRect()));
    item.setStatus(header_switch);
    QVERIFY(watch.take().isEmpty());
}

void TestHeaders::sameStatusLoadsNoPicture()
{
    LooseHeader item({});
    item.setStatus(header_active);
    const QPixmap foreign = pictures::transparent({3, 3});
    item.setPixmap(foreign);
    item.tonicRect = {};
    controller()->activeHeader = header(0);
    item.setStatus(header_active);
    QVERIFY(isSame(item.pixmap(), foreign));
    QVERIFY(item.tonicRect.isNull());
    QCOMPARE(controller()->activeHeader, header(0));
}

void TestHeaders::activeStatusGoesToTheController()
{
    HeaderItem* const before = controller()->activeHeader;
    QVERIFY(before && before != header(3));
    header(3)->setStatus(header_active);
    QCOMPARE(controller()->activeHeader, header(3));
    QCOMPARE(header(3)->status(), header_active);
    QCOMPARE(before->status(), header_deactive);
    LooseHeader item({}); // without a controller of its own: the window's is asked
    item.setStatus(header_active);
    QCOMPARE(controller()->activeHeader, &item);
    QCOMPARE(header(3)->status(), header_deactive);
}

void TestHeaders::activeStatusStoresNoSelector()
{
    window->setPower(true);
    HeaderItem* const before = controller()->activeHeader;
    before->record = scaleRecord(lydian);
    setRecord(3, scaleRecord(ionian));
    auto* tonic = static_cast<TonicKeyController*>(window->tonicController);
    auto* scale = static_cast<ScaleKeyController*>(window->scaleController);
    const QString tonicBefore = tonic->tonicModifier(), scaleBefore = scale->scaleModifier();
    QVERIFY(tonicBefore != QStringLiteral("F#") && scaleBefore != lydian);
    header(3)->setStatus(header_active);
    QCOMPARE(fields(before->record).mid(2), fields(scaleRecord(lydian)).mid(2));
    QCOMPARE(fields(header(3)->record).mid(2), fields(scaleRecord(ionian)).mid(2));
    QCOMPARE(tonic->tonicModifier(), tonicBefore);
    QCOMPARE(scale->scaleModifier(), scaleBefore);
}

void TestHeaders::otherStatusesLeaveTheControllerAlone()
{
    HeaderItem* const before = controller()->activeHeader;
    for (const auto status : {header_active_shadow, header_switch, header_switch_active, header_deactive}) {
        header(3)->setStatus(status);
        QCOMPARE(controller()->activeHeader, before);
        QCOMPARE(before->status(), header_active);
    }
}

void TestHeaders::tonicIsPaintedInTheStatusColour_data()
{
    QTest::addColumn<int>("status");
    QTest::addColumn<uint>("colour");
    QTest::newRow("deactive") << 0 << 0xFF00C9FFu;
    QTest::newRow("active") << 1 << 0xFFFFFF00u;
    QTest::newRow("active shadow") << 2 << 0xFFFFFF00u;
    QTest::newRow("switch") << 3 << 0xFF00C9FFu;
    QTest::newRow("switch active") << 4 << 0xFFFFFF00u;
}

void TestHeaders::tonicIsPaintedInTheStatusColour()
{
    QFETCH(int, status);
    QFETCH(uint, colour);
    for (int type = 0; type < 5; ++type) {
        for (const char* tonic : {"C", "G#", "M"}) {
            LooseHeader item(scaleRecord(ionian), static_cast<header_type>(type));
            item.setStatus(static_cast<header_status>(status));
            item.setNameTonic(QLatin1String(tonic));
            const QImage image = painted(item);
            QCOMPARE(image, drawn(item.pixmap(), QLatin1String(tonic), item.tonicRect, colour));
            QVERIFY(image != drawn(item.pixmap(), {}, item.tonicRect, colour));
        }
    }
}

void TestHeaders::blankTonicPaintsThePictureAlone_data()
{
    QTest::addColumn<QString>("tonic");
    QTest::addColumn<bool>("on");
    QTest::addColumn<bool>("blank");
    QTest::newRow("empty, on") << QString() << true << true;
    QTest::newRow("empty, off") << QString() << false << true;
    QTest::newRow("named, off") << QStringLiteral("F#") << false << true;
    QTest::newRow("named, on") << QStringLiteral("F#") << true << false;
}

void TestHeaders::blankTonicPaintsThePictureAlone()
{
    QFETCH(QString, tonic);
    QFETCH(bool, on);
    QFETCH(bool, blank);
    LooseHeader item(scaleRecord(ionian));
    item.record.tonicOn = on;
    item.record.nameTonic = tonic; // the stored note stays "F#": it is the name that shows
    QCOMPARE(painted(item) == drawn(item.pixmap(), {}, item.tonicRect, 0), blank);
}

void TestHeaders::namesNeverShow()
{
    LooseHeader item(scaleRecord(ionian));
    const QImage before = painted(item);
    for (const char* name : {"", "MMMMM"}) {
        item.setNameScenic1(QLatin1String(name));
        item.setNameScenic2(QLatin1String(name));
        QCOMPARE(painted(item), before);
    }
}

void TestHeaders::namesRepaintTheirRectangleOnly()
{
    LooseHeader item({}, header_a_sharp);
    RepaintWatch watch(item);
    item.setNameScenic1(QStringLiteral("one"));
    QVERIFY(watch.tookOnly(item.nameRect1));
    item.setNameScenic2(QStringLiteral("two"));
    QVERIFY(watch.tookOnly(item.nameRect2));
    item.setNameTonic(QStringLiteral("D"));
    QVERIFY(watch.tookOnly(item.tonicRect));
    QCOMPARE(fields(item.record), (QStringList{"one", "two", "D", "off", "", "off", "", "off", "0"}));
}

void TestHeaders::scenicWaitsForTheController()
{
    blankAll();
    setRecord(0, scaleRecord(unknown));
    header(0)->record = scaleRecord(ionian); // the temporary scale has lost its holder
    HeaderController* const kept = std::exchange(window->headerController, nullptr);
    HeaderItem* const item = kept->headers.first();
    item->updateScenic();
    window->headerController = kept;
    QCOMPARE(names(item), (QStringList{"Old1", "Old2"}));
    QCOMPARE(library().customScales(), QList<QString>{unknown});
    item->updateScenic();
    QCOMPARE(names(item), abbreviations(ionian));
    QVERIFY(library().customScales().isEmpty());
}

void TestHeaders::scaleOffEmptiesBothNames()
{
    blankAll();
    for (const QString& word : {ionian, unknown}) {
        setRecord(0, scaleRecord(word, false));
        QCOMPARE(names(header(0)), (QStringList{"", ""}));
        QCOMPARE(header(0)->record.scaleData, word);
        QVERIFY(library().customScales().isEmpty());
    }
    header(0)->record.scaleData = ionian;
    header(0)->record.scaleOn = true; // the names come back with the switch, not the old ones
    header(0)->updateScenic();
    QCOMPARE(names(header(0)), abbreviations(ionian));
}

void TestHeaders::emptyScaleEmptiesBothNames()
{
    blankAll();
    setRecord(0, scaleRecord({}));
    QCOMPARE(names(header(0)), (QStringList{"", ""}));
    QVERIFY(header(0)->record.scaleOn);
    QVERIFY(!library().containsScale({}, DatabaseLibrary::AnyRole));
}

void TestHeaders::knownScaleTakesItsAbbreviations()
{
    blankAll();
    setRecord(0, scaleRecord(lydian));
    QCOMPARE(names(header(0)), (QStringList{"MAJOR", "Lydian"}));
    scale_data renamed;
    QVERIFY(library().getScaleData(lydian, renamed, DatabaseLibrary::LibraryRole));
    renamed.abbr1 = QStringLiteral("new");
    library().setScaleData(lydian, renamed, DatabaseLibrary::LibraryRole);
    header(0)->updateScenic();
    QCOMPARE(names(header(0)), (QStringList{"new", "Lydian"}));
    QVERIFY(library().customScales().isEmpty());
}

void TestHeaders::newNamesRepaintTheirRectangles()
{
    LooseHeader item({});
    RepaintWatch watch(item);
    item.record = scaleRecord(lydian);
    item.updateScenic();
    QVERIFY(watch.tookOnly(item.nameRect1.united(item.nameRect2)));
    item.record.scaleOn = false;
    item.updateScenic();
    QVERIFY(watch.tookOnly(item.nameRect1.united(item.nameRect2)));
}

void TestHeaders::unknownScaleMakesATemporaryRecord_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("a scale") << unknown;
    QTest::newRow("no scale") << QStringLiteral("x");
    QTest::newRow("other letters") << QString::fromUtf8("%1 \xC3\xA9 <b>");
    QTest::newRow("long") << QString(5000, QLatin1Char('x'));
}

void TestHeaders::unknownScaleMakesATemporaryRecord()
{
    QFETCH(QString, word);
    blankAll();
    setRecord(0, scaleRecord(word));
    QCOMPARE(names(header(0)), (QStringList{"User", "1"}));
    scale_data scale;
    QVERIFY(library().getScaleData(word, scale, DatabaseLibrary::CustomRole));
    QCOMPARE((QStringList{scale.scale, scale.abbr1, scale.abbr2, scale.title, scale.libBody}),
             (QStringList{word, "User", "1", "User 1", ""}));
    QVERIFY(library().findCategoriesWithScale(word).isEmpty());
}

void TestHeaders::userNumbersCountUpAndFillGaps()
{
    blankAll();
    setRecord(4, scaleRecord(unknown));
    setRecord(2, scaleRecord(otherUnknown));
    QCOMPARE(names(header(4)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(2)), (QStringList{"User", "2"}));
    setRecord(4, scaleRecord(ionian));
    setRecord(7, scaleRecord(unknown));
    QCOMPARE(names(header(7)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(2)), (QStringList{"User", "2"}));
}

void TestHeaders::ownNumberDoesNotCountAsTaken()
{
    blankAll();
    setRecord(0, scaleRecord(unknown));
    header(0)->record.scaleData = otherUnknown; // as the selector plays it, key by key
    header(0)->updateScenic();
    QCOMPARE(names(header(0)), (QStringList{"User", "1"}));
    QCOMPARE(library().customScales(), QList<QString>{otherUnknown});
}

void TestHeaders::twoHeadersShareOneTemporaryRecord()
{
    blankAll();
    setRecord(5, scaleRecord(unknown));
    setRecord(9, scaleRecord(unknown));
    QCOMPARE(names(header(5)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(9)), names(header(5)));
    QCOMPARE(library().customScales(), QList<QString>{unknown});
}

void TestHeaders::temporaryRecordGoesWithItsLastHolder()
{
    blankAll();
    setRecord(5, scaleRecord(unknown));
    setRecord(9, scaleRecord(unknown));
    header(5)->record.scaleOn = false;
    header(5)->updateScenic();
    QVERIFY(library().isCustomScale(unknown));
    header(9)->record.scaleOn = false; // both keep the word, but neither plays it
    header(20)->updateScenic();
    QVERIFY(!library().containsScale(unknown, DatabaseLibrary::AnyRole));
}

void TestHeaders::scenicNeverTouchesTheTonic()
{
    blankAll();
    for (const QString& word : {ionian, unknown, QString()}) {
        for (const bool on : {true, false}) {
            setRecord(0, scaleRecord(word, on));
            QCOMPARE(fields(header(0)->record).mid(2), fields(scaleRecord(word, on)).mid(2));
        }
    }
}

void TestHeaders::copyTakesNamesAlwaysAndTheRestIfOn()
{
    QFETCH(bool, sourceTonic);
    QFETCH(bool, sourceScale);
    QFETCH(bool, targetTonic);
    QFETCH(bool, targetScale);
    LooseHeader source({}), target({});
    source.record = {"s1", "s2", "D", sourceTonic, "D", sourceScale, lydian};
    source.record.anchorValid = true;
    source.record.anchorPos = 17;
    target.record = {"t1", "t2", "A", targetTonic, "A", targetScale, unknown};
    target.record.anchorPos = -51;
    const QStringList before = fields(source.record);
    target.copyHeadersData(&source);

    const auto flag = [](bool on) { return QString(on ? QStringLiteral("on") : QStringLiteral("off")); };
    QStringList tonic = {flag(targetTonic), "A"}, scale = {flag(targetScale), unknown},
                place = {"off", "-51"};
    if (sourceTonic) {
        tonic = QStringList{"on", "D"};
        place = QStringList{"on", "17"};
    }
    if (sourceScale)
        scale = QStringList{"on", lydian};
    QCOMPARE(fields(target.record), (QStringList{"s1", "s2", "D"} + tonic + scale + place));
    QCOMPARE(fields(source.record), before);
}

void TestHeaders::copyRepaintsTheThreeTexts()
{
    LooseHeader source(scaleRecord(lydian)), target({});
    RepaintWatch watch(target);
    target.copyHeadersData(&source);
    QVERIFY(watch.tookOnly(target.nameRect1.united(target.nameRect2).united(target.tonicRect)));
}

void TestHeaders::copySaysSo()
{
    const DebugLines on;
    QTest::ignoreMessage(QtDebugMsg, "HeaderItem::copyHeaderData");
    header(0)->copyHeadersData(header(1));
}

void TestHeaders::copyFromItselfChangesNothing()
{
    LooseHeader item({});
    item.record = scaleRecord(unknown);
    item.copyHeadersData(&item);
    QCOMPARE(fields(item.record), fields(scaleRecord(unknown)));
}

void TestHeaders::swapExchangesNineFieldsAndNamesThemAnew()
{
    QFETCH(bool, sourceTonic);
    QFETCH(bool, sourceScale);
    QFETCH(bool, targetTonic);
    QFETCH(bool, targetScale);
    blankAll();
    header_data known("s1", "s2", "D", sourceTonic, "E", sourceScale, lydian);
    known.anchorValid = true;
    known.anchorPos = 17;
    header_data foreign("t1", "t2", "A", targetTonic, "B", targetScale, unknown);
    foreign.anchorPos = -51;
    header(3)->record = known;
    header(8)->record = foreign;
    header(3)->swapHeadersData(header(8));

    const QStringList none = {"", ""};
    QCOMPARE(names(header(3)), targetScale ? (QStringList{"User", "1"}) : none);
    QCOMPARE(names(header(8)), sourceScale ? (QStringList{"MAJOR", "Lydian"}) : none);
    QCOMPARE(fields(header(3)->record).mid(2), fields(foreign).mid(2));
    QCOMPARE(fields(header(8)->record).mid(2), fields(known).mid(2));
    QCOMPARE(library().isCustomScale(unknown), targetScale);
}

void TestHeaders::swapNamesThisHeaderFirst()
{
    blankAll();
    header(3)->record = {{}, {}, {}, false, {}, true, unknown};
    header(8)->record = {{}, {}, {}, false, {}, true, otherUnknown};
    header(8)->swapHeadersData(header(3));
    QCOMPARE(header(8)->record.scaleData, unknown);
    QCOMPARE(names(header(8)), (QStringList{"User", "1"}));
    QCOMPARE(names(header(3)), (QStringList{"User", "2"}));
}

void TestHeaders::swapLeavesStatusAndPicture()
{
    HeaderItem* const active = controller()->activeHeader;
    const QPixmap face = active->pixmap(), other = header(0)->pixmap();
    header(0)->swapHeadersData(active);
    QCOMPARE(controller()->activeHeader, active);
    QCOMPARE(active->status(), header_active);
    QCOMPARE(header(0)->status(), header_deactive);
    QVERIFY(isSame(active->pixmap(), face) && isSame(header(0)->pixmap(), other));
}

void TestHeaders::swapWithItselfDoesNothing()
{
    blankAll();
    for (const header_data& data : {scaleRecord(lydian), scaleRecord(unknown), scaleRecord(ionian, false)}) {
        header(3)->record = data; // stale names: an update would change them
        header(3)->swapHeadersData(header(3));
        QCOMPARE(fields(header(3)->record), fields(data));
        QVERIFY(library().customScales().isEmpty());
    }
}

void TestHeaders::swapStatusExchangesBareValues()
{
    HeaderItem* const active = controller()->activeHeader;
    const QPixmap face = active->pixmap(), other = header(0)->pixmap();
    active->record = scaleRecord(lydian);
    header(0)->record = scaleRecord(ionian, false);
    header(0)->swapHeadersStatus(active);
    QCOMPARE(header(0)->status(), header_active);
    QCOMPARE(active->status(), header_deactive);
    QCOMPARE(controller()->activeHeader, active);
    QVERIFY(isSame(active->pixmap(), face) && isSame(header(0)->pixmap(), other));
    QCOMPARE(names(active), abbreviations(lydian)); // both were brought up to date
    QCOMPARE(names(header(0)), (QStringList{"", ""}));
    QCOMPARE(fields(active->record).mid(2), fields(scaleRecord(lydian)).mid(2));
}

void TestHeaders::swapStatusWithItselfDoesNothing()
{
    header(3)->record = scaleRecord(lydian);
    header(3)->swapHeadersStatus(header(3));
    QCOMPARE(header(3)->status(), header_deactive);
    QCOMPARE(fields(header(3)->record), fields(scaleRecord(lydian)));
}

void TestHeaders::overlayLiesOnThePicture()
{
    QFETCH(int, type);
    LooseHeader item({}, static_cast<header_type>(type));
    for (const header_status status : {header_deactive, header_active}) {
        item.setStatus(status);
        const QPixmap before = item.pixmap();
        QImage expected = before.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
        QPainter(&expected).drawPixmap(0, 0, picture(type, "SwitchContextMenu"));
        item.overlayContextMenu(true);
        QVERIFY(isSame(item.savedPixmap, before));
        QCOMPARE(item.pixmap().toImage().convertToFormat(expected.format()), expected);
        QVERIFY(expected != before.toImage().convertToFormat(expected.format()));
        item.overlayContextMenu(false);
        QVERIFY(isSame(item.pixmap(), before));
    }
}

void TestHeaders::overlayOffTwiceRestoresTheSamePicture()
{
    LooseHeader item({});
    const QPixmap before = item.pixmap();
    item.overlayContextMenu(true);
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.savedPixmap, before)); // kept
    item.setStatus(header_switch);
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.pixmap(), before));
}

void TestHeaders::overlayOffAloneChangesNothing()
{
    LooseHeader item({});
    const QPixmap before = item.pixmap();
    item.overlayContextMenu(false);
    QVERIFY(isSame(item.pixmap(), before));
    QVERIFY(item.savedPixmap.isNull());
}

void TestHeaders::contextMenuGoesToTheController()
{
    window->setPower(true);
    const QPixmap before = header(3)->pixmap();
    bool shown = false, marked = false;
    QTimer closer;
    closer.setSingleShot(true);
    connect(&closer, &QTimer::timeout, this, [&] {
        shown = controller()->menu->isVisible();
        marked = !isSame(header(3)->pixmap(), before);
        controller()->menu->close();
    });
    closer.start(0);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    header(3)->scene()->sendEvent(header(3), &event);
    QVERIFY(shown && marked);
    QCOMPARE(controller()->contextHeader, header(3));
    QVERIFY(isSame(header(3)->pixmap(), before));
}

void TestHeaders::contextMenuWithoutControllerDoesNothing()
{
    LooseHeader item({});
    QGraphicsScene scene;
    scene.addItem(&item);
    QTimer closer; // a menu would keep the test waiting
    connect(&closer, &QTimer::timeout, controller()->menu, &QMenu::close);
    closer.start(0);
    QGraphicsSceneContextMenuEvent event(QEvent::GraphicsSceneContextMenu);
    scene.sendEvent(&item, &event);
    scene.removeItem(&item);
    QVERIFY(!controller()->contextHeader);
    QVERIFY(item.savedPixmap.isNull());
}

void TestHeaders::restorePosGoesHomeAndSaysSo()
{
    HeaderItem* const item = header(1);
    QCOMPARE(item->homePos, QPointF(33, 28));
    item->moveBy(40, -13);
    const DebugLines on;
    QTest::ignoreMessage(QtDebugMsg, "Headeritem :: restorePos QPointF(33,28)");
    item->restorePos();
    QCOMPARE(item->pos(), QPointF(33, 28));
}

void TestHeaders::toolTipIsMadeWhenThePointerComes()
{
    window->setPower(true);
    HeaderItem* const item = header(3);
    const auto enter = [item] {
        QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverEnter);
        item->scene()->sendEvent(item, &event);
        return asRead(item->toolTip());
    };
    QVERIFY(item->acceptHoverEvents());
    QCOMPARE(item->toolTip(), QString());
    setRecord(3, scaleRecord(lydian));
    const QString first = enter();
    QCOMPARE(first, item->describe());
    setRecord(3, scaleRecord(ionian));
    QVERIFY(enter() != first);
    QCOMPARE(asRead(item->toolTip()), item->describe());
}

void TestHeaders::toolTipShowsMarksInATitleAsTheyAre()
{
    window->setPower(true);
    const QString title = QStringLiteral("<b>%1</b> &amp; &lt;");
    library().setScaleData(lydian, {lydian, "<i>", "&", title, {}}, DatabaseLibrary::LibraryRole);
    setRecord(3, scaleRecord(lydian));
    QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverEnter);
    header(3)->scene()->sendEvent(header(3), &event);
    QVERIFY(header(3)->describe().contains(title));
    QCOMPARE(asRead(header(3)->toolTip()), header(3)->describe());
}

void TestHeaders::toolTipTellsTheRecord()
{
    blankAll();
    const auto lines = [this](const header_data& data) {
        setRecord(0, data);
        return header(0)->describe().split(QLatin1Char('\n'));
    };
    QCOMPARE(lines(scaleRecord(lydian)),
             (QStringList{"Tonic: F#", "Scale: Lydian (MAJOR Lydian)", "Locked: tonic, scale"}));
    QCOMPARE(lines(scaleRecord(unknown)),
             (QStringList{"Tonic: F#", "Scale: User 1 (User 1)", "Locked: tonic, scale"}));
    QCOMPARE(lines(scaleRecord(lydian, false)),
             (QStringList{"Tonic: F#", "Scale: as it is", "Locked: tonic"}));
    QCOMPARE(lines({"", "", "", true, "D", false, ""}),
             (QStringList{"Tonic: D", "Scale: as it is", "Locked: tonic"}));
    QCOMPARE(lines({"", "", "D", false, "D", true, ionian}),
             (QStringList{"Tonic: as it is", "Scale: Ionian (MAJOR Ionian)", "Locked: scale"}));
    QCOMPARE(lines({}), (QStringList{"Tonic: as it is", "Scale: as it is", "Locked: nothing"}));
}

void TestHeaders::shapeIsTheFlagNotItsCorners()
{
    QFETCH(int, type);
    const LooseHeader item({}, static_cast<header_type>(type));
    const QImage face = item.pixmap().toImage();
    const auto hits = [&](int x, int y) { return item.shape().contains(QPointF(x + 0.5, y + 0.5)); };
    const auto opaque = [&](int x, int y) { return qAlpha(face.pixel(x, y)) > 200; };
    const QPoint head = item.nameRect1.united(item.nameRect2).center(), badge = item.tonicRect.center();
    const int stem = (head.y() + badge.y()) / 2 + 8; // the bare pole, between head and badge
    for (const QPoint& p : {head, badge, QPoint(badge.x(), stem)})
        QVERIFY(hits(p.x(), p.y()) && opaque(p.x(), p.y()));
    const int foot = face.height() - 5;
    for (const int x : {0, face.width() - 1}) {
        if (qAbs(x - badge.x()) < 8)
            continue; // the side of the pole
        QVERIFY(!hits(x, foot) && qAlpha(face.pixel(x, foot)) == 0);
    }
    // Where the pole stands beside the head, nothing stands above it.
    const bool beside = badge.x() < item.nameRect1.left() || badge.x() > item.nameRect1.right();
    const int outer = head.x() < badge.x() ? item.tonicRect.right() - 1 : item.tonicRect.left() + 1;
    QCOMPARE(beside, type == 2 || type == 4);
    QCOMPARE(hits(outer, head.y()), !beside);
    QCOMPARE(opaque(outer, head.y()), !beside);
    QVERIFY(item.boundingRect().contains(item.shape().boundingRect()));
}

void TestHeaders::polesStandOnTheMiddleOfTheirKeys()
{
    for (const HeaderItem* item : qAsConst(controller()->headers)) {
        const ResizableItem* key = window->findInNote(key_roles::pitch(item));
        QVERIFY(key_roles::isBlack(key));
        const qreal pole = item->scenePos().x() + QRectF(item->tonicRect).center().x();
        QCOMPARE(pole, key->scenePos().x() + 10 / 2.0);
        QVERIFY(item->scenePos().y() + item->powerPoint.y() >= key->scenePos().y());
    }
}

// Taken from the pictures: the columns that a head covers, away from its rounded corners.
void TestHeaders::headsOfOneRowDoNotOverlap()
{
    QMap<int, int> rightOfRow; // by y, the last column taken
    for (const HeaderItem* item : qAsConst(controller()->headers)) {
        const QImage face = item->pixmap().toImage();
        const int left = qRound(item->scenePos().x()), row = qRound(item->scenePos().y());
        int first = face.width(), last = -1;
        for (int x = 0; x < face.width(); ++x)
            if (qAlpha(face.pixel(x, item->nameRect1.center().y())) > 0) {
                first = qMin(first, x);
                last = x;
            }
        QVERIFY(last - first > 25);
        QVERIFY(left + first > rightOfRow.value(row, -1));
        rightOfRow[row] = left + last;
    }
    QCOMPARE(rightOfRow.keys(), (QList<int>{1, 28}));
}

// What is seen as a head is that header under the pointer, whatever else reaches into its picture.
void TestHeaders::wholeHeadBelongsToItsHeader()
{
    window->setPower(true);
    for (const HeaderItem* item : qAsConst(controller()->headers)) {
        if (!item->isVisible())
            continue; // the power button stands there
        const QImage face = item->pixmap().toImage();
        for (int y = item->nameRect1.top(); y < item->nameRect2.bottom(); ++y)
            for (int x = 0; x < face.width(); ++x)
                if (qAlpha(face.pixel(x, y)) > 200)
                    QCOMPARE(topHeader(item->mapToScene(x + 0.5, y + 0.5)), item);
    }
}

QTEST_MAIN(TestHeaders)
#include "test_headers.moc"
