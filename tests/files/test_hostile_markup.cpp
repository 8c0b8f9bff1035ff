// Mark-up in the texts of a file: it is shown as it is written, loads nothing and leads nowhere.

#include "HostileFixture.h"
#include "screen/AlertWidget.h"

#include <QGraphicsSceneHoverEvent>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QTextDocument>

#include <algorithm>
#include <sys/stat.h>

class TestHostileMarkup : public HostileFixture
{
    Q_OBJECT

private slots:
    void init();
    void pageShowsItAsText();
    void pageKeepsItsShape();
    void rowsAndTheirTipsShowItAsText();
    void tipOfAPresetShowsItAsText();
    void questionShowsItAsText();
    void windowPaintsAsEver();

private:
    QString markUp() const;
    /// Whether a text has no pictures, no links, no tables and no colour of its own.
    static bool isPlain(const QTextDocument& document);
    static QTextDocument* rich(const QString& text, QObject* parent);
};

// A picture that would wait for ever if it were loaded, and all else that a page can hold.
QString TestHostileMarkup::markUp() const
{
    return QStringLiteral("%1 %2 &amp;<img src=\"file://%3\"/><a href=\"file:///etc/passwd\">link</a>"
                          "<script>alert(1)</script><style>*{color:red}</style></td></table><h1>big</h1>"
                          "<!-- <object data=\"file://%3\"> ]]>")
        .replace("%3", pathOf("pipe"));
}

void TestHostileMarkup::init()
{
    const QString text = markUp();
    QFile::remove(pathOf("pipe"));
    QCOMPARE(mkfifo(LocalPath(pathOf("pipe")), 0600), 0);
    QJsonArray scales;
    for (const char* word : {"xoxoxxoxoxox", "xxooxxooxxoo"})
        scales.append(QJsonObject{{"Category", text},
                                  {"Title", text},
                                  {"Abbr1", "<b>A"},
                                  {"Abbr2", "<i>B"},
                                  {"LibBody", text + '\n' + text},
                                  {"Scale", word}});
    scales.append(QJsonObject{{"Category", "Other"}, {"Title", ""}, {"Scale", ""}});
    QJsonArray headers;
    for (int i = 0; i < 36; ++i)
        headers.append(QJsonObject{{"NameTonic", text},
                                   {"TonicOn", true},
                                   {"TonicData", "D"},
                                   {"ScaleOn", true},
                                   {"ScaleData", "xoxoxxoxoxox"}});
    const QJsonObject root = {{"SorvaneDefaultScalesArray", scales},
                              {"SorvaneDefaultHeadersArray", headers},
                              {"PowerOnState", true},
                              {"ScaleModifier", "xoxoxxoxoxox"},
                              {"CurrentScene", 1},
                              {"LibViewOpened", true}};
    QCOMPARE(faultOfGood(offer(QJsonDocument(root).toJson())), QString());
    window->setPower(true);
    window->showLibraryScreen(true);
    library().setCurrentCategory(text);
    screen().refreshBrowser();
}

bool TestHostileMarkup::isPlain(const QTextDocument& document)
{
    const QVector<QTextFormat> formats = document.allFormats();
    return std::none_of(formats.begin(), formats.end(), [](const QTextFormat& format) {
        return format.isImageFormat() || format.isTableFormat() || format.foreground().color() == Qt::red ||
               (format.isCharFormat() && format.toCharFormat().isAnchor());
    });
}

QTextDocument* TestHostileMarkup::rich(const QString& text, QObject* parent)
{
    auto* document = new QTextDocument(parent);
    if (Qt::mightBeRichText(text))
        document->setHtml(text);
    else
        document->setPlainText(text);
    return document;
}

void TestHostileMarkup::pageShowsItAsText()
{
    QElapsedTimer timer;
    timer.start();
    const QTextDocument& page = *view().description->document();
    const QString shown = page.toPlainText();
    for (const char* part :
         {"<script>alert(1)</script>", "<h1>big</h1>", "&amp;<img src=\"file://", "<b>A", "<i>B", "%1 %2"})
        QVERIFY2(shown.contains(QLatin1String(part)), qPrintable(shown));
    QCOMPARE(shown.count("<h1>big</h1>"), 3); // title, and two lines of the description
    QVERIFY(isPlain(page));
    QVERIFY(timer.elapsed() < 5000);
}

void TestHostileMarkup::pageKeepsItsShape()
{
    const int blocks = view().description->document()->blockCount();
    const QJsonArray plain = {QJsonObject{{"Category", "All"},
                                          {"Title", "A title"},
                                          {"Abbr1", "A"},
                                          {"Abbr2", "B"},
                                          {"LibBody", "One line\nand another"},
                                          {"Scale", "xoxoxxoxoxox"}}};
    QCOMPARE(offer(QJsonDocument(QJsonObject{{"SorvaneDefaultScalesArray", plain}}).toJson()).error,
             QString());
    library().setCurrentCategory("All");
    screen().refreshBrowser();
    QVERIFY(view().description->toPlainText().contains("A title"));
    QCOMPARE(view().description->document()->blockCount(), blocks);
}

void TestHostileMarkup::rowsAndTheirTipsShowItAsText()
{
    for (const QListWidget* list :
         {static_cast<const QListWidget*>(&categoryList()), static_cast<const QListWidget*>(&scaleList())}) {
        int marked = 0;
        for (int row = 0; row < list->count(); ++row) {
            const QListWidgetItem& item = *list->item(row);
            const QTextDocument* tip = rich(item.toolTip(), this);
            QCOMPARE(tip->toPlainText().simplified(), item.text().simplified());
            QVERIFY(isPlain(*tip));
            marked += item.text().contains("<img src=") ? 1 : 0;
        }
        QVERIFY(marked > 0);
    }
}

void TestHostileMarkup::tipOfAPresetShowsItAsText()
{
    HeaderItem* preset = header(lowest);
    QGraphicsSceneHoverEvent hover(QEvent::GraphicsSceneHoverEnter);
    QVERIFY(scene()->sendEvent(preset, &hover));
    const QTextDocument* tip = rich(preset->toolTip(), this);
    QVERIFY2(tip->toPlainText().contains("<img src="), qPrintable(preset->toolTip()));
    QVERIFY(isPlain(*tip));
}

void TestHostileMarkup::questionShowsItAsText()
{
    seen = 0;
    whenAsked([this](AlertWidget& alert) {
        bool found = false;
        for (const QLabel* label : alert.findChildren<QLabel*>()) {
            const QTextDocument* text = rich(label->text(), this);
            QVERIFY(isPlain(*text));
            found = found || text->toPlainText().contains("<img src=");
        }
        QVERIFY(found);
    });
    screen().deleteCategory();
    QCOMPARE(seen, 1);
    QVERIFY(library().categories().contains(markUp())); // not answered
}

void TestHostileMarkup::windowPaintsAsEver()
{
    window->show();
    QCoreApplication::processEvents();
    QCOMPARE(window->grab().size(), window->size() * window->devicePixelRatio());
    QCOMPARE(faultAfter(), QString());
    window->hide();
    const QByteArray again = exported();
    QCOMPARE(offer(again).error, QString());
    QVERIFY(library().categories().contains(markUp())); // whole, however it is shown
}

QTEST_MAIN(TestHostileMarkup)
#include "test_hostile_markup.moc"
