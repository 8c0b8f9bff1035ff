// The page that describes a scale.

#include "LibraryFixture.h"

#include "screen/description_page.h"

#include <QScrollBar>
#include <QtTest>

namespace {

const QString doctype = QStringLiteral("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
                                       "\"http://www.w3.org/TR/REC-html40/strict.dtd\">");

} // namespace

class TestLibraryPage : public LibraryFixture
{
    Q_OBJECT

private slots:
    // As HTML
    void beginsWithTheStrictDoctype();
    void titleStandsBoldInADivision();
    void bodyStandsInItsStyledDivision();
    void linesAreJoinedByBreaks_data();
    void linesAreJoinedByBreaks();
    void emptyBodyIsSaid();
    void textOfThePlayerIsNoHtml();
    void placeMarksInATextStayText();

    // In the browser
    void pageShowsTheRecord();
    void pageOfAnyRole();
    void pageOfAnUnknownWordIsEmpty();
    void pageOpensNoLinks();
    void editorFitsItsPane();
    void longPageScrolls();
    void leftPressAsksToEdit();

private:
    QString sample() const
    {
        return CenterScreen::getMainTextData(QStringLiteral(":/Resources/LibraryScreen/Sample-descr.html"));
    }
    QString page(const QString& title, const QString& body) const
    {
        return descriptionPage(sample(), {ionian, QStringLiteral("One"), QStringLiteral("Two"), title, body});
    }
    QString shownText() const { return view().description->toPlainText().trimmed(); }
};

void TestLibraryPage::beginsWithTheStrictDoctype()
{
    QVERIFY(page(QStringLiteral("T"), QStringLiteral("B")).startsWith(doctype));
}

void TestLibraryPage::titleStandsBoldInADivision()
{
    const QString html = page(QStringLiteral("The Title"), QStringLiteral("B"));
    QCOMPARE(html.count(QStringLiteral("<div><b>The Title</b></div>\n")), 1);
    const int title = html.indexOf(QStringLiteral("The Title")), one = html.indexOf(QStringLiteral("One")),
              two = html.indexOf(QStringLiteral("Two")), body = html.indexOf(QStringLiteral(">B<"));
    QVERIFY(title > 0 && title < one && one < two && two < body);
}

void TestLibraryPage::bodyStandsInItsStyledDivision()
{
    const QString html = page(QStringLiteral("T"), QStringLiteral("The body"));
    QCOMPARE(html.count(QStringLiteral("<div style=\"margin: 0px 4px 0px 0px;\">The body</div>")), 1);
}

void TestLibraryPage::linesAreJoinedByBreaks_data()
{
    QTest::addColumn<QString>("body");
    QTest::addColumn<QString>("html");
    QTest::newRow("none") << "one"
                          << "one";
    QTest::newRow("two") << "one\ntwo"
                         << "one<br/>two";
    QTest::newRow("blank line") << "one\n\ntwo"
                                << "one<br/><br/>two";
    QTest::newRow("carriage return") << "one\r\ntwo"
                                     << "one<br/>two";
    QTest::newRow("at the end") << "one\n"
                                << "one<br/>";
}

void TestLibraryPage::linesAreJoinedByBreaks()
{
    QFETCH(QString, body);
    QFETCH(QString, html);
    QVERIFY(page(QStringLiteral("T"), body).contains(QLatin1Char('>') + html + QStringLiteral("</div>")));
}

void TestLibraryPage::emptyBodyIsSaid()
{
    QVERIFY(page(QStringLiteral("T"), QString()).contains(QStringLiteral(">(no description)</div>")));
    QVERIFY(!page(QStringLiteral("T"), QStringLiteral("B")).contains(QStringLiteral("(no description)")));
}

void TestLibraryPage::textOfThePlayerIsNoHtml()
{
    const QString hard = QStringLiteral("<b>\"A\" & B</b>");
    const QString html = descriptionPage(sample(), {ionian, hard, hard, hard, hard});
    QCOMPARE(html.count(QStringLiteral("&lt;b&gt;&quot;A&quot; &amp; B&lt;/b&gt;")), 4);
    QVERIFY(!html.contains(hard));
}

