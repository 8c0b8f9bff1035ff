// The display as it comes into being, before anybody has touched it.

#include "CenterFixture.h"
#include "app/version.h"
#include "screen/credit_lines.h"

#include <QFile>
#include <QScrollBar>
#include <QTextBlock>

namespace {

QString fileText(const char* path)
{
    QFile file{QLatin1String(path)};
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

constexpr char buttonStyle[] = ":/Resources/CenterScreen/button.qss";
constexpr char listStyle[] = ":/Resources/MidiIoScreen/MIDI_Ports_list-mac.qss";
constexpr char credits[] = ":/Resources/CreditsScreen/CreditsData.txt";

/// The text of the credits with the program's version in its place.
QString creditText()
{
    return fileText(credits).replace(QLatin1String("@VERSION@"), QLatin1String(sorvaneVersion));
}

} // namespace

class TestCenterCreation : public CenterFixture
{
    Q_OBJECT

private slots:
    void screenItselfIsNeverShown();
    void versionLabelHasItsMarginAndOpensLinks();
    void logoIsThePicture();
    void aboutShowsThreeCentredParagraphs();
    void aboutNeedsNoScrolling();
    void creditLinesAreTheFiles();
    void noCreditLineIsCut();
    void sixButtonsWearTheStyle();
    void sixButtonsReadAsWritten_data();
    void sixButtonsReadAsWritten();
    void noPushButtonIsADefault();
    void rightButtonsAreEnabled();
    void opensInTheDefaultScene();
    void timerTicksEveryFiftyMilliseconds();
    void portViewStandsInItsPlaces();
    void portListsWearTheStyle();
    void libraryViewIsBuiltOnce();
    void libraryWidgetsStandInTheirPanes_data();
    void libraryWidgetsStandInTheirPanes();
};

void TestCenterCreation::screenItselfIsNeverShown()
{
    show();
    for (int setter = to_default; setter <= to_library; ++setter) {
        call(setter);
        QVERIFY(!screen().isVisible());
    }
}

void TestCenterCreation::versionLabelHasItsMarginAndOpensLinks()
{
    QCOMPARE(form().versionLabel->contentsMargins(), QMargins(0, 20, 0, 0));
    QVERIFY(form().versionLabel->openExternalLinks());
    QCOMPARE(form().versionLabel->textFormat(), Qt::RichText);
}

void TestCenterCreation::logoIsThePicture()
{
    const QPixmap logo = pictures::load(QStringLiteral(":/Resources/CenterScreen/Sorvane-Logo-CM.png"));
    QVERIFY(!logo.isNull());
    QCOMPARE(form().centerLogo->pixmap(Qt::ReturnByValue).cacheKey(), logo.cacheKey());
}

void TestCenterCreation::aboutShowsThreeCentredParagraphs()
{
    QTextDocument expected;
    expected.setHtml(fileText(":/Resources/CenterScreen/MainCenterScreenTextData.html").trimmed());
    const QTextDocument* about = form().about->document();
    QCOMPARE(about->toPlainText(), expected.toPlainText());
    QCOMPARE(about->blockCount(), 3);
    for (QTextBlock block = about->begin(); block.isValid(); block = block.next()) {
        QVERIFY(!block.text().isEmpty());
        QVERIFY(block.blockFormat().alignment() & Qt::AlignHCenter);
    }
}

void TestCenterCreation::aboutNeedsNoScrolling()
{
    show();
    QTextBrowser* about = form().about;
    QVERIFY(about->document()->size().height() <= about->viewport()->height());
    QCOMPARE(about->verticalScrollBar()->maximum(), 0);
    // The last line ends above the shade of the display.
    QVERIFY(about->y() + about->document()->size().height() <= form().labelBottom->y() + 2);
}

void TestCenterCreation::creditLinesAreTheFiles()
{
    QVERIFY(screen().creditLines.size() > 10);
    QCOMPARE(screen().creditLines, wrappedCreditLines(creditText()));
    QCOMPARE(CenterScreen::parseCreditFile(QLatin1String(credits)).size(), screen().creditLines.size());
    QCOMPARE(CenterScreen::parseCreditFile(QStringLiteral(":/none")), QStringList());
}

// The wrapping drops pieces by design; the program's own text must not lose any.
void TestCenterCreation::noCreditLineIsCut()
{
    const QString text = creditText();
    QVERIFY(text.contains(QLatin1String(sorvaneVersion)));
    QCOMPARE(screen().creditLines, text.split(QLatin1Char('\n'), Qt::SkipEmptyParts));
}

void TestCenterCreation::sixButtonsWearTheStyle()
{
    const QString style = fileText(buttonStyle);
    QVERIFY(style.contains(QLatin1String("10px Arial, Helvetica, sans-serif")));
    for (const QPushButton* button : sixButtons())
        QCOMPARE(button->styleSheet(), style);
}

void TestCenterCreation::sixButtonsReadAsWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("buttonMIDIinOut") << "MIDI I/O";
    QTest::newRow("buttonCredits") << "info && credits";
    QTest::newRow("buttonManual") << "visit website";
    QTest::newRow("buttonExport") << "documentation";
    QTest::newRow("buttonImport") << "@Facebook";
    QTest::newRow("buttonReset") << "@YouTube";
}

