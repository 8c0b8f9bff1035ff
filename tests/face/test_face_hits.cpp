// What a press reaches: the control that is seen there, and no other.

#include "FaceFixture.h"
#include "FaceParts.h"
#include "painted.h"

#include "headers/anchor_snap.h"
#include "keys/SwitchItem.h"
#include "keys/TonicKeyItem.h"

#include <QGraphicsProxyWidget>
#include <QPainterPath>
#include <QRegularExpression>

namespace {

constexpr int step = 5;     ///< pixels between the points of the grid: every column of a key of 17 is met
constexpr int slack = 2;    ///< pixels by which an edge may lie beside what is painted
constexpr int opaque = 140; ///< of 255: what looks solid
const QRect stageArea(0, 0, 952, 480), centreArea(0, 148, 952, 150);

/// Where what is hit may differ from what is seen on top, and why. Names are regular expressions.
struct Excuse
{
    const char *seen, *reached;
    const char* reason;
};

const Excuse excuses[] = {
    {"anchor .*", "(in|flag) .*|power",
     "anchors are gripped on their bar; above it their beams lie over keys"},
    {"out anchor .*", "out .*|", "anchors of the output cannot be moved"},
    {"", "anchor .*", "an anchor is gripped by the whole width of its picture"},
    {"in .*|", "flag .*", "a flag's stem is gripped over the whole width of its badge"},
    {"in .*|flag .*|", "power", "the button is gripped by the whole of its picture"},
    {"", "(tonic|scale) switch", "a switch is pressed on the whole of its picture"},
};

bool isExcused(const QString& seen, const QString& reached)
{
    const auto whole = [](const char* pattern, const QString& name) {
        return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
            .match(name)
            .hasMatch();
    };
    return std::any_of(std::begin(excuses), std::end(excuses), [&](const Excuse& row) {
        return whole(row.seen, seen) && whole(row.reached, reached);
    });
}

bool takesPress(const QGraphicsItem& item, QPointF place)
{
    const bool onBar = place.y() >= anchor_snap::barTop;
    return (item.acceptedMouseButtons() & Qt::LeftButton) && item.isEnabled() &&
           (onBar || !face_parts::nameOf(&item).startsWith(QLatin1String("anchor")));
}

/// Whether an item looks solid at a place of its scene.
bool isSeenAt(const QGraphicsItem& item, QPointF place)
{
    if (dynamic_cast<const TonicKeyItem*>(&item) || dynamic_cast<const QGraphicsProxyWidget*>(&item))
        return item.contains(item.mapFromScene(place)); // an off key is seen on the row's picture
    const auto* picture = dynamic_cast<const QGraphicsPixmapItem*>(&item);
    if (!picture || item.effectiveOpacity() < 0.2)
        return false;
    return painted::alphaAt(picture->pixmap(), item.mapFromScene(place) - picture->offset()) > opaque;
}

/// Whether two areas have more in common than an edge.
bool overlap(const QPainterPath& one, const QPainterPath& other)
{
    const QRectF common = one.intersected(other).boundingRect();
    return common.width() > 0.01 && common.height() > 0.01;
}

/// Pictures that lie over the stage without being part of it, and numbers on keys: the eye and the hand pass.
bool isLookedThrough(const QGraphicsItem& item)
{
    return face_parts::nameOf(&item).isEmpty() && item.acceptedMouseButtons() == Qt::NoButton;
}

} // namespace

class TestFaceHits : public FaceFixture
{
    Q_OBJECT

private slots:
    void pressReachesWhatIsSeen_data();
    void pressReachesWhatIsSeen();
    void middlesAndCornersReachTheirControl_data();
    void middlesAndCornersReachTheirControl();
    void anchorsAreReachedApart_data();
    void anchorsAreReachedApart();
    void flagsDoNotTouch();
    void powerButtonTouchesNoFlag();
    void dialogTakesEveryPress_data();
    void dialogTakesEveryPress();

private:
    const QGraphicsView* viewOf(const QWidget* hit) const;
    QString reachedAt(QPoint place) const;
    QString seenAt(QPoint place) const;
    bool isSeenNear(QPoint place, const QString& name) const;
    QStringList strangers(const QRect& area) const;
    QRectF onWindow(const QGraphicsView* onView, const QRectF& ofScene) const;
    void expectAt(QStringList& faults, QPointF place, const QString& name, bool reaches) const;
    void expectRect(QStringList& faults, const QString& name, const QRectF& inner, const QRectF& outer) const;
    void expectKeys(QStringList& faults) const;
    void expectFlags(QStringList& faults) const;
    void expectPanel(QStringList& faults) const;
};

