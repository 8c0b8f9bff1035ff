// Every way from every scene of the display, by a real hand on a real X server, with the power off and on:
// what shows afterwards is held against a table. Guards the stacking of buttons, hit areas, lists and views,
// which only real events can meet.

#include "RealWindow.h"
#include "SceneTable.h"
#include "in_real_window.h"
#include "screen/CategoryListWidget.h"
#include "screen/CenterScreen.h"
#include "screen/DescriptionEditor.h"
#include "screen/LibraryView.h"
#include "screen/RightTracker.h"
#include "screen/ScaleListWidget.h"

#include <QDesktopServices>
#include <QTimer>
#include <QtTest>

#include <algorithm>

using namespace scene_table;

Q_DECLARE_METATYPE(scene_table::Way)

namespace {

constexpr QPointF portPicturePlace(320, 15);

/// The library buttons that show, by their codes.
QStringList libraryButtons(const LibraryView& view)
{
    QStringList shown;
    for (int code = 1; code <= LibraryButton::codes; ++code)
        if (view.button(static_cast<LibraryButton::Code>(code)).isVisible())
            shown << QStringLiteral("library button %1").arg(code);
    return shown;
}

QStringList expectedLibraryButtons(bool open)
{
    if (!open)
        return {QStringLiteral("library button 10")};
    QStringList shown;
    for (int code = 1; code <= LibraryButton::codes; ++code)
        if (code != LibraryButton::open_library)
            shown << QStringLiteral("library button %1").arg(code);
    return shown;
}

} // namespace

class EndToEndScenes : public QObject
{
    Q_OBJECT

public slots:
    void openPage(const QUrl& url) { pages << url.toString(); }

private slots:
    void initTestCase();
    void init();
    void cleanup() { window.close(); }

    void wayOutOfAScene_data();
    void wayOutOfAScene();
    void powerOffKeepsTheLibraryShut_data();
    void powerOffKeepsTheLibraryShut();
    void powerTakesTheLibraryAlongAndBringsItBack_data();
    void powerTakesTheLibraryAlongAndBringsItBack();
    void buttonsGiveTheKeyboardBack_data();
    void buttonsGiveTheKeyboardBack();
    void keyboardAloneWalksTheButtons();

private:
    [[nodiscard]] bool act(const char* name);
    [[nodiscard]] bool goTo(Scene scene, Scene behind);
    [[nodiscard]] bool isPortPictureShown() const;
    [[nodiscard]] QStringList shown() const;
    [[nodiscard]] QStringList state() const;
    [[nodiscard]] static QStringList expected(Scene scene, Scene behind, bool power);

    RealWindow window;
    QStringList pages;
};

void EndToEndScenes::initTestCase()
{
    for (const char* scheme : {"https", "http"})
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "openPage");
}

void EndToEndScenes::init()
{
    QVERIFY(window.open());
    pages.clear();
}

bool EndToEndScenes::act(const char* name)
{
    const Action* action = actionNamed(QLatin1String(name));
    if (!action)
        return false;
    return action->key ? window.hand().key(QLatin1String(action->key)) : window.hand().click(action->place);
}

bool EndToEndScenes::goTo(Scene scene, Scene behind)
{
    for (const Scene each : {behind, scene})
        if (each > plain && !act(wayTo(each)))
            return false;
    return true;
}

bool EndToEndScenes::isPortPictureShown() const
{
    const QList<QGraphicsItem*> items = window->ui.centerGraphicsView->scene()->items();
    return std::any_of(items.begin(), items.end(), [](const QGraphicsItem* item) {
        return item->type() == QGraphicsPixmapItem::Type && item->pos() == portPicturePlace &&
               item->isVisible();
    });
}

// Each part by itself, so that half a view is no view.
QStringList EndToEndScenes::shown() const
{
    const auto& ui = window->ui;
    const CenterScreen& screen = *window->centerScreen;
    const LibraryView& view = *screen.libraryView();
    QStringList names;
    const auto note = [&names](bool is, const char* name) {
        if (is)
            names << QLatin1String(name);
    };
    note(screen.inPortList->isVisible(), "in ports");
    note(screen.outPortList->isVisible(), "out ports");
    note(isPortPictureShown(), "ports picture");
    note(view.categories->isVisible(), "categories");
    note(view.scales->isVisible(), "scales");
    note(view.description->isVisible(), "description");
    note(view.background->isVisible(), "library picture");
    note(ui.versionLabel->isVisible(), "version");
    note(ui.centerLogo->isVisible(), "logo");
    note(ui.about->isVisible(), "about");
    for (const QWidget* button : {ui.buttonMIDIinOut, ui.buttonCredits, ui.buttonManual, ui.buttonExport,
                                  ui.buttonImport, ui.buttonReset})
        note(button->isVisible(), qUtf8Printable(button->objectName()));
    note(ui.hiddenLayer->isVisible(), "hiddenLayer");
    return names + libraryButtons(view);
}

QStringList EndToEndScenes::state() const
{
    const CenterScreen& screen = *window->centerScreen;
    const auto say = [](const char* name, int value) {
        return QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value);
    };
    return shown() + QStringList{say("ports checked", window->ui.buttonMIDIinOut->isChecked()),
                                 say("credits checked", window->ui.buttonCredits->isChecked()),
                                 say("credits run", screen.creditTimer->isActive()),
                                 say("credits written", !screen.creditItems.isEmpty()),
                                 say("library open", screen.libraryOpen),
                                 say("current scene", screen.currentScene),
                                 say("power", window->isPowerOn())};
}

