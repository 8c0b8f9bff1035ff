// The scenes: what each setter shows from each scene, and the way into the library and back.

#include "CenterFixture.h"

#include <QTemporaryDir>

namespace {

/// A row of the table of scenes. Of the layer and the checks, "same" stays as it was.
struct SceneRow
{
    const char* shows; ///< without the layer and the credits' lines
    const char* layer; ///< "show", "hide", "same"
    const char* checks;
    int number; ///< 0: unchanged
};

constexpr SceneRow sceneRows[] = {{"texts left right", "hide", "", 1},
                                  {"texts", "same", "same", 2},
                                  {"ports left", "hide", "ports", 3},
                                  {"version left right", "show", "", 4},
                                  {"library", "hide", "same", 0}};

} // namespace

class TestCenterScenes : public CenterFixture
{
    Q_OBJECT

private slots:
    void setterShowsItsRowFromEveryScene_data();
    void setterShowsItsRowFromEveryScene();
    void settersLeaveTheChecksAsTheRowSays_data() { addSetters(); }
    void settersLeaveTheChecksAsTheRowSays();
    void settersDropTheCredits_data() { addSetters(); }
    void settersDropTheCredits();

    void defaultSceneSetsTheButtonsPlain();
    void defaultSceneForgetsTheDescribedScale();
    void cleanSceneGivesTheFocusToTheLogo();
    void creditsGiveTheFocusToTheirButton();

    void previousSceneIsTheCurrentOneOnceMore_data();
    void previousSceneIsTheCurrentOneOnceMore();
    void previousSceneOfNoSceneDoesNothing();

    void libraryComesAndGoesFromEveryScene_data();
    void libraryComesAndGoesFromEveryScene();
    void libraryShownTwiceStaysAsItIs();
    void libraryHiddenTwiceStaysAsItIs();

    void textIsReadAsUtf8();
    void textOfAMissingFileIsEmpty();

private:
    static void addSetters();
};

void TestCenterScenes::addSetters()
{
    QTest::addColumn<int>("setter");
    for (int setter = to_default; setter <= to_library; ++setter)
        QTest::newRow(nameOf(setter)) << setter;
}

void TestCenterScenes::setterShowsItsRowFromEveryScene_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("setter");
    for (int from = fresh; from <= setters; ++from)
        for (int setter = to_default; setter <= to_library; ++setter)
            QTest::addRow("%s to %s", nameOf(from), nameOf(setter)) << from << setter;
}

void TestCenterScenes::setterShowsItsRowFromEveryScene()
{
    QFETCH(int, from);
    QFETCH(int, setter);
    const SceneRow& row = sceneRows[setter - 1];
    for (const bool layerBefore : {false, true}) {
        call(from);
        const int numberBefore = screen().currentScene;
        form().hiddenLayer->setVisible(layerBefore);
        call(setter);
        const QByteArray layer = row.layer;
        QStringList expected{QLatin1String(row.shows)};
        if (layer == "show" || (layer == "same" && layerBefore))
            expected << QStringLiteral("layer");
        if (setter == to_credits)
            expected << QStringLiteral("lines");
        QCOMPARE(look(), expected.join(QLatin1Char(' ')));
        QCOMPARE(screen().currentScene, row.number ? row.number : numberBefore);
    }
}

void TestCenterScenes::settersLeaveTheChecksAsTheRowSays()
{
    QFETCH(int, setter);
    const QString row = QLatin1String(sceneRows[setter - 1].checks);
    for (const bool ports : {false, true})
        for (const bool credits : {false, true}) {
            check(ports, credits);
            const QString before = checks();
            call(setter);
            QCOMPARE(checks(), row == QLatin1String("same") ? before : row);
        }
}

void TestCenterScenes::settersDropTheCredits()
{
    QFETCH(int, setter);
    QVERIFY(creditsInScene().isEmpty());
    call(to_credits);
    const QList<QGraphicsTextItem*> old = screen().creditItems;
    QCOMPARE(old.size(), screen().creditLines.size());
    call(setter);
    if (setter == to_credits) {
        QCOMPARE(creditsInScene().size(), screen().creditLines.size());
        return;
    }
    QVERIFY(screen().creditItems.isEmpty());
    QVERIFY(creditsInScene().isEmpty());
    QVERIFY(!screen().creditTimer->isActive());
}

void TestCenterScenes::defaultSceneSetsTheButtonsPlain()
{
    show();
    window->setPower(true);
    const LibraryButton& open = button(LibraryButton::open_library);
    const QPixmap plain = open.pixmap();
    const QGraphicsView* stage = form().centerGraphicsView;
    QTest::mousePress(stage->viewport(), Qt::LeftButton, {},
                      stage->mapFromScene(open.sceneBoundingRect().center()));
    QVERIFY(open.isPressed());
    QVERIFY(open.pixmap().cacheKey() != plain.cacheKey());
    screen().setSceneDefault();
    QVERIFY(!open.isPressed());
    QCOMPARE(open.pixmap().cacheKey(), plain.cacheKey());
}

