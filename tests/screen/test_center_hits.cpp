// The hit areas around the display: who gets a click at which place in which scene.

#include "CenterFixture.h"
#include "app/version.h"

namespace {

/// Places of the form, and what a click there meets in each scene. "" is none of the names below.
struct Place
{
    const char* name;
    QPoint at;
    const char *inDefault, *inClean, *inPorts, *inCredits, *inLibrary;
};

constexpr const char* top = "scene34TopButton";
constexpr const char* first = "scene1Button";
constexpr const char* second = "scene2Button";
constexpr Place places[] = {
    {"middle", {340, 230}, first, second, "in list", "", "scales"},
    {"middle, top", {300, 188}, first, second, top, top, ""},
    {"beside the middle", {590, 275}, "", second, "scene3RightButton", "scene4RightButton", ""},
    {"a little further in", {580, 279}, "", second, "", "scene4RightButton", ""},
    {"right, below the buttons", {540, 277}, "", second, "", "", ""},
    {"lower edge, right", {540, 281}, "", "", "", "", ""},
    {"lower edge, middle", {340, 281}, "", "", "", "", ""},
    {"lower edge, left", {80, 281}, "", "", "", "", ""},
    {"left, below the buttons", {150, 275}, "", second, "", "", ""},
    {"left edge", {80, 260}, "", second, "", "", "categories"},
    {"left edge, top", {80, 188}, "", second, top, top, ""},
    {"right edge, top", {578, 188}, "", second, top, top, ""},
    {"corner of the game", {595, 188}, "", "", "", "", ""},
    {"side of the game", {590, 225}, "", "", "", "", ""},
    {"first button", {150, 187}, "buttonMIDIinOut", second, "buttonMIDIinOut", "buttonMIDIinOut", ""},
    {"second button", {150, 225}, "buttonCredits", second, "buttonCredits", "buttonCredits", "categories"},
    {"third button", {150, 250}, "buttonManual", second, "buttonManual", "buttonManual", "categories"},
    {"fourth button", {520, 190}, "buttonExport", second, top, "buttonExport", ""},
    {"fifth button", {520, 225}, "buttonImport", second, "out list", "buttonImport", "description"},
    {"sixth button", {520, 250}, "buttonReset", second, "out list", "buttonReset", "description"},
    {"in list", {300, 250}, first, second, "in list", "", "scales"},
    {"out list", {450, 250}, first, second, "out list", "", "description"},
};

const char* expectedAt(const Place& place, int scene)
{
    const char* const expected[] = {place.inDefault, place.inClean, place.inPorts, place.inCredits,
                                    place.inLibrary};
    return expected[scene - 1];
}

} // namespace

class TestCenterHits : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    void placesMeetWhatTheSceneSays_data();
    void placesMeetWhatTheSceneSays();
    void placesMeetTheSameAfterTheLibrary_data() { addScenes(to_credits); }
    void placesMeetTheSameAfterTheLibrary();
    void areaThatWasLeftLeavesNothingBehind_data() { addScenes(to_credits); }
    void areaThatWasLeftLeavesNothingBehind();

    void clicksWalkThroughTheScenes_data();
    void clicksWalkThroughTheScenes();
    void everyEdgeLeadsBackFromThePorts();
    void everyEdgeLeadsBackFromTheCredits();
    void clickOnTheCreditsDoesNothing();
    void versionLinkCanBeClicked();
    void buttonsThatShowAreNeverCovered();
    void otherButtonsOfThePointerDoNothing();

private:
    static void addScenes(int last);
    /// By the user's own ways.
    void go(int scene) const;
    QString metAt(QPoint ofTheForm) const;
    /// Each place that meets another thing than it should.
    QString faults(int scene) const;
};

void TestCenterHits::init()
{
    openWindow();
    show();
}

void TestCenterHits::addScenes(int last)
{
    QTest::addColumn<int>("scene");
    for (int scene = to_default; scene <= last; ++scene)
        QTest::newRow(nameOf(scene)) << scene;
}

