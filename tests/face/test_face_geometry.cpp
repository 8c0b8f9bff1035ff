// Everything stands inside the window and inside the picture it belongs to, and nothing is cut off.

#include "FaceFixture.h"
#include "FaceParts.h"

#include <QRegularExpression>

namespace {

/// A part that may leave its window or view, and why. `until` is the widest window where it may.
struct Excuse
{
    const char* parts; ///< a regular expression for the whole name
    int until;
    Qt::Edges over;
    const char* reason;
};

const Excuse excuses[] = {
    {"(in|out|flag|anchor|out anchor) .*|power", 951, Qt::LeftEdge,
     "the keyboards keep their distance to the right edge, so a narrow window shows the higher octaves"},
    {"(tonic|scale) .*|number square|library button 1[01]|paper game", 951, Qt::LeftEdge | Qt::RightEdge,
     "the panels stand at both ends of the stage, which is centred in a narrow window"},
    {"credit line", 952, Qt::BottomEdge, "the credits scroll up from below the display"},
};

bool isExcused(const FacePart& part, int width, Qt::Edge over)
{
    for (const Excuse& row : excuses)
        if (width <= row.until && row.over.testFlag(over) &&
            QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(row.parts)))
                .match(part.name)
                .hasMatch())
            return true;
    return false;
}

/// The edges of `outer` that `inner` reaches over.
QVector<Qt::Edge> edgesOver(const QRectF& inner, const QRectF& outer)
{
    QVector<Qt::Edge> over;
    if (inner.left() < outer.left())
        over << Qt::LeftEdge;
    if (inner.top() < outer.top())
        over << Qt::TopEdge;
    if (inner.right() > outer.right())
        over << Qt::RightEdge;
    if (inner.bottom() > outer.bottom())
        over << Qt::BottomEdge;
    return over;
}

QString inWords(const QRectF& r)
{
    return QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height());
}

} // namespace

class TestFaceGeometry : public FaceFixture
{
    Q_OBJECT

private slots:
    void everythingIsThere();
    void everythingIsAtHome_data() { addStatesAndWidths(); }
    void everythingIsAtHome();
    void nothingIsCutOff_data() { addStatesAndWidths(); }
    void nothingIsCutOff();
    void windowMovesWhatMoves_data();
    void windowMovesWhatMoves();
    void flagsStandOnTheirKeys();
    void anchorsStandOnKeyEdges_data();
    void anchorsStandOnKeyEdges();

private:
    QVector<FacePart> parts() const { return face_parts::all(*window, dialog.get()); }
    int count(const char* pattern) const;
};

int TestFaceGeometry::count(const char* pattern) const
{
    const QRegularExpression whole(QRegularExpression::anchoredPattern(QLatin1String(pattern)));
    QSet<QString> names;
    int nameless = 0;
    for (const FacePart& part : parts())
        if (whole.match(part.name).hasMatch()) {
            names.insert(part.name);
            ++nameless;
        }
    return names.size() > 1 ? names.size() : nameless;
}

// The other tests say something about nothing if they are told of nothing.
void TestFaceGeometry::everythingIsThere()
{
    enter(QStringLiteral("on"));
    QCOMPARE(count("in [0-9]+"), 88);
    QCOMPARE(count("out [0-9]+"), 88);
    QCOMPARE(count("flag .*"), 35); // one makes room for the power button
    QCOMPARE(count("power"), 1);
    QCOMPARE(count("anchor .*"), 8);
    QCOMPARE(count("out anchor .*"), 8);
    QCOMPARE(count("tonic .*"), 13); // with the switch
    QCOMPARE(count("scale .*"), 13);
    QCOMPARE(count("number square"), 12);
    QCOMPARE(count("button.*"), 6);
    QCOMPARE(count("paper game"), 1);
    window->setPower(true);
    enter(QStringLiteral("library"));
    QCOMPARE(count("library button .*"), 12); // one of the two that open and close it
    QCOMPARE(count("categories|scales|description|tracker"), 4);
}

void TestFaceGeometry::everythingIsAtHome()
{
    QFETCH(QString, state);
    QFETCH(int, width);
    enter(state);
    window->resize(width, 480);
    QStringList faults;
    for (const FacePart& part : parts())
        for (const Qt::Edge edge : edgesOver(part.painted, part.home))
            if (!isExcused(part, 952, edge)) // at home at any width
                faults << QStringLiteral("%1 at %2 leaves %3")
                              .arg(part.name, inWords(part.painted), inWords(part.home));
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("\n"))));
}

