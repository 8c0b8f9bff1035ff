// The window that the tests of the headers share, and the hands that they lay on it.

#include "HeaderFixture.h"

#include "app/MidiService.h"
#include "screen/AlertWidget.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include <algorithm>

void HeaderFixture::openWindow()
{
    midiService().choose(MidiService::Wanted::none);
    window = std::make_unique<MainWnd>();
    port = new RecordingPort;
    window->outPorts[0] = port;
    window->midiOutOpen = true;
    seen = 0;
    for (const QString& word : {unknownWord, otherUnknownWord})
        QVERIFY(!library().containsScale(word, DatabaseLibrary::AnyRole));
}

void HeaderFixture::closeWindow()
{
    window.reset();
}

DiagramScene* HeaderFixture::scene() const
{
    return qobject_cast<DiagramScene*>(window->ui.inKeyboardGraphicsView->scene());
}

QStringList HeaderFixture::state() const
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

QStringList HeaderFixture::abbreviations(const QString& word) const
{
    scale_data found;
    if (!library().getScaleData(word, found, DatabaseLibrary::AnyRole))
        return {QStringLiteral("no"), QStringLiteral("record")};
    return {found.abbr1, found.abbr2};
}

void HeaderFixture::setTonic(const char* name) const
{
    QVERIFY(tonic().setTonicModifier(QLatin1String(name), true, true));
}

void HeaderFixture::setScale(const QString& word) const
{
    QVERIFY(scale().setScaleModifier(word, true));
}

void HeaderFixture::setRecord(int key, const header_data& data) const
{
    record(key) = data;
    header(key)->updateScenic();
}

void HeaderFixture::emptyHeaders() const
{
    for (HeaderItem* item : qAsConst(presets().headers))
        item->record = {};
    presets().removeUnusedTempRecords();
    QVERIFY(library().customScales().isEmpty());
}

void HeaderFixture::placeAnchors(qreal x) const
{
    anchors()->setPos(x, 7); // a y of its own: nobody may change it
}

void HeaderFixture::show() const
{
    window->move(0, -200); // so that the screen has room for a menu below a header
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
}

// The middle of the upper name box: no other flag reaches it.
QPoint HeaderFixture::placeOf(int key) const
{
    const QPointF box = QRectF(header(key)->nameRect1).center();
    return window->ui.inKeyboardGraphicsView->mapFromScene(header(key)->mapToScene(box));
}

template <typename Widget>
void HeaderFixture::whenUp(const std::function<Widget*()>& find, const std::function<void(Widget&)>& look)
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this, poll, find, look] {
        Widget* widget = find();
        if (!widget || widget->isHidden())
            return;
        poll->deleteLater();
        poll->stop();
        ++seen;
        QTimer::singleShot(3000, widget, &QWidget::close);
        look(*widget);
    });
    poll->start(1);
}

// A test that does not show the window asks in it all the same.
void HeaderFixture::whenAsked(const std::function<void(AlertWidget&)>& look)
{
    const auto openAlert = [this]() -> AlertWidget* {
        const auto alerts = window->findChildren<AlertWidget*>(QString(), Qt::FindDirectChildrenOnly);
        const auto open = std::find_if(alerts.begin(), alerts.end(),
                                       [](const AlertWidget* alert) { return !alert->isHidden(); });
        return open == alerts.end() ? nullptr : *open;
    };
    whenUp<AlertWidget>(openAlert, look);
}

void HeaderFixture::answer(bool accepting)
{
    const QString name = accepting ? QStringLiteral("okButton") : QStringLiteral("cancelButton");
    whenAsked([name](AlertWidget& alert) { alert.findChild<QPushButton*>(name)->click(); });
}

void HeaderFixture::whenMenuIsUp(const std::function<void(QMenu&)>& look)
{
    whenUp<QMenu>([this] { return presets().menu; }, look);
}