void TestCenterHits::go(int scene) const
{
    window->setPower(true);
    if (scene == to_library)
        return window->showLibraryScreen(true);
    if (screen().currentScene == to_clean)
        clickAt(ofForm(340, 230));
    form().buttonMIDIinOut->setChecked(screen().currentScene == to_ports);
    if (scene == to_ports) {
        if (screen().currentScene != to_ports)
            clickOn(form().buttonMIDIinOut);
        return;
    }
    if (screen().currentScene == to_ports)
        clickOn(form().buttonMIDIinOut);
    if (scene == to_credits)
        return clickOn(form().buttonCredits);
    if (screen().currentScene == to_credits)
        clickAt(ofForm(80, 183));
    if (scene == to_clean)
        clickAt(ofForm(340, 240));
}

QString TestCenterHits::metAt(QPoint ofTheForm) const
{
    const QWidget* hit = window->childAt(ofForm(ofTheForm.x(), ofTheForm.y()));
    const auto meets = [hit](const QWidget* widget) {
        return hit && (hit == widget || widget->isAncestorOf(hit));
    };
    const QList<QPair<const QWidget*, const char*>> others{{screen().inPortList, "in list"},
                                                           {screen().outPortList, "out list"},
                                                           {view().categories, "categories"},
                                                           {view().scales, "scales"},
                                                           {view().description, "description"}};
    for (const auto& other : others)
        if (meets(other.first))
            return QLatin1String(other.second);
    const QString name = hit ? hit->objectName() : QString();
    return name.startsWith(QLatin1String("scene")) || name.startsWith(QLatin1String("button")) ? name
                                                                                               : QString();
}

QString TestCenterHits::faults(int scene) const
{
    QStringList found;
    for (const Place& place : places) {
        const QString expected = QLatin1String(expectedAt(place, scene));
        const QString met = metAt(place.at);
        if (met != expected)
            found << QStringLiteral("%1: %2 instead of '%3'").arg(QLatin1String(place.name), met, expected);
    }
    return found.join(QLatin1String("; "));
}

void TestCenterHits::placesMeetWhatTheSceneSays_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("scene");
    for (int from = to_default; from <= to_credits; ++from)
        for (int scene = to_default; scene <= to_library; ++scene)
            QTest::addRow("%s to %s", nameOf(from), nameOf(scene)) << from << scene;
}

void TestCenterHits::placesMeetWhatTheSceneSays()
{
    QFETCH(int, from);
    QFETCH(int, scene);
    go(from);
    go(scene);
    QCOMPARE(scene == to_library ? int(screen().libraryOpen) : screen().currentScene,
             scene == to_library ? 1 : scene);
    for (const int width : {952, 677}) {
        window->resize(width, 480);
        QCOMPARE(faults(scene), QString());
    }
}

void TestCenterHits::placesMeetTheSameAfterTheLibrary()
{
    QFETCH(int, scene);
    go(scene);
    for (int round = 0; round < 2; ++round) {
        window->showLibraryScreen(true);
        QCOMPARE(faults(to_library), QString());
        window->showLibraryScreen(false);
        QCOMPARE(faults(scene), QString());
    }
}

// The edges of one scene must not catch clicks in the next one.
void TestCenterHits::areaThatWasLeftLeavesNothingBehind()
{
    QFETCH(int, scene);
    go(scene);
    window->on_scene34TopButton_clicked();
    QCOMPARE(faults(to_default), QString());
    go(scene);
    window->on_scene4RightButton_clicked();
    QCOMPARE(faults(to_default), QString());
}

void TestCenterHits::clicksWalkThroughTheScenes_data()
{
    QTest::addColumn<QList<QPoint>>("clicks"); // of the form
    QTest::addColumn<QList<int>>("scenes");
    const QPoint middle(340, 250), edge(595, 270), strip(300, 183), ports(150, 196), credits(150, 225);
    QTest::newRow("clean and back") << QList<QPoint>{middle, middle, middle, QPoint(80, 270)}
                                    << QList<int>{2, 1, 2, 1};
    QTest::newRow("all of the clean display")
        << QList<QPoint>{middle, QPoint(72, 183), middle, QPoint(600, 279)} << QList<int>{2, 1, 2, 1};
    QTest::newRow("ports by the strip")
        << QList<QPoint>{ports, strip, middle, middle} << QList<int>{3, 1, 2, 1};
    QTest::newRow("ports by the edge") << QList<QPoint>{ports, edge, edge, middle} << QList<int>{3, 1, 1, 2};
    QTest::newRow("credits by the strip") << QList<QPoint>{credits, strip, strip} << QList<int>{4, 1, 2};
    QTest::newRow("credits by the edge")
        << QList<QPoint>{credits, QPoint(580, 275), QPoint(580, 279)} << QList<int>{4, 1, 1};
    QTest::newRow("from the one to the other")
        << QList<QPoint>{ports, credits, ports, ports, middle} << QList<int>{3, 4, 3, 1, 2};
}

