// The window as assistive technology finds it, scene by scene and dialog by dialog: what can be used has a
// name, a role, a place and an action, and what is only painted is not there.

#include "AccessFixture.h"
#include "screen/AddWindow.h"
#include "screen/AlertWidget.h"
#include "screen/ChangeDialog.h"
#include "screen/EditWindow.h"

#include <QAccessible>
#include <QSet>

#include <algorithm>

class TestAccessibleTree : public AccessFixture
{
    Q_OBJECT

private slots:
    void windowOffersWhatTabReaches_data();
    void windowOffersWhatTabReaches();
    void treeHoldsTogether_data();
    void treeHoldsTogether();
    void dialogsHideWhatLiesBelow_data();
    void dialogsHideWhatLiesBelow();
    void stageIsToldInTheOrderOfTheEye();
    void sleepingPartsAreNotOffered();
    void narrowWindowOffersWhatItShows();
    void objectUnderAPointIsFound();
    void pageOfTheScaleIsRead();
    void gameIsNoWindowOfItsOwn();
    void treeIsToldAnewForEachWindow();

private:
    static void addScenes();
    QAccessibleInterface* root() const { return QAccessible::queryAccessibleInterface(window.get()); }
    static QAccessibleInterface* of(QWidget* widget) { return QAccessible::queryAccessibleInterface(widget); }
    QAccessibleInterface* inView() const { return of(window->ui.inKeyboardGraphicsView); }
    QAccessibleInterface* outView() const { return of(window->ui.outKeyboardGraphicsView); }
    QAccessibleInterface* centre() const { return of(window->ui.centerGraphicsView); }
    static QString nameOf(const QAccessibleInterface* object) { return object->text(QAccessible::Name); }
    static QStringList namesIn(const QAccessibleInterface* parent);
    /// What is wrong in it and below, a line for each; counts what can be used.
    QStringList faultsIn(QAccessibleInterface* object, int& usable) const;
    QStringList faultsOf(QAccessibleInterface* object) const;
    QString underPixel(QPointF scene, const QGraphicsView* view) const;
};

namespace {

bool isUsable(QAccessibleInterface* object)
{
    auto* actions = object->actionInterface();
    return object->state().focusable || (actions && !actions->actionNames().isEmpty());
}

bool mustHaveActions(QAccessible::Role role)
{
    return role == QAccessible::PushButton || role == QAccessible::CheckBox ||
           role == QAccessible::RadioButton || role == QAccessible::Slider;
}

bool isNoRole(QAccessible::Role role)
{
    return role == QAccessible::NoRole || role == QAccessible::Client;
}

} // namespace

QStringList TestAccessibleTree::namesIn(const QAccessibleInterface* parent)
{
    QStringList names;
    for (int i = 0; i < parent->childCount(); ++i)
        names << nameOf(parent->child(i));
    return names;
}

QStringList TestAccessibleTree::faultsOf(QAccessibleInterface* object) const
{
    QStringList faults;
    const QRect all(window->mapToGlobal(QPoint()), window->size());
    if (nameOf(object).trimmed().isEmpty())
        faults << QStringLiteral("no name");
    if (isNoRole(object->role()))
        faults << QStringLiteral("no role");
    if (object->rect().isEmpty() || !all.contains(object->rect()))
        faults << QStringLiteral("not in the window");
    const auto* actions = object->actionInterface();
    if (mustHaveActions(object->role()) && (!actions || actions->actionNames().isEmpty()))
        faults << QStringLiteral("no action");
    if (!object->isValid() || (object->window() && object->window() != window->windowHandle()))
        faults << QStringLiteral("not the window's");
    for (QString& fault : faults)
        fault += QStringLiteral(": \"%1\", role %2, below \"%3\"")
                     .arg(nameOf(object))
                     .arg(object->role())
                     .arg(object->parent() ? nameOf(object->parent()) : QString());
    return faults;
}

