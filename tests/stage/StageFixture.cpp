// The window that the tests of the stage share, with a hand on each keyboard.

#include "StageFixture.h"

#include "keys/pictures.h"
#include "screen/AlertWidget.h"

#include <QTimer>

namespace {

void check(QStringList& faults, bool good, const QString& what, int key = 0)
{
    if (!good)
        faults << (key ? QStringLiteral("%1 %2").arg(key).arg(what) : what);
}

void checkScene(QStringList& faults, const DiagramScene* scene, const char* side)
{
    const auto on = [side](const char* what) { return QStringLiteral("%1: %2").arg(side, what); };
    check(faults, !scene->leftDown, on("left button down"));
    check(faults, !scene->anchorDrag, on("anchor drag"));
    check(faults, !scene->lastItem, on("last item"));
    check(faults, !scene->dropTarget, on("drop target"));
    check(faults, !scene->currentItem, on("current item"));
}

} // namespace

void StageFixture::openStage()
{
    openWindow();
    show();
    hand = std::make_unique<Hand>(window->ui.inKeyboardGraphicsView);
    outHand = std::make_unique<Hand>(window->ui.outKeyboardGraphicsView);
    soundingNow.clear();
    dialogsSeen = 0;
}

void StageFixture::sendDialogsAway()
{
    auto* poll = new QTimer(window.get());
    connect(poll, &QTimer::timeout, this, [this] {
        const auto dialogs = window->findChildren<AbstractDialog*>(QString(), Qt::FindDirectChildrenOnly);
        for (AbstractDialog* dialog : dialogs)
            if (dialog->isVisible() && !qobject_cast<AlertWidget*>(dialog)) {
                ++dialogsSeen;
                dialog->reject();
            }
    });
    poll->start(1);
}

DiagramScene* StageFixture::outScene() const
{
    return qobject_cast<DiagramScene*>(window->ui.outKeyboardGraphicsView->scene());
}

StageFixture::Messages StageFixture::sent()
{
    const Messages messages = port->takeLists();
    for (const QList<int>& message : messages) {
        if (message.at(0) == 0x90)
            soundingNow.insert(message.at(1));
        else if (message.at(0) == 0x80)
            soundingNow.remove(message.at(1));
    }
    return messages;
}

const QSet<int>& StageFixture::sounding()
{
    sent();
    return soundingNow;
}

void StageFixture::addPowers()
{
    QTest::addColumn<bool>("switchedOn");
    QTest::newRow("power off") << false;
    QTest::newRow("power on") << true;
}

void StageFixture::chooseMap(bool switchedOn, const QString& word) const
{
    window->setPower(switchedOn);
    setScale(word);
}

QStringList StageFixture::records() const
{
    QStringList lines;
    for (const HeaderItem* item : qAsConst(presets().headers))
        lines << asText(item->record);
    return lines;
}

bool StageFixture::powerShows(std::initializer_list<const char*> states) const
{
    QPixmap wanted;
    for (const char* state : states) {
        const QString path = QStringLiteral(":/Resources/Power/POWERBUTTON%1.png").arg(QLatin1String(state));
        const QPixmap layer = pictures::load(path);
        wanted = wanted.isNull() ? layer : pictures::overlay(wanted, layer, QRect(0, 0, 19, 82));
    }
    return power()->pixmap().toImage() == wanted.toImage();
}

QPointF StageFixture::stemOf(int key) const
{
    return header(key)->homePos + QRectF(header(key)->tonicRect).center();
}

QPointF StageFixture::boxOf(int key) const
{
    return header(key)->mapToScene(QRectF(header(key)->nameRect1).center());
}

void StageFixture::checkHeaders(QStringList& faults) const
{
    for (const HeaderItem* item : qAsConst(presets().headers)) {
        const int key = key_roles::pitch(item);
        check(faults, item->pos() == item->homePos, QStringLiteral("header is away"), key);
        check(faults, item->zValue() == 0.0, QStringLiteral("header is raised"), key);
        check(faults, item->offset().isNull(), QStringLiteral("header's picture is moved"), key);
        check(faults, !item->mouseHeld && !item->dragStarted, QStringLiteral("header is held"), key);
        const auto status = item == presets().activeHeader ? header_active : header_deactive;
        check(faults, item->status() == status, QStringLiteral("header's status"), key);
        const bool shown = power()->isSwitchOn() && key != key_roles::pitch(power());
        check(faults, item->isVisible() == shown, QStringLiteral("header's visibility"), key);
    }
}

void StageFixture::checkPower(QStringList& faults) const
{
    check(faults, power()->pos() == powerPlaceOn(key_roles::pitch(power())), QStringLiteral("power is away"));
    check(faults, power()->zValue() == 0.0, QStringLiteral("power is raised"));
    check(faults, power()->offset().isNull(), QStringLiteral("power's picture is moved"));
    check(faults, !power()->mouseHeld && !power()->dragStarted, QStringLiteral("power is held"));
}

void StageFixture::checkKeys(QStringList& faults, const QSet<int>& held) const
{
    for (int note = 21; note <= 108; ++note) {
        check(faults, !in(note)->isPushed || held.contains(note), QStringLiteral("in key is down"), note);
        check(faults, !in(note)->mouseHeld, QStringLiteral("in key is held"), note);
        check(faults, !out(note)->mouseHeld, QStringLiteral("out key is held"), note);
        check(faults, !out(note)->isPushed, QStringLiteral("out key is down"), note);
    }
}

QString StageFixture::unrest(const QSet<int>& held) const
{
    QStringList faults;
    checkHeaders(faults);
    checkPower(faults);
    checkKeys(faults, held);
    checkScene(faults, scene(), "in");
    checkScene(faults, outScene(), "out");
    const qreal shift = anchors()->x();
    const int farthest = 476 + 4 * 12 * 17; // the lowest anchor of twelve degrees at the right end of the bar
    check(faults, int(shift) % 17 == 0 && int(shift) == shift && qAbs(shift) <= farthest,
          QStringLiteral("anchors at %1").arg(shift));
    return faults.join(QStringLiteral("; "));
}