void TestCenterHits::clicksWalkThroughTheScenes()
{
    QFETCH(QList<QPoint>, clicks);
    QFETCH(QList<int>, scenes);
    QList<int> seenScenes;
    for (const QPoint& place : clicks) {
        clickAt(ofForm(place.x(), place.y()));
        seenScenes << screen().currentScene;
    }
    QCOMPARE(seenScenes, scenes);
}

void TestCenterHits::everyEdgeLeadsBackFromThePorts()
{
    for (const QPoint& place :
         {QPoint(70, 180), QPoint(579, 195), QPoint(400, 195), QPoint(588, 262), QPoint(597, 279)}) {
        go(to_ports);
        clickAt(ofForm(place.x(), place.y()));
        QCOMPARE(screen().currentScene, 1);
        QCOMPARE(checks(), QString());
    }
}

void TestCenterHits::everyEdgeLeadsBackFromTheCredits()
{
    for (const QPoint& place :
         {QPoint(70, 180), QPoint(579, 195), QPoint(400, 195), QPoint(575, 196), QPoint(599, 279)}) {
        go(to_credits);
        clickAt(ofForm(place.x(), place.y()));
        QCOMPARE(screen().currentScene, 1);
        QVERIFY(screen().creditItems.isEmpty());
    }
}

void TestCenterHits::clickOnTheCreditsDoesNothing()
{
    go(to_credits);
    for (int y = 200; y < 280; y += 6)
        for (int x = 210; x < 470; x += 20)
            if (metAt({x, y}).isEmpty() && !form().versionLabel->geometry().contains(ofForm(x, y)))
                clickAt(ofForm(x, y));
    QCOMPARE(look(), QStringLiteral("version left right layer lines"));
    QVERIFY(port->messages().empty());
}

// The strip at the top reaches over the label, but not over its words.
void TestCenterHits::versionLinkCanBeClicked()
{
    form().versionLabel->setText(
        QStringLiteral("Sorvane %1, <a href=\"https://sorvane.example/\">sorvane.example</a>")
            .arg(QLatin1String(sorvaneVersion)));
    form().versionLabel->setOpenExternalLinks(false);
    go(to_credits);
    QSignalSpy spy(form().versionLabel, &QLabel::linkActivated);
    const QRect label = form().versionLabel->geometry();
    for (int y = label.top(); y <= label.bottom() && spy.isEmpty(); y += 3)
        for (int x = label.center().x(); x < label.right() && spy.isEmpty(); x += 5)
            if (window->childAt(x, y) == form().versionLabel)
                clickAt({x, y});
    QCOMPARE(spy.count(), 1);
    QCOMPARE(screen().currentScene, 4);
}

void TestCenterHits::buttonsThatShowAreNeverCovered()
{
    for (const int scene : {to_default, to_ports, to_credits}) {
        go(scene);
        for (const QPushButton* button : sixButtons()) {
            if (!button->isVisible())
                continue;
            const QRect all = button->geometry();
            for (const QPoint& place : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()})
                QCOMPARE(hitAt(place), button->objectName());
        }
    }
}

void TestCenterHits::otherButtonsOfThePointerDoNothing()
{
    for (const auto other : {Qt::RightButton, Qt::MiddleButton}) {
        for (const QPoint& place : {QPoint(340, 240), QPoint(150, 196), QPoint(150, 225)}) {
            QTest::mouseClick(window->windowHandle(), other, Qt::NoModifier, ofForm(place.x(), place.y()));
            QCOMPARE(screen().currentScene, 1);
        }
    }
}

QTEST_MAIN(TestCenterHits)

#include "test_center_hits.moc"