QStringList TestAccessibleTree::faultsIn(QAccessibleInterface* object, int& usable) const
{
    QStringList faults;
    QSet<QString> names;
    for (int i = 0; i < object->childCount(); ++i) {
        QAccessibleInterface* child = object->child(i);
        if (!child || child->parent() != object || object->indexOfChild(child) != i) {
            faults << QStringLiteral("child %1 of \"%2\" does not know its place").arg(i).arg(nameOf(object));
            continue;
        }
        if (child->state().invisible)
            continue;
        if (isUsable(child)) {
            ++usable;
            faults += faultsOf(child);
            if (names.contains(nameOf(child)))
                faults << QStringLiteral("two of the name ") + nameOf(child);
            names.insert(nameOf(child));
        }
        faults += faultsIn(child, usable);
    }
    return faults;
}

void TestAccessibleTree::addScenes()
{
    QTest::addColumn<int>("scene");
    QTest::addColumn<bool>("powered");
    QTest::addColumn<QStringList>("parts");
    QTest::addColumn<int>("controls"); // of the views
    const QStringList left{"MIDI I/O", "info & credits", "visit website"};
    const QStringList right{"documentation", "@Facebook", "@YouTube"};
    const QStringList ports{"MIDI input ports", "MIDI output ports"};
    const QStringList library{"Scale categories", "Scales of the category", "Description of the scale"};
    struct Scene
    {
        const char* name;
        int number;
        QStringList parts;
        int controls;
    };
    const Scene scenes[] = {{"default", 1, left + right + QStringList("Hide the buttons"), 0},
                            {"clean", 2, {"Show the buttons"}, 0},
                            {"ports", 3, left + ports + QStringList("Back"), 0},
                            {"credits", 4, left + right + QStringList("Back"), 0},
                            {"library", 5, library, 11}};
    const int keys = 88, game = 9, anchors = 8, power = 1, flags = 35, selectors = 12 + 11 + 2 + 1;
    for (const Scene& scene : scenes) {
        if (scene.number != 5)
            QTest::addRow("%s, power off", scene.name)
                << scene.number << false << scene.parts << 2 * keys + game + anchors + power;
        QTest::addRow("%s, power on", scene.name)
            << scene.number << true << scene.parts
            << 2 * keys + game + anchors + power + flags + selectors + scene.controls;
    }
}

void TestAccessibleTree::windowOffersWhatTabReaches_data()
{
    addScenes();
}

void TestAccessibleTree::windowOffersWhatTabReaches()
{
    QFETCH(int, scene);
    QFETCH(bool, powered);
    QFETCH(QStringList, parts);
    QFETCH(int, controls);
    showScene(scene, powered);
    QCOMPARE(root()->role(), QAccessible::Window);
    QStringList expected{QStringLiteral("Output keyboard")};
    expected += parts; // with the power off the first thing of the view is the game, behind them
    expected.insert(powered ? 1 : expected.size(), QStringLiteral("Tonic and scale selectors"));
    expected += QStringLiteral("Input keyboard");
    QCOMPARE(namesIn(root()), expected);
    int found = 0;
    for (const QAccessibleInterface* view : {inView(), outView(), centre()})
        found += view->childCount();
    QCOMPARE(found, controls);
}

void TestAccessibleTree::treeHoldsTogether_data()
{
    addScenes();
}

void TestAccessibleTree::treeHoldsTogether()
{
    QFETCH(int, scene);
    QFETCH(bool, powered);
    QFETCH(QStringList, parts);
    QFETCH(int, controls);
    showScene(scene, powered);
    int usable = 0;
    QCOMPARE(faultsIn(root(), usable).join(QLatin1Char('\n')), QString());
    QVERIFY2(usable >= controls + parts.size(), qPrintable(QString::number(usable)));
}

void TestAccessibleTree::dialogsHideWhatLiesBelow_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("usable");
    QTest::newRow("question") << 0 << QStringLiteral("Really?") << 2;
    QTest::newRow("name") << 1 << QStringLiteral("Name of it:") << 3;
    QTest::newRow("new scale") << 2 << QStringLiteral("New scale") << 7;
    QTest::newRow("names") << 3 << QStringLiteral("Names and description of the scale") << 6;
}

