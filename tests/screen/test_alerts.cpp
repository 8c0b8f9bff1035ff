// The alert: its parts, its pictures, its two buttons, and that its longest messages can be read whole.

#include "DialogFixture.h"
#include "keys/pictures.h"
#include "screen/AlertWidget.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

class TestAlerts : public DialogFixture
{
    Q_OBJECT

private slots:
    // Parts
    void boxStandsInTheGrid();
    void parts_data();
    void parts();
    void buttonTexts();
    void pictures_data();
    void pictures();
    void background();
    void longMessagesFit_data();
    void longMessagesFit();

    // Buttons
    void buttonsEndTheAlert_data();
    void buttonsEndTheAlert();
    void okStaysDown();
    void strayReleaseIsNoClick();
    void layoutGoesWithTheEnd_data();
    void layoutGoesWithTheEnd();

private:
    using Box = AlertMessageBoxWidget;
    static QString text(const char* latin1) { return QString::fromLatin1(latin1); }
    static QLabel* label(const QWidget& box, const char* name) { return box.findChild<QLabel*>(text(name)); }
    static QPushButton* button(const QWidget& box, const char* name)
    {
        return box.findChild<QPushButton*>(text(name));
    }
};

void TestAlerts::boxStandsInTheGrid()
{
    AlertWidget alert(text("Title"), text("Message"), text("Yes"), text("No"), alert_error, window.get());
    const auto* grid = qobject_cast<QGridLayout*>(alert.layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->itemAtPosition(0, 0)->widget(), alert.box);
    QVERIFY(grid->itemAtPosition(0, 0)->alignment() == Qt::AlignCenter);
    QCOMPARE(alert.box->minimumSize(), QSize(428, 215));
    QCOMPARE(alert.box->maximumSize(), QSize(428, 215));
    QCOMPARE(alert.box->contentsMargins(), QMargins(33, 25, 25, 25));
    QCOMPARE(alert.box->title, text("Title"));
    QCOMPARE(alert.box->message, text("Message"));
    QCOMPARE(alert.box->okText, text("Yes"));
    QCOMPARE(alert.box->cancelText, text("No"));
    QCOMPARE(alert.box->type, alert_error);
}

void TestAlerts::parts_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("cancel");
    for (const char* title : {"", "Title"})
        for (const char* message : {"", "<i>Message</i>"})
            for (const char* cancel : {"", "No"})
                QTest::addRow("'%s' '%s' '%s'", title, message, cancel)
                    << text(title) << text(message) << text(cancel);
}

void TestAlerts::parts()
{
    QFETCH(QString, title);
    QFETCH(QString, message);
    QFETCH(QString, cancel);
    const Box box(title, message, text("Yes"), cancel);
    QCOMPARE(label(box, "title") != nullptr, !title.isEmpty());
    QCOMPARE(label(box, "message") != nullptr, !message.isEmpty());
    QCOMPARE(label(box, "picture") != nullptr, !message.isEmpty());
    QCOMPARE(button(box, "cancelButton") != nullptr, !cancel.isEmpty());
    QCOMPARE(button(box, "okButton")->text(), text("Yes"));
    if (!cancel.isEmpty())
        QCOMPARE(button(box, "cancelButton")->text(), cancel);
    if (!title.isEmpty()) {
        QCOMPARE(label(box, "title")->text(), title);
        QVERIFY(label(box, "title")->alignment() & Qt::AlignHCenter);
    }
    if (message.isEmpty())
        return;
    const QLabel* shown = label(box, "message");
    QCOMPARE(shown->text(), message);
    QCOMPARE(shown->textFormat(), Qt::RichText);
    QVERIFY(shown->wordWrap());
    QVERIFY(shown->openExternalLinks());
}

void TestAlerts::buttonTexts()
{
    const Box usual(QString(), text("Message"));
    QCOMPARE(usual.okText, text("Ok"));
    QCOMPARE(usual.cancelText, text("Cancel"));
    QCOMPARE(usual.type, alert_information);
    QCOMPARE(button(usual, "okButton")->text(), text("Ok"));
    QCOMPARE(button(usual, "cancelButton")->text(), text("Cancel"));
    const Box empty(QString(), text("Message"), QString(), QString());
    QCOMPARE(button(empty, "okButton")->text(), text("Ok"));
    QVERIFY(!button(empty, "cancelButton"));
}

void TestAlerts::pictures_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("path");
    QTest::newRow("information") << 0 << text(":/Resources/message_info.png");
    QTest::newRow("warning") << 1 << text(":/Resources/message_warning.png");
    QTest::newRow("error") << 2 << text(":/Resources/message_error.png");
    QTest::newRow("another") << 9 << text(":/Resources/message_info.png");
}

void TestAlerts::pictures()
{
    QFETCH(int, type);
    QFETCH(QString, path);
    const QPixmap wanted = pictures::load(path);
    QVERIFY(!wanted.isNull());
    const Box box(QString(), text("Message"), QString(), QString(), static_cast<alert_type>(type));
    QCOMPARE(box.picture.cacheKey(), wanted.cacheKey());
    QCOMPARE(label(box, "picture")->pixmap(Qt::ReturnByValue).cacheKey(), wanted.cacheKey());
}

void TestAlerts::background()
{
    const QImage wanted = pictures::load(text(":/Resources/Background/message_background.png")).toImage();
    QCOMPARE(wanted.size(), QSize(428, 215));
    AlertWidget alert(QString(), text("Message"), QString(), QString(), alert_information, window.get());
    run(alert, [&] {
        const QImage shown = window->grab(alert.box->geometry()).toImage();
        for (int x = 20; x < 408; ++x)
            for (const int y : {12, 30, 203})
                QCOMPARE(shown.pixelColor(x, y), wanted.pixelColor(x, y));
    });
}