void TestLibraryPage::placeMarksInATextStayText()
{
    const QString html = descriptionPage(sample(), {ionian, QStringLiteral("%2"), QStringLiteral("%3"),
                                                    QStringLiteral("%4"), QStringLiteral("%1 50%")});
    QVERIFY(html.contains(QStringLiteral("<b>%4</b>")));
    QVERIFY(html.contains(QStringLiteral("<div>%2 %3</div>")));
    QVERIFY(html.contains(QStringLiteral(">%1 50%</div>")));
}

void TestLibraryPage::pageShowsTheRecord()
{
    library().setScaleData(ionian,
                           {ionian, QStringLiteral("Ab"), QStringLiteral("Cd"),
                            QStringLiteral("A < B & \"C\""), QStringLiteral("first\nsecond <i>x</i>")},
                           DatabaseLibrary::LibraryRole);
    screen().updateSceneDescr(ionian);
    screen().updateBrowser();
    settle();
    QCOMPARE(shownText(), QStringLiteral("A < B & \"C\"\nAb Cd\nfirst\nsecond <i>x</i>"));
    QCOMPARE(button(LibraryButton::edit_abbr1).text(), QStringLiteral("Ab"));
    QCOMPARE(button(LibraryButton::edit_abbr2).text(), QStringLiteral("Cd"));
    QCOMPARE(button(LibraryButton::scale_label).text(), QStringLiteral("Ab Cd"));
}

void TestLibraryPage::pageOfAnyRole()
{
    library().setScaleData(
        unknownWord,
        {unknownWord, QStringLiteral("User"), QStringLiteral("9"), QStringLiteral("User 9"), QString()},
        DatabaseLibrary::CustomRole);
    library().setCurrentScaleIndex(library().currentCategory(), -1);
    screen().updateSceneDescr(unknownWord);
    screen().updateBrowser();
    settle();
    QCOMPARE(shownText(), QStringLiteral("User 9\nUser 9\n(no description)"));
}

void TestLibraryPage::pageOfAnUnknownWordIsEmpty()
{
    library().setCurrentScaleIndex(library().currentCategory(), -1);
    screen().updateSceneDescr(unknownWord);
    screen().updateBrowser();
    settle();
    QCOMPARE(shownText(), QString());
    QCOMPARE(button(LibraryButton::edit_abbr1).text(), QString());
    QCOMPARE(button(LibraryButton::scale_label).text(), QString());
}

void TestLibraryPage::pageOpensNoLinks()
{
    QVERIFY(!view().description->openLinks());
    QVERIFY(view().description->isReadOnly());
}

void TestLibraryPage::editorFitsItsPane()
{
    show();
    auto* editor = view().description;
    QVERIFY(editor->width() <= 178 && editor->height() <= 73);
    const QRect scenePlace = editor->geometry().translated(-21, -152); // the window stands 21, 152 off
    QVERIFY2(QRect(488, 38, 203, 84).contains(scenePlace), "in its pane");
    QCOMPARE(editor->frameShape(), QFrame::NoFrame);
    QCOMPARE(editor->font().pixelSize(), 10);
    QCOMPARE(editor->palette().color(QPalette::Text), QColor(0x57, 0x54, 0x50));
}

void TestLibraryPage::longPageScrolls()
{
    show();
    screen().updateSceneDescr(ionian);
    screen().updateBrowser();
    settle();
    auto* editor = view().description;
    QTRY_VERIFY(editor->verticalScrollBar()->maximum() > 0);
    QCOMPARE(editor->verticalScrollBar()->width(), 6);
    QCOMPARE(editor->horizontalScrollBar()->maximum(), 0);
}

void TestLibraryPage::leftPressAsksToEdit()
{
    QSignalSpy pressed(view().description, &DescriptionEditor::pressed);
    const auto clickOn = [this](Qt::MouseButton which) {
        return whatOpens([&] { QTest::mouseClick(view().description->viewport(), which); });
    };
    QCOMPARE(clickOn(Qt::RightButton), QString());
    QCOMPARE(pressed.size(), 0);
    QVERIFY(clickOn(Qt::LeftButton).startsWith(QStringLiteral("EditWindow")));
    QCOMPARE(pressed.size(), 1);
}

QTEST_MAIN(TestLibraryPage)
#include "test_library_page.moc"
