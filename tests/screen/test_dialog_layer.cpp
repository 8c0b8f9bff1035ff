// The layer under a dialog's panel: it covers the window, dims it, and keeps the pointer away from it.

#include "DialogFixture.h"
#include "screen/AlertWidget.h"

#include <QImage>
#include <QLineEdit>

namespace {

/// Counts the pointer's events that reach a widget.
class PointerWatch : public QObject
{
public:
    explicit PointerWatch(QObject* watched) { watched->installEventFilter(this); }
    int seen = 0;

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        static const QSet<int> types{QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                     QEvent::MouseButtonDblClick, QEvent::Wheel, QEvent::ContextMenu};
        seen += types.contains(event->type());
        return false;
    }
};

} // namespace

class TestDialogLayer : public DialogFixture
{
    Q_OBJECT

private slots:
    void isTranslucent_data();
    void isTranslucent();
    void coversTheWindow_data();
    void coversTheWindow();
    void followsTheWindow_data();
    void followsTheWindow();
    void secondRunCoversTheWindow_data();
    void secondRunCoversTheWindow();
    void liesOnTop();
    void dimsTheWindow();
    void swallowsThePointer_data();
    void swallowsThePointer();
    void clickBesideThePanelKeepsTheFocus();
    void hiddenUntilShown();
    void livesWithoutAParent();

private:
    static QWidget* panelOf(const AbstractDialog& dialog);
    /// Whether the panel stands in the middle of the window, which the layer covers.
    void expectCovered(const AbstractDialog& dialog) const;
};

QWidget* TestDialogLayer::panelOf(const AbstractDialog& dialog)
{
    const auto children = dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    return children.size() == 1 ? children.first() : nullptr;
}

void TestDialogLayer::expectCovered(const AbstractDialog& dialog) const
{
    QCOMPARE(dialog.geometry(), window->rect());
    const QRect panel = panelOf(dialog)->geometry();
    QVERIFY(qAbs(panel.left() - (window->width() - panel.right() - 1)) <= 1);
    QVERIFY(qAbs(panel.top() - (window->height() - panel.bottom() - 1)) <= 1);
}

void TestDialogLayer::isTranslucent_data()
{
    addKinds();
}

void TestDialogLayer::isTranslucent()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    QVERIFY(dialog->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(dialog->palette().color(QPalette::Window), QColor(Qt::transparent));
    QVERIFY(!dialog->isWindow());
}

void TestDialogLayer::coversTheWindow_data()
{
    addKinds();
}

void TestDialogLayer::coversTheWindow()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    run(*dialog, [&] { expectCovered(*dialog); });
}

void TestDialogLayer::followsTheWindow_data()
{
    addKinds();
}

void TestDialogLayer::followsTheWindow()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    run(*dialog, [&] {
        for (const int width : {800, 677, 952}) {
            window->resize(width, 480);
            QTRY_COMPARE(window->width(), width);
            QCoreApplication::processEvents();
            expectCovered(*dialog);
        }
    });
}

void TestDialogLayer::secondRunCoversTheWindow_data()
{
    addKinds();
}

// An alert gives its layout up at the end of a run.
void TestDialogLayer::secondRunCoversTheWindow()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    run(*dialog, [] {});
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    window->resize(700, 480);
    run(*dialog, [&] { expectCovered(*dialog); });
}

void TestDialogLayer::liesOnTop()
{
    const auto dialog = make(QStringLiteral("alert"));
    window->ui.scene1Button->raise();
    window->ui.inKeyboardGraphicsView->raise();
    run(*dialog, [&] {
        for (int x = 3; x < window->width(); x += 50)
            for (int y = 3; y < window->height(); y += 50) {
                const QWidget* top = window->childAt(x, y);
                QVERIFY(top == dialog.get() || dialog->isAncestorOf(top));
            }
    });
}

void TestDialogLayer::dimsTheWindow()
{
    const QPoint places[] = {{5, 5}, {100, 400}, {900, 100}, {150, 200}};
    const QImage before = window->grab().toImage();
    const auto dialog = make(QStringLiteral("alert"));
    run(*dialog, [&] {
        const QImage after = window->grab().toImage();
        for (const QPoint& place : places) {
            const int bright = before.pixelColor(place).lightness();
            QVERIFY(bright > 60);
            const int dim = after.pixelColor(place).lightness();
            QVERIFY2(dim < bright * 3 / 4 && dim > bright / 4, qPrintable(QString::number(dim)));
        }
    });
}

void TestDialogLayer::swallowsThePointer_data()
{
    addKinds();
}

void TestDialogLayer::swallowsThePointer()
{
    QFETCH(QString, kind);
    const auto dialog = make(kind);
    PointerWatch onWindow(window.get());
    PointerWatch onView(window->ui.inKeyboardGraphicsView->viewport());
    PointerWatch onLayer(dialog.get());
    QWindow* handle = window->windowHandle();
    const QPoint beside(300, 420), onPanel(272, 240); // its frame: no field takes it there
    const auto play = [&](const QPoint& place) {
        click(place);
        QTest::mouseDClick(handle, Qt::LeftButton, Qt::NoModifier, place);
        QWheelEvent wheel(place, handle->mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(handle, &wheel);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, place, handle->mapToGlobal(place));
        QApplication::sendEvent(window->childAt(place), &menu);
    };
    run(*dialog, [&] {
        play(beside);
        play(onPanel);
        QVERIFY(dialog->isVisible());
        QVERIFY(onLayer.seen > 8);
        QCOMPARE(onWindow.seen, 0);
        QCOMPARE(onView.seen, 0);
    });
    click(beside);
    QVERIFY(onView.seen > 0);
}

void TestDialogLayer::clickBesideThePanelKeepsTheFocus()
{
    const auto dialog = make(QStringLiteral("add"));
    run(*dialog, [&] {
        press(Qt::Key_Tab);
        QWidget* focus = QApplication::focusWidget();
        click(QPoint(20, 20));
        clickOn(panelOf(*dialog)->findChild<QWidget*>(QStringLiteral("message")));
        QCOMPARE(QApplication::focusWidget(), focus);
        QCOMPARE(focus->objectName(), QStringLiteral("abbr1"));
    });
}

void TestDialogLayer::hiddenUntilShown()
{
    window->hide();
    const auto dialog = make(QStringLiteral("edit"));
    show();
    QVERIFY(!dialog->isVisible());
    dialog->show();
    QVERIFY(dialog->isVisible());
}

void TestDialogLayer::livesWithoutAParent()
{
    AlertWidget dialog(QString(), QStringLiteral("Alone"), QString(), QString(), alert_information, nullptr);
    QCOMPARE(run(dialog,
                 [&] {
                     QVERIFY(dialog.isVisible());
                     dialog.accept();
                 }),
             1);
}

QTEST_MAIN(TestDialogLayer)
#include "test_dialog_layer.moc"