QStringList EndToEndScenes::expected(Scene scene, Scene behind, bool power)
{
    const Look& look = lookOf(scene);
    QStringList lines;
    const auto note = [&lines](bool is, std::initializer_list<const char*> names) {
        for (const char* name : names)
            if (is)
                lines << QLatin1String(name);
    };
    note(look.portView, {"in ports", "out ports", "ports picture"});
    note(look.libraryView, {"categories", "scales", "description", "library picture"});
    note(look.versionLabel, {"version"});
    note(look.texts, {"logo", "about"});
    note(look.leftButtons, {"buttonMIDIinOut", "buttonCredits", "buttonManual"});
    note(look.rightButtons, {"buttonExport", "buttonImport", "buttonReset"});
    note(look.hiddenLayer, {"hiddenLayer"});
    lines += expectedLibraryButtons(look.libraryView);
    const auto say = [&lines](const char* name, int value) {
        lines << QStringLiteral("%1 %2").arg(QLatin1String(name)).arg(value);
    };
    say("ports checked", look.portsChecked);
    say("credits checked", off);
    say("credits run", scene == credits);
    say("credits written", scene == credits);
    say("library open", scene == library);
    say("current scene", scene == library ? behind : scene);
    say("power", power);
    return lines;
}

void EndToEndScenes::wayOutOfAScene_data()
{
    QTest::addColumn<Way>("way");
    QTest::addColumn<bool>("power");
    for (const bool power : {false, true})
        for (const Way& way : ways) {
            if (!power && (way.from == library || way.to == library))
                continue;
            const QString behind = way.from == library
                                       ? QStringLiteral(" over ") + QLatin1String(lookOf(way.behind).name)
                                       : QString();
            QTest::addRow("%s%s, %s, power %s", lookOf(way.from).name, qUtf8Printable(behind), way.action,
                          power ? "on" : "off")
                << way << power;
        }
}

void EndToEndScenes::wayOutOfAScene()
{
    QFETCH(Way, way);
    QFETCH(bool, power);
    if (power)
        QVERIFY(act("Space"));
    QVERIFY(goTo(way.from, way.behind));
    QCOMPARE(state(), expected(way.from, way.behind, power));
    QVERIFY(act(way.action));
    const bool toggled = qstrcmp(way.action, "Space") == 0;
    const Scene behind = way.from == library ? way.behind : way.from;
    QCOMPARE(state(), expected(way.to, behind, power != toggled));
    QCOMPARE(pages, way.page ? QStringList(QLatin1String(way.page)) : QStringList());
}

void EndToEndScenes::powerOffKeepsTheLibraryShut_data()
{
    QTest::addColumn<int>("scene");
    for (const Scene scene : {plain, clean, ports, credits})
        QTest::newRow(lookOf(scene).name) << int(scene);
}

void EndToEndScenes::powerOffKeepsTheLibraryShut()
{
    QFETCH(int, scene);
    QVERIFY(goTo(Scene(scene), none));
    for (const char* action : {"library button", "Ctrl+L"}) {
        QVERIFY(act(action));
        QCOMPARE(state(), expected(Scene(scene), none, off));
    }
}

void EndToEndScenes::powerTakesTheLibraryAlongAndBringsItBack_data()
{
    powerOffKeepsTheLibraryShut_data();
}

void EndToEndScenes::powerTakesTheLibraryAlongAndBringsItBack()
{
    QFETCH(int, scene);
    QVERIFY(act("Space") && goTo(library, Scene(scene)));
    QVERIFY(act("Space"));
    QCOMPARE(state(), expected(Scene(scene), none, off));
    QVERIFY(act("Space"));
    QCOMPARE(state(), expected(library, Scene(scene), on));
    QVERIFY(act("library button"));
    QVERIFY(act("Space") && act("Space"));
    QCOMPARE(state(), expected(Scene(scene), none, on));
}

void EndToEndScenes::buttonsGiveTheKeyboardBack_data()
{
    QTest::addColumn<QString>("action");
    for (const char* name : {"ports button", "credits button", "site button", "manual button",
                             "Facebook button", "YouTube button"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void EndToEndScenes::buttonsGiveTheKeyboardBack()
{
    QFETCH(QString, action);
    QVERIFY(window.hand().key(QStringLiteral("Tab")));
    QVERIFY(window->focusWidget() != window->ui.inKeyboardGraphicsView);
    QVERIFY(act(qUtf8Printable(action)));
    QCOMPARE(window->focusWidget(), window->ui.inKeyboardGraphicsView);
    QVERIFY(act("Space"));
    QVERIFY(window->isPowerOn());
}

void EndToEndScenes::keyboardAloneWalksTheButtons()
{
    QStringList seen;
    QVERIFY(window.hand().key(QStringLiteral("Tab"))); // the output keyboard
    for (int step = 0; step < 6; ++step) {
        QVERIFY(window.hand().key(QStringLiteral("Tab")));
        seen << window->focusWidget()->objectName();
    }
    QCOMPARE(seen, (QStringList{"buttonMIDIinOut", "buttonCredits", "buttonManual", "buttonExport",
                                "buttonImport", "buttonReset"}));
    QVERIFY(window.hand().key(QStringLiteral("Return")));
    QCOMPARE(pages, QStringList(QLatin1String(youtube)));
}

int main(int argc, char** argv)
{
    return runInRealWindow<EndToEndScenes, QApplication>(argc, argv);
}

#include "e2e_scenes.moc"