void TestCenterScenes::defaultSceneForgetsTheDescribedScale()
{
    openLibrary();
    QVERIFY(view().description->toPlainText().contains(QLatin1String("Ionian")));
    window->showLibraryScreen(false);
    QVERIFY(scale().setScaleModifier(unknownWord, true));
    window->checkScaleMatches(true);
    window->showLibraryScreen(true);
    QVERIFY(!view().description->toPlainText().contains(QLatin1String("Ionian")));
}

void TestCenterScenes::cleanSceneGivesTheFocusToTheLogo()
{
    show();
    for (int from = to_default; from <= to_library; ++from) {
        call(from);
        inView()->setFocus();
        call(to_clean);
        QVERIFY(form().centerLogo->hasFocus());
    }
}

void TestCenterScenes::creditsGiveTheFocusToTheirButton()
{
    show();
    for (int from = to_default; from <= to_library; ++from) {
        call(from);
        inView()->setFocus();
        call(to_credits);
        QVERIFY(form().buttonCredits->hasFocus());
    }
}

void TestCenterScenes::previousSceneIsTheCurrentOneOnceMore_data()
{
    QTest::addColumn<int>("setter");
    for (int setter = to_default; setter <= to_credits; ++setter)
        QTest::newRow(nameOf(setter)) << setter;
}

void TestCenterScenes::previousSceneIsTheCurrentOneOnceMore()
{
    QFETCH(int, setter);
    call(setter);
    const QString shown = look(), checked = checks();
    call(to_library);
    QCOMPARE(look(), QStringLiteral("library"));
    check(false, false);
    screen().setScenePrevious();
    QCOMPARE(screen().currentScene, setter);
    QCOMPARE(checks(), checked);
    // The clean scene leaves the layer as the library had it.
    QCOMPARE(look(), shown);
    if (setter == to_credits) {
        screen().moveCreditsText();
        screen().setScenePrevious();
        QCOMPARE(screen().creditItems.first()->y(), 100.0); // built anew
    }
}

void TestCenterScenes::previousSceneOfNoSceneDoesNothing()
{
    call(to_ports);
    const QString shown = look();
    for (const int none : {0, 5, -1}) {
        screen().currentScene = none;
        screen().setScenePrevious();
        QCOMPARE(look(), shown);
        QCOMPARE(screen().currentScene, none);
    }
}

void TestCenterScenes::libraryComesAndGoesFromEveryScene_data()
{
    previousSceneIsTheCurrentOneOnceMore_data();
}

void TestCenterScenes::libraryComesAndGoesFromEveryScene()
{
    QFETCH(int, setter);
    window->setPower(true);
    call(setter);
    const QString shown = look();
    for (int round = 0; round < 2; ++round) {
        check(true, true);
        window->showLibraryScreen(true);
        QCOMPARE(look(), QStringLiteral("library"));
        QCOMPARE(checks(), QString());
        QCOMPARE(screen().currentScene, setter);
        check(true, true);
        window->showLibraryScreen(false);
        QCOMPARE(look(), shown);
        QCOMPARE(checks(), QString(setter == to_ports ? "ports" : ""));
        QCOMPARE(screen().currentScene, setter);
    }
}

void TestCenterScenes::libraryShownTwiceStaysAsItIs()
{
    openLibrary();
    const int row = view().scales->currentRow();
    const QString page = view().description->toHtml();
    QVERIFY(row >= 0);
    window->showLibraryScreen(true);
    QCOMPARE(look(), QStringLiteral("library"));
    QCOMPARE(view().scales->currentRow(), row);
    QCOMPARE(view().description->toHtml(), page);
}

void TestCenterScenes::libraryHiddenTwiceStaysAsItIs()
{
    call(to_ports);
    for (int round = 0; round < 2; ++round) {
        window->showLibraryScreen(false);
        QCOMPARE(look(), QStringLiteral("ports left"));
        QCOMPARE(screen().currentScene, 3);
    }
}

void TestCenterScenes::textIsReadAsUtf8()
{
    const QTemporaryDir folder;
    const auto written = [&folder](const QByteArray& bytes) {
        QFile file(folder.filePath(QStringLiteral("text")));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            return QString();
        return file.fileName();
    };
    const QString text = QString::fromUtf8("C\u266F \u2013 \u00C6olisch\r\n\U0001D11E\n");
    QCOMPARE(CenterScreen::getMainTextData(written(text.toUtf8())), text);
    QCOMPARE(CenterScreen::getMainTextData(written({})), QString());
    const QString broken = CenterScreen::getMainTextData(written("a\xFF\xC3z"));
    QVERIFY(broken.startsWith(QLatin1Char('a')) && broken.endsWith(QLatin1Char('z')));
}

void TestCenterScenes::textOfAMissingFileIsEmpty()
{
    const QTemporaryDir folder;
    for (const QString& file : {QString(), folder.path(), folder.filePath(QStringLiteral("none")),
                                QStringLiteral(":/Resources/none")})
        QCOMPARE(CenterScreen::getMainTextData(file), QString());
}

QTEST_MAIN(TestCenterScenes)

#include "test_center_scenes.moc"