const QGraphicsView* TestFaceHits::viewOf(const QWidget* hit) const
{
    for (const QGraphicsView* each : {form().inKeyboardGraphicsView, form().outKeyboardGraphicsView,
                                      form().centerGraphicsView, form().backgroundGraphicsView})
        if (hit && hit == each->viewport())
            return each;
    return nullptr;
}

/// The control that a press at a place of the window goes to; "" for none.
QString TestFaceHits::reachedAt(QPoint place) const
{
    const QWidget* hit = window->childAt(place);
    const QGraphicsView* onView = viewOf(hit);
    if (!onView) {
        const QString name = hitAt(place);
        return name.startsWith(QLatin1String("button")) ? name : QString();
    }
    const QPointF inScene =
        onView->mapToScene(onView->viewport()->mapFrom(window.get(), place)) + QPointF(0.5, 0.5);
    const auto items = onView->scene()->items(inScene, Qt::IntersectsItemShape, Qt::DescendingOrder);
    for (const QGraphicsItem* item : items)
        if (!face_parts::nameOf(item).isEmpty() && takesPress(*item, inScene))
            return face_parts::nameOf(item);
    return {};
}

/// The control that is painted on top there.
QString TestFaceHits::seenAt(QPoint place) const
{
    const QGraphicsView* onView = viewOf(window->childAt(place));
    if (!onView)
        return reachedAt(place); // a widget is seen where it is hit
    const QPointF inScene =
        onView->mapToScene(onView->viewport()->mapFrom(window.get(), place)) + QPointF(0.5, 0.5);
    const auto items = onView->scene()->items(inScene, Qt::IntersectsItemBoundingRect, Qt::DescendingOrder);
    for (const QGraphicsItem* item : items)
        if (!isLookedThrough(*item) && isSeenAt(*item, inScene))
            return face_parts::nameOf(item);
    return {};
}

bool TestFaceHits::isSeenNear(QPoint place, const QString& name) const
{
    for (int dx = -slack; dx <= slack; ++dx)
        for (int dy = -slack; dy <= slack; ++dy)
            if (seenAt(place + QPoint(dx, dy)) == name)
                return true;
    return false;
}

/// Where the hand meets another thing than the eye.
QStringList TestFaceHits::strangers(const QRect& area) const
{
    QMap<QString, QPair<int, QPoint>> faults;
    const QRect whole = area & window->rect();
    for (int y = whole.top() + 1; y <= whole.bottom(); y += step)
        for (int x = 1; x <= whole.right(); x += step) {
            const QString reached = reachedAt({x, y}), shown = seenAt({x, y});
            if (shown == reached || isExcused(shown, reached) || isSeenNear({x, y}, reached))
                continue;
            auto& fault = faults[QStringLiteral("seen '%1', reached '%2'").arg(shown, reached)];
            ++fault.first;
            fault.second = {x, y};
        }
    QStringList lines;
    for (auto it = faults.constBegin(); it != faults.constEnd(); ++it)
        lines << QStringLiteral("%1: %2 points, as at %3,%4")
                     .arg(it.key())
                     .arg(it->first)
                     .arg(it->second.x())
                     .arg(it->second.y());
    return lines;
}

void TestFaceHits::pressReachesWhatIsSeen_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<int>("width");
    for (const char* state : {"off", "on", "clean", "ports", "credits", "library"})
        QTest::addRow("%s", state) << QString::fromLatin1(state) << 952;
    QTest::newRow("on, narrow") << QStringLiteral("on") << 677;
    QTest::newRow("library, narrow") << QStringLiteral("library") << 677;
}

