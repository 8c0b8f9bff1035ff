// The match of the played scale with the library and the active header; the hit areas of the scenes.

#include "HeaderFixture.h"
#include "screen/CenterScreen.h"

#include <QtTest>

class TestScaleMatch : public HeaderFixture
{
    Q_OBJECT

private slots:
    // Scale match
    void matchNeedsTheWholeWindow();
    void matchRefreshesTheActiveHeader();
    void matchKeepsACategoryThatHoldsTheWord();
    void matchTakesTheFirstCategoryElsewhere();
    void matchOfAnUnknownWordKeepsTheCategory();

    // Hit areas
    void hitAreasFollowTheSceneNumber_data();
    void hitAreasFollowTheSceneNumber();
};

// The calls during construction.
void TestScaleMatch::matchNeedsTheWholeWindow()
{
    record(firstActive) = fullRecord();
    const QString before = asText(record(firstActive));
    auto* centre = window->centerScreen;
    window->centerScreen = nullptr;
    window->checkScaleMatches(true);
    window->centerScreen = centre;
    auto* controller = window->headerController;
    window->headerController = nullptr;
    window->checkScaleMatches(true);
    window->headerController = controller;
    auto* selector = window->scaleController;
    window->scaleController = nullptr;
    window->checkScaleMatches(true);
    window->scaleController = selector;
    QCOMPARE(asText(record(firstActive)), before);
    window->checkScaleMatches(true);
    QVERIFY(asText(record(firstActive)) != before);
}

void TestScaleMatch::matchRefreshesTheActiveHeader()
{
    record(firstActive) = fullRecord();
    record(25) = fullRecord();
    window->checkScaleMatches(false);
    QCOMPARE(record(firstActive).nameScenic2, QStringLiteral("Lydian"));
    QCOMPARE(record(25).nameScenic2, QStringLiteral("b")); // the others stay
    presets().activeHeader = nullptr;
    window->checkScaleMatches(true);
}

void TestScaleMatch::matchKeepsACategoryThatHoldsTheWord()
{
    const QString first = library().findCategoriesWithScale(ionian).first();
    const QString second = library().findCategoriesWithScale(wholeTone).first();
    QVERIFY(first != second);
    const int index = library().appendScaleToCategory(second, ionian);
    library().setCurrentCategory(second);
    window->checkScaleMatches(true);
    QCOMPARE(library().currentCategory(), second);
    QCOMPARE(library().currentScaleIndex(second), index);
}

void TestScaleMatch::matchTakesTheFirstCategoryElsewhere()
{
    const QString before = library().currentCategory();
    setScale(wholeTone);
    const QList<QString> others = library().findCategoriesWithScale(wholeTone);
    QVERIFY(!others.contains(before));
    window->checkScaleMatches(true);
    QCOMPARE(library().currentCategory(), others.first());
    QCOMPARE(library().currentScale(), wholeTone);
    QCOMPARE(library().currentScaleIndex(before), -1);
}

void TestScaleMatch::matchOfAnUnknownWordKeepsTheCategory()
{
    window->checkScaleMatches(true);
    const QString before = library().currentCategory();
    QCOMPARE(library().currentScale(), ionian);
    setScale(unknownWord);
    window->checkScaleMatches(true);
    QCOMPARE(library().currentCategory(), before);
    QCOMPARE(library().currentScaleIndex(before), -1);
}

void TestScaleMatch::hitAreasFollowTheSceneNumber_data()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("second");
    QTest::newRow("default") << 1 << 1 << -1;
    QTest::newRow("clean") << 2 << 1 << 1;
    QTest::newRow("ports") << 3 << -1 << -1;
    QTest::newRow("credits") << 4 << -1 << -1;
    QTest::newRow("none") << 0 << 0 << 0;
    QTest::newRow("past the last") << 5 << 0 << 0;
}

// Above the logo after a raise, below the background after a lower, between them if left alone.
void TestScaleMatch::hitAreasFollowTheSceneNumber()
{
    QFETCH(int, scene);
    auto& ui = window->ui;
    ui.scene1Button->raise();
    ui.scene2Button->raise();
    ui.centerLogo->raise();
    ui.backgroundGraphicsView->lower();
    window->centerScreen->currentScene = scene;
    window->didCenterSceneChange();
    const auto height = [&](QWidget* area) {
        const QObjectList& stack = area->parent()->children();
        const int at = stack.indexOf(area);
        return at > stack.indexOf(ui.centerLogo) ? 1 : at < stack.indexOf(ui.backgroundGraphicsView) ? -1 : 0;
    };
    QTEST(height(ui.scene1Button), "first");
    QTEST(height(ui.scene2Button), "second");
}

QTEST_MAIN(TestScaleMatch)
#include "test_scale_match.moc"
