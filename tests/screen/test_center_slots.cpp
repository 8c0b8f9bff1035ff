// The six buttons and what a click on each of them does.

#include "CenterFixture.h"
#include "app/vendor.h"

#include <QDesktopServices>

namespace {

/// Takes the place of the desktop's browser.
class UrlKeeper : public QObject
{
    Q_OBJECT

public:
    UrlKeeper() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "keep"); }
    ~UrlKeeper() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }
    Q_DISABLE_COPY(UrlKeeper)

    QStringList urls;

public slots:
    void keep(const QUrl& url) { urls << url.toString(); }
};

} // namespace

class TestCenterSlots : public CenterFixture
{
    Q_OBJECT

private slots:
    void init();

    void sceneButtonCheckedAndUnchecked_data();
    void sceneButtonCheckedAndUnchecked();
    void sceneButtonsUncheckTheOthers();
    void clickOnMidiGoesThereAndBack();
    void clickOnCreditsShowsThemAnew();
    void oneSceneButtonLeadsToTheOther();
    void clickGivesTheFocusBack_data();
    void clickGivesTheFocusBack();

    void pageOpens_data();
    void pageOpens();
    void onePageAClick();

    void areaSlotsLeadToTheirScene_data();
    void areaSlotsLeadToTheirScene();

private:
    QPushButton* named(const QString& name) const { return window->findChild<QPushButton*>(name); }
};

void TestCenterSlots::init()
{
    openWindow();
    show();
}

void TestCenterSlots::sceneButtonCheckedAndUnchecked_data()
{
    QTest::addColumn<int>("from");
    for (int from = to_default; from <= to_credits; ++from)
        QTest::newRow(nameOf(from)) << from;
}

void TestCenterSlots::sceneButtonCheckedAndUnchecked()
{
    QFETCH(int, from);
    struct Row
    {
        void (MainWnd::*slot)(bool);
        bool checked;
        int scene;
    };
    const Row rows[] = {{&MainWnd::on_buttonMIDIinOut_clicked, true, to_ports},
                        {&MainWnd::on_buttonMIDIinOut_clicked, false, to_default},
                        {&MainWnd::on_buttonCredits_clicked, true, to_credits},
                        {&MainWnd::on_buttonCredits_clicked, false, to_default}};
    for (const Row& row : rows) {
        call(from);
        form().buttonReset->setFocus();
        (window.get()->*row.slot)(row.checked);
        QCOMPARE(screen().currentScene, row.scene);
        QCOMPARE(checks(), QString(row.scene == to_ports ? "ports" : ""));
        QVERIFY(inView()->hasFocus());
    }
}

// The export button cannot be checked by hand; it is unchecked all the same.
void TestCenterSlots::sceneButtonsUncheckTheOthers()
{
    form().buttonExport->setCheckable(true);
    for (const bool checked : {true, false}) {
        form().buttonExport->setChecked(true);
        window->on_buttonMIDIinOut_clicked(checked);
        QVERIFY(!form().buttonExport->isChecked());
        form().buttonExport->setChecked(true);
        window->on_buttonCredits_clicked(checked);
        QVERIFY(!form().buttonExport->isChecked());
    }
}

void TestCenterSlots::clickOnMidiGoesThereAndBack()
{
    clickOn(form().buttonMIDIinOut);
    QCOMPARE(look(), QStringLiteral("ports left"));
    QCOMPARE(checks(), QStringLiteral("ports"));
    clickOn(form().buttonMIDIinOut);
    QCOMPARE(look(), QStringLiteral("texts left right"));
    QCOMPARE(checks(), QString());
}

void TestCenterSlots::clickOnCreditsShowsThemAnew()
{
    for (int round = 0; round < 3; ++round) {
        clickOn(form().buttonCredits);
        QCOMPARE(look(), QStringLiteral("version left right layer lines"));
        QCOMPARE(checks(), QString());
        QCOMPARE(creditsInScene().size(), screen().creditLines.size());
        QCOMPARE(screen().creditItems.first()->y(), 100.0);
        screen().moveCreditsText();
    }
}

void TestCenterSlots::oneSceneButtonLeadsToTheOther()
{
    clickOn(form().buttonMIDIinOut);
    clickOn(form().buttonCredits);
    QCOMPARE(look(), QStringLiteral("version left right layer lines"));
    QCOMPARE(checks(), QString());
    clickOn(form().buttonMIDIinOut);
    QCOMPARE(look(), QStringLiteral("ports left"));
    QCOMPARE(checks(), QStringLiteral("ports"));
}

void TestCenterSlots::clickGivesTheFocusBack_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"buttonMIDIinOut", "buttonCredits", "buttonManual", "buttonExport", "buttonImport", "buttonReset"})
        QTest::newRow(name) << name;
}

void TestCenterSlots::clickGivesTheFocusBack()
{
    QFETCH(QString, name);
    const UrlKeeper desktop;
    for (int round = 0; round < 2; ++round) {
        form().buttonManual->setFocus();
        clickOn(named(name));
        QVERIFY(inView()->hasFocus());
    }
}

void TestCenterSlots::pageOpens_data()
{
    QTest::addColumn<QString>("address");
    QTest::newRow("buttonManual") << vendor::site;
    QTest::newRow("buttonExport") << vendor::manual;
    QTest::newRow("buttonImport") << vendor::facebook;
    QTest::newRow("buttonReset") << vendor::youtube;
}

void TestCenterSlots::pageOpens()
{
    QFETCH(QString, address);
    const UrlKeeper desktop;
    QPushButton* button = named(QString::fromLatin1(QTest::currentDataTag()));
    for (int from = to_default; from <= to_credits; ++from) {
        call(from);
        check(true, true);
        button->setFocus();
        button->click();
        QCOMPARE(look(), QStringLiteral("texts left right"));
        QCOMPARE(checks(), QString());
        QVERIFY(inView()->hasFocus());
        QCOMPARE(hitAt(ofForm(340, 240)), QStringLiteral("scene1Button"));
    }
    QCOMPARE(desktop.urls, QStringList({address, address, address, address}));
}

// What they open is what they are for; no address stands for two.
void TestCenterSlots::onePageAClick()
{
    const UrlKeeper desktop;
    for (QPushButton* button : sixButtons())
        clickOn(button);
    const QStringList urls = desktop.urls;
    QCOMPARE(QSet<QString>(urls.begin(), urls.end()).size(), 4);
    QVERIFY(QUrl(QLatin1String(vendor::manual)).path().endsWith(QLatin1String(".pdf")));
    QCOMPARE(QUrl(QLatin1String(vendor::manual)).host(), QUrl(QLatin1String(vendor::site)).host());
    for (const QString& url : urls)
        QVERIFY(QUrl(url).isValid());
}

void TestCenterSlots::areaSlotsLeadToTheirScene_data()
{
    QTest::addColumn<int>("scene");
    QTest::newRow("scene1Button") << int(to_clean);
    for (const char* name :
         {"scene2Button", "scene34LeftButton", "scene34TopButton", "scene3RightButton", "scene4RightButton"})
        QTest::newRow(name) << int(to_default);
}

// Each is connected by its name.
void TestCenterSlots::areaSlotsLeadToTheirScene()
{
    QFETCH(int, scene);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    for (int from = to_default; from <= to_credits; ++from) {
        call(from);
        check(true, true);
        named(name)->click();
        QCOMPARE(screen().currentScene, scene);
        QCOMPARE(checks(), QString(scene == to_clean ? "ports credits" : ""));
    }
}

QTEST_MAIN(TestCenterSlots)

#include "test_center_slots.moc"