void TestAccessibleTree::dialogsHideWhatLiesBelow()
{
    QFETCH(int, kind);
    QFETCH(QString, name);
    QFETCH(int, usable);
    showScene(5, true);
    std::unique_ptr<AbstractDialog> dialog;
    if (kind == 0)
        dialog =
            std::make_unique<AlertWidget>(QString(), QStringLiteral("<b>Really?</b>"), QStringLiteral("Yes"),
                                          QStringLiteral("No"), alert_warning, window.get());
    else if (kind == 2)
        dialog = std::make_unique<AddWindow>(1, window.get());
    else if (kind == 3)
        dialog = std::make_unique<EditWindow>(1, window.get());
    else {
        auto change = std::make_unique<ChangeDialog>(window.get());
        change->setLabel(name);
        dialog = std::move(change);
    }
    QTimer::singleShot(0, dialog.get(), [&] {
        ++seen;
        QCOMPARE(root()->childCount(), 1);
        QCOMPARE(root()->child(0)->role(), QAccessible::Dialog);
        QCOMPARE(nameOf(root()->child(0)), name);
        QCOMPARE(root()->child(0)->childCount(), 1);
        QCOMPARE(root()->child(0)->child(0)->role(), QAccessible::Grouping);
        int found = 0;
        QCOMPARE(faultsIn(root()->child(0), found).join(QLatin1Char('\n')), QString());
        QVERIFY2(found >= usable, qPrintable(QString::number(found)));
        const QPoint middle = window->mapToGlobal(window->ui.inKeyboardGraphicsView->geometry().center());
        QCOMPARE(root()->childAt(middle.x(), middle.y()), root()->child(0));
    });
    QTimer::singleShot(100, dialog.get(), &AbstractDialog::reject);
    dialog->exec();
    QCOMPARE(seen, 1);
    QVERIFY(root()->childCount() > 3);
}

void TestAccessibleTree::stageIsToldInTheOrderOfTheEye()
{
    showScene(1, true);
    const QStringList in = namesIn(inView());
    QCOMPARE(in.mid(10, 3), (QStringList{"Preset on A#2", "Power", "Preset on D#3"}));
    const int keys = in.indexOf(QStringLiteral("A0, white key, plays A0"));
    QCOMPARE(keys, 36);
    QCOMPARE(in.at(keys + 1), QStringLiteral("A#0, black key, recalls its preset"));
    QCOMPARE(in.at(keys + 28), QStringLiteral("C#3, black key, switches the power"));
    QCOMPARE(in.at(keys + 88), QStringLiteral("Anchor -3"));
    QCOMPARE(in.last(), QStringLiteral("Anchor 4"));
    QCOMPARE(namesIn(outView()).first(), QStringLiteral("A0 of the output"));
    QCOMPARE(namesIn(outView()).last(), QStringLiteral("C8 of the output"));
    QCOMPARE(namesIn(centre()).first(), QStringLiteral("Tonic C"));
    QCOMPARE(namesIn(centre()).last(), QStringLiteral("Preset sets the scale"));
    QVERIFY(namesIn(centre()).contains(QStringLiteral("Semitone 6 above the tonic, tritone")));
    setTonic("D");
    QVERIFY(namesIn(inView()).contains(QStringLiteral("C4, white key, plays D4")));
}

void TestAccessibleTree::sleepingPartsAreNotOffered()
{
    showScene(1, true);
    QAccessibleInterface* flag = inView()->child(1);
    QAccessibleInterface* tonicKey = centre()->child(0);
    QVERIFY(!flag->state().invisible && !tonicKey->state().invisible);
    window->setPower(false);
    QVERIFY(flag->state().invisible && tonicKey->state().invisible);
    QCOMPARE(inView()->indexOfChild(flag), -1);
    QVERIFY(namesIn(inView()).filter(QStringLiteral("Preset on")).isEmpty());
    QVERIFY(namesIn(centre()).filter(QStringLiteral("Tonic")).isEmpty());
    QVERIFY(!inView()->child(-1) && !inView()->child(1000) && !root()->child(1000));
    QCOMPARE(root()->indexOfChild(nullptr), -1);
}

