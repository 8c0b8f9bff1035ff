// The window's event filter: drags of a list, touches, keys.

#include "CenterFixture.h"

#include <QMimeData>
#include <QMouseEvent>
#include <QTouchEvent>

namespace {

/// A list that only writes down what the filter hands to it.
class DragProbe : public AbstractListWidget
{
public:
    using AbstractListWidget::AbstractListWidget;
    void dragButton(const QMouseEvent& event, const QPoint& pos) override
    {
        handed << QStringLiteral("%1 %2,%3").arg(event.type()).arg(pos.x()).arg(pos.y());
    }
    [[nodiscard]] int availableIndex(const QPoint&) const override { return -1; }
    void showIndicator(bool, int) override {}

    QStringList handed;
};

} // namespace

class TestCenterFilter : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    void pressAndReleaseOfADragAreHandedOver_data();
    void pressAndReleaseOfADragAreHandedOver();
    void withoutADragNothingIsHandedOver();
    void otherEventsOfADragAreNotHandedOver();
    void realClickInADragIsHandedOver();
    void touchesAreSwallowed_data();
    void touchesAreSwallowed();
    void keysOfTheFilter_data();
    void keysOfTheFilter();
    void heldSpaceTogglesOnce();

private:
    /// A list in the window that drags or does not.
    std::unique_ptr<DragProbe> probe(bool dragging) const;
};

void TestCenterFilter::init()
{
    openWindow();
    show();
}

std::unique_ptr<DragProbe> TestCenterFilter::probe(bool dragging) const
{
    auto list = std::make_unique<DragProbe>(window.get());
    list->setGeometry(300, 180, 80, 80);
    list->show();
    if (dragging)
        list->dragStart(new QMimeData, QPixmap(4, 4));
    return list;
}

void TestCenterFilter::pressAndReleaseOfADragAreHandedOver_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("mouseButton");
    QTest::addColumn<bool>("atTheViewport");
    for (const bool inside : {true, false})
        for (const auto each : {Qt::LeftButton, Qt::RightButton}) {
            QTest::addRow("press %d %d", each, inside)
                << int(QEvent::MouseButtonPress) << int(each) << inside;
            QTest::addRow("release %d %d", each, inside)
                << int(QEvent::MouseButtonRelease) << int(each) << inside;
        }
}

void TestCenterFilter::pressAndReleaseOfADragAreHandedOver()
{
    QFETCH(int, type);
    QFETCH(int, mouseButton);
    QFETCH(bool, atTheViewport);
    const auto list = probe(true);
    QWidget* object = atTheViewport ? list->viewport() : list.get();
    for (const QPointF& pos : {QPointF(3.6, 7.4), QPointF(-2.6, 400.5)}) {
        QMouseEvent event(static_cast<QEvent::Type>(type), pos, static_cast<Qt::MouseButton>(mouseButton),
                          static_cast<Qt::MouseButton>(mouseButton), Qt::NoModifier);
        QVERIFY(window->eventFilter(object, &event));
    }
    QCOMPARE(list->handed,
             QStringList({QStringLiteral("%1 4,7").arg(type), QStringLiteral("%1 -3,401").arg(type)}));
}

void TestCenterFilter::withoutADragNothingIsHandedOver()
{
    const auto list = probe(false), dragging = probe(true);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(3, 3), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QVERIFY(!window->eventFilter(list->viewport(), &event));
        // Another widget's, while a list drags.
        QVERIFY(!window->eventFilter(form().buttonCredits, &event));
        QVERIFY(!window->eventFilter(screen().inPortList->viewport(), &event));
        QVERIFY(!window->eventFilter(qApp, &event)); // no widget, no parent
    }
    QVERIFY(list->handed.isEmpty() && dragging->handed.isEmpty());
    dragging->dragFinish();
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(3, 3), Qt::LeftButton, Qt::NoButton,
                      Qt::NoModifier);
    QVERIFY(!window->eventFilter(dragging->viewport(), &event));
}

void TestCenterFilter::otherEventsOfADragAreNotHandedOver()
{
    const auto list = probe(true);
    QMouseEvent move(QEvent::MouseMove, QPointF(3, 3), Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QMouseEvent twice(QEvent::MouseButtonDblClick, QPointF(3, 3), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QVERIFY(!window->eventFilter(list->viewport(), &move));
    QVERIFY(!window->eventFilter(list->viewport(), &twice));
    QVERIFY(list->handed.isEmpty());
}

void TestCenterFilter::realClickInADragIsHandedOver()
{
    const auto list = probe(true);
    list->raise();
    clickAt(list->geometry().topLeft() + QPoint(20, 30));
    QCOMPARE(list->handed, QStringList({QStringLiteral("2 20,30"), QStringLiteral("3 20,30")}));
}

void TestCenterFilter::touchesAreSwallowed_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("swallowed");
    for (const int type : {194, 195, 196, 209})
        QTest::addRow("%d", type) << type << true;
    for (const int type : {193, 197, 208, 210})
        QTest::addRow("%d", type) << type << false;
}

void TestCenterFilter::touchesAreSwallowed()
{
    QFETCH(int, type);
    QFETCH(bool, swallowed);
    QTouchEvent touch(static_cast<QEvent::Type>(type));
    touch.accept();
    QCOMPARE(window->eventFilter(form().centerGraphicsView, &touch), swallowed);
    QCOMPARE(touch.isAccepted(), !swallowed);
}

void TestCenterFilter::keysOfTheFilter_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("swallowed");
    QTest::addColumn<bool>("ignored");
    QTest::newRow("Enter") << 0x01000005 << true << true;
    QTest::newRow("Escape") << 0x01000000 << true << true;
    QTest::newRow("Return") << 0x01000004 << false << false;
    QTest::newRow("Space") << 0x20 << true << false;
    QTest::newRow("a letter") << int(Qt::Key_A) << false << false;
    QTest::newRow("Tab") << int(Qt::Key_Tab) << false << false;
}

void TestCenterFilter::keysOfTheFilter()
{
    QFETCH(int, key);
    QFETCH(bool, swallowed);
    QFETCH(bool, ignored);
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    event.accept();
    QCOMPARE(window->eventFilter(inView(), &event), swallowed);
    QCOMPARE(event.isAccepted(), !ignored);
    QCOMPARE(window->isPowerOn(), key == Qt::Key_Space);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QVERIFY(!window->eventFilter(inView(), &release));
}

void TestCenterFilter::heldSpaceTogglesOnce()
{
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "));
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "), true);
    QVERIFY(window->eventFilter(inView(), &first));
    for (int i = 0; i < 5; ++i)
        QVERIFY(window->eventFilter(inView(), &repeated));
    QVERIFY(window->isPowerOn());
}

QTEST_MAIN(TestCenterFilter)

#include "test_center_filter.moc"