void TestFaceGeometry::nothingIsCutOff()
{
    QFETCH(QString, state);
    QFETCH(int, width);
    enter(state);
    window->resize(width, 480);
    QStringList faults;
    for (const FacePart& part : parts()) {
        const QRectF shown = part.pane & QRectF(window->rect());
        for (const Qt::Edge edge : edgesOver(part.painted, shown))
            if (!isExcused(part, width, edge))
                faults << QStringLiteral("%1 at %2 is cut by %3")
                              .arg(part.name, inWords(part.painted), inWords(shown));
    }
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(QStringLiteral("\n"))));
}

void TestFaceGeometry::windowMovesWhatMoves_data()
{
    QTest::addColumn<int>("width");
    for (const int width : widths)
        QTest::addRow("%d", width) << width;
}

void TestFaceGeometry::windowMovesWhatMoves()
{
    QFETCH(int, width);
    window->resize(952, 480);
    const auto placesOf = [this](const QList<QWidget*>& all) {
        QList<int> places;
        for (const QWidget* each : all)
            places << each->x();
        return places;
    };
    const QList<QWidget*> keys{form().inKeyboardGraphicsView, form().outKeyboardGraphicsView};
    const QList<QWidget*> still{form().backgroundGraphicsView, form().inputSwitchGraphicsView,
                                form().outputSwitchGraphicsView, form().newWinButtonGraphicsView};
    QList<QWidget*> centre{form().centerGraphicsView, form().centerLogo,   form().about,
                           form().versionLabel,       form().hiddenLayer,  form().labelBottom,
                           screen().inPortList,       screen().outPortList};
    centre += view().widgets();
    for (QPushButton* button : sixButtons())
        centre << button;
    const QList<int> keysBefore = placesOf(keys), stillBefore = placesOf(still),
                     centreBefore = placesOf(centre);
    window->resize(width, 480);
    const int half = (952 - 677) / 2 - (width - 677) / 2;
    for (int i = 0; i < keys.size(); ++i)
        QCOMPARE(keys[i]->x(), keysBefore[i] - (952 - width));
    for (int i = 0; i < still.size(); ++i)
        QCOMPARE(still[i]->x(), stillBefore[i]);
    for (int i = 0; i < centre.size(); ++i)
        QCOMPARE(centre[i]->x(), centreBefore[i] - half);
}

void TestFaceGeometry::flagsStandOnTheirKeys()
{
    window->setPower(true);
    for (const HeaderItem* flag : qAsConst(presets().headers)) {
        const QRectF key = window->findInNote(key_roles::headerSlot(flag))->sceneBoundingRect();
        const QRectF badge = flag->mapRectToScene(QRectF(flag->tonicRect).adjusted(0, 0, 0, 0));
        QVERIFY2(qAbs(badge.center().x() - key.center().x()) <= 1,
                 qPrintable(QString::number(key_roles::headerSlot(flag))));
        QVERIFY(badge.top() >= key.top() && badge.bottom() <= key.bottom());
    }
    const QRectF home = window->findInNote(key_roles::pitch(power()))->sceneBoundingRect();
    QVERIFY(qAbs(power()->sceneBoundingRect().center().x() - home.center().x()) <= 1);
}

void TestFaceGeometry::anchorsStandOnKeyEdges_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("one note") << QStringLiteral("xooooooooooo");
    QTest::newRow("seven notes") << QStringLiteral("xoxoxxoxoxox");
    QTest::newRow("twelve notes") << QStringLiteral("xxxxxxxxxxxx");
}

void TestFaceGeometry::anchorsStandOnKeyEdges()
{
    QFETCH(QString, word);
    window->setPower(true);
    setScale(word);
    power()->remap();
    int found = 0;
    for (const FacePart& part : parts()) {
        if (!part.name.startsWith(QLatin1String("anchor")) || part.painted.height() < 40)
            continue; // its number or its grip
        ++found;
        QVERIFY2((qFloor(part.painted.center().x()) - 35) % 17 == 0,
                 qPrintable(part.name + QLatin1Char(' ') + inWords(part.painted)));
    }
    QVERIFY(found > 2);
}

QTEST_MAIN(TestFaceGeometry)
#include "test_face_geometry.moc"