void TestFaceHits::pressReachesWhatIsSeen()
{
    QFETCH(QString, state);
    QFETCH(int, width);
    enter(state);
    window->resize(width, 480);
    const bool keyboardsToo = state == QLatin1String("off") || state == QLatin1String("on");
    const QStringList faults = strangers(keyboardsToo ? stageArea : centreArea);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

QRectF TestFaceHits::onWindow(const QGraphicsView* onView, const QRectF& ofScene) const
{
    return {onView->mapFromScene(ofScene.topLeft()) + onView->pos(), ofScene.size()};
}

void TestFaceHits::expectAt(QStringList& faults, QPointF place, const QString& name, bool reaches) const
{
    const QPoint at(qFloor(place.x()), qFloor(place.y()));
    const QString reached = reachedAt(at);
    if ((reached == name) != reaches)
        faults << QStringLiteral("%1,%2: '%3' for '%4'").arg(at.x()).arg(at.y()).arg(reached, name);
}

/// The middle and the corners of `inner` reach a control; the places just beside `outer` do not.
void TestFaceHits::expectRect(QStringList& faults, const QString& name, const QRectF& inner,
                              const QRectF& outer) const
{
    const QRectF in = inner.adjusted(0, 0, -1, -1); // its last pixels
    for (const QPointF& place :
         {inner.center(), in.topLeft(), in.topRight(), in.bottomLeft(), in.bottomRight()})
        expectAt(faults, place, name, true);
    const QRectF out = outer.adjusted(-1, -1, 0, 0); // the first pixels beside it
    for (const QPointF& place :
         {QPointF(out.left(), inner.center().y()), QPointF(out.right(), inner.center().y()),
          QPointF(inner.center().x(), out.top()), QPointF(inner.center().x(), out.bottom())})
        expectAt(faults, place, name, false);
}

/// White keys below the black ones; black keys where no flag stands on them.
void TestFaceHits::expectKeys(QStringList& faults) const
{
    constexpr int blackHeight = 64, belowFlag = 47;
    for (int note = 21; note <= 108; ++note) {
        const ResizableItem* in = window->findInNote(note);
        const QRectF key = onWindow(form().inKeyboardGraphicsView, in->sceneBoundingRect());
        const QRectF outKey = onWindow(form().outKeyboardGraphicsView, in->pairedOutKey->sceneBoundingRect());
        const bool black = key_roles::isBlack(in);
        const int top = black ? belowFlag : blackHeight;
        if (note != key_roles::pitch(power()))
            expectRect(faults, face_parts::nameOf(in), key.adjusted(0, top, 0, 0),
                       key.adjusted(0, black ? -60 : -1, 0, 0));
        expectRect(faults, face_parts::nameOf(in->pairedOutKey),
                   outKey.adjusted(0, black ? 0 : blackHeight, 0, 0), outKey);
    }
}

/// The head of each flag, and its badge; and the button.
void TestFaceHits::expectFlags(QStringList& faults) const
{
    for (const HeaderItem* flag : qAsConst(presets().headers)) {
        if (!flag->isVisible())
            continue;
        const QString name = face_parts::nameOf(flag);
        const auto place = [&](const QRectF& own) {
            return onWindow(form().inKeyboardGraphicsView, flag->mapRectToScene(own));
        };
        const QRectF box = QRectF(flag->nameRect1 | flag->nameRect2), badge = flag->tonicRect;
        expectRect(faults, name, place(box), place(box.adjusted(-2, -3, 2, 80)));
        expectRect(faults, name, place(badge), place(badge.adjusted(-1, -80, 1, 12)));
    }
    const QRectF button = onWindow(form().inKeyboardGraphicsView, power()->sceneBoundingRect());
    expectRect(faults, face_parts::nameOf(power()), button, button);
}

void TestFaceHits::expectPanel(QStringList& faults) const
{
    const auto items = centre().items();
    for (const QGraphicsItem* item : items) {
        const QString name = face_parts::nameOf(item);
        const bool button =
            name.startsWith(QLatin1String("library button")) || name.endsWith(QLatin1String("switch"));
        const QRectF place = onWindow(form().centerGraphicsView, item->sceneBoundingRect());
        if (item->isVisible() && item->isEnabled() && button)
            expectRect(faults, name, place, place);
        if (name == QLatin1String("paper game"))
            for (const QPointF& corner :
                 {QPointF(3, 3), QPointF(63, 3), QPointF(3, 59), QPointF(63, 59), QPointF(33, 31)})
                expectAt(
                    faults,
                    onWindow(form().centerGraphicsView, QRectF(item->mapToScene(corner), QSizeF())).topLeft(),
                    name, true);
    }
    for (const QPushButton* button : sixButtons())
        if (button->isVisible())
            expectRect(faults, button->objectName(), button->geometry(), button->geometry());
}

void TestFaceHits::middlesAndCornersReachTheirControl_data()
{
    QTest::addColumn<QString>("state");
    for (const char* state : {"off", "on", "clean", "ports", "credits", "library"})
        QTest::newRow(state) << QString::fromLatin1(state);
}

void TestFaceHits::middlesAndCornersReachTheirControl()
{
    QFETCH(QString, state);
    enter(state);
    QStringList faults;
    expectKeys(faults);
    expectFlags(faults);
    expectPanel(faults);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceHits::anchorsAreReachedApart_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("one note") << QStringLiteral("xooooooooooo");
    QTest::newRow("seven notes") << QStringLiteral("xoxoxxoxoxox");
    QTest::newRow("twelve notes") << QStringLiteral("xxxxxxxxxxxx");
}

// Their pictures are wider than a key, so that neighbours of one note lie over each other.
void TestFaceHits::anchorsAreReachedApart()
{
    QFETCH(QString, word);
    window->setPower(true);
    setScale(word);
    power()->remap();
    QStringList faults;
    int count = 0;
    for (int n = -4; n <= 4; ++n) {
        const QString number = n ? QString::number(n) : QStringLiteral("main");
        const QGraphicsItem* anchor = anchors()->findAnchorByName(number);
        if (!anchor || anchor->effectiveOpacity() < 0.5)
            continue;
        ++count;
        const QRectF number22(anchor->scenePos() + QPointF(388 + 6, 163), QSizeF(11, 12));
        const QRectF plate = onWindow(form().inKeyboardGraphicsView, number22);
        expectRect(faults, face_parts::nameOf(anchor), plate, plate.adjusted(-6, -200, 6, 200));
    }
    for (int x = 30; x < 930; ++x)
        for (const int y : {450, 462, 472, 478}) {
            const QString shown = seenAt({x, y}), reached = reachedAt({x, y});
            if (shown.startsWith(QLatin1String("anchor")) && reached != shown && !isSeenNear({x, y}, reached))
                faults << QStringLiteral("%1,%2: '%3' for '%4'").arg(x).arg(y).arg(reached, shown);
        }
    QVERIFY(count > 2);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceHits::flagsDoNotTouch()
{
    window->setPower(true);
    QStringList faults;
    const auto& all = presets().headers;
    for (int i = 0; i < all.size(); ++i)
        for (int j = i + 1; j < all.size(); ++j)
            if (overlap(all[i]->mapToScene(all[i]->shape()), all[j]->mapToScene(all[j]->shape())))
                faults << face_parts::nameOf(all[i]) + QLatin1Char(' ') + face_parts::nameOf(all[j]);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

// Wherever it is dropped: its neighbours keep the whole of their heads and badges.
void TestFaceHits::powerButtonTouchesNoFlag()
{
    window->setPower(true);
    QStringList faults;
    const QRectF drawn = painted::boundsOf(power()->pixmap()); // its picture has air on both sides
    for (const HeaderItem* under : qAsConst(presets().headers)) {
        const QPointF key = window->findInNote(key_roles::headerSlot(under))->pos();
        QPainterPath button;
        button.addRect(drawn.translated(key + QPointF(-4, -18)));
        for (const HeaderItem* flag : qAsConst(presets().headers))
            if (flag != under && overlap(flag->mapToScene(flag->shape()), button))
                faults << face_parts::nameOf(under) + QStringLiteral(" against ") + face_parts::nameOf(flag);
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QLatin1Char('\n'))));
}

void TestFaceHits::dialogTakesEveryPress_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : {"alert", "change", "add", "edit"})
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void TestFaceHits::dialogTakesEveryPress()
{
    QFETCH(QString, kind);
    enter(kind);
    for (int y = 0; y < window->height(); y += step)
        for (int x = 0; x < window->width(); x += step) {
            const QWidget* hit = window->childAt(x, y);
            QVERIFY(hit == dialog.get() || dialog->isAncestorOf(hit));
        }
    const auto buttons = dialog->findChildren<QPushButton*>();
    QVERIFY(buttons.size() == 2);
    for (const QPushButton* button : buttons) {
        const QRect all(button->mapTo(window.get(), QPoint()), button->size());
        for (const QPoint& place :
             {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight(), all.center()})
            QCOMPARE(window->childAt(place), static_cast<const QWidget*>(button));
        for (const QPoint& place :
             {all.topLeft() - QPoint(1, 0), all.topRight() + QPoint(1, 0), all.bottomLeft() + QPoint(0, 1)})
            QVERIFY(window->childAt(place) != button);
    }
}

QTEST_MAIN(TestFaceHits)
#include "test_face_hits.moc"