void TestAccessibleTree::narrowWindowOffersWhatItShows()
{
    showScene(1, true);
    window->resize(700, window->height());
    QCoreApplication::processEvents();
    int usable = 0;
    QCOMPARE(faultsIn(root(), usable).join(QLatin1Char('\n')), QString());
    QVERIFY(inView()->childCount() < 36 + 88 + 9);
    QVERIFY(inView()->childCount() > 60);
}

QString TestAccessibleTree::underPixel(QPointF scene, const QGraphicsView* view) const
{
    const QPoint screen = view->viewport()->mapToGlobal(view->mapFromScene(scene));
    QAccessibleInterface* part = root()->childAt(screen.x(), screen.y());
    QAccessibleInterface* found = part ? part->childAt(screen.x(), screen.y()) : nullptr;
    return found ? nameOf(found) : QStringLiteral("nothing");
}

void TestAccessibleTree::objectUnderAPointIsFound()
{
    showScene(1, true);
    const auto* in = window->ui.inKeyboardGraphicsView;
    const QRectF white = window->findInNote(60)->sceneBoundingRect();
    const QRectF black = window->findInNote(61)->sceneBoundingRect();
    QCOMPARE(underPixel(QPointF(white.left() + 4, white.bottom() - 12), in),
             QStringLiteral("C4, white key, plays C4"));
    QCOMPARE(underPixel(QPointF(black.center().x(), black.bottom() - 5), in),
             QStringLiteral("C#4, black key, recalls its preset"));
    QCOMPARE(underPixel(header(66)->pos() + QPointF(22, 10), in), QStringLiteral("Preset on F#4"));
    QCOMPARE(underPixel(power()->sceneBoundingRect().center(), in), QStringLiteral("Power"));
    const auto* main = anchors()->findAnchorByName(QStringLiteral("main"));
    QCOMPARE(underPixel(QPointF(main->sceneBoundingRect().center().x(), 155), in),
             QStringLiteral("Anchor 0"));
    QStringList missed;
    for (const QAccessibleInterface* view : {inView(), outView(), centre()})
        for (int i = 0; i < view->childCount(); ++i) {
            const QRect place = view->child(i)->rect();
            bool found = false; // what is half covered shows in some place
            for (int y = place.bottom() - 1; y > place.top() && !found; y -= 5)
                for (int quarter = 1; quarter < 4 && !found; ++quarter)
                    found = view->childAt(place.left() + quarter * place.width() / 4, y) == view->child(i);
            if (!found)
                missed << nameOf(view->child(i));
        }
    QCOMPARE(missed, QStringList("C#3, black key, switches the power")); // the button lies over it
    QVERIFY(!inView()->childAt(-5, -5));
    QVERIFY(!root()->childAt(-5, -5));
}

void TestAccessibleTree::pageOfTheScaleIsRead()
{
    showScene(5, true);
    QAccessibleInterface* page = of(view().description);
    QCOMPARE(page->parent(), root());
    QVERIFY(page->textInterface());
    const QString text = page->textInterface()->text(0, page->textInterface()->characterCount());
    QVERIFY2(text.startsWith(QLatin1String("Ionian")), qPrintable(text));
    const QPoint middle = page->rect().center();
    QCOMPARE(root()->childAt(middle.x(), middle.y()), page);
}

// Its cells are the view's.
void TestAccessibleTree::gameIsNoWindowOfItsOwn()
{
    const QAccessibleInterface* program = QAccessible::queryAccessibleInterface(qApp);
    QStringList shown;
    for (int i = 0; i < program->childCount(); ++i)
        if (!program->child(i)->state().invisible)
            shown << nameOf(program->child(i));
    QCOMPARE(shown, QStringList("Sorvane"));
}

void TestAccessibleTree::treeIsToldAnewForEachWindow()
{
    QAccessibleInterface* key = inView()->child(40);
    const QAccessible::Id id = QAccessible::uniqueId(key);
    QCOMPARE(QAccessible::accessibleInterface(id), key);
    QCOMPARE(inView()->child(40), key); // made once
    window.reset();
    QVERIFY(!QAccessible::accessibleInterface(id));
    openAlone();
    QVERIFY(inView()->childCount() > 88);
}

QTEST_MAIN(TestAccessibleTree)
#include "test_accessible_tree.moc"
