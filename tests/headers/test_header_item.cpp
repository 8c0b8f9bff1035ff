// The status of a header, its tool tip and its way home.

#include "HeaderFixture.h"
#include "HeaderLog.h"
#include "LooseHeader.h"
#include "header_pictures.h"
#include "keys/pictures.h"

#include <QGraphicsSceneHoverEvent>
#include <QTextDocumentFragment>
#include <QtTest>

namespace {

/// A tool tip's text as it comes to the eye, whether it is plain or rich.
QString asRead(const QString& toolTip)
{
    return Qt::mightBeRichText(toolTip) ? QTextDocumentFragment::fromHtml(toolTip).toPlainText() : toolTip;
}

} // namespace

class TestHeaderItem : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Status
    void statusValuesAndTypesAreFixed();
    void sameStatusLoadsNoPicture();
    void activeStatusGoesToTheController();
    void activeStatusStoresNoSelector();
    void otherStatusesLeaveTheControllerAlone();

    // Home, tool tip
    void restorePosGoesHomeAndSaysSo();
    void toolTipIsMadeWhenThePointerComes();
    void toolTipShowsMarksInATitleAsTheyAre();
    void toolTipTellsTheRecord();
};

void TestHeaderItem::statusValuesAndTypesAreFixed()
{
    const QList<int> statuses = {header_deactive, header_active, header_active_shadow, header_switch,
                                 header_switch_active};
    QCOMPARE(statuses, (QList<int>{0, 1, 2, 3, 4}));
    const QList<int> types = {header_c_sharp, header_d_sharp, header_f_sharp, header_g_sharp, header_a_sharp};
    QCOMPARE(types, (QList<int>{0, 1, 2, 3, 4}));
}

void TestHeaderItem::sameStatusLoadsNoPicture()
{
    LooseHeader item({});
    item.setStatus(header_active);
    const QPixmap foreign = pictures::transparent({3, 3});
    item.setPixmap(foreign);
    item.tonicRect = {};
    presets().activeHeader = header(22);
    item.setStatus(header_active);
    QVERIFY(isSame(item.pixmap(), foreign));
    QVERIFY(item.tonicRect.isNull());
    QCOMPARE(presets().activeHeader, header(22));
}

void TestHeaderItem::activeStatusGoesToTheController()
{
    HeaderItem* const before = presets().activeHeader;
    QVERIFY(before && before != header(30));
    header(30)->setStatus(header_active);
    QCOMPARE(presets().activeHeader, header(30));
    QCOMPARE(header(30)->status(), header_active);
    QCOMPARE(before->status(), header_deactive);
    LooseHeader item({}); // without a controller of its own: the window's is asked
    item.setStatus(header_active);
    QCOMPARE(presets().activeHeader, &item);
    QCOMPARE(header(30)->status(), header_deactive);
}

void TestHeaderItem::activeStatusStoresNoSelector()
{
    window->setPower(true);
    HeaderItem* const before = presets().activeHeader;
    before->record = scaleRecord(lydian);
    setRecord(30, scaleRecord(ionian));
    const QString tonicBefore = tonic().tonicModifier(), scaleBefore = scale().scaleModifier();
    QVERIFY(tonicBefore != QStringLiteral("F#") && scaleBefore != lydian);
    header(30)->setStatus(header_active);
    QCOMPARE(fields(before->record).mid(2), fields(scaleRecord(lydian)).mid(2));
    QCOMPARE(fields(record(30)).mid(2), fields(scaleRecord(ionian)).mid(2));
    QCOMPARE(tonic().tonicModifier(), tonicBefore);
    QCOMPARE(scale().scaleModifier(), scaleBefore);
}

void TestHeaderItem::otherStatusesLeaveTheControllerAlone()
{
    HeaderItem* const before = presets().activeHeader;
    for (const auto status : {header_active_shadow, header_switch, header_switch_active, header_deactive}) {
        header(30)->setStatus(status);
        QCOMPARE(presets().activeHeader, before);
        QCOMPARE(before->status(), header_active);
    }
}

void TestHeaderItem::restorePosGoesHomeAndSaysSo()
{
    HeaderItem* const item = header(25);
    QCOMPARE(item->homePos, QPointF(33, 28));
    item->moveBy(40, -13);
    const HeaderLog log;
    QTest::ignoreMessage(QtDebugMsg, "Headeritem :: restorePos QPointF(33,28)");
    item->restorePos();
    QCOMPARE(item->pos(), QPointF(33, 28));
}

void TestHeaderItem::toolTipIsMadeWhenThePointerComes()
{
    window->setPower(true);
    HeaderItem* const item = header(30);
    const auto enter = [item] {
        QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverEnter);
        item->scene()->sendEvent(item, &event);
        return asRead(item->toolTip());
    };
    QVERIFY(item->acceptHoverEvents());
    QCOMPARE(item->toolTip(), QString());
    setRecord(30, scaleRecord(lydian));
    const QString first = enter();
    QCOMPARE(first, item->describe());
    setRecord(30, scaleRecord(ionian));
    QVERIFY(enter() != first);
    QCOMPARE(asRead(item->toolTip()), item->describe());
}

void TestHeaderItem::toolTipShowsMarksInATitleAsTheyAre()
{
    window->setPower(true);
    const QString title = QStringLiteral("<b>%1</b> &amp; &lt;");
    library().setScaleData(lydian, {lydian, "<i>", "&", title, {}}, DatabaseLibrary::LibraryRole);
    setRecord(30, scaleRecord(lydian));
    QGraphicsSceneHoverEvent event(QEvent::GraphicsSceneHoverEnter);
    header(30)->scene()->sendEvent(header(30), &event);
    QVERIFY(header(30)->describe().contains(title));
    QCOMPARE(asRead(header(30)->toolTip()), header(30)->describe());
}

void TestHeaderItem::toolTipTellsTheRecord()
{
    emptyHeaders();
    const auto lines = [this](const header_data& data) {
        setRecord(22, data);
        return header(22)->describe().split(QLatin1Char('\n'));
    };
    QCOMPARE(lines(scaleRecord(lydian)),
             (QStringList{"Tonic: F#", "Scale: Lydian (MAJOR Lydian)", "Locked: tonic, scale"}));
    QCOMPARE(lines(scaleRecord(unknownWord)),
             (QStringList{"Tonic: F#", "Scale: User 1 (User 1)", "Locked: tonic, scale"}));
    QCOMPARE(lines(scaleRecord(lydian, false)),
             (QStringList{"Tonic: F#", "Scale: as it is", "Locked: tonic"}));
    QCOMPARE(lines({"", "", "", true, "D", false, ""}),
             (QStringList{"Tonic: D", "Scale: as it is", "Locked: tonic"}));
    QCOMPARE(lines({"", "", "D", false, "D", true, ionian}),
             (QStringList{"Tonic: as it is", "Scale: Ionian (MAJOR Ionian)", "Locked: scale"}));
    QCOMPARE(lines({}), (QStringList{"Tonic: as it is", "Scale: as it is", "Locked: nothing"}));
}

QTEST_MAIN(TestHeaderItem)
#include "test_header_item.moc"