void TestAlerts::longMessagesFit_data()
{
    const QString reason =
        text("MidiInAlsa::openPort: error making port connection, the sequencer answered that "
             "the device or resource is busy (port number 129:0, client 'A Very Long Client "
             "Name Of Some Keyboard', subscribed by another program of this machine).");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("message");
    QTest::addColumn<QString>("ok");
    QTest::newRow("erase") << QString()
                           << text("<h4>Are you sure you want to permanently erase the settings in all "
                                   "Headers?</h4><h6>You can't undo this operation.</h6>")
                           << text("Erase All");
    QTest::newRow("reset") << QString()
                           << text("<h4>Are you sure you want to reset Sorvane?</h4><h6>You can't undo this "
                                   "operation.</h6>")
                           << text("Reset to Default");
    QTest::newRow("delete") << QString()
                            << text("<h4>Are you sure you want to delete <br/>&quot;A rather long name of a "
                                    "category, far longer than usual ones are, and on it "
                                    "goes&quot;?</h4><h6>You can't undo this action.</h6>")
                            << text("Delete");
    QTest::newRow("port") << QString() << MainWnd::portErrorText(reason) << text("  OK  ");
    QTest::newRow("with a title") << text("Something went wrong") << MainWnd::portErrorText(reason)
                                  << text("  OK  ");
}

void TestAlerts::longMessagesFit()
{
    QFETCH(QString, title);
    QFETCH(QString, message);
    QFETCH(QString, ok);
    AlertWidget alert(title, message, ok, text("Cancel"), alert_warning, window.get());
    run(alert, [&] {
        const QRect inner = alert.box->contentsRect();
        for (const QLabel* part : alert.box->findChildren<QLabel*>()) {
            QVERIFY(inner.contains(part->geometry()));
            if (part->wordWrap())
                QVERIFY(part->height() >= part->heightForWidth(part->width()));
            else
                QVERIFY(part->width() >= part->sizeHint().width());
        }
        for (const QPushButton* part : alert.box->findChildren<QPushButton*>()) {
            QVERIFY(inner.contains(part->geometry()));
            QVERIFY(part->width() >= part->fontMetrics().horizontalAdvance(part->text()) + 10);
            QVERIFY(!part->geometry().intersects(label(alert, "message")->geometry()));
        }
    });
}

void TestAlerts::buttonsEndTheAlert_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << text("okButton") << 1;
    QTest::newRow("Cancel") << text("cancelButton") << 0;
}

void TestAlerts::buttonsEndTheAlert()
{
    QFETCH(QString, name);
    QFETCH(int, result);
    const auto dialog = make(text("alert"));
    auto* alert = static_cast<AlertWidget*>(dialog.get());
    QSignalSpy ok(alert->box, &Box::sgOk);
    QSignalSpy cancel(alert->box, &Box::sgCancel);
    const auto end = [&] {
        auto* pressed = alert->findChild<QPushButton*>(name);
        QCOMPARE(pressed->focusPolicy(), Qt::NoFocus);
        clickOn(pressed);
        QVERIFY(!alert->isVisible());
    };
    QCOMPARE(run(*alert, end), result);
    QCOMPARE(ok.size(), result);
    QCOMPARE(cancel.size(), 1 - result);
    QCOMPARE(alert->wasAccepted, result == 1);
    QCOMPARE(alert->wasRejected, result == 0);
}

void TestAlerts::okStaysDown()
{
    const auto alert = make(text("alert"));
    auto* ok = button(*alert, "okButton");
    QVERIFY(ok->isDown());
    QVERIFY(!button(*alert, "cancelButton")->isDown());
    run(*alert, [&] {
        QWindow* handle = window->windowHandle();
        const QPoint inside = ok->mapTo(window.get(), ok->rect().center());
        const QPoint outside = inside - QPoint(0, 60);
        QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, inside);
        QVERIFY(ok->isDown());
        for (const QPoint& place : {outside, outside + QPoint(3, 3), inside, outside}) {
            QMouseEvent move(QEvent::MouseMove, ok->mapFrom(window.get(), place), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(ok, &move);
            QVERIFY(ok->isDown());
        }
        QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, outside);
        QVERIFY(ok->isDown());
        QVERIFY(alert->isVisible());
        clickOn(ok);
        QVERIFY(ok->isDown());
        QVERIFY(!alert->isVisible());
    });
    QVERIFY(alert->wasAccepted);
}

// A button that is down would take a release for a click whose press began elsewhere.
void TestAlerts::strayReleaseIsNoClick()
{
    const auto alert = make(text("alert"));
    run(*alert, [&] {
        auto* ok = button(*alert, "okButton");
        for (const Qt::MouseButton pressed : {Qt::NoButton, Qt::RightButton}) {
            if (pressed != Qt::NoButton)
                QTest::mousePress(ok, pressed);
            QMouseEvent release(QEvent::MouseButtonRelease, ok->rect().center(), Qt::LeftButton, Qt::NoButton,
                                Qt::NoModifier);
            QApplication::sendEvent(ok, &release);
            QVERIFY(alert->isVisible());
            QVERIFY(ok->isDown());
        }
    });
}

void TestAlerts::layoutGoesWithTheEnd_data()
{
    buttonsEndTheAlert_data();
}

void TestAlerts::layoutGoesWithTheEnd()
{
    QFETCH(int, result);
    const auto alert = make(text("alert"));
    QVERIFY(alert->layout());
    run(*alert, [&] {
        result ? alert->accept() : alert->reject();
        QVERIFY(alert->layout()); // later
    });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!alert->layout());
}

QTEST_MAIN(TestAlerts)
#include "test_alerts.moc"