void TestCenterCreation::sixButtonsReadAsWritten()
{
    QFETCH(QString, text);
    const auto* button = window->findChild<QPushButton*>(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(button && sixButtons().contains(const_cast<QPushButton*>(button)));
    QCOMPARE(button->text(), text);
    QVERIFY(button->fontMetrics().horizontalAdvance(text) < button->width());
}

void TestCenterCreation::noPushButtonIsADefault()
{
    const auto all = window->findChildren<QPushButton*>();
    QVERIFY(all.size() >= 13);
    for (const QPushButton* button : all)
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
}

void TestCenterCreation::rightButtonsAreEnabled()
{
    for (const QPushButton* button : sixButtons())
        QVERIFY(button->isEnabled());
}

void TestCenterCreation::opensInTheDefaultScene()
{
    QCOMPARE(look(), QStringLiteral("texts left right"));
    QCOMPARE(checks(), QString());
    QCOMPARE(screen().currentScene, 1);
    QVERIFY(!screen().libraryOpen && !screen().libraryRemembered);
    // Of its own it is in no scene.
    const CenterScreen another(&centre(), form(), window.get());
    QCOMPARE(another.currentScene, 0);
    QVERIFY(!another.matches && !another.libraryOpen);
}

void TestCenterCreation::timerTicksEveryFiftyMilliseconds()
{
    QCOMPARE(screen().creditTimer->interval(), 50);
    QVERIFY(!screen().creditTimer->isSingleShot());
    QVERIFY(!screen().creditTimer->isActive());
}

void TestCenterCreation::portViewStandsInItsPlaces()
{
    QVERIFY(portPicture());
    QVERIFY(!portPicture()->pixmap().isNull());
    QCOMPARE(portPicture()->scenePos(), QPointF(320, 15));
    const QListWidget* in = screen().inPortList;
    const QListWidget* out = screen().outPortList;
    for (const QListWidget* list : {in, out}) {
        QCOMPARE(list->parentWidget(), window.get());
        QCOMPARE(list->selectionMode(), QAbstractItemView::MultiSelection);
        QCOMPARE(list->focusPolicy(), Qt::NoFocus);
    }
    show();
    window->resize(677, 480);
    QCOMPARE(in->pos(), QPoint(214, 196));
    QCOMPARE(out->pos(), QPoint(411, 196));
    // Side by side in the picture, above the shade of the display.
    QVERIFY(!in->geometry().intersects(out->geometry()));
    QVERIFY(qMax(in->geometry().bottom(), out->geometry().bottom()) <= form().labelBottom->y() + 1);
}

void TestCenterCreation::portListsWearTheStyle()
{
    const QString style = fileText(listStyle);
    QVERIFY(!style.isEmpty());
    QCOMPARE(screen().inPortList->styleSheet(), style);
    QCOMPARE(screen().outPortList->styleSheet(), style);
}

void TestCenterCreation::libraryViewIsBuiltOnce()
{
    const LibraryView* before = &view();
    const int items = centre().items().size();
    const int children = window->findChildren<QWidget*>().size();
    screen().addLibraryView();
    QCOMPARE(&view(), before);
    QCOMPARE(centre().items().size(), items);
    QCOMPARE(window->findChildren<QWidget*>().size(), children);
}

void TestCenterCreation::libraryWidgetsStandInTheirPanes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QRect>("pane"); // in the scene
    QTest::newRow("categories") << 0 << QRect(QPoint(192, 38), QPoint(342, 121));
    QTest::newRow("scales") << 1 << QRect(QPoint(348, 38), QPoint(482, 121));
    QTest::newRow("description") << 2 << QRect(QPoint(488, 38), QPoint(690, 121));
    QTest::newRow("tracker") << 3 << QRect(QPoint(482, 38), QPoint(487, 121));
}

void TestCenterCreation::libraryWidgetsStandInTheirPanes()
{
    QFETCH(int, number);
    QFETCH(QRect, pane);
    const QWidget* widget = view().widgets().at(number);
    QCOMPARE(widget->parentWidget(), window.get());
    show();
    for (const int width : {952, 800, 677}) {
        window->resize(width, 480);
        const QPoint corner = form().centerGraphicsView->pos();
        QVERIFY(pane.contains(widget->geometry().translated(-corner)));
        QVERIFY(widget->width() > pane.width() - 30 && widget->height() > pane.height() - 15);
    }
}

QTEST_MAIN(TestCenterCreation)

#include "test_center_creation.moc"
